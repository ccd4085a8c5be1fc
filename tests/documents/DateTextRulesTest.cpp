// Runs under several time zones (see CMakeLists.txt): no result may depend
// on the machine's zone.
#include "documents/DateTextRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "datetime/DateAdditions.h"
#include "datetime/TimeZone.h"

using namespace DateTextRules;

namespace {

TEST(DateTextRules, NormalizedTypedText) {
  const std::pair<const char*, std::optional<std::string>> cases[] = {
      {"2021/3/4 5:06:07", "2021:03:04 05:06:07"},
      {"  2021-03-04 05:06:07  ", "2021:03:04 05:06:07"},
      {"-2021.3.4,5;6'7", "2021:03:04 05:06:07"},
      {"2021//3//4  5::6::7", "2021:03:04 05:06:07"},  // runs of separators count once
      {"2021:02:29 00:00:00", "2021:03:01 00:00:00"},  // rolled over like the calendar does
      {"9999:12:31 24:00:00", std::nullopt},           // rolls past 9999
      {"2021/3/4", std::nullopt},                      // three parts
      {"2021/3/4 5:06:07:08", std::nullopt},
      {"0000:01:01 00:00:00", std::nullopt},
      {"10000:01:01 00:00:00", std::nullopt},
      {"2021/3/4 5:06:0x", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [typed, expected] : cases) EXPECT_EQ(normalizedDateTimeString(typed), expected) << typed;
}

// The quick path for common date texts must agree with the general date
// parser and calendar arithmetic on every text and offset, including those
// it hands back to the general path.
// The shift through the general parser, formatter and calendar arithmetic.
std::optional<std::string> generalShift(const std::string& text, const Offsets& o) {
  const std::optional<Instant> date = DateAdditions::dateWithDateTimeString(text);
  if (!date) return std::nullopt;
  bool bc = false;
  const auto shifted = DateAdditions::dateByAddingWithYears(*date, o[0], o[1], o[2], o[3], o[4], o[5], &bc);
  if (!shifted || bc || DateAdditions::yearWithTimeZone(*shifted, TimeZone::gmt()) > 9999) return std::nullopt;
  return DateAdditions::tiffDateString(*shifted);
}

bool generalLeavesRange(const std::string& text, const Offsets& o) {
  if (text.empty()) return false;
  const std::optional<Instant> date = DateAdditions::dateWithDateTimeString(text);
  if (!date) return false;
  const auto shifted = DateAdditions::dateByAddingWithYears(*date, o[0], o[1], o[2], o[3], o[4], o[5]);
  return shifted && (*shifted < DateTextRules::kMiniDate || *shifted > DateTextRules::kMaxDate);
}

std::vector<std::string> sampleTexts() {
  std::vector<std::string> texts{
      "2020:02:29 12:00:00", "2021:02:29 12:00:00", "0000:01:01 00:00:00", "2020:13:01 00:00:00",
      "2020:01:01 24:00:00", "2020:01:01 00:60:00", "2020:01:01 00:00:60", "2020-01-01 00:00:00",
      "2020:01:01 00:00:00 ", "2020:01:01 0a:00:00", "2020:1:01 00:00:00",  "",
      "2020:00:10 00:00:00", "2020:04:31 00:00:00", "    :  :     :  :  ", "2020:01:01T00:00:00"};
  for (const char* year : {"0001", "0004", "0100", "1900", "1969", "1970", "2000", "2023", "2024", "9999"})
    for (const char* monthDay : {"01:01", "01:31", "02:28", "02:29", "03:01", "04:30", "06:15", "12:31"})
      for (const char* time : {"00:00:00", "12:34:56", "23:59:59"})
        texts.push_back(std::string(year) + ":" + monthDay + " " + time);
  return texts;
}

const std::vector<Offsets> kOffsets{
    {0, 0, 0, 1, 0, 0},     {0, 0, 0, -1, 0, 0},   {0, 1, 0, 0, 0, 0},        {0, -1, 0, 0, 0, 0},
    {1, 0, 0, 0, 0, 0},     {-1, 0, 0, 0, 0, 0},   {0, 0, 0, 0, 0, 1},        {0, 0, 0, 0, 0, -1},
    {4, 1, 1, 1, 1, 1},     {0, 13, 0, 0, 0, 0},   {0, -25, 0, 0, 0, 0},      {-2023, 0, 0, 0, 0, 0},
    {7976, 0, 0, 0, 0, 0},  {0, 0, 2920000, 0, 0, 0}, {0, 0, 0, -48, 90, -3601}, {99999, 0, 0, 0, 0, 0},
    {-100000, 0, 0, 0, 0, 0}, {100001, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 4'000'000'000'000L}, {0, 0, -36600000, 0, 0, 0}};

TEST(ExifDateText, ShiftAndRangeCheckAgreeWithTheGeneralPath) {
  for (const std::string& text : sampleTexts())
    for (const Offsets& o : kOffsets) {
      SCOPED_TRACE(text + " by " + testing::PrintToString(o));
      EXPECT_EQ(DateTextRules::shiftedDateTimeString(text, o), generalShift(text, o));
      EXPECT_EQ(DateTextRules::shiftLeavesRange(text, o), generalLeavesRange(text, o));
    }
  EXPECT_EQ(DateTextRules::shiftedDateTimeString(std::nullopt, kOffsets[0]), std::nullopt);
}

}  // namespace
