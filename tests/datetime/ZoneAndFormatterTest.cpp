#include <gtest/gtest.h>

#include "datetime/DateAdditions.h"
#include "datetime/DateFormatter.h"
#include "datetime/OrbAdditions.h"
#include "datetime/TimeZoneAdditions.h"
#include "datetime/ZoneGuard.h"

namespace {

TEST(TimeZoneAdditions, FormatsOffsetsTruncatingSeconds) {
  struct Case {
    long seconds;
    const char* text;
  } cases[] = {{-34200, "-09:30"}, {0, "+00:00"},      {20700, "+05:45"}, {32400, "+09:00"},
               {-59, "-00:00"},    {20759, "+05:45"},  {-43200, "-12:00"}, {50400, "+14:00"}};
  for (const Case& c : cases) EXPECT_EQ(TimeZoneAdditions::stringTimeZoneForSecondsFromGMT(c.seconds), c.text) << c.seconds;
}

TEST(TimeZoneAdditions, ReadsZoneTextOrFallsBackToLocal) {
  struct Case {
    const char* text;
    bool local;
    long seconds;
  } cases[] = {{"Z", false, 0},          {"+0900", false, 32400},  {"+09:00", false, 32400}, {" -09:30 ", false, -34200},
               {"+05x45", false, 20700}, {"0900", true, 0},        {"+9", true, 0},          {"+09:000", true, 0},
               {"*09:00", true, 0},      {"", true, 0}};
  for (const Case& c : cases) {
    const TimeZone zone = TimeZoneAdditions::timeZoneFromString(c.text);
    EXPECT_EQ(zone.isLocal(), c.local) << c.text;
    if (!c.local) {
      EXPECT_EQ(zone.secondsFromGMT(0), c.seconds) << c.text;
    }
  }
}

TEST(TimeZoneAdditions, OffsetAtAnInstantFollowsDaylightSaving) {
  lumtest::ZoneGuard guard("America/New_York");
  const TimeZone gmt = TimeZone::gmt();
  const Instant winter = *DateAdditions::dateWithY(2021, 1, 15, 12, 0, 0, gmt);
  const Instant summer = *DateAdditions::dateWithY(2021, 7, 15, 12, 0, 0, gmt);
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::local(), winter), "-05:00");
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::local(), summer), "-04:00");
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::withSecondsFromGMT(20700), summer), "+05:45");
  // Offsets with seconds keep them, as the parser writes them.
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::withSecondsFromGMT(-17762), summer), "-04:56:02");
}

TEST(TiffDateFormatter, ParsesOnlyTheStrictExifForm) {
  const TiffDateFormatter& f = OrbAdditions::dateFormatterForTIFF();
  const auto date = f.dateFromString("2019:03:07 09:05:30");
  ASSERT_TRUE(date);
  EXPECT_EQ(f.stringFromDate(*date), "2019:03:07 09:05:30");
  EXPECT_EQ(f.dateFromString("0001:01:01 00:00:00")->seconds, -62'135'596'800);
  EXPECT_EQ(f.dateFromString("9999:12:31 23:59:59")->seconds, 253'402'300'799);
  for (const char* bad : {"2019:02:29 00:00:00", "2019:13:01 00:00:00", "0000:01:01 00:00:00", "2019:03:07 24:00:00",
                          "2019-03-07 09:05:30", "2019:03:07 09:05:3", "2019:03:07 09:05:30 ", "2019:03:07T09:05:30",
                          "2019:03:07 09:60:00", "2O19:03:07 09:05:30", "    :  :     :  :  "})
    EXPECT_FALSE(f.dateFromString(bad)) << bad;
}

TEST(DateFormatter, FormatsPatternsInItsZone) {
  const Instant date = *DateAdditions::dateWithDateTimeString("2019:03:07 23:05:30.123");
  const Instant bc = *DateAdditions::dateWithDateTimeString("-0044:03:15 12:00:00");
  struct Case {
    const char* pattern;
    long offset;
    const Instant* date;
    const char* text;
  } cases[] = {
      {"yyyy-MM-dd HH:mm:ss ZZZZZ", 0, &date, "2019-03-07 23:05:30 Z"},
      {"yyyy-MM-dd HH:mm:ss ZZZZZ", 34200, &date, "2019-03-08 08:35:30 +09:30"},
      {"yyyy-MM-dd HH:mm:ss ZZZZZ", -17762, &date, "2019-03-07 18:09:28 -04:56:02"},
      {"E d.M.yy HH:mm:ss.SSS Z", -3600, &date, "Thu 7.3.19 22:05:30.123 -0100"},
      {"'at' HH 'o''clock' '' G", 0, &date, "at 23 o'clock ' AD"},
      {"yyyy G", 0, &bc, "0044 BC"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(DateFormatter(c.pattern, TimeZone::withSecondsFromGMT(c.offset)).stringFromDate(*c.date), c.text)
        << c.pattern;
  EXPECT_EQ(DateFormatter("yyyy", TimeZone::gmt()).stringFromDate(Instant{INT64_MAX, 0}), "");
  EXPECT_EQ(DateFormatter("yyyy-MM-dd HH:mm:ss").stringFromDate(date), "2019-03-07 23:05:30");  // UTC by default
}

TEST(NumberFormatters, SharedFormattersGroupThousands) {
  const NumberFormatter& thousands = OrbAdditions::thousandSeparateFormatter();
  EXPECT_EQ(thousands.stringFromNumber(1234567), "1,234,567");
  EXPECT_EQ(thousands.stringFromNumber(-1234), "-1,234");
  EXPECT_EQ(thousands.stringFromNumber(1234.5), "1,234");  // half to even
  EXPECT_EQ(thousands.stringFromNumber(1235.5), "1,236");
  const NumberFormatter& doubles = OrbAdditions::doubleValueFormatter();
  EXPECT_EQ(doubles.stringFromNumber(1234.5), "1,234.5");
  EXPECT_EQ(doubles.stringFromNumber(35.0), "35");
  EXPECT_EQ(doubles.stringFromNumber(-0.000001), "-0.000001");
  EXPECT_EQ(doubles.stringFromNumber(1.0 / 3.0), "0.333333333333333");
  EXPECT_EQ(doubles.stringFromNumber(2.0 / 3.0), "0.666666666666667");
  EXPECT_EQ(OrbAdditions::unlocalizedFormatter().stringFromNumber(1234567.4), "1234567");
}

TEST(NumberFormatters, SeparatorFormatterGroupsZeros) {
  struct Case {
    int digits;
    const char* format;
    long value;
    const char* text;
  } cases[] = {{0, "", 5, "5"},       {1, "0", 0, "0"},          {3, "000", 7, "007"},
               {4, "0,000", 7, "0,007"}, {7, "0,000,000", 1234, "0,001,234"}, {4, "0,000", 1234567, "1,234,567"}};
  for (const Case& c : cases) {
    const NumberFormatter f = OrbAdditions::separatorFormatterWithDigit(c.digits);
    EXPECT_EQ(f.format(), c.format) << c.digits;
    EXPECT_EQ(f.stringFromNumber(c.value), c.text) << c.digits;
  }
}

TEST(NumberFormatters, FixedPatternsRoundHalfToEven) {
  struct Case {
    const char* pattern;
    double value;
    const char* text;
  } cases[] = {
      {"00", 7.0, "07"},           {"00", 0.5, "00"},          {"00", 1.5, "02"},          {"00", 2.5, "02"},
      {"00", 59.7, "60"},          {"00.00", 7.25, "07.25"},   {"00.00", 0.125, "00.12"},  {"00.00", 0.135, "00.14"},
      {"00.00", 2.675, "02.68"},   {"00.00", 99.999, "100.00"}, {"0000", 123.0, "0123"},   {"0000", 12345.0, "12345"},
      {"0.0000000000", 35.5, "35.5000000000"}, {"0.0000000000", 1e-11, "0.0000000000"},
      {"0.0000000000", 139.6917, "139.6917000000"}, {"00.00", -3.14159, "-03.14"}, {"00.00", -0.001, "-00.00"},
      {"0.0000000000", 1.23456789012345e-5, "0.0000123457"},
  };
  for (const Case& c : cases) EXPECT_EQ(OrbAdditions::stringWithFormat(c.pattern, c.value), c.text) << c.pattern << " " << c.value;
}

}  // namespace
