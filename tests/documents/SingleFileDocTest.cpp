#include <gtest/gtest.h>

#include <functional>

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
// Texts cameras write that the lenient reader rolls over when it shows them.
const std::string kZero = "0000:00:00 00:00:00", kLeap = "2019:02:29 10:00:00", kSixty = "2019:03:07 09:05:60";

std::string textOf(const std::optional<Instant>& date) { return date ? DateAdditions::tiffDateString(*date) : "none"; }

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

TEST_F(SingleDocFixture, LinkedChangeAndUndo) {
  open({kO, kD, kE});
  EXPECT_FALSE(doc.getTitleForAlertWhenCloseDociment());
  doc.setLinked(true);
  type(Original, Ctl::yearField, "2021");
  const std::string changed = "2021:05:06 07:08:09";
  EXPECT_EQ(current(), (Three{changed, changed, changed}));
  EXPECT_EQ(doc.picker(Edited).dateTimeStringForTIFF(), changed);
  EXPECT_TRUE(doc.getTitleForAlertWhenCloseDociment().value_or(Doc::CloseAlertTexts{}).title.contains("photo.jpg"));
  doc.undoStack().undo();  // one step for all three
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
  EXPECT_FALSE(doc.hasEditedFile());
  EXPECT_FALSE(doc.changeDateWithYears(8000, 0, 0, 0, 0, 0, true, 2));  // past 9999: refused whole
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
  // Restore, which clears the history as well, is the window suite's.
  // Link and change by interval need at least one date (none: the window
  // suite's disabled buttons); one is enough.
  open({std::nullopt, std::nullopt, kE});
  EXPECT_TRUE(doc.isChangeByIntervalEnabled());
}

// What is on disk after an edit and a save, against a photo built with the
// expected dates: only the dates the user changed differ, and a date left
// alone keeps its bytes whatever its picker makes of them.
TEST_F(SingleDocFixture, PasteSetsTheFocusedPickerAsOneChange) {
  open({kO, kD, kE});
  OrbDatePicker::Delegate& delegate = *doc.picker(Digitized).delegate();
  delegate.pasteWithDateTimeString("2019-03-07T09:05:30.250");  // no picker has the focus
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
  doc.picker(Digitized).setFocused(Ctl::hourField);
  delegate.pasteWithDateTimeString("2019:03:07 09:05:30");  // not the pasted form: ignored
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
  delegate.pasteWithDateTimeString("2019-03-07T09:05:30.250");
  EXPECT_EQ(current(), (Three{kO, "2019:03:07 09:05:30", kE}));
  EXPECT_EQ(doc.picker(Digitized).subSecond(), 250);
  doc.undoStack().undo();
  EXPECT_EQ(current(), (Three{kO, kD, kE}));
}

TEST_F(SingleDocFixture, SaveWritesOnlyTheChangedDates) {
  using Edit = std::function<void(SingleDocFixture&)>;
  const auto typeYear = [](DateTargets::Index which, const char* year) -> Edit {
    return [=](SingleDocFixture& f) { f.type(which, Ctl::yearField, year); };
  };
  const auto shiftHour = [](unsigned mask) -> Edit {
    return [=](SingleDocFixture& f) { EXPECT_TRUE(f.doc.changeDateWithYears(0, 0, 0, 1, 0, 0, true, mask)); };
  };
  const struct { PhotoDates file; Edit edit; PhotoDates onDisk; } cases[] = {
      {{kO, kZero, kZero}, typeYear(Original, "2021"), {"2021:05:06 07:08:09", kZero, kZero}},
      {{kO, kLeap, kLeap}, typeYear(Original, "2021"), {"2021:05:06 07:08:09", kLeap, kLeap}},
      {{kO, kSixty, kSixty}, typeYear(Original, "2021"), {"2021:05:06 07:08:09", kSixty, kSixty}},
      {{kZero, kO, kSixty}, shiftHour(7), {kZero, "2020:05:06 08:08:09", "2019:03:07 10:06:00"}},
      // Linked: the zero date is filled like any other; the missing one stays missing.
      {{kZero, kLeap, std::nullopt}, [](auto& f) { f.doc.setLinked(true), f.type(Digitized, Ctl::dayField, "20"); },
       {"2019:03:20 10:00:00", "2019:03:20 10:00:00", std::nullopt}},
      // Changed and changed back: nothing to write.
      {{kO, kLeap, kE},
       [](auto& f) { f.type(Digitized, Ctl::yearField, "2020"), f.type(Digitized, Ctl::yearField, "2019"); },
       {kO, kLeap, kE}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file.original.value_or("none") + " " + c.file.digitized.value_or("none"));
    open(c.file);
    doc.setLinked(false);
    EXPECT_FALSE(doc.hasEditedFile());
    c.edit(*this);
    ASSERT_TRUE(doc.saveFileAll(false, false, false));
    EXPECT_EQ(readBytes(path), photoBytes(c.onDisk));
    EXPECT_FALSE(doc.hasEditedFile() || doc.undoStack().canUndo());
  }
  // The model follows the file on disk, so a second save goes through.
  type(Digitized, Ctl::monthField, "12");
  EXPECT_TRUE(doc.saveFileAll(false, false, false));
  EXPECT_EQ(readBytes(path), photoBytes({kO, "2019:12:01 10:00:00", kE}));
  // A failed save keeps the edits and neither closes the document nor quits.
  type(Original, Ctl::dayField, "07");
  doc.setWriteFunction([](int, const void*, std::size_t, off_t) -> ssize_t { return errno = EIO, -1; });
  EXPECT_FALSE(doc.saveFileAll(false, true, true));
  const Doc::SaveOutcome failed = doc.lastSaveOutcome();
  EXPECT_FALSE(failed.closeDocument || failed.continueQuit);
  EXPECT_EQ(failed.alert.value_or(decltype(failed.alert)::value_type{}).message, "Save a file Failed. (photo.jpg)");
  EXPECT_TRUE(doc.hasEditedFile());
  EXPECT_EQ(readBytes(path), photoBytes({kO, "2019:12:01 10:00:00", kE}));
}

}  // namespace
