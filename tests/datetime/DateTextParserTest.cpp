#include <gtest/gtest.h>

#include "datetime/DateAdditions.h"

namespace {

constexpr bool kColon = true, kNoColon = false, kHourOnly = true, kFull = false;

// Accepted texts, split into "date|time|fraction|zone" and normalised in
// UTC or their own zone, never the machine's (this suite runs in several).
TEST(DateTextParser, SplitsAndNormalises) {
  const struct { const char* text; const char* parts; bool withColon = kColon, allowedYMDH = kFull; } cases[] = {
      {"2019:03:07 09:05:30", "2019-03-07|09:05:30||"}, {"2019:03:07 09:05:30+Z", "2019-03-07|09:05:30||Z"},
      {"2019-03-07T09:05:30.5+09:00", "2019-03-07|09:05:30|5|+09:00"},
      {"0000:01:01 00:00:00", "-0001-01-01|00:00:00||"}, {"-0044:03:15 12:00:00", "-0044-03-15|12:00:00||"},
      {"+2019:03:07 09:05:30", "2019-03-07|09:05:30||"}, {"2019:12:31 23:59:60", "2020-01-01|00:00:00||"},
      {"2019:13", "2020-01|||"}, {"2019", "2019|||"}, {"19:3:7 9:5:3", "0019-03-07|09:05:03||"},
      {"2019/03/07 09;05;30", "2019-03-07|09:05:30||"}, {"2019:03:07 10.7", "2019-03-07|10:42||", kColon, kHourOnly},
      {"2019:03:07 09:05.5", "2019-03-07|09:05:30||"}, {"2019:03:07 09:05:30.050", "2019-03-07|09:05:30|050|"},
      {"2019:03:07 09:05:30+05:45:30", "2019-03-07|09:05:30||+054530", kNoColon},
      // An offset shifts nothing: the fields stay as written in that zone.
      {"2019:03:07 23:30:00-12:00", "2019-03-07|23:30:00||-12:00"},
      {"2019:03:10 02:30:00", "2019-03-10|02:30:00||"},  // skipped in New York: kept as written
  };
  for (const auto& c : cases) {
    std::string ymd = "?", hms = "?", subsec = "?", zoneText = "?";  // every part is written
    ASSERT_TRUE(DateAdditions::getDateTimeStrings(c.text, &ymd, &hms, &subsec, &zoneText, c.withColon, c.allowedYMDH))
        << c.text;
    EXPECT_EQ(ymd + "|" + hms + "|" + subsec + "|" + zoneText, c.parts) << c.text;
  }
}

// Refused texts leave every output untouched.
TEST(DateTextParserRejects, MalformedOrOutOfRangeText) {
  const std::pair<const char*, bool> cases[] = {  // text, hour-only allowed
      {"", kFull}, {"-x2019", kFull}, {" 2019:03:07", kFull}, {"2019:03:07 09", kFull}, {"2019:03:07+09:00", kFull},
      {"2019:03:07 09:05:30:01", kFull}, {"2019:03:07 09:05:30.1234", kFull}, {"2019:03:07 09:05:30+15", kFull},
      {"2019:03:07 09.5:05", kFull}, {"2019:03:07 09.1234", kHourOnly}, {"2019:03:07T09T05", kFull},
      {"2019:0a:07", kFull}, {"99999999999999999999:01:01", kFull}};
  for (const auto& [text, hourOnly] : cases) {
    std::string ymd = "u", hms = "u", subsec = "u", zoneText = "u";
    EXPECT_FALSE(DateAdditions::getDateTimeStrings(text, &ymd, &hms, &subsec, &zoneText, kColon, hourOnly)) << text;
    EXPECT_EQ(ymd + hms + subsec + zoneText, "uuuu") << text;
  }
}

// Zone text and seconds; a failure answers the marker and leaves the text.
TEST(OffsetParser, ReadsOffsetsAndNormalisesTheirText) {
  const double kFail = DateAdditions::kOffsetFailure;
  const struct { const char* text; bool withColon; double seconds; const char* zoneText; } cases[] = {
      {"+0930", true, 34200, "+09:30"},    {"+0930", false, 34200, "+0930"},  {"-12", true, -43200, "-12:00"},
      {"+14", false, 50400, "+1400"},      {"+05/45", true, 20700, "+05:45"}, {"+05:45:30", true, 20730, "+05:45:30"},
      {"+05:45:00", true, 20700, "+05:45"}, {"+99:00", true, 356400, "+99:00"}, {"", true, kFail, "kept"},
      {"0900", true, kFail, "kept"},       {"+15", true, kFail, "kept"},       {"+09:60", true, kFail, "kept"},
      {"+09:00:60", true, kFail, "kept"},  {"+1:2:3:4", true, kFail, "kept"},  {"+ab:00", true, kFail, "kept"},
  };
  for (const auto& c : cases) {
    std::string text = "kept";
    EXPECT_EQ(DateAdditions::secondsFromOffsetString(c.text, c.withColon, &text), c.seconds) << c.text;
    EXPECT_EQ(text, c.zoneText) << c.text;
  }
}

// Text is read as UTC unless it names a zone; "none" when refused.
TEST(DateWithDateTimeString, ReadsTextAsUtcUnlessAZoneIsGiven) {
  const struct { const char* text; const char* utc; std::int32_t nanoseconds; } cases[] = {
      {"2019-03-07T09:05:30.5+09:00", "2019:03:07 00:05:30", 500'000'000},
      {"2019:03:07 09:05:30.050", "2019:03:07 09:05:30", 50'000'000},
      {"2019:03:07 09:05:30 -0930", "2019:03:07 18:35:30", 0},
      {"2019", "0001:01:01 00:00:00", 0},  // only a full date is read as such; a year alone falls back to year 0
      {"    ", "none", 0}};
  for (const auto& c : cases) {
    const auto date = DateAdditions::dateWithDateTimeString(c.text);
    EXPECT_EQ(date ? DateAdditions::tiffDateString(*date) : "none", c.utc) << c.text;
    EXPECT_EQ(date ? date->nanoseconds : 0, c.nanoseconds) << c.text;
  }
}

TEST(PasteNormalisation, BuildsIsoLikeText) {
  const struct { const char* text; bool allowedYMDH; std::optional<std::string> result; } cases[] = {
      {"2019:03:07 09:05:30.250", false, "2019-03-07T09:05:30.250"},
      {"2019:03:07 09:05:30 +0930", false, "2019-03-07T09:05:30+09:30"},
      {"2019:03:07 09:05:30Z", false, "2019-03-07T09:05:30Z"}, {"2019:03:07 09", true, "2019-03-07T09"},
      {"2019:03:07 09", false, std::nullopt}, {"hello", false, std::nullopt}};
  for (const auto& c : cases)
    EXPECT_EQ(DateAdditions::normalizedPasteString(c.text, c.allowedYMDH), c.result) << c.text;
}

}  // namespace
