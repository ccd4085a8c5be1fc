#pragma once
// Writes test bytes to a temporary file and opens it as an image file.

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <unistd.h>

#include "formats/LumImageFile.h"
#include "support/JpegBuilder.h"

namespace lumtest {

// A file in a private temporary folder, removed with the object.
class TempFile {
 public:
  explicit TempFile(const Bytes& bytes, const std::string& name = "photo.jpg") {
    static int serial = 0;
    dir_ = std::filesystem::temp_directory_path() /
           ("lum-imagefile-" + std::to_string(::getpid()) + "-" + std::to_string(serial++));
    std::filesystem::create_directories(dir_);
    path_ = dir_ / name;
    std::ofstream(path_, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()),
                                                  static_cast<std::streamsize>(bytes.size()));
  }
  ~TempFile() { std::filesystem::remove_all(dir_); }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path dir_, path_;
};

struct Opened { std::unique_ptr<LumImageFile> file; LumError error; };

inline Opened openBytes(const Bytes& bytes) {
  TempFile temp(bytes);
  Opened o;
  o.file = LumImageFile::imageFileWithURL(temp.path(), &o.error);
  return o;
}

// An owner that answers a fixed path.
struct PathOwner : LumImageFileOwner {
  std::filesystem::path path;
  std::optional<std::filesystem::path> fileURL() const override { return path; }
};

}  // namespace lumtest
