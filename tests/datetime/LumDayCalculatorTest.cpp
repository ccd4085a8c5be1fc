#include <gtest/gtest.h>

#include "datetime/DateAdditions.h"
#include "datetime/LumDayCalculator.h"
#include "datetime/ZoneGuard.h"

namespace {

Instant at(const char* text) { return *DateAdditions::dateWithDateTimeString(text); }

TEST(DayCount, CountsWholeDaysInEitherOrder) {
  const struct { const char* first; const char* second; const char* text; } cases[] = {
      {"2024:03:01", "2024:02:28", "2 days"}, {"2023:02:28", "2023:03:01", "1 day"},
      {"2024:02:28 12:00:00.5", "2024:02:29 12:00:00.4", "0 days"}, {"0001:01:01", "9999:12:31", "3652058 days"},
      {"0000:12:31", "0001:01:01", "1 day"}, {"2024:03:01 00:00:00+09:00", "2024:03:01 00:00:00Z", "0 days"}};
  for (const auto& c : cases)
    EXPECT_EQ(LumDayCalculator::dayCountText(LumDayCalculator::dayCount(at(c.first), at(c.second))), c.text) << c.first;
  EXPECT_EQ(LumDayCalculator::dayCount(Instant{INT64_MIN, 0}, Instant{INT64_MAX, 999'999'999}), UINT64_MAX / 86400);
  // Translated formats are data, and only their first placeholder is filled.
  const auto lookup = [](std::string_view key) { return std::string(key == "day" ? "%d jour" : "%ld jours %d%%"); };
  EXPECT_EQ(LumDayCalculator::dayCountText(1, lookup), "1 jour");
  EXPECT_EQ(LumDayCalculator::dayCountText(5, lookup), "5 jours %d%%");
  EXPECT_EQ(LumDayCalculator::dayCountText(7, [](std::string_view) { return std::string("%s"); }), "%s");
}

TEST(DayCalculator, StartsAtTodayInTheLocalZoneAsAGmtDate) {
  lumtest::ZoneGuard zone("Pacific/Auckland");  // UTC+13 in February
  LumDayCalculator calculator(at("2024:02:28 20:00:00"));  // already the 29th in Auckland
  EXPECT_EQ(calculator.date1(), at("2024:02:29 00:00:00"));
  EXPECT_EQ(calculator.date2(), calculator.date1());
  calculator.setDate2(at("2024:03:02 23:00:00"));
  EXPECT_EQ(calculator.days(), "2 days");
  calculator.setDate1(at("10000:06:01 00:00:00"));
  EXPECT_EQ(calculator.date1(), at("9999:12:31 23:59:59")) << "held inside the pickers' range";
}

}  // namespace
