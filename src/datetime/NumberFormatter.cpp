#include "datetime/NumberFormatter.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

// The shortest decimal form of a finite, non-negative value as its digits
// and the position of the decimal point: value = 0.DIGITS x 10^pointPosition.
struct Decimal {
  std::string digits;
  int point;
};

Decimal shortestDecimal(double value) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific);
  const std::string_view text(buffer, static_cast<std::size_t>(result.ptr - buffer));
  const std::size_t e = text.find('e');
  Decimal d;
  for (char c : text.substr(0, e))
    if (c != '.') d.digits += c;
  d.point = std::atoi(std::string(text.substr(e + 1)).c_str()) + 1;
  return d;
}

// Rounds to `fraction` digits after the point, ties to even; answers the
// integer and fraction digit strings.
std::pair<std::string, std::string> roundHalfEven(Decimal d, int fraction) {
  // Make the digit string cover the integer part and the kept fraction.
  if (d.point < 0) {
    d.digits.insert(0, static_cast<std::size_t>(-d.point), '0');
    d.point = 0;
  }
  const auto keep = static_cast<std::size_t>(d.point + fraction);
  if (d.digits.size() < keep) d.digits.append(keep - d.digits.size(), '0');
  std::string kept = d.digits.substr(0, keep);
  const std::string rest = d.digits.substr(keep);
  const bool aboveHalf = !rest.empty() && (rest[0] > '5' || (rest[0] == '5' && rest.find_first_not_of('0', 1) != std::string::npos));
  const bool exactHalf = !rest.empty() && rest[0] == '5' && !aboveHalf;
  const bool lastOdd = !kept.empty() && (kept.back() - '0') % 2 == 1;
  if (aboveHalf || (exactHalf && lastOdd)) {
    std::size_t i = kept.size();
    while (i > 0 && kept[i - 1] == '9') kept[--i] = '0';
    if (i == 0) {
      kept.insert(0, 1, '1');
      ++d.point;
    } else {
      ++kept[i - 1];
    }
  }
  return {kept.substr(0, static_cast<std::size_t>(d.point)), kept.substr(static_cast<std::size_t>(d.point))};
}

}  // namespace

void NumberFormatter::setFormat(std::string_view pattern) {
  pattern_ = std::string(pattern);
  const std::size_t dot = pattern.find('.');
  const std::string_view integer = pattern.substr(0, dot);
  const std::string_view fraction = dot == std::string_view::npos ? std::string_view() : pattern.substr(dot + 1);
  minimumIntegerDigits_ = 0;
  grouping_ = integer.find(',') != std::string_view::npos;
  for (char c : integer) minimumIntegerDigits_ += c == '0';
  minimumFractionDigits_ = maximumFractionDigits_ = 0;
  for (char c : fraction) {
    minimumFractionDigits_ += c == '0';
    maximumFractionDigits_ += c == '0' || c == '#';
  }
}

std::string NumberFormatter::assemble(bool negative, std::string integerDigits, std::string fractionDigits) const {
  const std::size_t first = integerDigits.find_first_not_of('0');
  integerDigits = first == std::string::npos ? std::string() : integerDigits.substr(first);
  if (integerDigits.size() < static_cast<std::size_t>(minimumIntegerDigits_))
    integerDigits.insert(0, static_cast<std::size_t>(minimumIntegerDigits_) - integerDigits.size(), '0');
  while (fractionDigits.size() > static_cast<std::size_t>(minimumFractionDigits_) && fractionDigits.back() == '0')
    fractionDigits.pop_back();
  // A value that rounds to nothing at all still shows one digit.
  if (integerDigits.empty() && fractionDigits.empty() && minimumIntegerDigits_ == 0 && pattern_.find_first_of("#0") != std::string::npos)
    integerDigits.assign(1, '0');
  if (grouping_)
    for (std::size_t i = integerDigits.size(); i > 3; i -= 3) integerDigits.insert(i - 3, 1, ',');
  // A negative value keeps its sign even when it rounds to zero
  // ("-0.0000000000"), as the platform's formatters do.
  std::string text = negative ? "-" : "";
  text += integerDigits;
  if (!fractionDigits.empty()) {
    text += '.';
    text += fractionDigits;
  }
  return text;
}

std::string NumberFormatter::stringFromNumber(double value) const {
  if (std::isnan(value)) return "NaN";
  if (std::isinf(value)) return value < 0 ? "-\u221E" : "\u221E";
  const auto [integer, fraction] = roundHalfEven(shortestDecimal(std::fabs(value)), maximumFractionDigits_);
  return assemble(std::signbit(value), integer, fraction);
}

std::string NumberFormatter::stringFromNumber(unsigned long long value) const {
  return assemble(false, std::to_string(value), std::string(static_cast<std::size_t>(minimumFractionDigits_), '0'));
}

std::string NumberFormatter::stringFromNumber(long long value) const {
  const unsigned long long magnitude = value < 0 ? 0ULL - static_cast<unsigned long long>(value) : value;
  return assemble(value < 0, std::to_string(magnitude), std::string(static_cast<std::size_t>(minimumFractionDigits_), '0'));
}
