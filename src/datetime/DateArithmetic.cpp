// Calendar offsets and the Exif text of an instant, both in UTC.
#include <algorithm>
#include <utility>

#include "datetime/CivilCalendar.h"
#include "datetime/DateAdditions.h"
#include "datetime/NumericText.h"

namespace DateAdditions {
namespace {

// Offsets beyond these cannot land inside the representable range
// (about two million years), whatever the start date.
constexpr long kYearLimit = 4'000'000;
constexpr long kMonthLimit = kYearLimit * 12;
constexpr long kDayLimit = kYearLimit * 366;
constexpr long kSecondLimit = kDayLimit * 86400L;

// +1 or -1 when the offset alone pushes the result out of range, else 0.
int overflowDirection(long years, long months, long days, long hours, long minutes, long seconds) {
  const std::pair<long, long> offsets[] = {{years, kYearLimit},          {months, kMonthLimit},
                                           {days, kDayLimit},            {hours, kSecondLimit / 3600},
                                           {minutes, kSecondLimit / 60}, {seconds, kSecondLimit}};
  for (const auto& [value, limit] : offsets)
    if (value > limit || value < -limit) return value > 0 ? 1 : -1;
  return 0;
}

Instant saturated(int direction, bool* bc) {
  if (bc) *bc = direction < 0;
  return direction > 0 ? Instant{kInstantMaxSeconds, 0} : Instant{kInstantMinSeconds, 0};
}

}  // namespace

std::string tiffDateString(const Instant& date) {
  const std::int64_t days = civil::floorDiv(date.seconds, 86400);
  const std::int64_t secondOfDay = civil::floorMod(date.seconds, 86400);
  const civil::YearMonthDay ymd = civil::civilFromDays(days);
  const std::int64_t eraYear = ymd.year <= 0 ? 1 - ymd.year : ymd.year;
  return numtext::format("%.4lld:%.2u:%.2u %.2lld:%.2lld:%.2lld", static_cast<long long>(eraYear), ymd.month,
                         ymd.day, static_cast<long long>(secondOfDay / 3600),
                         static_cast<long long>(secondOfDay / 60 % 60), static_cast<long long>(secondOfDay % 60));
}

std::optional<Instant> dateByAddingWithYears(const Instant& date, long years, long months, long days, long hours,
                                             long minutes, long seconds, bool* bc) {
  if (tiffDateString(date).size() != 19) return std::nullopt;
  if (const int direction = overflowDirection(years, months, days, hours, minutes, seconds))
    return saturated(direction, bc);

  const std::int64_t startDay = civil::floorDiv(date.seconds, 86400);
  const std::int64_t secondOfDay = civil::floorMod(date.seconds, 86400);
  civil::YearMonthDay ymd = civil::civilFromDays(startDay);

  // Years, then months, each clamping the day to the target month's length.
  ymd.year += years;
  ymd.day = std::min(ymd.day, civil::lastDayOfMonth(ymd.year, ymd.month));
  const std::int64_t monthIndex = ymd.year * 12 + (ymd.month - 1) + months;
  ymd.year = civil::floorDiv(monthIndex, 12);
  ymd.month = static_cast<unsigned>(civil::floorMod(monthIndex, 12)) + 1;
  ymd.day = std::min(ymd.day, civil::lastDayOfMonth(ymd.year, ymd.month));

  // In UTC every day has 86400 seconds, so the rest is plain addition.
  const std::int64_t day = civil::daysFromCivil(ymd.year, ymd.month, ymd.day) + days;
  const std::int64_t result = day * 86400 + secondOfDay + hours * 3600L + minutes * 60L + seconds;
  if (result > kInstantMaxSeconds) return saturated(1, bc);
  if (result < kInstantMinSeconds) return saturated(-1, bc);

  const Instant sum{result, date.nanoseconds};
  if (bc) *bc = civil::civilFromDays(civil::floorDiv(result, 86400)).year <= 0;
  return sum;
}

}  // namespace DateAdditions
