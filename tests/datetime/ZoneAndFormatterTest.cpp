#include <gtest/gtest.h>

#include "datetime/DateAdditions.h"
#include "datetime/DateFormatter.h"
#include "datetime/OrbAdditions.h"
#include "datetime/TimeZoneAdditions.h"
#include "datetime/ZoneGuard.h"

namespace {

TEST(TimeZoneAdditions, FormatsOffsetsTruncatingSeconds) {
  const std::pair<long, const char*> cases[] = {{-34200, "-09:30"}, {0, "+00:00"}, {-59, "-00:00"}, {20759, "+05:45"}};
  for (const auto& [seconds, text] : cases)
    EXPECT_EQ(TimeZoneAdditions::stringTimeZoneForSecondsFromGMT(seconds), text);
}

// Unreadable zone text falls back to the local zone (offset -1 in the table).
TEST(TimeZoneAdditions, ReadsZoneTextOrFallsBackToLocal) {
  const std::pair<const char*, long> cases[] = {{"Z", 0}, {"+0900", 32400}, {" -09:30 ", -34200}, {"+05x45", 20700},
                                                {"0900", -1}, {"+9", -1}, {"+09:000", -1}, {"", -1}};
  for (const auto& [text, seconds] : cases) {
    const TimeZone zone = TimeZoneAdditions::timeZoneFromString(text);
    EXPECT_EQ(zone.isLocal() ? -1 : zone.secondsFromGMT(0), seconds) << text;
  }
}

TEST(TimeZoneAdditions, OffsetAtAnInstantFollowsDaylightSaving) {
  lumtest::ZoneGuard guard("America/New_York");
  const Instant winter = *DateAdditions::dateWithY(2021, 1, 15, 12, 0, 0, TimeZone::gmt());
  const Instant summer = *DateAdditions::dateWithY(2021, 7, 15, 12, 0, 0, TimeZone::gmt());
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::local(), winter), "-05:00");
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::local(), summer), "-04:00");
  // Offsets with seconds keep them, as the parser writes them.
  EXPECT_EQ(TimeZoneAdditions::timeZoneStringWithDate(TimeZone::withSecondsFromGMT(-17762), summer), "-04:56:02");
}

TEST(TiffDateFormatter, ParsesOnlyTheStrictExifForm) {
  const TiffDateFormatter& f = OrbAdditions::dateFormatterForTIFF();
  EXPECT_EQ(f.stringFromDate(*f.dateFromString("2019:03:07 09:05:30")), "2019:03:07 09:05:30");
  EXPECT_EQ(f.dateFromString("9999:12:31 23:59:59")->seconds, 253'402'300'799);
  for (const char* bad : {"2019:02:29 00:00:00", "2019:13:01 00:00:00", "0000:01:01 00:00:00", "2019:03:07 24:00:00",
                          "2019-03-07 09:05:30", "2019:03:07 09:05:3", "2019:03:07 09:05:30 ", "2019:03:07T09:05:30",
                          "2019:03:07 09:60:00", "2O19:03:07 09:05:30", "    :  :     :  :  "})
    EXPECT_FALSE(f.dateFromString(bad)) << bad;
}

TEST(DateFormatter, FormatsPatternsInItsZone) {
  const Instant date = *DateAdditions::dateWithDateTimeString("2019:03:07 23:05:30.123");
  const Instant bc = *DateAdditions::dateWithDateTimeString("-0044:03:15 12:00:00");
  const struct { const char* pattern; long offset; const Instant* date; const char* text; } cases[] = {
      {"yyyy-MM-dd HH:mm:ss ZZZZZ", 0, &date, "2019-03-07 23:05:30 Z"},
      {"E d.M.yy HH:mm:ss.SSS Z", -3600, &date, "Thu 7.3.19 22:05:30.123 -0100"},
      {"'at' HH 'o''clock' '' G", 0, &date, "at 23 o'clock ' AD"},
      {"yyyy G", 0, &bc, "0044 BC"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(DateFormatter(c.pattern, TimeZone::withSecondsFromGMT(c.offset)).stringFromDate(*c.date), c.text)
        << c.pattern;
  EXPECT_EQ(DateFormatter("yyyy", TimeZone::gmt()).stringFromDate(Instant{INT64_MAX, 0}), "");
  EXPECT_EQ(DateFormatter("yyyy-MM-dd HH:mm:ss").stringFromDate(date), "2019-03-07 23:05:30");  // UTC by default
}

TEST(NumberFormatters, SharedFormattersGroupThousandsAndRoundHalfToEven) {
  const NumberFormatter& thousands = OrbAdditions::thousandSeparateFormatter();
  const NumberFormatter& doubles = OrbAdditions::doubleValueFormatter();
  const NumberFormatter unlocalized = OrbAdditions::unlocalizedFormatter();
  const std::tuple<const NumberFormatter*, double, const char*> cases[] = {
      {&thousands, -1234567.0, "-1,234,567"}, {&thousands, 1234.5, "1,234"}, {&thousands, 1235.5, "1,236"},
      {&doubles, 1234.5, "1,234.5"}, {&doubles, 2.0 / 3.0, "0.666666666666667"}, {&unlocalized, 1234567.4, "1234567"}};
  for (const auto& [formatter, value, text] : cases) EXPECT_EQ(formatter->stringFromNumber(value), text) << value;
}

TEST(NumberFormatters, SeparatorFormatterGroupsZeros) {
  const struct { int digits; const char* format; long value; const char* text; } cases[] = {
      {0, "", 5, "5"}, {4, "0,000", 7, "0,007"}, {7, "0,000,000", 1234, "0,001,234"}, {4, "0,000", 1234567, "1,234,567"}};
  for (const auto& c : cases) {
    const NumberFormatter f = OrbAdditions::separatorFormatterWithDigit(c.digits);
    EXPECT_EQ(f.format(), c.format) << c.digits;
    EXPECT_EQ(f.stringFromNumber(c.value), c.text) << c.digits;
  }
}

TEST(NumberFormatters, FixedPatternsRoundHalfToEven) {
  const std::tuple<const char*, double, const char*> cases[] = {
      {"00", 0.5, "00"}, {"00", 1.5, "02"}, {"00.00", 0.125, "00.12"}, {"00.00", 2.675, "02.68"},
      {"00.00", 99.999, "100.00"}, {"0000", 12345.0, "12345"}, {"0.0000000000", 139.6917, "139.6917000000"},
      {"00.00", -0.001, "-00.00"}};
  for (const auto& [pattern, value, text] : cases)
    EXPECT_EQ(OrbAdditions::stringWithFormat(pattern, value), text) << pattern << " " << value;
}

}  // namespace
