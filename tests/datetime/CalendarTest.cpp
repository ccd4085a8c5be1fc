#include <gtest/gtest.h>

#include "datetime/CivilCalendar.h"
#include "datetime/DateAdditions.h"
#include "datetime/ZoneGuard.h"

namespace {

using DateAdditions::dateWithY;

std::string utcText(std::optional<Instant> date) { return date ? DateAdditions::tiffDateString(*date) : "none"; }

TEST(CivilCalendar, DayNumbersRoundTripAcrossEras) {
  for (std::int64_t day = -4'000'000; day <= 4'000'000; day += 997) {
    const civil::YearMonthDay ymd = civil::civilFromDays(day);
    ASSERT_EQ(civil::daysFromCivil(ymd.year, ymd.month, ymd.day), day);
    ASSERT_LE(ymd.day, civil::lastDayOfMonth(ymd.year, ymd.month));
  }
  EXPECT_EQ(civil::weekdayFromDays(civil::daysFromCivil(1, 1, 1)), 2u);  // a Monday
}

// Fields roll over leniently. Signed years count eras (-1 is 1 BC); the
// date-only builder counts back from 1 AD (0 is 1 BC, -1 is 2 BC). Absurd
// fields are refused instead of overflowing.
TEST(Builders, RollFieldsOverAndRefuseAbsurdOnes) {
  const TimeZone gmt = TimeZone::gmt();
  const std::pair<std::optional<Instant>, const char*> cases[] = {
      {dateWithY(2019, 13, 1, gmt), "2020:01:01 00:00:00"}, {dateWithY(2020, 3, 0, gmt), "2020:02:29 00:00:00"},
      {dateWithY(2019, -11, 1, gmt), "2018:01:01 00:00:00"}, {dateWithY(2019, 12, 31, 23, 59, 60, gmt), "2020:01:01 00:00:00"},
      {dateWithY(1, 1, 1, 0, 0, -1, gmt), "0001:12:31 23:59:59"},     // into 1 BC, printed as its era year
      {dateWithY(-1, 12, 31, 23, 59, 60, gmt), "0001:01:01 00:00:00"},  // 1 BC rolls into 1 AD
      {dateWithY(-1, 1, 1, gmt), "0002:01:01 00:00:00"}, {dateWithY(0, 1, 1, gmt), "0001:01:01 00:00:00"},
      {dateWithY(10000, 1, 1, 0, 0, 0, gmt), "10000:01:01 00:00:00"}, {dateWithY(LONG_MAX, 1, 1, 0, 0, 0, gmt), "none"},
      {dateWithY(2019, 1, 1, LONG_MAX, 0, 0, gmt), "none"}};
  for (std::size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(utcText(cases[i].first), cases[i].second) << "row " << i;
  bool bc = false;
  DateAdditions::getYear(*dateWithY(-1, 1, 1, 0, 0, 0, gmt), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                         nullptr, &gmt, &bc);
  EXPECT_TRUE(bc);
}

// Dates are UTC whatever the machine's zone; only the clock's own fields
// (what time it is here) and explicitly local zones follow TZ.
TEST(LocalZone, OnlyTheClockAndExplicitlyLocalZonesFollowTz) {
  lumtest::ZoneGuard zone("Asia/Kolkata");
  const auto date = dateWithY(2019, 3, 7, 20, 0, 0, TimeZone::gmt());
  EXPECT_EQ(dateWithY(2019, 3, 7, 20, 0, 0), date);
  EXPECT_EQ(DateAdditions::stringDayOfTheWeek(*date), "Thu");
  EXPECT_EQ((std::array{DateAdditions::day(*date), DateAdditions::hour(*date), DateAdditions::minute(*date)}),
            (std::array<long, 3>{8, 1, 30}));
  // 2021-03-28 02:30 does not exist in Berlin and moves forward; 2021-10-31 02:30 happens twice: the later.
  lumtest::ZoneGuard berlin("Europe/Berlin");
  const TimeZone local = TimeZone::local();
  EXPECT_EQ(utcText(dateWithY(2021, 3, 28, 2, 30, 0, local)), "2021:03:28 01:30:00");
  EXPECT_EQ(utcText(dateWithY(2021, 10, 31, 2, 30, 0, local)), "2021:10:31 01:30:00");
}

// Calendar fields are added in UTC: years first, then months, each clamping
// the day to the month's end. Each row: start, y m d h mi s added, result ("none": refused), BC.
TEST(DateByAdding, ClampsMonthEndsInUtc) {
  const struct { const char* start; long add[6]; const char* result; bool bc; } cases[] = {
      {"2020:01:31 00:00:00", {0, 1, 0, 0, 0, 0}, "2020:02:29 00:00:00", false},
      {"2020:02:29 10:00:00", {1, 1, 0, 0, 0, 0}, "2021:03:28 10:00:00", false},
      {"2019:03:10 01:30:00", {0, 0, 0, 1, 0, 0}, "2019:03:10 02:30:00", false},
      {"2019:03:07 09:05:30", {0, 0, 0, -9, -5, -31}, "2019:03:06 23:59:59", false},
      {"0001:01:01 00:00:00", {0, 0, 0, 0, 0, -1}, "0001:12:31 23:59:59", true},
      {"0000:06:15 00:00:00", {1, 0, 0, 0, 0, 0}, "0001:06:15 00:00:00", false},
      {"9999:12:31 23:59:59", {0, 0, 0, 0, 0, 1}, "10000:01:01 00:00:00", false},
      {"10000:01:01 00:00:00", {0, 0, 0, 0, 0, -1}, "none", false},
      {"2019:03:07 09:05:30", {LONG_MAX, 0, 0, 0, 0, 0}, "999999:12:31 23:59:59", false},
      {"2019:03:07 09:05:30", {0, 0, 0, 0, 0, LONG_MIN}, "1000000:01:01 00:00:00", true},
  };
  for (const auto& c : cases) {
    const auto start = DateAdditions::dateWithDateTimeString(c.start);
    bool bc = !c.bc;
    const auto& a = c.add;
    const auto sum = DateAdditions::dateByAddingWithYears(*start, a[0], a[1], a[2], a[3], a[4], a[5], &bc);
    EXPECT_EQ(utcText(sum), c.result) << c.start;
    EXPECT_TRUE(!sum || bc == c.bc) << c.start;
  }
  const auto start = DateAdditions::dateWithDateTimeString("2019:03:07 09:05:30.25");
  EXPECT_EQ(DateAdditions::dateByAddingWithYears(*start, 0, 0, 1, 0, 0, 0),
            (Instant{start->seconds + 86400, 250'000'000}));
}

}  // namespace
