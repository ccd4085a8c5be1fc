#include <gtest/gtest.h>

#include "datetime/CivilCalendar.h"
#include "datetime/DateAdditions.h"
#include "datetime/ZoneGuard.h"

namespace {

using DateAdditions::tiffDateString;

std::string utcText(std::optional<Instant> date) { return date ? tiffDateString(*date) : "none"; }

TEST(CivilCalendar, DayNumbersRoundTripAcrossEras) {
  for (std::int64_t day = -4'000'000; day <= 4'000'000; day += 997) {
    const civil::YearMonthDay ymd = civil::civilFromDays(day);
    ASSERT_EQ(civil::daysFromCivil(ymd.year, ymd.month, ymd.day), day);
    ASSERT_LE(ymd.day, civil::lastDayOfMonth(ymd.year, ymd.month));
  }
  EXPECT_EQ(civil::daysFromCivil(9999, 12, 31) - civil::daysFromCivil(1, 1, 1), 3'652'058);
  EXPECT_EQ(civil::weekdayFromDays(civil::daysFromCivil(2019, 3, 7)), 5u);  // a Thursday
  EXPECT_EQ(civil::weekdayFromDays(civil::daysFromCivil(1, 1, 1)), 2u);     // a Monday
}

TEST(Builders, RollFieldsOverLeniently) {
  const TimeZone gmt = TimeZone::gmt();
  struct Case {
    long y, m, d, h, mi, s;
    const char* utc;
  } cases[] = {
      {2019, 13, 1, 0, 0, 0, "2020:01:01 00:00:00"},   {2019, 3, 0, 0, 0, 0, "2019:02:28 00:00:00"},
      {2020, 3, 0, 0, 0, 0, "2020:02:29 00:00:00"},    {2019, 3, 7, 24, 0, 0, "2019:03:08 00:00:00"},
      {2019, 12, 31, 23, 59, 60, "2020:01:01 00:00:00"}, {2019, 0, 1, 0, 0, 0, "2018:12:01 00:00:00"},
      {2019, -11, 1, 0, 0, 0, "2018:01:01 00:00:00"},  {2019, 1, 1, 0, 0, -1, "2018:12:31 23:59:59"},
      {1, 1, 1, 0, 0, -1, "0001:12:31 23:59:59"},      // into 1 BC, printed as its era year
      {-1, 12, 31, 23, 59, 60, "0001:01:01 00:00:00"},  // 1 BC rolls into 1 AD
  };
  for (const Case& c : cases)
    EXPECT_EQ(utcText(DateAdditions::dateWithY(c.y, c.m, c.d, c.h, c.mi, c.s, gmt)), c.utc)
        << c.y << "-" << c.m << "-" << c.d << " " << c.h << ":" << c.mi << ":" << c.s;
}

// Signed years count eras (-1 is 1 BC); plain years count back from 1 AD
// (0 is 1 BC, -1 is 2 BC). Absurd fields are refused instead of overflowing.
TEST(Builders, YearsAndAbsurdFields) {
  const TimeZone gmt = TimeZone::gmt();
  const struct {
    std::optional<Instant> date;
    const char* utc;
  } cases[] = {
      {DateAdditions::dateWithY(-1, 1, 1, 0, 0, 0, gmt), "0001:01:01 00:00:00"},  // 1 BC
      {DateAdditions::dateWithY(-1, 1, 1, gmt), "0002:01:01 00:00:00"},           // 2 BC
      {DateAdditions::dateWithY(0, 1, 1, gmt), "0001:01:01 00:00:00"},            // 1 BC
      {DateAdditions::dateWithY(10000, 1, 1, 0, 0, 0, gmt), "10000:01:01 00:00:00"},
      {DateAdditions::dateWithY(LONG_MAX, 1, 1, 0, 0, 0, gmt), "none"},
      {DateAdditions::dateWithY(2019, LONG_MIN, 1, 0, 0, 0, gmt), "none"},
      {DateAdditions::dateWithY(2019, 1, 1, LONG_MAX, 0, 0, gmt), "none"},
      {DateAdditions::dateWithY(5'000'000, 1, 1, 0, 0, 0, gmt), "none"},
  };
  for (const auto& c : cases) EXPECT_EQ(utcText(c.date), c.utc);
  bool bc = false;
  DateAdditions::getYear(*cases[0].date, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &gmt, &bc);
  EXPECT_TRUE(bc);
}

TEST(Splitters, WriteOnlyTheRequestedFieldsInTheRequestedZone) {
  const auto date = DateAdditions::dateWithY(2019, 3, 7, 23, 5, 30, 123'456'789, TimeZone::gmt());
  ASSERT_TRUE(date);
  const TimeZone tokyo = TimeZone::withSecondsFromGMT(9 * 3600);
  long y = -7, m = -7, d = -7, w = -7, h = -7, mi = -7, s = -7, ns = -7;
  bool bc = true;
  ASSERT_TRUE(DateAdditions::getYear(*date, &y, &m, &d, &w, &h, &mi, &s, &ns, &tokyo, &bc));
  EXPECT_EQ((std::array{y, m, d, w, h, mi, s, ns}), (std::array<long, 8>{2019, 3, 8, 6, 8, 5, 30, 123'456'789}));
  EXPECT_FALSE(bc);
}

// Dates are UTC whatever the machine's zone; only the clock's own fields
// (what time it is here) and explicitly local zones follow TZ.
TEST(LocalZone, OnlyTheClockAndExplicitlyLocalZonesFollowTz) {
  lumtest::ZoneGuard zone("Asia/Kolkata");
  const auto date = DateAdditions::dateWithY(2019, 3, 7, 20, 0, 0, TimeZone::gmt());
  EXPECT_EQ(DateAdditions::dateWithY(2019, 3, 7, 20, 0, 0), date);
  long hour = 0;
  ASSERT_TRUE(DateAdditions::getYear(*date, nullptr, nullptr, nullptr, nullptr, &hour, nullptr, nullptr));
  EXPECT_EQ(hour, 20);
  EXPECT_EQ(DateAdditions::stringDayOfTheWeek(*date), "Thu");
  EXPECT_EQ((std::array{DateAdditions::day(*date), DateAdditions::hour(*date), DateAdditions::minute(*date)}),
            (std::array<long, 3>{8, 1, 30}));
  EXPECT_EQ(utcText(DateAdditions::wallClockIn(*date, TimeZone::local(), TimeZone::gmt())), "2019:03:08 01:30:00");
}

TEST(LocalZone, GapMovesForwardAndRepeatedHourTakesTheLater) {
  lumtest::ZoneGuard zone("Europe/Berlin");
  const TimeZone local = TimeZone::local();
  // 2021-03-28 02:30 does not exist in Berlin; 2021-10-31 02:30 happens twice.
  EXPECT_EQ(utcText(DateAdditions::dateWithY(2021, 3, 28, 2, 30, 0, local)), "2021:03:28 01:30:00");
  EXPECT_EQ(utcText(DateAdditions::dateWithY(2021, 10, 31, 2, 30, 0, local)), "2021:10:31 01:30:00");
  EXPECT_EQ(utcText(DateAdditions::dateWithY(2021, 7, 1, 12, 0, 0, local)), "2021:07:01 10:00:00");
}

// Calendar fields are added in UTC: years first, then months, each clamping
// the day to the month's end.
TEST(DateByAdding, ClampsMonthEndsInUtc) {
  struct Case {
    const char* start;
    long years, months, days, hours, minutes, seconds;
    const char* result;  // "none" when refused
    bool bc;
  } cases[] = {
      {"2020:01:31 00:00:00", 0, 1, 0, 0, 0, 0, "2020:02:29 00:00:00", false},
      {"2020:02:29 00:00:00", 1, 0, 0, 0, 0, 0, "2021:02:28 00:00:00", false},
      {"2020:02:29 00:00:00", 4, 0, 0, 0, 0, 0, "2024:02:29 00:00:00", false},
      {"2020:02:29 10:00:00", 1, 1, 0, 0, 0, 0, "2021:03:28 10:00:00", false},
      {"2019:03:31 00:00:00", 0, -1, 0, 0, 0, 0, "2019:02:28 00:00:00", false},
      {"2019:05:31 00:00:00", 0, 1, 1, 0, 0, 0, "2019:07:01 00:00:00", false},
      {"2019:12:31 23:59:59", 0, 0, 0, 0, 0, 1, "2020:01:01 00:00:00", false},
      {"2019:03:10 01:30:00", 0, 0, 0, 1, 0, 0, "2019:03:10 02:30:00", false},
      {"2019:11:03 01:30:00", 0, 0, 1, 0, 0, 0, "2019:11:04 01:30:00", false},
      {"2019:03:07 09:05:30", 0, 0, 0, -9, -5, -31, "2019:03:06 23:59:59", false},
      {"2019:03:07 09:05:30", 0, 25, 0, 0, 0, 0, "2021:04:07 09:05:30", false},
      {"0001:01:01 00:00:00", 0, 0, 0, 0, 0, -1, "0001:12:31 23:59:59", true},
      {"0000:06:15 00:00:00", 1, 0, 0, 0, 0, 0, "0001:06:15 00:00:00", false},
      {"9999:12:31 23:59:59", 0, 0, 0, 0, 0, 1, "10000:01:01 00:00:00", false},
      {"10000:01:01 00:00:00", 0, 0, 0, 0, 0, -1, "none", false},
      {"2019:03:07 09:05:30", LONG_MAX, 0, 0, 0, 0, 0, "999999:12:31 23:59:59", false},
      {"2019:03:07 09:05:30", 0, 0, 0, 0, 0, LONG_MIN, "1000000:01:01 00:00:00", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.start);
    const auto start = DateAdditions::dateWithDateTimeString(c.start);
    ASSERT_TRUE(start);
    bool bc = !c.bc;
    const auto sum =
        DateAdditions::dateByAddingWithYears(*start, c.years, c.months, c.days, c.hours, c.minutes, c.seconds, &bc);
    EXPECT_EQ(utcText(sum), c.result);
    if (sum) {
      EXPECT_EQ(bc, c.bc);
    }
  }
  const auto start = DateAdditions::dateWithDateTimeString("2019:03:07 09:05:30.25");
  EXPECT_EQ(DateAdditions::dateByAddingWithYears(*start, 0, 0, 1, 0, 0, 0), (Instant{start->seconds + 86400, 250'000'000}));
}

}  // namespace
