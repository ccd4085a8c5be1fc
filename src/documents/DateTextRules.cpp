#include "documents/DateTextRules.h"

#include <cstdio>
#include <string_view>
#include <vector>

#include "datetime/DateAdditions.h"
#include "datetime/ExifDateText.h"
#include "datetime/TimeZone.h"

namespace DateTextRules {
namespace {

constexpr std::string_view kSeparators = " \"',-./:;";

bool isSeparator(char c) { return kSeparators.find(c) != std::string_view::npos; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Digits as a number, held at a bound far beyond any meaningful field so a
// long run of digits cannot overflow.
long clampedNumber(std::string_view digits) {
  constexpr long kBound = 1'000'000'000'000L;
  long value = 0;
  for (char c : digits) {
    value = value * 10 + (c - '0');
    if (value > kBound) return kBound;
  }
  return value;
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

// The parts between separators after collapsing runs of separators; none
// when a character is neither digit nor separator.
std::optional<std::vector<std::string_view>> numberParts(std::string_view text) {
  std::vector<std::string_view> parts;
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isDigit(text[i])) continue;
    if (!isSeparator(text[i])) return std::nullopt;
    if (i > 0 && isSeparator(text[i - 1])) {
      start = i + 1;  // a repeated separator joins the one before it
      continue;
    }
    parts.push_back(text.substr(start, i - start));
    start = i + 1;
  }
  parts.push_back(text.substr(start));
  return parts;
}

// The shifted seconds of a text in the common form, without the general
// parser and formatter; none sends the text down the general path.
std::optional<std::int64_t> quickShift(const std::string& text, const Offsets& o) {
  const std::optional<std::int64_t> seconds = ExifDateText::secondsOf(text);
  return seconds ? ExifDateText::shiftedSeconds(*seconds, o) : std::nullopt;
}

}  // namespace

bool shiftPassesOver(const std::optional<std::string>& text) {
  // A longer value keeps its tail after the 19 characters; only the date counts.
  return text && std::string_view(*text).substr(0, kZeroDate.size()) == kZeroDate;
}

Offsets directed(const Offsets& offsets, bool forward) {
  Offsets result = offsets;
  if (!forward)
    for (long& v : result) v = -v;
  return result;
}

std::optional<Instant> shiftedDate(const Instant& date, const Offsets& o) {
  return DateAdditions::dateByAddingWithYears(date, o[0], o[1], o[2], o[3], o[4], o[5]);
}

std::optional<std::string> shiftedDateTimeString(const std::optional<std::string>& text, const Offsets& o) {
  if (!text || shiftPassesOver(text)) return std::nullopt;
  if (const std::optional<std::int64_t> shifted = quickShift(*text, o)) return ExifDateText::textOf(*shifted);
  const std::optional<Instant> date = DateAdditions::dateWithDateTimeString(*text);
  if (!date) return std::nullopt;
  bool bc = false;
  const std::optional<Instant> shifted = DateAdditions::dateByAddingWithYears(*date, o[0], o[1], o[2], o[3], o[4], o[5], &bc);
  if (!shifted || bc) return std::nullopt;
  if (DateAdditions::yearWithTimeZone(*shifted, TimeZone::gmt()) > 9999) return std::nullopt;
  return DateAdditions::tiffDateString(*shifted);
}

bool shiftLeavesRange(const std::optional<std::string>& text, const Offsets& o) {
  if (!text || text->empty() || shiftPassesOver(text)) return false;
  if (const std::optional<std::int64_t> shifted = quickShift(*text, o))
    return *shifted < kMiniDate.seconds || *shifted > kMaxDate.seconds;
  const std::optional<Instant> date = DateAdditions::dateWithDateTimeString(*text);
  if (!date) return false;
  const std::optional<Instant> shifted = shiftedDate(*date, o);
  return shifted && (*shifted < kMiniDate || *shifted > kMaxDate);
}

std::optional<std::string> normalizedDateTimeString(std::string_view typed) {
  std::string_view text = trimmed(typed);
  if (!text.empty() && text.front() == '-') text.remove_prefix(1);
  const std::optional<std::vector<std::string_view>> parts = numberParts(text);
  if (!parts || parts->size() != 6) return std::nullopt;
  long f[6];
  for (int i = 0; i < 6; ++i) f[i] = clampedNumber((*parts)[static_cast<std::size_t>(i)]);
  if (f[0] < 1 || f[0] > 9999) return std::nullopt;
  const TimeZone utc = TimeZone::gmt();
  const std::optional<Instant> date = DateAdditions::dateWithY(f[0], f[1], f[2], f[3], f[4], f[5], utc);
  if (!date) return std::nullopt;
  long y = 0, m = 0, d = 0, h = 0, mi = 0, s = 0;
  bool bc = false;
  if (!DateAdditions::getYear(*date, &y, &m, &d, nullptr, &h, &mi, &s, &utc, &bc)) return std::nullopt;
  if (bc || y < 1 || y > 9999) return std::nullopt;
  char out[32];
  std::snprintf(out, sizeof out, "%.4ld:%.2ld:%.2ld %.2ld:%.2ld:%.2ld", y, m, d, h, mi, s);
  return std::string(out);
}

int monthLength(long year, long month) {
  switch (month) {
    case 4: case 6: case 9: case 11: return 30;
    case 2: return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
    default: return 31;
  }
}

}  // namespace DateTextRules
