// Runs under several time zones (see CMakeLists.txt): no result may depend
// on the machine's zone.
#include "documents/DateTextRules.h"

#include <gtest/gtest.h>

using namespace DateTextRules;

namespace {

constexpr Offsets kHour{0, 0, 0, 1, 0, 0}, kBackYear{-1, 0, 0, 0, 0, 0};

TEST(DateTextRules, ShiftedTextIsTheSameInEveryZone) {
  const struct {
    const char* text;
    Offsets offsets;
    std::optional<std::string> expected;
    bool leavesRange;
  } cases[] = {
      {"2021:03:14 01:30:00", kHour, "2021:03:14 02:30:00", false},  // a local DST gap in New York
      {"2021:11:07 01:30:00", {0, 0, 1, 0, 0, 0}, "2021:11:08 01:30:00", false},
      {"2024:01:31 10:00:00", {0, 1, 0, 0, 0, 0}, "2024:02:29 10:00:00", false},  // clamped to the month's end
      {"2023:01:31 10:00:00", {0, -2, 0, 0, 0, 0}, "2022:11:30 10:00:00", false},
      {"2020:02:29 23:59:59", {1, 0, 0, 0, 0, 1}, "2021:03:01 00:00:00", false},
      {"2010:06:15 12:00:00", {0, 0, 0, -1, -2, -3}, "2010:06:15 10:57:57", false},
      {"2019:02:29 10:00:00", kHour, "2019:03:01 11:00:00", false},  // rolled over, then shifted
      {"2019:03:07 09:05:60", kHour, "2019:03:07 10:06:00", false},
      {"0001:06:01 00:00:00", kBackYear, std::nullopt, true},
      {"9999:12:31 23:59:59", {0, 0, 0, 0, 0, 1}, std::nullopt, true},
      {"not a date", kHour, std::nullopt, false},
      // The unknown date is passed over, whichever way the shift goes.
      {"0000:00:00 00:00:00", kHour, std::nullopt, false},
      {"0000:00:00 00:00:00", kBackYear, std::nullopt, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(shiftedDateTimeString(std::string(c.text), c.offsets), c.expected);
    EXPECT_EQ(shiftLeavesRange(std::string(c.text), c.offsets), c.leavesRange);
  }
  EXPECT_EQ(shiftedDateTimeString(std::nullopt, kHour), std::nullopt);
}

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

}  // namespace
