// Random dates shifted by random offsets: the algebra that must hold.
#include <gtest/gtest.h>

#include <random>

#include "datetime/DateAdditions.h"
#include "datetime/OrbAdditions.h"

namespace {

// Exif text round trips through both parsers; second-based shifts are exact
// and invertible while the intermediate keeps 4 digits. Calendar shifts inside
// years 1..9999 give a 19-character text with the same day and time (start
// days are at most 28); outside, BC or a longer text, and a longer text is
// refused as a start.
TEST(ShiftProperties, ParsingRoundTripsAndShiftsFollowTheirAlgebra) {
  std::mt19937_64 random{20190307};
  const auto uniform = [&random](long low, long high) {
    return std::uniform_int_distribution<long>(low, high)(random);
  };
  for (int i = 0; i < 3000; ++i) {
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.4ld:%.2ld:%.2ld %.2ld:%.2ld:%.2ld", uniform(1, 9999), uniform(1, 12),
                  uniform(1, 28), uniform(0, 23), uniform(0, 59), uniform(0, 59));
    const std::string text = buffer;
    const auto start = DateAdditions::dateWithDateTimeString(text);
    ASSERT_TRUE(start) << text;
    ASSERT_EQ(DateAdditions::tiffDateString(*start), text);
    ASSERT_EQ(OrbAdditions::dateFormatterForTIFF().dateFromString(text), start) << text;

    const long days = uniform(-400'000, 400'000), hours = uniform(-100'000, 100'000);
    const long minutes = uniform(-1'000'000, 1'000'000), seconds = uniform(-100'000'000, 100'000'000);
    const auto there = DateAdditions::dateByAddingWithYears(*start, 0, 0, days, hours, minutes, seconds);
    ASSERT_TRUE(there);
    ASSERT_EQ(there->seconds - start->seconds, days * 86400 + hours * 3600 + minutes * 60 + seconds);
    if (DateAdditions::tiffDateString(*there).size() == 19) {
      ASSERT_EQ(DateAdditions::dateByAddingWithYears(*there, 0, 0, -days, -hours, -minutes, -seconds), start);
    }

    const long years = uniform(-12'000, 12'000), months = uniform(-1'000, 1'000);
    bool bc = false;
    const auto sum = DateAdditions::dateByAddingWithYears(*start, years, months, 0, 0, 0, 0, &bc);
    ASSERT_TRUE(sum);
    const std::string result = DateAdditions::tiffDateString(*sum);
    const long totalMonths = std::stol(text.substr(0, 4)) * 12 + std::stol(text.substr(5, 2)) - 1 + years * 12 + months;
    const long year = totalMonths / 12 - (totalMonths < 0 && totalMonths % 12 != 0);
    SCOPED_TRACE(text + " " + std::to_string(years) + " " + std::to_string(months) + " -> " + result);
    if (year >= 1 && year <= 9999) {
      ASSERT_FALSE(bc);
      ASSERT_EQ(result.size(), 19u);
      ASSERT_EQ(result.substr(8), text.substr(8));
      ASSERT_EQ(std::stol(result.substr(0, 4)), year);
    } else {
      ASSERT_TRUE(bc || result.size() > 19);
      ASSERT_TRUE(result.size() == 19 || !DateAdditions::dateByAddingWithYears(*sum, 0, 0, 0, 0, 0, 0));
    }
  }
}

}  // namespace
