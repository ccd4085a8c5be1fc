#include <QEventLoop>
#include <QSignalSpy>
#include <QTimer>
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

namespace {

const std::string kA = "2020:01:31 10:00:00";
const std::string kB = "2019:12:31 23:30:00";

std::size_t find(const std::vector<std::uint8_t>& bytes, const std::string& text) {
  const auto it = std::search(bytes.begin(), bytes.end(), text.begin(), text.end());
  return static_cast<std::size_t>(it - bytes.begin());
}

struct SaveFixture : ::testing::Test {
  TempFolder folder;
  std::unique_ptr<Doc> doc;

  void SetUp() override { ensureApplication(); }

  void open(const std::vector<std::pair<std::string, PhotoDates>>& photos) {
    std::vector<std::unique_ptr<LumFileItemDoc>> items;
    for (const auto& [name, dates] : photos) items.push_back(openItem(writePhoto(folder, name, dates)));
    doc = std::make_unique<Doc>(std::move(items));
  }
  // Runs a save and waits for its outcome.
  LumSaveOutcome save(bool all = true) {
    LumSaveOutcome outcome;
    QEventLoop loop;
    QObject::connect(doc.get(), &Doc::saveFinished, &loop, [&](const LumSaveOutcome& o) {
      outcome = o;
      loop.quit();
    });
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    EXPECT_TRUE(doc->saveFileAll(all, false, false));
    if (doc->isSaving()) loop.exec();
    return outcome;
  }
  LumFileItemDoc& item(const std::string& name) { return *doc->itemForURL(folder / name); }
};

TEST_F(SaveFixture, ChangesExactlyTheChangedDatesAndRereadsTheFile) {
  open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
  doc->controlTextDidEndEditing(*doc->rowOf(&item("a.jpg")), "DateTimeOriginal", "2001:02:03 04:05:06", false);
  doc->setEditStateOnAllFiles();
  doc->setEditTargetMask(2);  // digitized only
  doc->setFieldValue(Doc::Second, 1);
  doc->applyToAllFiles();
  ASSERT_EQ(doc->editedFileCount(), 2u);

  QSignalSpy started(doc.get(), &Doc::savingStarted);
  std::vector<QString> notices;
  const auto connection = QObject::connect(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted,
                                           [&](const QString& name, const void*) { notices.push_back(name); });
  const LumSaveOutcome outcome = save();
  EXPECT_EQ(outcome.total, 2u);
  EXPECT_TRUE(outcome.failures.empty());
  EXPECT_FALSE(outcome.alert);

  // a.jpg: its original and its digitized date; b.jpg: its digitized date.
  EXPECT_EQ(readBytes(folder / "a.jpg"), photoBytes({"2001:02:03 04:05:06", "2020:01:31 10:00:01", kA}));
  EXPECT_EQ(readBytes(folder / "b.jpg"), photoBytes({kB, "2019:12:31 23:30:01", kB}));

  // The models now hold the saved files; nothing is edited, nothing undoable.
  EXPECT_FALSE(doc->hasEditedFile());
  EXPECT_EQ(doc->undoStack().count(), 0);
  EXPECT_EQ(item("a.jpg").imageFile().originalDateTimeOriginalString(), "2001:02:03 04:05:06");
  EXPECT_EQ(item("a.jpg").imageFile().stampAsOpened(), lum::FileStamp::of(folder / "a.jpg"));
  ASSERT_EQ(started.count(), 1);
  EXPECT_EQ(started[0][0].toInt(), 2);
  QObject::disconnect(connection);
  EXPECT_EQ(notices, std::vector<QString>{kLumImageFileDidSaveNotification});

  // A second edit saves against the re-read file.
  doc->controlTextDidEndEditing(*doc->rowOf(&item("a.jpg")), "DateTime", "1999:09:09 09:09:09", false);
  EXPECT_TRUE(save().failures.empty());
  EXPECT_EQ(find(readBytes(folder / "a.jpg"), "1999:09:09 09:09:09"),
            *item("a.jpg").imageFile().dateValueOffset(LumDateField::DateTime));
}

TEST_F(SaveFixture, FailedFilesAreReportedInRowOrderWithTheirReasonWhileTheOthersAreSaved) {
  std::vector<std::pair<std::string, PhotoDates>> photos;
  for (int i = 0; i < 40; ++i) photos.push_back({"p" + std::to_string(100 + i) + ".jpg", {kA, kA, kA}});
  open(photos);
  doc->setEditStateOnAllFiles();
  doc->setFieldValue(Doc::Minute, 30);
  doc->applyToAllFiles();
  doc->setFlushFunction({}, 8);  // five batches
  // Every seventh file fails, for each of these reasons in turn.
  std::set<std::filesystem::path> writeFails;
  const std::pair<std::function<void(const std::filesystem::path&)>, std::string> faults[] = {
      {[](const auto& p) { std::filesystem::remove(p); }, ""},
      {[](const auto& p) { std::ofstream(p, std::ios::app) << "more"; }, InPlaceWriter::kChangedOnDiskReason},
      {[](const auto& p) { ::chmod(p.c_str(), 0444); }, InPlaceWriter::kReadOnlyReason},
      {[&](const auto& p) { writeFails.insert(p); }, std::system_category().message(EIO)}};
  doc->setWriteFunction([&writeFails](int fd, const void* buffer, std::size_t count, off_t offset) -> ssize_t {
    std::error_code ec;
    if (writeFails.count(std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(fd), ec)))
      return errno = EIO, -1;
    return ::pwrite(fd, buffer, count, offset);
  });
  std::vector<std::pair<std::filesystem::path, std::string>> failing;
  std::map<std::filesystem::path, std::vector<std::uint8_t>> failedBytes;
  for (int row = 0; row < doc->rowCount(); row += 7) {
    const auto& [change, reason] = faults[failing.size() % std::size(faults)];
    failing.emplace_back(doc->item(row).path(), reason);
    change(failing.back().first);
    failedBytes[failing.back().first] = readBytes(failing.back().first);
  }
  QSignalSpy progress(doc.get(), &Doc::savingProgress);
  const LumSaveOutcome outcome = save();
  EXPECT_EQ(outcome.total, 40u);
  std::vector<std::pair<std::filesystem::path, std::string>> reported;
  for (const SaveReport::Failure& f : outcome.failures) reported.emplace_back(f.path, f.reason);
  EXPECT_EQ(reported, failing);
  EXPECT_TRUE(outcome.alert);
  // A failed file stays edited and can be saved again; the undo history is gone.
  EXPECT_EQ(doc->undoStack().count(), 0);
  for (int row = 0; row < doc->rowCount(); ++row) {
    const LumFileItemDoc& it = doc->item(row);
    const bool failed = failedBytes.count(it.path()) == 1;
    EXPECT_EQ(it.isEdited(), failed) << it.path();
    if (failed) {
      EXPECT_EQ(readBytes(it.path()), failedBytes[it.path()]) << it.path();
    } else {
      EXPECT_LT(find(readBytes(it.path()), "2020:01:31 10:30:00"), readBytes(it.path()).size()) << it.path();
    }
  }
  ASSERT_EQ(progress.count(), 40);
  for (int i = 1; i < progress.count(); ++i) EXPECT_LT(progress[i - 1][0].toDouble(), progress[i][0].toDouble());
  EXPECT_DOUBLE_EQ(progress.back()[0].toDouble(), 100.0);
}

TEST_F(SaveFixture, OnePhotoOpenedUnderTwoNamesNeverLosesAChangeReportedAsSaved) {
  // "b.jpg" is a second name of "a.jpg". Row a changes the first and last
  // dates (one run of bytes across the middle one), row b the middle one.
  open({{"a.jpg", {kA, kA, kA}}});
  std::filesystem::create_hard_link(folder / "a.jpg", folder / "b.jpg");
  std::vector<std::unique_ptr<LumFileItemDoc>> items;
  items.push_back(openItem(folder / "a.jpg"));
  items.push_back(openItem(folder / "b.jpg"));
  doc = std::make_unique<Doc>(std::move(items));
  doc->controlTextDidEndEditing(*doc->rowOf(&item("a.jpg")), "DateTimeOriginal", "2001:01:01 01:01:01", false);
  doc->controlTextDidEndEditing(*doc->rowOf(&item("a.jpg")), "DateTime", "2003:03:03 03:03:03", false);
  doc->controlTextDidEndEditing(*doc->rowOf(&item("b.jpg")), "DateTimeDigitized", "2002:02:02 02:02:02", false);

  const LumSaveOutcome outcome = save();
  const auto bytes = readBytes(folder / "a.jpg");
  const auto has = [&](const std::string& text) { return find(bytes, text) < bytes.size(); };
  EXPECT_TRUE(has("2001:01:01 01:01:01") || has("2002:02:02 02:02:02"));
  for (const auto& [name, text] : {std::pair{"a.jpg", "2001:01:01 01:01:01"}, {"b.jpg", "2002:02:02 02:02:02"}}) {
    const bool failed = std::any_of(outcome.failures.begin(), outcome.failures.end(),
                                    [&](const SaveReport::Failure& f) { return f.path == folder / name; });
    EXPECT_EQ(has(text), !failed) << name;
  }
}

TEST_F(SaveFixture, SavingTheSelectionOnly) {
  open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
  const auto beforeB = readBytes(folder / "b.jpg");
  doc->setEditStateOnAllFiles();
  doc->setFieldValue(Doc::Day, 1);
  doc->applyToAllFiles();
  doc->setSelectedRows({});
  QSignalSpy started(doc.get(), &Doc::savingStarted);
  EXPECT_TRUE(doc->saveFileAll(false, false, false));  // nothing edited among the selection
  EXPECT_FALSE(doc->isSaving());
  EXPECT_EQ(started.count(), 0);

  doc->setSelectedRows({*doc->rowOf(&item("a.jpg"))});
  QSignalSpy progress(doc.get(), &Doc::savingProgress);
  const LumSaveOutcome outcome = save(false);
  EXPECT_EQ(outcome.total, 1u);
  EXPECT_EQ(progress.count(), 0);  // one file: no progress
  EXPECT_EQ(readBytes(folder / "b.jpg"), beforeB);
  EXPECT_FALSE(item("a.jpg").isEdited());
  EXPECT_TRUE(item("b.jpg").isEdited());
}

TEST_F(SaveFixture, ThumbnailsAreMadeInTheBackgroundAndSurviveASave) {
  open({{"a.jpg", {kA, kA, kA}}});
  QSignalSpy ready(doc.get(), &Doc::thumbnailReady);
  doc->requestThumbnail(0);
  doc->requestThumbnail(0);  // one job per file
  ASSERT_TRUE(ready.wait(20000));
  ASSERT_TRUE(item("a.jpg").imageFile().thumbnail());
  doc->controlTextDidEndEditing(0, "DateTime", "2001:01:01 01:01:01", false);
  EXPECT_TRUE(save().failures.empty());
  EXPECT_TRUE(item("a.jpg").imageFile().thumbnail());
}

}  // namespace
