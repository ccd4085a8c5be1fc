#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "datetime/DateAdditions.h"
#include "documents/LumSingleFileDoc.h"

using namespace doctest_support;
using Doc = LumSingleFileDoc;
using Ctl = OrbDatePicker::Control;
using DateTargets::Digitized;
using DateTargets::Edited;
using DateTargets::Original;

namespace {

const std::string kO = "2020:05:06 07:08:09";
const std::string kD = "2019:01:02 03:04:05";
const std::string kE = "2018:11:12 13:14:15";

std::optional<Instant> at(const std::string& text) { return DateAdditions::dateWithDateTimeString(text); }

std::string textOf(const std::optional<Instant>& date) { return date ? DateAdditions::tiffDateString(*date) : "none"; }

std::size_t find(const std::vector<std::uint8_t>& bytes, const std::string& text) {
  return static_cast<std::size_t>(std::search(bytes.begin(), bytes.end(), text.begin(), text.end()) - bytes.begin());
}

struct SingleDocFixture : ::testing::Test {
  TempFolder folder;
  Doc doc;
  std::filesystem::path path;

  void SetUp() override { ensureApplication(); }

  void open(const PhotoDates& dates) {
    path = writePhoto(folder, "photo.jpg", dates);
    LumError error;
    ASSERT_TRUE(doc.readFromURL(path, "JPEG", &error));
  }
  // The user types a value into one field of a picker.
  void type(DateTargets::Index which, Ctl field, const std::string& text) {
    ASSERT_TRUE(doc.picker(which).controlTextDidChange(field, text));
  }
  std::array<std::string, 3> current() const {
    return {textOf(doc.currentDateTimeOriginal()), textOf(doc.currentDateTimeDigitized()),
            textOf(doc.currentDateTime())};
  }
};

TEST_F(SingleDocFixture, OpeningShowsTheFileDatesAndIsNotEdited) {
  open({kO, kD, kE});
  EXPECT_EQ(current(), (std::array<std::string, 3>{kO, kD, kE}));
  EXPECT_EQ(doc.picker(Edited).dateTimeString(), "2018-11-12 13:14:15");
  // The picker's "yyyy-MM-dd" rendering equals the file's "yyyy:MM:dd" text.
  EXPECT_FALSE(doc.hasEditedFile());
  EXPECT_EQ(doc.editedFileCount(), 0u);
  EXPECT_FALSE(doc.validateMenuItem(Doc::MenuCommand::Save));
  EXPECT_FALSE(doc.getTitleForAlertWhenCloseDociment());
  EXPECT_TRUE(doc.isLinkEnabled());
  EXPECT_EQ(doc.selectedImageFile()->ownerDocument(), &doc);
}

TEST_F(SingleDocFixture, UnreadableFileReportsItsError) {
  path = folder / "empty.jpg";
  writeBytes(path, {});
  LumError error;
  EXPECT_FALSE(doc.readFromURL(path, "JPEG", &error));
  EXPECT_EQ(error.code, -2);
  EXPECT_EQ(doc.selectedImageFile(), nullptr);
}

TEST_F(SingleDocFixture, LinkedChangeSetsAllThreeAndOneUndoRestoresThem) {
  open({kO, kD, kE});
  doc.setLinked(true);
  type(Original, Ctl::yearField, "2021");
  const std::string changed = "2021:05:06 07:08:09";
  EXPECT_EQ(current(), (std::array<std::string, 3>{changed, changed, changed}));
  EXPECT_EQ(doc.picker(Edited).dateTimeStringForTIFF(), changed);
  EXPECT_EQ(doc.undoStack().count(), 1);
  EXPECT_TRUE(doc.hasEditedFile());
  EXPECT_TRUE(doc.validateMenuItem(Doc::MenuCommand::Save));

  doc.undoStack().undo();
  EXPECT_EQ(current(), (std::array<std::string, 3>{kO, kD, kE}));
  EXPECT_EQ(doc.picker(Original).dateTimeStringForTIFF(), kO);
  EXPECT_EQ(doc.picker(Digitized).dateTimeStringForTIFF(), kD);
  EXPECT_FALSE(doc.hasEditedFile());
  EXPECT_TRUE(doc.undoStack().isClean());

  doc.undoStack().redo();
  EXPECT_EQ(current(), (std::array<std::string, 3>{changed, changed, changed}));
}

TEST_F(SingleDocFixture, UnlinkedChangeTouchesOnlyItsOwnDate) {
  open({kO, kD, kE});
  type(Digitized, Ctl::hourField, "23");
  EXPECT_EQ(current(), (std::array<std::string, 3>{kO, "2019:01:02 23:04:05", kE}));
}

TEST_F(SingleDocFixture, MissingDateTimeStaysDisabledAndIsNeverWritten) {
  open({kO, kD, std::nullopt});
  EXPECT_FALSE(doc.picker(Edited).isEnabled());
  EXPECT_FALSE(doc.picker(Edited).isStepperEnabled());
  EXPECT_TRUE(doc.picker(Original).isStepperEnabled());

  doc.setLinked(true);
  type(Original, Ctl::dayField, "20");
  const std::string changed = "2020:05:20 07:08:09";
  EXPECT_EQ(current(), (std::array<std::string, 3>{changed, changed, changed}));
  EXPECT_FALSE(doc.picker(Edited).isEnabled());
  EXPECT_FALSE(doc.pickerDatesToWrite()[Edited]);
  EXPECT_FALSE(doc.valuesForIntervalSheet()[Edited]);

  const std::vector<std::uint8_t> before = readBytes(path);
  ASSERT_TRUE(doc.saveFileAll(false, false, false));
  std::vector<std::uint8_t> after = readBytes(path);
  ASSERT_EQ(after.size(), before.size());
  // Put the two expected texts back to the old ones: nothing else may differ.
  const std::size_t o = find(before, kO), d = find(before, kD);
  EXPECT_EQ(std::string(after.begin() + o, after.begin() + o + 19), changed);
  EXPECT_EQ(std::string(after.begin() + d, after.begin() + d + 19), changed);
  std::copy(kO.begin(), kO.end(), after.begin() + o);
  std::copy(kD.begin(), kD.end(), after.begin() + d);
  EXPECT_EQ(after, before);
}

TEST_F(SingleDocFixture, NoDatesDisablesLinkAndInterval) {
  open({std::nullopt, std::nullopt, std::nullopt});
  EXPECT_FALSE(doc.isLinkEnabled());
  EXPECT_FALSE(doc.isChangeByIntervalEnabled());
  for (auto which : {Original, Digitized, Edited}) EXPECT_FALSE(doc.picker(which).isEnabled());
  EXPECT_FALSE(doc.hasEditedFile());
}

TEST_F(SingleDocFixture, OneDateIsEnoughForLinkAndInterval) {
  open({std::nullopt, std::nullopt, kE});
  EXPECT_TRUE(doc.isLinkEnabled());
  EXPECT_TRUE(doc.isChangeByIntervalEnabled());
}

// A date whose old value is none never counts as a change by itself.
TEST_F(SingleDocFixture, ChangeIsRecordedOnlyWhenAnOldValueDiffers) {
  open({kO, kD, kE});
  const auto a = at(kO), b = at(kD), c = at(kE), x = at("2000:01:01 00:00:00");
  struct Case {
    const char* name;
    Doc::Dates newDates, oldDates;
    bool recorded;
  };
  const Case cases[] = {
      {"all equal", {a, b, c}, {a, b, c}, false},
      {"old none, new set", {x, x, x}, {std::nullopt, std::nullopt, std::nullopt}, false},
      {"old none, new none", {std::nullopt, b, c}, {std::nullopt, b, c}, false},
      {"first differs", {x, b, c}, {a, b, c}, true},
      {"last differs", {a, b, x}, {a, b, c}, true},
      {"old set, new none", {a, std::nullopt, c}, {a, b, c}, true},
  };
  for (const Case& k : cases) {
    doc.undoStack().clear();
    doc.changeDateTimeOriginal(k.newDates, k.oldDates);
    EXPECT_EQ(doc.undoStack().count(), k.recorded ? 1 : 0) << k.name;
  }
}

TEST_F(SingleDocFixture, IntervalShiftsMaskedDatesWithValues) {
  struct Case {
    const char* name;
    PhotoDates file;
    std::array<long, 6> counts;
    bool forward;
    unsigned mask;
    bool accepted;
    std::array<std::string, 3> expected;
  };
  const Case cases[] = {
      {"forward one day, all", {kO, kD, kE}, {0, 0, 1, 0, 0, 0}, true, 7, true,
       {"2020:05:07 07:08:09", "2019:01:03 03:04:05", "2018:11:13 13:14:15"}},
      {"backward one hour, original and edited", {kO, kD, kE}, {0, 0, 0, 1, 0, 0}, false, 5, true,
       {"2020:05:06 06:08:09", kD, "2018:11:12 12:14:15"}},
      {"month end clamps", {"2020:01:31 00:00:00", kD, kE}, {0, 1, 0, 0, 0, 0}, true, 1, true,
       {"2020:02:29 00:00:00", kD, kE}},
      {"absent date stays none", {kO, std::nullopt, kE}, {1, 0, 0, 0, 0, 0}, true, 7, true,
       {"2021:05:06 07:08:09", "none", "2019:11:12 13:14:15"}},
      {"leaving the range is refused", {kO, kD, kE}, {2019, 0, 0, 0, 0, 0}, false, 7, false, {kO, kD, kE}},
      {"past 9999 is refused", {"9999:12:31 23:59:59", kD, kE}, {0, 0, 0, 0, 0, 1}, true, 1, false,
       {"9999:12:31 23:59:59", kD, kE}},
      {"to the last second is fine", {"9999:12:31 23:59:58", kD, kE}, {0, 0, 0, 0, 0, 1}, true, 1, true,
       {"9999:12:31 23:59:59", kD, kE}},
  };
  for (const Case& k : cases) {
    Doc fresh;
    const std::filesystem::path file = writePhoto(folder, std::string(k.name) + ".jpg", k.file);
    ASSERT_TRUE(fresh.readFromURL(file, "JPEG", nullptr)) << k.name;
    EXPECT_EQ(fresh.changeDateWithYears(k.counts[0], k.counts[1], k.counts[2], k.counts[3], k.counts[4],
                                        k.counts[5], k.forward, k.mask),
              k.accepted)
        << k.name;
    const std::array<std::string, 3> got{textOf(fresh.currentDateTimeOriginal()),
                                         textOf(fresh.currentDateTimeDigitized()), textOf(fresh.currentDateTime())};
    EXPECT_EQ(got, k.expected) << k.name;
  }
}

TEST_F(SingleDocFixture, RestoreTakesTheFileValuesAndClearsTheHistory) {
  open({kO, kD, kE});
  doc.changeDateWithYears(1, 0, 0, 0, 0, 0, true, 7);
  type(Edited, Ctl::minuteField, "59");
  ASSERT_EQ(doc.undoStack().count(), 2);
  doc.restore();
  EXPECT_EQ(current(), (std::array<std::string, 3>{kO, kD, kE}));
  EXPECT_EQ(doc.picker(Edited).dateTimeStringForTIFF(), kE);
  EXPECT_EQ(doc.undoStack().count(), 0);
  EXPECT_FALSE(doc.undoStack().canUndo());
  EXPECT_TRUE(doc.undoStack().isClean());
  EXPECT_FALSE(doc.hasEditedFile());
}

TEST_F(SingleDocFixture, SaveWritesExactlyTheEnabledPickersTexts) {
  open({kO, kD, kE});
  type(Original, Ctl::secondField, "30");
  type(Edited, Ctl::yearField, "1999");
  const std::vector<std::uint8_t> before = readBytes(path);
  const std::size_t o = find(before, kO), d = find(before, kD), e = find(before, kE);

  ASSERT_TRUE(doc.saveFileAll(false, false, false));
  const std::vector<std::uint8_t> after = readBytes(path);
  ASSERT_EQ(after.size(), before.size());
  std::vector<std::size_t> changed;
  for (std::size_t i = 0; i < before.size(); ++i)
    if (before[i] != after[i]) changed.push_back(i);
  // "09" -> "30" at the seconds of the original; "2018" -> "1999" in the
  // edited year. The digitized date is rewritten with its own value.
  std::vector<std::size_t> expected{o + 17, o + 18, e, e + 1, e + 2, e + 3};
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(changed, expected);
  EXPECT_EQ(std::string(after.begin() + d, after.begin() + d + 19), kD);
  EXPECT_EQ(after[o + 19], 0) << "the terminating NUL stays";

  EXPECT_TRUE(doc.lastSaveOutcome().saved);
  EXPECT_FALSE(doc.lastSaveOutcome().alert);
  EXPECT_EQ(doc.undoStack().count(), 0);
  EXPECT_FALSE(doc.hasEditedFile());
  EXPECT_EQ(doc.selectedImageFile()->originalDateTimeOriginalString(), "2020:05:06 07:08:30");

  // The model follows the file on disk, so a second save goes through.
  type(Digitized, Ctl::monthField, "12");
  EXPECT_TRUE(doc.saveFileAll(false, false, false));
  EXPECT_EQ(doc.selectedImageFile()->originalDateTimeDigitizedString(), "2019:12:02 03:04:05");
}

TEST_F(SingleDocFixture, SaveFlagsGoOnOnlyAfterSuccess) {
  open({kO, kD, kE});
  type(Original, Ctl::dayField, "07");
  doc.setWriteFunction([](int, const void*, std::size_t, off_t) -> ssize_t {
    errno = EIO;
    return -1;
  });
  EXPECT_FALSE(doc.saveFileAll(false, true, true));
  const Doc::SaveOutcome failed = doc.lastSaveOutcome();
  EXPECT_FALSE(failed.saved);
  EXPECT_FALSE(failed.closeDocument);
  EXPECT_FALSE(failed.continueQuit);
  ASSERT_TRUE(failed.alert);
  EXPECT_EQ(failed.alert->message, "Save a file Failed. (photo.jpg)");
  EXPECT_FALSE(failed.alert->informativeText.isEmpty());
  EXPECT_TRUE(doc.hasEditedFile());
  EXPECT_EQ(doc.undoStack().count(), 1);
  EXPECT_EQ(readBytes(path), photoBytes({kO, kD, kE}));

  doc.setWriteFunction({});
  EXPECT_TRUE(doc.saveFileAll(false, true, true));
  EXPECT_TRUE(doc.lastSaveOutcome().closeDocument);
  EXPECT_TRUE(doc.lastSaveOutcome().continueQuit);
}

TEST_F(SingleDocFixture, FileChangedOnDiskIsNotWritten) {
  open({kO, kD, kE});
  type(Original, Ctl::dayField, "07");
  std::vector<std::uint8_t> other = photoBytes({kO, kD, kE});
  other.push_back(0);
  writeBytes(path, other);
  EXPECT_FALSE(doc.saveFileAll(false, false, false));
  EXPECT_EQ(readBytes(path), other);
}

TEST_F(SingleDocFixture, MenusAndCloseAlertFollowTheEditedState) {
  open({kO, kD, kE});
  EXPECT_FALSE(doc.validateMenuItem(Doc::MenuCommand::SaveAll));
  EXPECT_TRUE(doc.validateMenuItem(Doc::MenuCommand::SaveAs));
  type(Digitized, Ctl::dayField, "09");
  EXPECT_FALSE(doc.validateMenuItem(Doc::MenuCommand::SaveAll));
  const auto alert = doc.getTitleForAlertWhenCloseDociment();
  ASSERT_TRUE(alert);
  EXPECT_TRUE(alert->title.contains("photo.jpg"));
  EXPECT_EQ(alert->message, "Your changes will be lost if you don't save them.");
}

}  // namespace
