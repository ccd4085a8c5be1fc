#pragma once
// The proleptic Gregorian calendar on day numbers: days since 1970-01-01.
// Years are astronomical (0 is 1 BC, -1 is 2 BC). Short exact algorithms
// valid for the whole 64-bit range used by Instant.

#include <cstdint>

namespace civil {

constexpr std::int64_t floorDiv(std::int64_t a, std::int64_t b) {
  const std::int64_t q = a / b;
  return (a % b != 0 && ((a < 0) != (b < 0))) ? q - 1 : q;
}

constexpr std::int64_t floorMod(std::int64_t a, std::int64_t b) {
  const std::int64_t r = a % b;
  return (r != 0 && ((r < 0) != (b < 0))) ? r + b : r;
}

constexpr bool isLeapYear(std::int64_t y) { return y % 4 == 0 && (y % 100 != 0 || y % 400 == 0); }

// Last day of month m (1..12) in year y.
constexpr unsigned lastDayOfMonth(std::int64_t y, unsigned m) {
  constexpr unsigned char kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return (m == 2 && isLeapYear(y)) ? 29u : kDays[(m - 1) % 12];
}

// Day number of y-m-d; m in [1, 12], d in [1, 31].
constexpr std::int64_t daysFromCivil(std::int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const std::int64_t era = floorDiv(y, 400);
  const auto yoe = static_cast<unsigned>(y - era * 400);                // [0, 399]
  const unsigned doy = (153 * (m > 2 ? m - 3 : m + 9) + 2) / 5 + d - 1;  // [0, 365]
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;            // [0, 146096]
  return era * 146097 + static_cast<std::int64_t>(doe) - 719468;
}

struct YearMonthDay {
  std::int64_t year;
  unsigned month;  // [1, 12]
  unsigned day;    // [1, 31]
  friend constexpr bool operator==(const YearMonthDay&, const YearMonthDay&) = default;
};

constexpr YearMonthDay civilFromDays(std::int64_t z) {
  z += 719468;
  const std::int64_t era = floorDiv(z, 146097);
  const auto doe = static_cast<unsigned>(z - era * 146097);                  // [0, 146096]
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;  // [0, 399]
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);              // [0, 365]
  const unsigned mp = (5 * doy + 2) / 153;                                   // [0, 11]
  const unsigned d = doy - (153 * mp + 2) / 5 + 1;                           // [1, 31]
  const unsigned m = mp < 10 ? mp + 3 : mp - 9;                              // [1, 12]
  const std::int64_t y = static_cast<std::int64_t>(yoe) + era * 400 + (m <= 2);
  return {y, m, d};
}

// 1 = Sunday ... 7 = Saturday; day 0 (1970-01-01) was a Thursday.
constexpr unsigned weekdayFromDays(std::int64_t z) { return static_cast<unsigned>(floorMod(z + 4, 7)) + 1; }

}  // namespace civil
