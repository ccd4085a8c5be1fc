#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "datetime/DateAdditions.h"
#include "documents/LumCTISheet.h"
#include "documents/LumSingleFileDoc.h"

using namespace doctest_support;
using Sheet = LumCTISheet;
using Ctl = OrbDatePicker::Control;
using DateTargets::Digitized;
using DateTargets::Original;
using Three = std::array<std::string, 3>;

namespace {

std::string textOf(const std::optional<Instant>& date) { return date ? DateAdditions::tiffDateString(*date) : ""; }

const std::string kMark = Sheet::kOutOfRangeMark;
const std::string kZero = "0000:00:00 00:00:00";

// The preview of each checked date (the mark and red before year 1 or after
// 9999, "-" for a year BC), and OK: enabled while no checked date is out of
// range, it changes every checked date the sheet previewed to its preview
// and nothing else; disabled, nothing changes. Either way the sheet resets.
TEST(CTISheet, OKDoesWhatThePreviewShows) {
  ensureApplication();
  struct YearTyped { DateTargets::Index which; const char* year; bool linked; };
  struct Interval { int mode; Sheet::Field field; long count; };
  const Interval year{Sheet::kForwardTag, Sheet::Year, 1}, secondBack{Sheet::kBackwardTag, Sheet::Second, 1};
  const std::optional<std::string> no;
  // previews: "" where nothing is previewed.
  const struct { PhotoDates file; std::vector<YearTyped> steps; Interval interval; unsigned mask; Three previews;
    bool ok; } cases[] = {
      {{"2020:01:31 07:08:09", no, no}, {}, {Sheet::kForwardTag, Sheet::Month, 1}, 7,
       {"2020:02:29 07:08:09", "", ""}, true},
      {{"0001:01:01 00:00:01", no, no}, {}, secondBack, 7, {"0001:01:01 00:00:00", "", ""}, true},
      {{"0001:01:01 00:00:00", no, no}, {}, secondBack, 7, {kMark + "-0001:12:31 23:59:59", "", ""}, false},
      {{"9999:12:31 23:59:59", no, no}, {}, {Sheet::kForwardTag, Sheet::Second, 1}, 7,
       {kMark + "10000:01:01 00:00:00", "", ""}, false},
      {{"2020:05:06 07:08:09", no, no}, {}, {Sheet::kBackwardTag, Sheet::Year, 2025}, 7,
       {kMark + "-0006:05:06 07:08:09", "", ""}, false},
      // A linked change stores 9999 for the missing DateTime; the pickers go
      // back to 2000 unlinked, so the hidden value must not be shifted.
      {{"2000:05:06 07:08:09", "2000:01:02 03:04:05", no},
       {{Original, "9999", true}, {Original, "2000", false}, {Digitized, "2000", false}}, year, 7,
       {"2001:05:06 07:08:09", "2001:05:06 07:08:09", ""}, true},
      {{kZero, "2000:01:02 03:04:05", kZero}, {}, year, 7, {"", "2001:01:02 03:04:05", ""}, true},  // passed over
      {{kZero, no, no}, {{Original, "2021", false}}, year, 7, {"2022:11:30 00:00:00", "", ""}, true},  // typed over
      {{"9999:06:01 00:00:00", no, "2000:01:01 00:00:00"}, {}, year, 7,
       {kMark + "10000:06:01 00:00:00", "", "2001:01:01 00:00:00"}, false},
      {{"9999:06:01 00:00:00", no, "2000:01:01 00:00:00"}, {}, year, 4, {"", "", "2001:01:01 00:00:00"}, true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.file.original.value_or("none") + " then " + c.previews[0] + c.previews[2]);
    TempFolder folder;
    LumSingleFileDoc doc;
    ASSERT_TRUE(doc.readFromURL(writePhoto(folder, "a.jpg", c.file), "JPEG", nullptr));
    for (const YearTyped& step : c.steps) {
      doc.setLinked(step.linked);
      ASSERT_TRUE(doc.picker(step.which).controlTextDidChange(Ctl::yearField, step.year));
    }
    const LumSingleFileDoc::Dates before = doc.currentDates();
    const int undoCount = doc.undoStack().count();

    Sheet sheet;
    doc.showChangeByTimeIntervalSheet(sheet);
    for (const auto& t : DateTargets::kTargets) sheet.selectTarget(t.index, (c.mask & t.maskBit) != 0);
    sheet.selectChangeDateMode(c.interval.mode);
    ASSERT_TRUE(sheet.controlTextDidChange(c.interval.field, c.interval.count));
    for (const auto& t : DateTargets::kTargets) EXPECT_EQ(sheet.preview(t.index).text, c.previews[t.index]);
    ASSERT_EQ(sheet.validateOKButton(), c.ok);
    sheet.closeCTISheet(Sheet::kOKTag, &doc);
    EXPECT_TRUE(sheet.fieldValue(c.interval.field) == 0 && sheet.dates() == Sheet::Dates{});  // ready for its next use

    EXPECT_EQ(doc.undoStack().count(), undoCount + (c.ok ? 1 : 0));
    for (const auto& t : DateTargets::kTargets) {
      const bool moved = c.ok && !c.previews[t.index].empty();
      EXPECT_EQ(textOf(doc.currentDates()[t.index]), moved ? c.previews[t.index] : textOf(before[t.index]))
          << t.column;
    }
  }
}

}  // namespace
