#pragma once
// Writes test bytes to a temporary file and opens it as an image file.

#include <filesystem>
#include <memory>
#include <string>

#include "formats/LumImageFile.h"
#include "support/JpegBuilder.h"
#include "support/TestData.h"

namespace lumtest {

// A file in a private temporary folder, removed with the object.
class TempFile {
 public:
  explicit TempFile(const Bytes& bytes, const std::string& name = "photo.jpg") : path_(folder_ / name) {
    writeFile(path_, bytes);
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  TempFolder folder_;
  std::filesystem::path path_;
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
  explicit PathOwner(std::filesystem::path p = {}) : path(std::move(p)) {}
  std::filesystem::path path;
  std::optional<std::filesystem::path> fileURL() const override { return path; }
};

}  // namespace lumtest
