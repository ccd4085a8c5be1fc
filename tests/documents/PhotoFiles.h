#pragma once
// A scratch folder per test, small file helpers, and small photo files with
// chosen dates opened as rows of a multi-file document.

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "documents/LumFileItemDoc.h"
#include "documents/LumMultiFileDoc.h"
#include "support/JpegBuilder.h"
#include "support/TestData.h"

namespace doctest_support {

using lumtest::TempFolder;
inline constexpr auto& writeBytes = lumtest::writeFile;
inline constexpr auto& readBytes = lumtest::readFile;

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

// Opens every path as a row of one document; a path that does not open is left out.
inline std::unique_ptr<LumMultiFileDoc> openDocument(const std::vector<std::filesystem::path>& paths) {
  ensureApplication();
  std::vector<std::unique_ptr<LumFileItemDoc>> items;
  for (const auto& path : paths)
    if (auto item = openItem(path)) items.push_back(std::move(item));
  return std::make_unique<LumMultiFileDoc>(std::move(items));
}

// The photos written into the folder and opened as the rows of one document.
inline std::unique_ptr<LumMultiFileDoc> openPhotos(const TempFolder& folder,
                                                   const std::vector<std::pair<std::string, PhotoDates>>& photos) {
  std::vector<std::filesystem::path> paths;
  for (const auto& [name, dates] : photos) paths.push_back(writePhoto(folder, name, dates));
  return openDocument(paths);
}

// Saves every edited file (or the edited among the selection) and waits for
// the outcome; none after a minute.
inline std::optional<LumSaveOutcome> saveAndWait(LumMultiFileDoc& doc, bool all = true) {
  std::optional<LumSaveOutcome> outcome;
  QEventLoop loop;
  QObject::connect(&doc, &LumMultiFileDoc::saveFinished, &loop,
                   [&](const LumSaveOutcome& o) { outcome = o, loop.quit(); });
  QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
  doc.saveFileAll(all, false, false);
  if (doc.isSaving()) loop.exec();
  return outcome;
}

}  // namespace doctest_support
