#include "core/ExifDateText.h"

#include <cstdio>
#include <ctime>

namespace orb {

namespace {

struct Civil {
  std::int64_t year;
  unsigned month, day;
};

// Days since 1970-01-01 to a proleptic Gregorian date (H. Hinnant's
// civil_from_days). Valid for any day count this program can meet.
Civil civilFromDays(std::int64_t z) {
  z += 719468;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const auto doe = static_cast<unsigned>(z - era * 146097);                // [0, 146096]
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;  // [0, 399]
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);            // [0, 365]
  const unsigned mp = (5 * doy + 2) / 153;                                 // [0, 11]
  const unsigned d = doy - (153 * mp + 2) / 5 + 1;                         // [1, 31]
  const unsigned m = mp < 10 ? mp + 3 : mp - 9;                            // [1, 12]
  return {static_cast<std::int64_t>(yoe) + era * 400 + (m <= 2), m, d};
}

std::string format(std::int64_t year, unsigned month, unsigned day, unsigned h, unsigned m, unsigned s) {
  char text[64];
  std::snprintf(text, sizeof text, "%.4lld:%.2u:%.2u %.2u:%.2u:%.2u", static_cast<long long>(year), month, day, h, m, s);
  return text;
}

}  // namespace

std::string exifDateText(std::int64_t secondsSince1970, std::optional<std::int32_t> zoneOffset) {
  const std::int64_t t = secondsSince1970 + zoneOffset.value_or(0);
  std::int64_t days = t / 86400;
  std::int64_t secs = t % 86400;
  if (secs < 0) {
    secs += 86400;
    --days;
  }
  const Civil c = civilFromDays(days);
  const auto s = static_cast<unsigned>(secs);
  return format(c.year, c.month, c.day, s / 3600, s / 60 % 60, s % 60);
}

std::string exifDateTextNowLocal() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (!localtime_r(&now, &local)) return exifDateText(now, std::nullopt);
  return format(local.tm_year + 1900LL, static_cast<unsigned>(local.tm_mon + 1), static_cast<unsigned>(local.tm_mday),
                static_cast<unsigned>(local.tm_hour), static_cast<unsigned>(local.tm_min),
                static_cast<unsigned>(local.tm_sec));
}

}  // namespace orb
