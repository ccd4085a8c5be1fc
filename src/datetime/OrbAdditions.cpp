#include "datetime/OrbAdditions.h"

#include "datetime/CivilCalendar.h"
#include "datetime/DateAdditions.h"

namespace {

// Reads exactly `width` ASCII digits at `at`; none for anything else.
std::optional<unsigned> fixedDigits(std::string_view text, std::size_t at, std::size_t width) {
  unsigned value = 0;
  for (std::size_t i = at; i < at + width; ++i) {
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    value = value * 10 + static_cast<unsigned>(text[i] - '0');
  }
  return value;
}

}  // namespace

std::string TiffDateFormatter::stringFromDate(const Instant& date) const { return DateAdditions::tiffDateString(date); }

std::optional<Instant> TiffDateFormatter::dateFromString(std::string_view text) const {
  // yyyy:MM:dd HH:mm:ss
  // 0123456789012345678
  if (text.size() != 19 || text[4] != ':' || text[7] != ':' || text[10] != ' ' || text[13] != ':' || text[16] != ':')
    return std::nullopt;
  const auto y = fixedDigits(text, 0, 4), mo = fixedDigits(text, 5, 2), d = fixedDigits(text, 8, 2);
  const auto h = fixedDigits(text, 11, 2), mi = fixedDigits(text, 14, 2), s = fixedDigits(text, 17, 2);
  if (!y || !mo || !d || !h || !mi || !s) return std::nullopt;
  if (*y < 1 || *mo < 1 || *mo > 12 || *d < 1 || *d > civil::lastDayOfMonth(*y, *mo) || *h > 23 || *mi > 59 ||
      *s > 59)
    return std::nullopt;
  const std::int64_t days = civil::daysFromCivil(*y, *mo, *d);
  return Instant{days * 86400 + *h * 3600 + *mi * 60 + *s, 0};
}

namespace OrbAdditions {

DateFormatter nullLocaleDateFormatter() { return DateFormatter(); }

const TiffDateFormatter& dateFormatterForTIFF() {
  static const TiffDateFormatter formatter;
  return formatter;
}

NumberFormatter unlocalizedFormatter() { return NumberFormatter(); }

const NumberFormatter& thousandSeparateFormatter() {
  static const NumberFormatter formatter("#,##0");
  return formatter;
}

const NumberFormatter& doubleValueFormatter() {
  static const NumberFormatter formatter("#,##0.###############");
  return formatter;
}

NumberFormatter separatorFormatterWithDigit(int digits) {
  std::string pattern;
  for (int i = digits; i > 0; --i) {
    pattern += '0';
    if (i > 1 && (i - 1) % 3 == 0) pattern += ',';
  }
  return NumberFormatter(pattern);
}

std::string stringWithFormat(std::string_view pattern, double value) { return NumberFormatter(pattern).stringFromNumber(value); }

}  // namespace OrbAdditions
