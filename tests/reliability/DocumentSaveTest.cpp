// Saving a document of real photos while some of its files fail: each
// failure is reported by name with its reason, the other files are saved,
// and no edit of a failed file is lost from the document.
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <map>
#include <set>
#include <system_error>

#include "DatedPhotos.h"
#include "DocumentHarness.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace {

// What the file that an open descriptor refers to is called.
std::string nameOfDescriptor(int fd) {
  std::error_code ec;
  return fs::read_symlink("/proc/self/fd/" + std::to_string(fd), ec).filename().string();
}

enum class Fault { None, Deleted, ReadOnly, Touched, WriteFails };

struct Row {
  std::vector<std::uint8_t> opened;
  std::vector<std::uint8_t> intended;
  DateTargets::Texts texts;
  Fault fault = Fault::None;
};

TEST(DocumentSave, FailedFilesAreReportedByNameAndKeepTheirEdits) {
  LUMTEST_REQUIRE_REAL_DATA();
  reltest::ScratchFolder folder;
  std::vector<fs::path> paths;
  for (const reltest::DatedPhoto* photo : reltest::photosForFaults()) {
    paths.push_back(folder.path() / photo->name);
    reltest::writeAll(paths.back(), photo->bytes);
  }
  auto doc = reltest::openDocument(paths);
  reltest::shiftAllOneDay(*doc);
  ASSERT_GE(doc->editedFileCount(), 5u);

  // The faults go round the rows in turn; every fifth row is left alone.
  static constexpr Fault kFaults[] = {Fault::Deleted, Fault::ReadOnly, Fault::Touched, Fault::WriteFails, Fault::None};
  // A photo whose dates cannot be read stays unedited and is not saved.
  std::map<std::string, Row> rows;
  for (int r = 0; r < doc->rowCount(); ++r) {
    const LumFileItemDoc& item = doc->item(r);
    if (!item.isEdited()) continue;
    Row row{reltest::readAll(item.path()), {}, item.dateTexts(), kFaults[rows.size() % 5]};
    row.intended = DateRewrite::applied(orb::ByteView(row.opened.data(), row.opened.size()), item.datePatches());
    rows.emplace(item.fileName(), std::move(row));
  }
  for (const auto& [name, row] : rows) {
    const fs::path path = folder.path() / name;
    if (row.fault == Fault::Deleted) fs::remove(path);
    if (row.fault == Fault::ReadOnly) ::chmod(path.c_str(), 0444);
    if (row.fault == Fault::Touched) fs::last_write_time(path, fs::last_write_time(path) + std::chrono::seconds(3));
  }
  doc->setWriteFunction([&rows](int fd, const void* buffer, std::size_t count, off_t offset) -> ssize_t {
    const auto it = rows.find(nameOfDescriptor(fd));
    if (it != rows.end() && it->second.fault == Fault::WriteFails) {
      errno = EIO;
      return -1;
    }
    return ::pwrite(fd, buffer, count, offset);
  });

  const auto outcome = reltest::saveAndWait(*doc);
  ASSERT_TRUE(outcome.has_value()) << "the save never finished";
  EXPECT_EQ(outcome->total, rows.size());

  std::map<std::string, std::string> reported;
  for (const SaveReport::Failure& f : outcome->failures) reported[f.path.filename().string()] = f.reason;
  const std::map<Fault, std::string> reasons{{Fault::Deleted, ""},
                                             {Fault::ReadOnly, InPlaceWriter::kReadOnlyReason},
                                             {Fault::Touched, InPlaceWriter::kChangedOnDiskReason},
                                             {Fault::WriteFails, std::system_category().message(EIO)}};
  for (const auto& [name, row] : rows) {
    SCOPED_TRACE(name);
    LumFileItemDoc* item = doc->itemForURL(folder.path() / name);
    ASSERT_NE(item, nullptr);
    if (row.fault == Fault::None) {
      EXPECT_EQ(reported.count(name), 0u);
      EXPECT_EQ(reltest::readAll(item->path()), row.intended);
      EXPECT_FALSE(item->isEdited()) << "a saved file still shows as edited";
      continue;
    }
    ASSERT_EQ(reported.count(name), 1u) << "a failed file is not in the report";
    EXPECT_EQ(reported[name], reasons.at(row.fault));
    EXPECT_TRUE(item->isEdited()) << "the edit of a failed file was lost";
    EXPECT_EQ(item->dateTexts(), row.texts);
    if (row.fault != Fault::Deleted && row.fault != Fault::Touched) {
      EXPECT_EQ(reltest::readAll(item->path()), row.opened);
    }
  }
  ASSERT_TRUE(outcome->alert.has_value());
  reltest::reportFigure("document save: files failed on purpose", static_cast<double>(outcome->failures.size()));
}

}  // namespace
