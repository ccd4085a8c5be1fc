#include <gtest/gtest.h>

#include "datetime/DateAdditions.h"
#include "datetime/LumDayCalculator.h"
#include "datetime/ZoneGuard.h"

namespace {

Instant at(const char* text) { return *DateAdditions::dateWithDateTimeString(text); }

TEST(DayCount, CountsWholeDaysInEitherOrder) {
  struct Case {
    const char* first;
    const char* second;
    std::uint64_t days;
    const char* text;
  } cases[] = {
      {"2024:02:28", "2024:03:01", 2, "2 days"},
      {"2024:03:01", "2024:02:28", 2, "2 days"},
      {"2023:02:28", "2023:03:01", 1, "1 day"},
      {"2024:02:28", "2024:02:28", 0, "0 days"},
      {"2024:02:28 12:00:00", "2024:02:29 11:59:59", 0, "0 days"},
      {"2024:02:28 12:00:00", "2024:02:29 12:00:00", 1, "1 day"},
      {"2024:02:28 12:00:00.5", "2024:02:29 12:00:00.4", 0, "0 days"},
      {"0001:01:01", "9999:12:31", 3'652'058, "3652058 days"},
      {"0000:12:31", "0001:01:01", 1, "1 day"},
      {"2024:03:01 00:00:00+09:00", "2024:03:01 00:00:00Z", 0, "0 days"},
  };
  for (const Case& c : cases) {
    const std::uint64_t days = LumDayCalculator::dayCount(at(c.first), at(c.second));
    EXPECT_EQ(days, c.days) << c.first << " " << c.second;
    EXPECT_EQ(LumDayCalculator::dayCountText(days), c.text) << c.first << " " << c.second;
  }
}

// Any two instants give a distance; translated formats are data, and only
// their first placeholder is filled.
TEST(DayCount, ExtremesAndLocalizedFormats) {
  EXPECT_EQ(LumDayCalculator::dayCount(Instant{INT64_MIN, 0}, Instant{INT64_MAX, 999'999'999}), UINT64_MAX / 86400);
  const auto lookup = [](std::string_view key) {
    return std::string(key == "day" ? "%d jour" : "%ld jours %d%%");
  };
  EXPECT_EQ(LumDayCalculator::dayCountText(1, lookup), "1 jour");
  EXPECT_EQ(LumDayCalculator::dayCountText(5, lookup), "5 jours %d%%");
  EXPECT_EQ(LumDayCalculator::dayCountText(7, [](std::string_view) { return std::string("%s"); }), "%s");
}

TEST(DayCalculator, StartsAtTodayInTheLocalZoneAsAGmtDate) {
  lumtest::ZoneGuard zone("Pacific/Auckland");  // UTC+13 in February
  const Instant now = at("2024:02:28 20:00:00");  // already the 29th in Auckland
  LumDayCalculator calculator(now);
  EXPECT_EQ(calculator.date1(), at("2024:02:29 00:00:00"));
  EXPECT_EQ(calculator.date2(), calculator.date1());
  EXPECT_EQ(calculator.days(), "0 days");
  calculator.setDate2(at("2024:03:02 23:00:00"));
  EXPECT_EQ(calculator.days(), "2 days");
  calculator.setDate1(at("10000:06:01 00:00:00"));
  EXPECT_EQ(calculator.date1(), at("9999:12:31 23:59:59")) << "held inside the pickers' range";
}

}  // namespace
