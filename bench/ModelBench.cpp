// lumidate-bench-model: times the document model and the thumbnail path on the
// benchmark's sets, and prints one JSON object for bench/run.
//
//   lumidate-bench-model --small DIR --large DIR [--threads N]
//
// Small set: every file opened by a pool of worker threads into one
// multi-file document, then one Forward apply of one hour over all of them,
// one undo, and one sort by each column. Large set: the image-file model's
// own thumbnail path (open, decode scaled, fit into 150 x 150) on all cores.
// Each step is checked to have done its work, so that a step that silently
// did nothing cannot pass for a fast one.
#include <QCoreApplication>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "documents/LumFileItemDoc.h"
#include "documents/LumMultiFileDoc.h"
#include "formats/FileExpansion.h"
#include "formats/ImageDecoder.h"
#include "formats/LumImageFile.h"
#include "tools/Resizing.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Runs job(i) for i in [0, count) on `threads` workers taking the next index.
void parallelFor(std::size_t count, unsigned threads, const std::function<void(std::size_t)>& job) {
  std::atomic<std::size_t> next{0};
  std::vector<std::jthread> pool;
  for (unsigned t = 0; t < threads; ++t)
    pool.emplace_back([&] {
      for (std::size_t i = next++; i < count; i = next++) job(i);
    });
}

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "lumidate-bench-model: %s\n", what.c_str());
  std::exit(1);
}

std::vector<fs::path> photos(const fs::path& folder) {
  auto files = FileExpansion::allPhotoPaths({folder}).files;
  if (files.empty()) fail("no photos in " + folder.string());
  return files;
}

std::vector<std::unique_ptr<LumFileItemDoc>> loadItems(const std::vector<fs::path>& files,
                                                       unsigned threads) {
  std::vector<std::unique_ptr<LumImageFile>> opened(files.size());
  parallelFor(files.size(), threads, [&](std::size_t i) {
    LumError error;
    opened[i] = LumImageFile::imageFileWithURL(files[i], &error);
  });
  std::vector<std::unique_ptr<LumFileItemDoc>> items;
  items.reserve(files.size());
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (!opened[i]) fail("could not open " + files[i].string());
    items.push_back(std::make_unique<LumFileItemDoc>(files[i], std::move(opened[i])));
  }
  return items;
}

// The first row's DateTimeOriginal text, to see that a step changed it.
std::string firstOriginal(const LumMultiFileDoc& doc) {
  return doc.item(0).dateTimeOriginalString().value_or("");
}

nlohmann::json modelTimes(const std::vector<fs::path>& files, unsigned threads) {
  nlohmann::json out;
  auto start = Clock::now();
  LumMultiFileDoc doc(loadItems(files, threads));
  out["load_s"] = secondsSince(start);
  out["files"] = files.size();

  doc.setEditStateOnAllFiles();
  doc.changeActionMode(LumActionMode::Forward);
  doc.setFieldValue(LumMultiFileDoc::Hour, 1);
  const std::string before = firstOriginal(doc);
  start = Clock::now();
  doc.applyToAllFiles();
  out["apply_s"] = secondsSince(start);
  if (firstOriginal(doc) == before || doc.editedFileCount() != files.size())
    fail("the apply changed nothing");

  start = Clock::now();
  doc.undoStack().undo();
  out["undo_s"] = secondsSince(start);
  if (firstOriginal(doc) != before || doc.hasEditedFile()) fail("the undo did not restore the dates");

  double slowest = 0;
  for (const char* key : {"FileName", "DateTime", "DateTimeDigitized", "DateTimeOriginal", "Edited", "Edit"}) {
    start = Clock::now();
    doc.tableViewSortDescriptorsDidChange({{key, false}});
    const double s = secondsSince(start);
    out["sort_s"][key] = s;
    slowest = std::max(slowest, s);
  }
  out["sort_max_s"] = slowest;
  return out;
}

// Gives an image file the path its thumbnail is made from.
class PathOwner : public LumImageFileOwner {
 public:
  explicit PathOwner(fs::path path) : path_(std::move(path)) {}
  std::optional<fs::path> fileURL() const override { return path_; }

 private:
  fs::path path_;
};

nlohmann::json thumbnailTimes(const std::vector<fs::path>& files, unsigned threads) {
  std::atomic<std::size_t> made{0};
  const auto placeholder = LumImageFile::errorImage();
  const auto start = Clock::now();
  parallelFor(files.size(), threads, [&](std::size_t i) {
    PathOwner owner(files[i]);
    LumError error;
    auto file = LumImageFile::imageFileWithURL(files[i], &error);
    if (!file) return;
    file->setOwnerDocument(&owner);
    file->makeThumbnail();
    const auto thumb = file->thumbnail();
    if (thumb && thumb != placeholder && thumb->width > 0) ++made;
  });
  const double seconds = secondsSince(start);
  if (made != files.size()) fail("thumbnails made for " + std::to_string(made.load()) + " files only");
  return {{"thumb_files", files.size()}, {"thumb_s", seconds}, {"thumbs_per_s", files.size() / seconds}};
}

// The same without the cameras' own thumbnails: every main image decoded at
// the largest reduction that still fills the box. Measured on the first
// files only, as it is slow.
nlohmann::json decodedThumbnailTimes(std::vector<fs::path> files, unsigned threads) {
  files.resize(std::min<std::size_t>(files.size(), 100));
  const double box = LumImageFile::kThumbnailBox;
  std::atomic<std::size_t> made{0};
  const auto start = Clock::now();
  parallelFor(files.size(), threads, [&](std::size_t i) {
    const auto data = lum::FileData::readFile(files[i]);
    if (!data) return;
    const auto bitmap = ImageDecoder::decodeForBox(data->bytes(), static_cast<int>(box), static_cast<int>(box));
    if (Resizing::resizedBitmapFromBitmap(bitmap, false, box, box)) ++made;
  });
  const double seconds = secondsSince(start);
  if (made != files.size()) fail("decoded thumbnails made for " + std::to_string(made.load()) + " files only");
  return {{"decoded_thumbs_per_s", files.size() / seconds}};
}

}  // namespace

int main(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  std::optional<fs::path> small, large;
  unsigned threads = std::max(1u, std::thread::hardware_concurrency());
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string opt = argv[i];
    if (opt == "--small") small = argv[i + 1];
    else if (opt == "--large") large = argv[i + 1];
    else if (opt == "--threads") threads = static_cast<unsigned>(std::max(1, std::atoi(argv[i + 1])));
    else fail("unknown option " + opt);
  }
  nlohmann::json result = nlohmann::json::object();
  if (small && fs::exists(*small)) result.update(modelTimes(photos(*small), threads));
  if (large && fs::exists(*large)) {
    result.update(thumbnailTimes(photos(*large), threads));
    result.update(decodedThumbnailTimes(photos(*large), threads));
  }
  result["threads"] = threads;
  std::printf("%s\n", result.dump().c_str());
  return 0;
}
