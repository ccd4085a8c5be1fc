#pragma once
// Locale-independent number formatting by pattern, in the subset the
// program uses: "#,##0", "#,##0.###############", "00.00", "0,000",
// "0.0000000000". Zeros before the "." set the minimum integer digits, a ","
// groups the integer part by threes, zeros after the "." are fraction digits
// always shown, "#" after them ones shown when not zero. "." is the decimal
// separator and "," the grouping separator whatever the user's locale.
// Rounding is half to even on the shortest decimal form of the value, so
// 2.675 with two fraction digits is "2.68" and 0.125 is "0.12". Negative
// values keep their sign even when they round to zero: -0.001 is "-0.00".

#include <string>
#include <string_view>

class NumberFormatter {
 public:
  // The default formatter writes whole numbers without grouping ("#").
  NumberFormatter() = default;
  explicit NumberFormatter(std::string_view pattern) { setFormat(pattern); }

  void setFormat(std::string_view pattern);
  const std::string& format() const { return pattern_; }

  int minimumIntegerDigits() const { return minimumIntegerDigits_; }
  int minimumFractionDigits() const { return minimumFractionDigits_; }
  int maximumFractionDigits() const { return maximumFractionDigits_; }
  bool usesGroupingSeparator() const { return grouping_; }

  std::string stringFromNumber(double value) const;
  std::string stringFromNumber(long long value) const;
  std::string stringFromNumber(int value) const { return stringFromNumber(static_cast<long long>(value)); }
  std::string stringFromNumber(long value) const { return stringFromNumber(static_cast<long long>(value)); }
  std::string stringFromNumber(unsigned long long value) const;

 private:
  std::string assemble(bool negative, std::string integerDigits, std::string fractionDigits) const;

  std::string pattern_ = "#";
  int minimumIntegerDigits_ = 0;
  int minimumFractionDigits_ = 0;
  int maximumFractionDigits_ = 0;
  bool grouping_ = false;
};
