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
using Three = std::array<std::string, 3>;

namespace {

const std::string kO = "2020:05:06 07:08:09", kD = "2019:01:02 03:04:05", kE = "2018:11:12 13:14:15";

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
    ASSERT_TRUE(doc.readFromURL(path, "JPEG", nullptr));
  }
  // The user types a value into one field of a picker.
  void type(DateTargets::Index which, Ctl field, const std::string& text) {
    ASSERT_TRUE(doc.picker(which).controlTextDidChange(field, text));
  }
  Three current() const {
    return {textOf(doc.currentDateTimeOriginal()), textOf(doc.currentDateTimeDigitized()),
            textOf(doc.currentDateTime())};
  }
};

TEST_F(SingleDocFixture, LinkedChangeSetsAllThreeAndOneUndoRestoresThem) {
  open({kO, kD, kE});
  // The picker's "yyyy-MM-dd" rendering equals the file's "yyyy:MM:dd" text.
  EXPECT_FALSE(doc.hasEditedFile());
  EXPECT_FALSE(doc.validateMenuItem(Doc::MenuCommand::Save));
  EXPECT_FALSE(doc.getTitleForAlertWhenCloseDociment());

  doc.setLinked(true);
  type(Original, Ctl::yearField, "2021");
  const std::string changed = "2021:05:06 07:08:09";
  EXPECT_EQ(current(), (Three{changed, changed, changed}));
  EXPECT_EQ(doc.picker(Edited).dateTimeStringForTIFF(), changed);
  EXPECT_EQ(doc.undoStack().count(), 1);
  EXPECT_TRUE(doc.validateMenuItem(Doc::MenuCommand::Save));
  ASSERT_TRUE(doc.getTitleForAlertWhenCloseDociment());
  EXPECT_TRUE(doc.getTitleForAlertWhenCloseDociment()->title.contains("photo.jpg"));

  doc.undoStack().undo();
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
  EXPECT_EQ(doc.picker(Digitized).dateTimeStringForTIFF(), kD);
  EXPECT_FALSE(doc.hasEditedFile());
}

TEST_F(SingleDocFixture, MissingDateTimeStaysDisabledAndIsNeverWritten) {
  open({kO, kD, std::nullopt});
  EXPECT_FALSE(doc.picker(Edited).isStepperEnabled());
  doc.setLinked(true);
  type(Original, Ctl::dayField, "20");
  const std::string changed = "2020:05:20 07:08:09";
  EXPECT_EQ(current(), (Three{changed, changed, changed}));
  EXPECT_FALSE(doc.picker(Edited).isEnabled());
  EXPECT_FALSE(doc.valuesForIntervalSheet()[Edited]);

  const std::vector<std::uint8_t> before = readBytes(path);
  ASSERT_TRUE(doc.saveFileAll(false, false, false));
  std::vector<std::uint8_t> after = readBytes(path);
  const std::size_t o = find(before, kO), d = find(before, kD);
  EXPECT_EQ(std::string(after.begin() + o, after.begin() + o + 19), changed);
  // With the two old texts put back, nothing else may differ.
  std::copy(kO.begin(), kO.end(), after.begin() + o);
  std::copy(kD.begin(), kD.end(), after.begin() + d);
  EXPECT_EQ(after, before);
}

TEST_F(SingleDocFixture, LinkAndIntervalNeedOneDate) {
  open({std::nullopt, std::nullopt, std::nullopt});
  EXPECT_FALSE(doc.isLinkEnabled());
  EXPECT_FALSE(doc.isChangeByIntervalEnabled());
  open({std::nullopt, std::nullopt, kE});
  EXPECT_TRUE(doc.isChangeByIntervalEnabled());
}

// A date whose old value is none never counts as a change by itself.
TEST_F(SingleDocFixture, ChangeIsRecordedOnlyWhenAnOldValueDiffers) {
  open({kO, kD, kE});
  const auto a = DateAdditions::dateWithDateTimeString(kO), x = DateAdditions::dateWithDateTimeString(kD);
  const std::optional<Instant> none;
  const std::tuple<Doc::Dates, Doc::Dates, int> cases[] = {
      {{a, a, a}, {a, a, a}, 0}, {{x, x, x}, {none, none, none}, 0}, {{a, a, x}, {a, a, a}, 1},
      {{a, none, a}, {a, a, a}, 1}};
  for (const auto& [newDates, oldDates, recorded] : cases) {
    doc.undoStack().clear();
    doc.changeDateTimeOriginal(newDates, oldDates);
    EXPECT_EQ(doc.undoStack().count(), recorded);
  }
}

TEST_F(SingleDocFixture, IntervalShiftsMaskedDatesAndRefusesLeavingTheRange) {
  open({kO, std::nullopt, "9999:12:31 23:59:58"});
  EXPECT_TRUE(doc.changeDateWithYears(0, 0, 0, 0, 0, 1, true, 4));
  EXPECT_EQ(current(), (Three{kO, "none", "9999:12:31 23:59:59"}));
  EXPECT_FALSE(doc.changeDateWithYears(0, 0, 0, 0, 0, 1, true, 7));
  EXPECT_TRUE(doc.changeDateWithYears(0, 1, 0, 1, 0, 0, false, 3));
  EXPECT_EQ(current(), (Three{"2020:04:06 06:08:09", "none", "9999:12:31 23:59:59"}));
  EXPECT_EQ(doc.undoStack().count(), 2);
}

TEST_F(SingleDocFixture, RestoreTakesTheFileValuesAndClearsTheHistory) {
  open({kO, kD, kE});
  doc.changeDateWithYears(1, 0, 0, 0, 0, 0, true, 7);
  type(Edited, Ctl::minuteField, "59");
  doc.restore();
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
  EXPECT_EQ(doc.picker(Edited).dateTimeStringForTIFF(), kE);
  EXPECT_FALSE(doc.undoStack().canUndo());
  EXPECT_TRUE(doc.undoStack().isClean());
}

TEST_F(SingleDocFixture, SaveWritesExactlyTheEnabledPickersTexts) {
  open({kO, kD, kE});
  type(Original, Ctl::secondField, "30");
  type(Edited, Ctl::yearField, "1999");
  const std::vector<std::uint8_t> before = readBytes(path);
  const std::size_t o = find(before, kO), e = find(before, kE);

  ASSERT_TRUE(doc.saveFileAll(false, false, false));
  const std::vector<std::uint8_t> after = readBytes(path);
  ASSERT_EQ(after.size(), before.size());
  std::vector<std::size_t> changed;
  for (std::size_t i = 0; i < before.size(); ++i)
    if (before[i] != after[i]) changed.push_back(i);
  // Seconds "09" -> "30" and year "2018" -> "1999"; the digitized date is
  // written with its own value.
  std::vector<std::size_t> expected{o + 17, o + 18, e, e + 1, e + 2, e + 3};
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(changed, expected);
  EXPECT_FALSE(doc.undoStack().canUndo());
  EXPECT_FALSE(doc.hasEditedFile());

  // The model follows the file on disk, so a second save goes through.
  type(Digitized, Ctl::monthField, "12");
  EXPECT_TRUE(doc.saveFileAll(false, false, false));
  EXPECT_EQ(doc.selectedImageFile()->originalDateTimeDigitizedString(), "2019:12:02 03:04:05");
}

TEST_F(SingleDocFixture, FailedSaveKeepsTheEditsAndDoesNotCloseOrQuit) {
  open({kO, kD, kE});
  type(Original, Ctl::dayField, "07");
  doc.setWriteFunction([](int, const void*, std::size_t, off_t) -> ssize_t { return errno = EIO, -1; });
  EXPECT_FALSE(doc.saveFileAll(false, true, true));
  const Doc::SaveOutcome failed = doc.lastSaveOutcome();
  EXPECT_FALSE(failed.closeDocument || failed.continueQuit);
  ASSERT_TRUE(failed.alert);
  EXPECT_EQ(failed.alert->message, "Save a file Failed. (photo.jpg)");
  EXPECT_TRUE(doc.hasEditedFile());
  EXPECT_EQ(readBytes(path), photoBytes({kO, kD, kE}));
}

}  // namespace
