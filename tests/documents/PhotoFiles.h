#pragma once
// Small photo files with chosen dates, written into a scratch folder and
// opened as rows of a multi-file document.

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "TempFiles.h"
#include "documents/LumFileItemDoc.h"
#include "support/JpegBuilder.h"

namespace doctest_support {

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
