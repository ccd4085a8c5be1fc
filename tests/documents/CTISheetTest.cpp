#include <gtest/gtest.h>

#include <functional>

#include "PhotoFiles.h"
#include "datetime/DateAdditions.h"
#include "documents/LumCTISheet.h"
#include "documents/LumSingleFileDoc.h"

using namespace doctest_support;
using Sheet = LumCTISheet;
using Ctl = OrbDatePicker::Control;
using DateTargets::Digitized;
using DateTargets::Edited;
using DateTargets::Original;
using Three = std::array<std::string, 3>;

namespace {

std::optional<Instant> at(const std::string& text) { return DateAdditions::dateWithDateTimeString(text); }
std::string textOf(const std::optional<Instant>& date) { return date ? DateAdditions::tiffDateString(*date) : ""; }

const std::string kMark = Sheet::kOutOfRangeMark;
const std::string kZero = "0000:00:00 00:00:00";

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

// OK changes every checked date the sheet previewed, to its preview, and
// nothing else; while it is disabled nothing changes at all.
TEST(CTISheet, OKDoesWhatThePreviewShows) {
  ensureApplication();
  const auto type = [](Ctl field, const char* text, DateTargets::Index which) {
    return [=](LumSingleFileDoc& doc) { ASSERT_TRUE(doc.picker(which).controlTextDidChange(field, text)); };
  };
  const struct {
    const char* name;
    PhotoDates file;
    std::vector<std::function<void(LumSingleFileDoc&)>> steps;
    unsigned mask;
    Three previews;  // "" where nothing is previewed
    bool ok;
  } cases[] = {
      // A linked change stores 9999 for the missing DateTime; the pickers go
      // back to 2000 unlinked, so the hidden value must not be shifted.
      {"hidden linked value",
       {"2000:05:06 07:08:09", "2000:01:02 03:04:05", std::nullopt},
       {[](LumSingleFileDoc& d) { d.setLinked(true); }, type(Ctl::yearField, "9999", Original),
        [](LumSingleFileDoc& d) { d.setLinked(false); }, type(Ctl::yearField, "2000", Original),
        type(Ctl::yearField, "2000", Digitized)},
       7, {"2001:05:06 07:08:09", "2001:05:06 07:08:09", ""}, true},
      {"zero date passed over", {kZero, "2000:01:02 03:04:05", kZero}, {}, 7, {"", "2001:01:02 03:04:05", ""}, true},
      {"zero date typed over", {kZero, std::nullopt, std::nullopt}, {type(Ctl::yearField, "2021", Original)}, 7,
       {"2022:11:30 00:00:00", "", ""}, true},
      {"one date out of range",
       {"9999:06:01 00:00:00", std::nullopt, "2000:01:01 00:00:00"}, {}, 7,
       {kMark + "10000:06:01 00:00:00", "", "2001:01:01 00:00:00"}, false},
      {"out of range but unchecked",
       {"9999:06:01 00:00:00", std::nullopt, "2000:01:01 00:00:00"}, {}, 4, {"", "", "2001:01:01 00:00:00"}, true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TempFolder folder;
    LumSingleFileDoc doc;
    ASSERT_TRUE(doc.readFromURL(writePhoto(folder, "a.jpg", c.file), "JPEG", nullptr));
    for (const auto& step : c.steps) step(doc);
    const LumSingleFileDoc::Dates before = doc.currentDates();
    const int undoCount = doc.undoStack().count();

    Sheet sheet;
    doc.showChangeByTimeIntervalSheet(sheet);
    for (const auto& t : DateTargets::kTargets) sheet.selectTarget(t.index, (c.mask & t.maskBit) != 0);
    ASSERT_TRUE(sheet.controlTextDidChange(Sheet::Year, 1));
    for (const auto& t : DateTargets::kTargets) EXPECT_EQ(sheet.preview(t.index).text, c.previews[t.index]);
    ASSERT_EQ(sheet.validateOKButton(), c.ok);
    sheet.closeCTISheet(Sheet::kOKTag, &doc);

    EXPECT_EQ(doc.undoStack().count(), undoCount + (c.ok ? 1 : 0));
    for (const auto& t : DateTargets::kTargets) {
      const bool moved = c.ok && !c.previews[t.index].empty();
      EXPECT_EQ(textOf(doc.currentDates()[t.index]), moved ? c.previews[t.index] : textOf(before[t.index]))
          << t.column;
    }
  }
}

TEST(CTISheet, BothButtonsResetTheSheet) {
  for (const int tag : {0, Sheet::kOKTag}) {
    Sheet sheet;
    sheet.setUpWithOriginalDate(at("2020:05:06 07:08:09"), std::nullopt, std::nullopt);
    sheet.controlTextDidChange(Sheet::Day, 10);
    sheet.closeCTISheet(tag, nullptr);
    EXPECT_EQ(sheet.fieldValue(Sheet::Day), 0);
    EXPECT_EQ(sheet.dates(), Sheet::Dates{});
    EXPECT_EQ(sheet.preview(Original).text, "");
  }
}

}  // namespace
