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
  struct Case {
    const char* name;
    std::string start;
    std::array<long, 6> counts;
    int mode;
    std::string preview;
    bool outOfRange;
  };
  const Case cases[] = {
      {"nothing to add", "2020:05:06 07:08:09", {0, 0, 0, 0, 0, 0}, Sheet::kForwardTag, "2020:05:06 07:08:09", false},
      {"forward, all units", "2020:05:06 07:08:09", {1, 2, 3, 4, 5, 6}, Sheet::kForwardTag, "2021:07:09 11:13:15",
       false},
      {"backward over a year end", "2020:01:01 00:00:00", {0, 0, 0, 0, 0, 1}, Sheet::kBackwardTag,
       "2019:12:31 23:59:59", false},
      {"to the first second", "0001:01:01 00:00:01", {0, 0, 0, 0, 0, 1}, Sheet::kBackwardTag, "0001:01:01 00:00:00",
       false},
      {"before year 1", "0001:01:01 00:00:00", {0, 0, 0, 0, 0, 1}, Sheet::kBackwardTag,
       kMark + "-0001:12:31 23:59:59", true},
      {"to the last second", "9999:12:31 23:59:58", {0, 0, 0, 0, 0, 1}, Sheet::kForwardTag, "9999:12:31 23:59:59",
       false},
      {"after 9999", "9999:12:31 23:59:59", {0, 0, 0, 0, 0, 1}, Sheet::kForwardTag, kMark + "10000:01:01 00:00:00",
       true},
      {"years back far", "2020:05:06 07:08:09", {2025, 0, 0, 0, 0, 0}, Sheet::kBackwardTag,
       kMark + "-0006:05:06 07:08:09", true},
  };
  for (const Case& k : cases) {
    Sheet sheet;
    sheet.selectChangeDateMode(k.mode);
    for (int f = 0; f < Sheet::kFieldCount; ++f)
      ASSERT_TRUE(sheet.controlTextDidChange(static_cast<Sheet::Field>(f), k.counts[f])) << k.name;
    sheet.setUpWithOriginalDate(at(k.start), std::nullopt, std::nullopt);
    EXPECT_EQ(sheet.preview(Original).text, k.preview) << k.name;
    EXPECT_EQ(sheet.preview(Original).outOfRange, k.outOfRange) << k.name;
    EXPECT_EQ(sheet.validateOKButton(), !k.outOfRange) << k.name;
  }
}

TEST(CTISheet, OnlyCheckedDatesWithValuesCount) {
  Sheet sheet;
  sheet.setUpWithOriginalDate(at("9999:06:01 00:00:00"), std::nullopt, at("2000:01:01 00:00:00"));
  ASSERT_TRUE(sheet.controlTextDidChange(Sheet::Year, 1));
  EXPECT_FALSE(sheet.validateOKButton());
  EXPECT_EQ(sheet.preview(Digitized).text, "");  // no value handed over
  EXPECT_EQ(sheet.preview(Edited).text, "2001:01:01 00:00:00");

  sheet.selectTarget(Original, false);  // the out-of-range date is not a target any more
  EXPECT_TRUE(sheet.validateOKButton());
  EXPECT_EQ(sheet.preview(Original).text, "");
  EXPECT_EQ(sheet.targetMask(), 6u);

  sheet.selectTarget(Original, true);
  sheet.selectChangeDateMode(Sheet::kBackwardTag);  // the mode alone brings it back in range
  EXPECT_TRUE(sheet.validateOKButton());
  EXPECT_EQ(sheet.preview(Original).text, "9998:06:01 00:00:00");
}

TEST(CTISheet, CountsStayWithinTheirLimits) {
  struct Case {
    Sheet::Field field;
    long value;
    bool accepted;
  };
  const Case cases[] = {
      {Sheet::Year, 9999, true},     {Sheet::Year, 10000, false},   {Sheet::Month, 99999, true},
      {Sheet::Month, 100000, false}, {Sheet::Day, 3652058, true},   {Sheet::Day, 3652059, false},
      {Sheet::Hour, 99999, true},    {Sheet::Second, 100000, false}, {Sheet::Minute, -1, false},
  };
  for (const Case& k : cases) {
    Sheet sheet;
    ASSERT_TRUE(sheet.controlTextDidChange(k.field, 5));
    EXPECT_EQ(sheet.controlTextDidChange(k.field, k.value), k.accepted) << k.field << " " << k.value;
    EXPECT_EQ(sheet.fieldValue(k.field), k.accepted ? k.value : 5) << k.field << " " << k.value;
  }
}

struct CTISheetWithDocument : ::testing::Test {
  TempFolder folder;
  LumSingleFileDoc doc;
  Sheet sheet;

  void SetUp() override {
    ensureApplication();
    const auto path = writePhoto(folder, "a.jpg", {"2020:05:06 07:08:09", "2020:05:06 07:08:09", std::nullopt});
    ASSERT_TRUE(doc.readFromURL(path, "JPEG", nullptr));
    const LumSingleFileDoc::Dates values = doc.valuesForIntervalSheet();
    sheet.setUpWithOriginalDate(values[Original], values[Digitized], values[Edited]);
    sheet.controlTextDidChange(Sheet::Day, 10);
    sheet.controlTextDidChange(Sheet::Hour, 2);
  }
  void expectReset() {
    for (int f = 0; f < Sheet::kFieldCount; ++f) EXPECT_EQ(sheet.fieldValue(static_cast<Sheet::Field>(f)), 0);
    EXPECT_EQ(sheet.dates(), Sheet::Dates{});
    EXPECT_EQ(sheet.focusedField(), Sheet::Year);
  }
};

TEST_F(CTISheetWithDocument, OKShiftsTheCheckedDatesAndResets) {
  sheet.selectTarget(Digitized, false);
  sheet.closeCTISheet(Sheet::kOKTag, &doc);
  EXPECT_EQ(DateAdditions::tiffDateString(*doc.currentDateTimeOriginal()), "2020:05:16 09:08:09");
  EXPECT_EQ(DateAdditions::tiffDateString(*doc.currentDateTimeDigitized()), "2020:05:06 07:08:09");
  EXPECT_FALSE(doc.currentDateTime());
  EXPECT_EQ(doc.undoStack().count(), 1);
  expectReset();
}

TEST_F(CTISheetWithDocument, CancelLeavesTheDocumentAndResets) {
  sheet.closeCTISheet(0, &doc);
  EXPECT_EQ(DateAdditions::tiffDateString(*doc.currentDateTimeOriginal()), "2020:05:06 07:08:09");
  EXPECT_EQ(doc.undoStack().count(), 0);
  expectReset();
}

}  // namespace
