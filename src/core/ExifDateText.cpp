#include "core/ExifDateText.h"

#include <cstdio>
#include <ctime>

#include "datetime/CivilCalendar.h"

namespace orb {

namespace {

std::string format(std::int64_t year, unsigned month, unsigned day, unsigned h, unsigned m, unsigned s) {
  char text[64];
  std::snprintf(text, sizeof text, "%.4lld:%.2u:%.2u %.2u:%.2u:%.2u", static_cast<long long>(year), month, day, h, m, s);
  return text;
}

}  // namespace

std::string exifDateText(std::int64_t secondsSince1970, std::optional<std::int32_t> zoneOffset) {
  const std::int64_t t = secondsSince1970 + zoneOffset.value_or(0);
  const civil::YearMonthDay c = civil::civilFromDays(civil::floorDiv(t, 86400));
  const auto s = static_cast<unsigned>(civil::floorMod(t, 86400));
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
