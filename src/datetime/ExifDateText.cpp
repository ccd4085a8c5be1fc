#include "datetime/ExifDateText.h"

#include <algorithm>

#include "datetime/CivilCalendar.h"

namespace ExifDateText {
namespace {

constexpr std::int64_t kDay = 86400;
// 0001-01-01 00:00:00 and 9999-12-31 23:59:59 UTC.
constexpr std::int64_t kFirst = -62'135'596'800;
constexpr std::int64_t kLast = 253'402'300'799;

// The number in text[at, at + width) when all are digits, else -1.
int digitsAt(std::string_view text, std::size_t at, std::size_t width) {
  int value = 0;
  for (std::size_t i = at; i < at + width; ++i) {
    if (text[i] < '0' || text[i] > '9') return -1;
    value = value * 10 + (text[i] - '0');
  }
  return value;
}

void putDigits(char* out, std::int64_t value, int width) {
  for (int i = width - 1; i >= 0; --i, value /= 10) out[i] = static_cast<char>('0' + value % 10);
}

bool within(long value, long limit) { return value >= -limit && value <= limit; }

}  // namespace

std::optional<std::int64_t> secondsOf(std::string_view text) {
  if (text.size() != 19 || text[4] != ':' || text[7] != ':' || text[10] != ' ' || text[13] != ':' || text[16] != ':')
    return std::nullopt;
  const int y = digitsAt(text, 0, 4), mo = digitsAt(text, 5, 2), d = digitsAt(text, 8, 2);
  const int h = digitsAt(text, 11, 2), mi = digitsAt(text, 14, 2), s = digitsAt(text, 17, 2);
  if (y < 1 || mo < 1 || mo > 12 || d < 1 || h < 0 || h > 23 || mi < 0 || mi > 59 || s < 0 || s > 59)
    return std::nullopt;
  if (static_cast<unsigned>(d) > civil::lastDayOfMonth(y, static_cast<unsigned>(mo))) return std::nullopt;
  const std::int64_t days = civil::daysFromCivil(y, static_cast<unsigned>(mo), static_cast<unsigned>(d));
  return days * kDay + h * 3600 + mi * 60 + s;
}

std::optional<std::int64_t> shiftedSeconds(std::int64_t seconds, const std::array<long, 6>& o) {
  // Bounds keep every sum below far from overflow: at most some 10^13 s.
  constexpr long kYears = 100'000;
  if (!within(o[0], kYears) || !within(o[1], kYears * 12) || !within(o[2], kYears * 366) ||
      !within(o[3], kYears * 366 * 24) || !within(o[4], kYears * 366 * 1440) || !within(o[5], kYears * 366 * kDay))
    return std::nullopt;
  civil::YearMonthDay ymd = civil::civilFromDays(civil::floorDiv(seconds, kDay));
  const std::int64_t secondOfDay = civil::floorMod(seconds, kDay);
  ymd.year += o[0];
  ymd.day = std::min(ymd.day, civil::lastDayOfMonth(ymd.year, ymd.month));
  const std::int64_t monthIndex = ymd.year * 12 + (ymd.month - 1) + o[1];
  ymd.year = civil::floorDiv(monthIndex, 12);
  ymd.month = static_cast<unsigned>(civil::floorMod(monthIndex, 12)) + 1;
  ymd.day = std::min(ymd.day, civil::lastDayOfMonth(ymd.year, ymd.month));
  const std::int64_t day = civil::daysFromCivil(ymd.year, ymd.month, ymd.day) + o[2];
  return day * kDay + secondOfDay + o[3] * std::int64_t{3600} + o[4] * std::int64_t{60} + o[5];
}

std::optional<std::string> textOf(std::int64_t seconds) {
  if (seconds < kFirst || seconds > kLast) return std::nullopt;
  const civil::YearMonthDay ymd = civil::civilFromDays(civil::floorDiv(seconds, kDay));
  const std::int64_t secondOfDay = civil::floorMod(seconds, kDay);
  std::string text = "0000:00:00 00:00:00";
  putDigits(&text[0], ymd.year, 4);
  putDigits(&text[5], ymd.month, 2);
  putDigits(&text[8], ymd.day, 2);
  putDigits(&text[11], secondOfDay / 3600, 2);
  putDigits(&text[14], secondOfDay / 60 % 60, 2);
  putDigits(&text[17], secondOfDay % 60, 2);
  return text;
}

}  // namespace ExifDateText
