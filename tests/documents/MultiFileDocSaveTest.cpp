#include <QSignalSpy>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>
#include <set>
#include <system_error>

#include "PhotoFiles.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/LumNotificationCenter.h"

using namespace doctest_support;
using Doc = LumMultiFileDoc;
namespace fs = std::filesystem;

namespace {

const std::string kA = "2020:01:31 10:00:00";
const std::string kB = "2019:12:31 23:30:00";

bool holds(const fs::path& p, const std::string& text) {
  const auto bytes = readBytes(p);
  return std::search(bytes.begin(), bytes.end(), text.begin(), text.end()) != bytes.end();
}

struct SaveFixture : ::testing::Test {
  TempFolder folder;
  std::unique_ptr<Doc> doc;

  void SetUp() override { ensureApplication(); }
  void open(const std::vector<std::pair<std::string, PhotoDates>>& photos) { doc = openPhotos(folder, photos); }
  LumSaveOutcome save(bool all = true) { return saveAndWait(*doc, all).value_or(LumSaveOutcome{}); }
  LumFileItemDoc& item(const std::string& name) { return *doc->itemForURL(folder / name); }
  void type(const std::string& name, const char* column, const char* text) {
    doc->controlTextDidEndEditing(*doc->rowOf(&item(name)), column, text, false);
  }
};

TEST_F(SaveFixture, ChangesExactlyTheChangedDatesAndRereadsTheFile) {
  open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
  type("a.jpg", "DateTimeOriginal", "2001:02:03 04:05:06");
  doc->setEditStateOnAllFiles();
  doc->setEditTargetMask(2);  // digitized only
  doc->setFieldValue(Doc::Second, 1);
  doc->applyToAllFiles();
  std::vector<QString> notices;
  const auto connection = QObject::connect(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted,
                                           [&](const QString& name, const void*) { notices.push_back(name); });
  QSignalSpy started(doc.get(), &Doc::savingStarted);
  const LumSaveOutcome outcome = save();
  QObject::disconnect(connection);
  EXPECT_EQ(outcome.total, 2u);
  EXPECT_EQ(started.at(0).at(0).toInt(), 2);
  EXPECT_TRUE(outcome.failures.empty() && !outcome.alert);
  EXPECT_EQ(notices, std::vector<QString>{kLumImageFileDidSaveNotification});
  EXPECT_EQ(readBytes(folder / "a.jpg"), photoBytes({"2001:02:03 04:05:06", "2020:01:31 10:00:01", kA}));
  EXPECT_EQ(readBytes(folder / "b.jpg"), photoBytes({kB, "2019:12:31 23:30:01", kB}));
  // The models now hold the saved files; nothing is edited, nothing undoable.
  EXPECT_FALSE(doc->hasEditedFile());
  EXPECT_EQ(doc->undoStack().count(), 0);
  // A second edit saves against the re-read file.
  type("a.jpg", "DateTime", "1999:09:09 09:09:09");
  EXPECT_TRUE(save().failures.empty());
  EXPECT_EQ(readBytes(folder / "a.jpg"), photoBytes(
                                             {"2001:02:03 04:05:06", "2020:01:31 10:00:01", "1999:09:09 09:09:09"}));
}

TEST_F(SaveFixture, FailedFilesAreReportedInRowOrderWithTheirReasonWhileTheOthersAreSaved) {
  std::vector<std::pair<std::string, PhotoDates>> photos;
  for (int i = 0; i < 40; ++i) photos.push_back({"p" + std::to_string(100 + i) + ".jpg", {kA, kA, kA}});
  open(photos);
  doc->setEditStateOnAllFiles();
  doc->setFieldValue(Doc::Minute, 30);
  doc->applyToAllFiles();
  doc->setFlushFunction({}, 8);  // five batches
  // Every third file is changed after opening, by each of these in turn.
  std::set<fs::path> writeFails;
  const std::pair<std::function<void(const fs::path&)>, std::string> faults[] = {
      {[](const auto& p) { fs::remove(p); }, ""},
      {[](const auto& p) { ::chmod(p.c_str(), 0444); }, InPlaceWriter::kReadOnlyReason},
      {[&](const auto& p) { writeFails.insert(p); }, std::system_category().message(EIO)}};
  doc->setWriteFunction([&writeFails](int fd, const void* buffer, std::size_t count, off_t offset) -> ssize_t {
    std::error_code ec;
    if (writeFails.count(fs::read_symlink("/proc/self/fd/" + std::to_string(fd), ec))) return errno = EIO, -1;
    return ::pwrite(fd, buffer, count, offset);
  });
  std::vector<std::pair<fs::path, std::string>> failing;
  std::map<fs::path, std::vector<std::uint8_t>> failedBytes;
  for (int row = 0; row < doc->rowCount(); row += 3) {
    const auto& [change, reason] = faults[failing.size() % std::size(faults)];
    const fs::path& p = failing.emplace_back(doc->item(row).path(), reason).first;
    change(p);
    failedBytes[p] = readBytes(p);
  }
  QSignalSpy progress(doc.get(), &Doc::savingProgress);
  const LumSaveOutcome outcome = save();
  EXPECT_EQ(outcome.total, 40u);
  std::vector<std::pair<fs::path, std::string>> reported;
  for (const SaveReport::Failure& f : outcome.failures) reported.emplace_back(f.path, f.reason);
  EXPECT_EQ(reported, failing);
  ASSERT_TRUE(outcome.alert);
  EXPECT_EQ(outcome.alert->message, "Save files Failed. (14 files)");
  const QString& listed = outcome.alert->informativeText;  // the first ten failures, then dots
  EXPECT_TRUE(listed.startsWith("Save Completed: 26\n\n") && listed.endsWith("\n..........")) << listed.toStdString();
  EXPECT_EQ(listed.count('\n'), 12);
  // A failed file keeps its bytes and stays edited, to be saved again.
  for (int row = 0; row < doc->rowCount(); ++row) {
    const LumFileItemDoc& it = doc->item(row);
    const bool failed = failedBytes.count(it.path()) == 1;
    EXPECT_EQ(it.isEdited(), failed) << it.path();
    if (failed) {
      EXPECT_EQ(readBytes(it.path()), failedBytes[it.path()]) << it.path();
    } else {
      EXPECT_TRUE(holds(it.path(), "2020:01:31 10:30:00")) << it.path();
    }
  }
  ASSERT_EQ(progress.count(), 40);
  EXPECT_DOUBLE_EQ(progress.back()[0].toDouble(), 100.0);
}

TEST_F(SaveFixture, OnePhotoOpenedUnderTwoNamesNeverLosesAChangeReportedAsSaved) {
  // "b.jpg" is a second name of "a.jpg". Row a changes the first and last
  // dates (one run of bytes across the middle one), row b the middle one.
  fs::create_hard_link(writePhoto(folder, "a.jpg", {kA, kA, kA}), folder / "b.jpg");
  doc = openDocument({folder / "a.jpg", folder / "b.jpg"});
  ASSERT_EQ(doc->rowCount(), 2);
  type("a.jpg", "DateTimeOriginal", "2001:01:01 01:01:01");
  type("a.jpg", "DateTime", "2003:03:03 03:03:03");
  type("b.jpg", "DateTimeDigitized", "2002:02:02 02:02:02");
  const LumSaveOutcome outcome = save();
  const fs::path file = folder / "a.jpg";
  EXPECT_TRUE(holds(file, "2001:01:01 01:01:01") || holds(file, "2002:02:02 02:02:02"));
  for (const auto& [name, text] : {std::pair{"a.jpg", "2001:01:01 01:01:01"}, {"b.jpg", "2002:02:02 02:02:02"}}) {
    const bool failed = std::any_of(outcome.failures.begin(), outcome.failures.end(),
                                    [&](const SaveReport::Failure& f) { return f.path == folder / name; });
    EXPECT_EQ(holds(file, text), !failed) << name;
  }
}

TEST_F(SaveFixture, SavingTheSelectionOnlyKeepsThumbnails) {
  open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
  QSignalSpy ready(doc.get(), &Doc::thumbnailReady);
  doc->requestThumbnail(0);
  doc->requestThumbnail(0);  // one job per file
  ASSERT_TRUE(ready.wait(20000));
  const auto beforeB = readBytes(folder / "b.jpg");
  doc->setEditStateOnAllFiles();
  doc->setFieldValue(Doc::Day, 1);
  doc->applyToAllFiles();
  doc->setSelectedRows({});
  EXPECT_TRUE(doc->saveFileAll(false, false, false));  // nothing edited among the selection
  EXPECT_FALSE(doc->isSaving());
  doc->setSelectedRows({*doc->rowOf(&item("a.jpg"))});
  QSignalSpy progress(doc.get(), &Doc::savingProgress);
  EXPECT_EQ(save(false).total, 1u);
  EXPECT_EQ(progress.count(), 0);  // one file: no progress
  EXPECT_EQ(readBytes(folder / "b.jpg"), beforeB);
  EXPECT_FALSE(item("a.jpg").isEdited());
  EXPECT_TRUE(item("b.jpg").isEdited());
  EXPECT_TRUE(item("a.jpg").imageFile().thumbnail());
}

}  // namespace
