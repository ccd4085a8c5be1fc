#pragma once
// A scratch folder per test, small file helpers, and small photo files with
// chosen dates opened as rows of a multi-file document.

#include <QCoreApplication>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "documents/LumFileItemDoc.h"
#include "support/JpegBuilder.h"
#include "support/TestData.h"

namespace doctest_support {

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "lumdocs-XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

inline void writeBytes(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

inline std::vector<std::uint8_t> readBytes(const std::filesystem::path& path) { return lumtest::readFile(path); }

struct PhotoDates { std::optional<std::string> original, digitized, edited; };

// A JPEG whose Exif APP1 comes right after SOI (TIFF header at 12), with a
// 20-byte ASCII value for each given date.
inline std::vector<std::uint8_t> photoBytes(const PhotoDates& dates) {
  std::vector<lumtest::AsciiEntry> ifd0{{0x010F, std::string("Maker\0", 6)}};
  std::vector<lumtest::AsciiEntry> exif{{0x9290, std::string("42\0", 3)}};
  const auto withNul = [](const std::string& text) { return text + std::string(1, '\0'); };
  if (dates.edited) ifd0.push_back({0x0132, withNul(*dates.edited)});
  if (dates.original) exif.push_back({0x9003, withNul(*dates.original)});
  if (dates.digitized) exif.push_back({0x9004, withNul(*dates.digitized)});
  return lumtest::JpegBuilder().exif(lumtest::exifTiff(ifd0, exif)).build();
}

inline std::unique_ptr<LumFileItemDoc> openItem(const std::filesystem::path& path) {
  LumError error;
  std::unique_ptr<LumImageFile> file = LumImageFile::imageFileWithURL(path, &error);
  if (!file) return nullptr;
  return std::make_unique<LumFileItemDoc>(path, std::move(file));
}

inline std::filesystem::path writePhoto(const TempFolder& folder, const std::string& name, const PhotoDates& dates) {
  const std::filesystem::path path = folder / name;
  std::filesystem::create_directories(path.parent_path());
  writeBytes(path, photoBytes(dates));
  return path;
}

// The application object queued hand-offs need; made once per test binary.
inline void ensureApplication() {
  static int argc = 1;
  static char name[] = "documents_tests";
  static char* argv[] = {name, nullptr};
  if (!QCoreApplication::instance()) new QCoreApplication(argc, argv);
}

}  // namespace doctest_support
