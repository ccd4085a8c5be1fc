#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "datetime/DateAdditions.h"
#include "documents/LumCTISheet.h"
#include "documents/LumSingleFileDoc.h"

using namespace doctest_support;
using Sheet = LumCTISheet;
using DateTargets::Digitized;
using DateTargets::Edited;
using DateTargets::Original;

namespace {

std::optional<Instant> at(const std::string& text) { return DateAdditions::dateWithDateTimeString(text); }

const std::string kMark = Sheet::kOutOfRangeMark;

TEST(CTISheet, PreviewsInAndOutOfRange) {
  const struct {
    std::string start;
    Sheet::Field field;
    long count;
    int mode;
    std::string preview;
  } cases[] = {
      {"2020:01:31 07:08:09", Sheet::Month, 1, Sheet::kForwardTag, "2020:02:29 07:08:09"},
      {"0001:01:01 00:00:01", Sheet::Second, 1, Sheet::kBackwardTag, "0001:01:01 00:00:00"},
      {"0001:01:01 00:00:00", Sheet::Second, 1, Sheet::kBackwardTag, kMark + "-0001:12:31 23:59:59"},
      {"9999:12:31 23:59:58", Sheet::Second, 1, Sheet::kForwardTag, "9999:12:31 23:59:59"},
      {"9999:12:31 23:59:59", Sheet::Second, 1, Sheet::kForwardTag, kMark + "10000:01:01 00:00:00"},
      {"2020:05:06 07:08:09", Sheet::Year, 2025, Sheet::kBackwardTag, kMark + "-0006:05:06 07:08:09"},
  };
  for (const auto& k : cases) {
    Sheet sheet;
    sheet.selectChangeDateMode(k.mode);
    ASSERT_TRUE(sheet.controlTextDidChange(k.field, k.count));
    sheet.setUpWithOriginalDate(at(k.start), std::nullopt, std::nullopt);
    const bool out = k.preview.starts_with(kMark);
    EXPECT_EQ(sheet.preview(Original).text, k.preview);
    EXPECT_EQ(sheet.preview(Original).outOfRange, out) << k.preview;
    EXPECT_EQ(sheet.validateOKButton(), !out) << k.preview;
  }
}

TEST(CTISheet, OnlyCheckedDatesWithValuesCount) {
  Sheet sheet;
  sheet.setUpWithOriginalDate(at("9999:06:01 00:00:00"), std::nullopt, at("2000:01:01 00:00:00"));
  ASSERT_TRUE(sheet.controlTextDidChange(Sheet::Year, 1));
  EXPECT_FALSE(sheet.validateOKButton());
  EXPECT_EQ(sheet.preview(Digitized).text, "");
  sheet.selectTarget(Original, false);
  EXPECT_TRUE(sheet.validateOKButton());
  EXPECT_EQ(sheet.preview(Edited).text, "2001:01:01 00:00:00");
}

TEST(CTISheet, OKShiftsTheDocumentAndBothButtonsReset) {
  ensureApplication();
  TempFolder folder;
  LumSingleFileDoc doc;
  ASSERT_TRUE(doc.readFromURL(writePhoto(folder, "a.jpg", {"2020:05:06 07:08:09", std::nullopt, std::nullopt}),
                              "JPEG", nullptr));
  for (const int tag : {0, Sheet::kOKTag}) {
    Sheet sheet;
    doc.showChangeByTimeIntervalSheet(sheet);
    sheet.controlTextDidChange(Sheet::Day, 10);
    sheet.closeCTISheet(tag, &doc);
    EXPECT_EQ(sheet.fieldValue(Sheet::Day), 0);
    EXPECT_EQ(sheet.dates(), Sheet::Dates{});
  }
  EXPECT_EQ(DateAdditions::tiffDateString(*doc.currentDateTimeOriginal()), "2020:05:16 07:08:09");
  EXPECT_EQ(doc.undoStack().count(), 1);
}

}  // namespace
