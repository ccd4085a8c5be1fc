#include "datetime/DateAdditions.h"

#include <array>
#include <chrono>
#include <cstdlib>

#include "datetime/CivilCalendar.h"

Instant Instant::now() {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  const auto ns = std::chrono::duration_cast<std::chrono::nanoseconds>(since).count();
  return {civil::floorDiv(ns, 1'000'000'000), static_cast<std::int32_t>(civil::floorMod(ns, 1'000'000'000))};
}

namespace DateAdditions {
namespace {

// Fields beyond this size are refused before any arithmetic: with every
// field inside it, the sums below stay far inside 64 bits.
constexpr long kFieldLimit = 10'000'000'000;

bool fieldsInRange(std::initializer_list<long> fields) {
  for (long f : fields)
    if (f > kFieldLimit || f < -kFieldLimit) return false;
  return true;
}

// Lenient build: fields roll over into the next larger unit.
std::optional<Instant> build(long astronomicalYear, long m, long d, long h, long mi, long s, long ns,
                             const TimeZone& zone) {
  if (!fieldsInRange({astronomicalYear, m, d, h, mi, s})) return std::nullopt;
  const std::int64_t year = astronomicalYear + civil::floorDiv(m - 1, 12);
  const auto month = static_cast<unsigned>(civil::floorMod(m - 1, 12)) + 1;
  if (year > 2'000'000 || year < -2'000'000) return std::nullopt;
  const std::int64_t days = civil::daysFromCivil(year, month, 1) + (d - 1);
  const std::int64_t wall = days * 86400 + h * 3600 + mi * 60 + s + civil::floorDiv(ns, 1'000'000'000);
  if (wall > kInstantMaxSeconds + 86400 || wall < kInstantMinSeconds - 86400) return std::nullopt;
  const auto utc = zone.utcFromWall(wall);
  if (!utc || *utc > kInstantMaxSeconds || *utc < kInstantMinSeconds) return std::nullopt;
  return Instant{*utc, static_cast<std::int32_t>(civil::floorMod(ns, 1'000'000'000))};
}

long astronomicalFromSigned(long y) { return y < 0 ? y + 1 : y; }

struct Fields {
  long year, month, day, weekday, hour, minute, second, nanosecond;
  bool bc;
};

std::optional<Fields> split(const Instant& date, const TimeZone& zone) {
  // Instants are made by the builders, but a caller may put any number in;
  // the range check keeps the sums below from overflowing.
  if (date.seconds < kInstantMinSeconds - 86400 * 10 || date.seconds > kInstantMaxSeconds + 86400 * 10)
    return std::nullopt;
  const auto offset = zone.secondsFromGMT(date.seconds);
  if (!offset) return std::nullopt;
  const std::int64_t wall = date.seconds + *offset;
  const std::int64_t days = civil::floorDiv(wall, 86400);
  const std::int64_t secondOfDay = civil::floorMod(wall, 86400);
  const civil::YearMonthDay ymd = civil::civilFromDays(days);
  const bool bc = ymd.year <= 0;
  return Fields{bc ? 1 - ymd.year : ymd.year,
                static_cast<long>(ymd.month),
                static_cast<long>(ymd.day),
                static_cast<long>(civil::weekdayFromDays(days)),
                secondOfDay / 3600,
                secondOfDay / 60 % 60,
                secondOfDay % 60,
                date.nanoseconds,
                bc};
}

template <typename T>
void put(T* place, T value) {
  if (place) *place = value;
}

Fields splitOrZero(const Instant& date, const TimeZone& zone) {
  return split(date, zone).value_or(Fields{0, 0, 0, 0, 0, 0, 0, 0, false});
}

}  // namespace

std::optional<Instant> dateWithY(long y, long m, long d) { return build(y, m, d, 0, 0, 0, 0, TimeZone::gmt()); }

std::optional<Instant> dateWithY(long y, long m, long d, long hour, long minute, long second) {
  return build(y, m, d, hour, minute, second, 0, TimeZone::gmt());
}

std::optional<Instant> dateWithY(long y, long m, long d, const TimeZone& timeZone) {
  return build(y, m, d, 0, 0, 0, 0, timeZone);
}

std::optional<Instant> dateWithY(long y, long m, long d, long hour, long minute, long second,
                                 const TimeZone& timeZone) {
  return build(astronomicalFromSigned(y), m, d, hour, minute, second, 0, timeZone);
}

std::optional<Instant> dateWithY(long y, long m, long d, long hour, long minute, long second, long nanosecond,
                                 const TimeZone& timeZone) {
  return build(astronomicalFromSigned(y), m, d, hour, minute, second, nanosecond, timeZone);
}

bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek, long* hour, long* minute,
             long* second, long* nanosecond, const TimeZone* timeZone, bool* bc) {
  const auto f = split(date, timeZone ? *timeZone : TimeZone::gmt());
  if (!f) return false;
  put(year, f->year);
  put(month, f->month);
  put(day, f->day);
  put(dayOfTheWeek, f->weekday);
  put(hour, f->hour);
  put(minute, f->minute);
  put(second, f->second);
  put(nanosecond, f->nanosecond);
  put(bc, f->bc);
  return true;
}

bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek, long* hour, long* minute,
             long* second, const TimeZone* timeZone, bool* bc) {
  return getYear(date, year, month, day, dayOfTheWeek, hour, minute, second, nullptr, timeZone, bc);
}

bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek, long* hour, long* minute,
             long* second) {
  return getYear(date, year, month, day, dayOfTheWeek, hour, minute, second, nullptr, nullptr, nullptr);
}

bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek) {
  return getYear(date, year, month, day, dayOfTheWeek, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
}

long year(const Instant& date) { return splitOrZero(date, TimeZone::local()).year; }
long month(const Instant& date) { return splitOrZero(date, TimeZone::local()).month; }
long day(const Instant& date) { return splitOrZero(date, TimeZone::local()).day; }
long dayOfTheWeek(const Instant& date) { return splitOrZero(date, TimeZone::local()).weekday; }
long hour(const Instant& date) { return splitOrZero(date, TimeZone::local()).hour; }
long minute(const Instant& date) { return splitOrZero(date, TimeZone::local()).minute; }
long second(const Instant& date) { return splitOrZero(date, TimeZone::local()).second; }

std::optional<Instant> wallClockIn(const Instant& date, const TimeZone& from, const TimeZone& to) {
  const auto f = split(date, from);
  if (!f) return std::nullopt;
  const long year = f->bc ? -f->year : f->year;
  return dateWithY(year, f->month, f->day, f->hour, f->minute, f->second, f->nanosecond, to);
}

long yearWithTimeZone(const Instant& date, const TimeZone& z) { return splitOrZero(date, z).year; }
long monthWithTimeZone(const Instant& date, const TimeZone& z) { return splitOrZero(date, z).month; }
long dayWithTimeZone(const Instant& date, const TimeZone& z) { return splitOrZero(date, z).day; }
long hourWithTimeZone(const Instant& date, const TimeZone& z) { return splitOrZero(date, z).hour; }
long minuteWithTimeZone(const Instant& date, const TimeZone& z) { return splitOrZero(date, z).minute; }
long secondWithTimeZone(const Instant& date, const TimeZone& z) { return splitOrZero(date, z).second; }

std::string stringDayOfTheWeek(const Instant& date) {
  static constexpr std::array<const char*, 7> kNames = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  const long weekday = splitOrZero(date, TimeZone::gmt()).weekday;
  return weekday >= 1 && weekday <= 7 ? kNames[static_cast<std::size_t>(weekday - 1)] : "";
}

}  // namespace DateAdditions
