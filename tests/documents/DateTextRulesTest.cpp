#include "documents/DateTextRules.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

using namespace DateTextRules;

namespace {

// Runs body once per zone; the results must not depend on the zone.
template <typename Body>
void inZones(Body body) {
  const char* saved = std::getenv("TZ");
  const std::string previous = saved ? saved : "";
  for (const char* zone : {"UTC", "America/New_York", "Pacific/Chatham", "Asia/Kolkata"}) {
    SCOPED_TRACE(zone);
    ::setenv("TZ", zone, 1);
    ::tzset();
    body();
  }
  if (saved)
    ::setenv("TZ", previous.c_str(), 1);
  else
    ::unsetenv("TZ");
  ::tzset();
}

struct ShiftCase {
  const char* text;
  Offsets offsets;
  std::optional<std::string> expected;
};

TEST(DateTextRules, ShiftedTextIsTheSameInEveryZone) {
  const std::vector<ShiftCase> cases{
      {"2021:03:14 01:30:00", {0, 0, 0, 1, 0, 0}, "2021:03:14 02:30:00"},  // a local DST gap in New York
      {"2021:11:07 01:30:00", {0, 0, 1, 0, 0, 0}, "2021:11:08 01:30:00"},
      {"2024:01:31 10:00:00", {0, 1, 0, 0, 0, 0}, "2024:02:29 10:00:00"},  // clamped to the month's end
      {"2023:01:31 10:00:00", {0, -2, 0, 0, 0, 0}, "2022:11:30 10:00:00"},
      {"2020:02:29 23:59:59", {1, 0, 0, 0, 0, 1}, "2021:03:01 00:00:00"},
      {"2010:06:15 12:00:00", {0, 0, 0, 1, 2, 3}, "2010:06:15 13:02:03"},
      {"2010:06:15 12:00:00", {0, 0, 0, -1, -2, -3}, "2010:06:15 10:57:57"},
      {"0001:06:01 00:00:00", {-1, 0, 0, 0, 0, 0}, std::nullopt},  // before year 1
      {"9999:12:31 23:59:59", {0, 0, 0, 0, 0, 1}, std::nullopt},   // after 9999
      {"not a date", {0, 0, 0, 1, 0, 0}, std::nullopt},
  };
  inZones([&] {
    for (const ShiftCase& c : cases) {
      SCOPED_TRACE(c.text);
      EXPECT_EQ(shiftedDateTimeString(std::string(c.text), c.offsets), c.expected);
    }
    EXPECT_EQ(shiftedDateTimeString(std::nullopt, {0, 0, 0, 1, 0, 0}), std::nullopt);
  });
}

TEST(DateTextRules, NormalizedTypedText) {
  const std::vector<std::pair<const char*, std::optional<std::string>>> cases{
      {"2021/3/4 5:06:07", "2021:03:04 05:06:07"},
      {"  2021-03-04 05:06:07  ", "2021:03:04 05:06:07"},
      {"-2021.3.4,5;6'7", "2021:03:04 05:06:07"},
      {"2021//3//4  5::6::7", "2021:03:04 05:06:07"},  // runs of separators count once
      {"2021:02:29 00:00:00", "2021:03:01 00:00:00"},  // rolled over like the calendar does
      {"2021:12:31 24:00:00", "2022:01:01 00:00:00"},
      {"9999:12:31 24:00:00", std::nullopt},           // rolls past 9999
      {"2021/3/4", std::nullopt},                      // three parts
      {"2021/3/4 5:06:07:08", std::nullopt},
      {"0000:01:01 00:00:00", std::nullopt},
      {"10000:01:01 00:00:00", std::nullopt},
      {"2021/3/4 5:06:07Z", std::nullopt},
      {"2021/3/4 5:06:0x", std::nullopt},
      {"", std::nullopt},
  };
  inZones([&] {
    for (const auto& [typed, expected] : cases) {
      SCOPED_TRACE(typed);
      EXPECT_EQ(normalizedDateTimeString(typed), expected);
    }
  });
}

}  // namespace
