#include "datetime/DateFormatter.h"

#include <array>
#include <algorithm>

#include "datetime/DateAdditions.h"
#include "datetime/NumericText.h"

namespace {

struct Split {
  long year, month, day, weekday, hour, minute, second, nanosecond, offset;
  bool bc;
};

std::string padded(long value, std::size_t width) { return numtext::format("%.*ld", static_cast<int>(width), value); }

std::string offsetText(long offset, bool extended) {
  if (extended && offset == 0) return "Z";
  const unsigned long magnitude = offset < 0 ? 0UL - static_cast<unsigned long>(offset) : offset;
  const char* sign = offset < 0 ? "-" : "+";
  const unsigned long h = magnitude / 3600, m = magnitude / 60 % 60, s = magnitude % 60;
  if (!extended) return numtext::format("%s%.2lu%.2lu", sign, h, m);
  std::string text = numtext::format("%s%.2lu:%.2lu", sign, h, m);
  if (s != 0) text += numtext::format(":%.2lu", s);
  return text;
}

std::string field(char letter, std::size_t count, const Split& f) {
  static constexpr std::array<const char*, 7> kWeekdays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  switch (letter) {
    case 'y': return count == 2 ? padded(f.year % 100, 2) : padded(f.year, count);
    case 'G': return f.bc ? "BC" : "AD";
    case 'M': return padded(f.month, count);
    case 'd': return padded(f.day, count);
    case 'H': return padded(f.hour, count);
    case 'm': return padded(f.minute, count);
    case 's': return padded(f.second, count);
    case 'S': return padded(f.nanosecond, 9).substr(0, std::min<std::size_t>(count, 9));
    case 'E': return kWeekdays[static_cast<std::size_t>(f.weekday - 1) % 7];
    case 'Z': return offsetText(f.offset, count >= 5);
    default: return std::string(count, letter);
  }
}

// Appends the literal that starts with the quote at `at`; two quotes in a
// row, inside or outside a literal, stand for one. Answers where the
// pattern goes on.
std::size_t appendQuoted(const std::string& pattern, std::size_t at, std::string& text) {
  if (at + 1 < pattern.size() && pattern[at + 1] == '\'') {
    text += '\'';
    return at + 2;
  }
  std::size_t i = at + 1;
  for (; i < pattern.size(); ++i) {
    if (pattern[i] != '\'') {
      text += pattern[i];
    } else if (i + 1 < pattern.size() && pattern[i + 1] == '\'') {
      text += '\'';
      ++i;
    } else {
      break;
    }
  }
  return i + 1;
}

bool isPatternLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

}  // namespace

std::string DateFormatter::stringFromDate(const Instant& date) const {
  Split f{};
  const auto offset = zone_.secondsFromGMT(date.seconds);
  if (!offset || !DateAdditions::getYear(date, &f.year, &f.month, &f.day, &f.weekday, &f.hour, &f.minute, &f.second,
                                         &f.nanosecond, &zone_, &f.bc))
    return {};
  f.offset = *offset;
  std::string text;
  for (std::size_t i = 0; i < pattern_.size();) {
    const char c = pattern_[i];
    if (c == '\'') {
      i = appendQuoted(pattern_, i, text);
      continue;
    }
    std::size_t run = 1;
    while (i + run < pattern_.size() && pattern_[i + run] == c) ++run;
    text += isPatternLetter(c) ? field(c, run, f) : pattern_.substr(i, run);
    i += run;
  }
  return text;
}
