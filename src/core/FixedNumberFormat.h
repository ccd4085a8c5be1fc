#pragma once
// Numbers as text with a fixed pattern, independent of the user's locale:
// at least `integerDigits` integer digits (zero-padded), exactly
// `fractionDigits` fraction digits, "." as separator, no grouping, ties
// rounded to even. formatFixed(7.25, 2, 2) is "07.25" (the pattern "00.00");
// formatFixed(35.5, 1, 10) is "35.5000000000" (the pattern "0.0000000000").

#include <cstdint>
#include <string>

namespace orb {

std::string formatFixed(double value, int integerDigits, int fractionDigits);

// A decimal text with at most `maxFractionDigits` digits and no trailing
// zeros: 2.8 is "2.8", 35 is "35", 1/3 with 4 digits is "0.3333".
std::string formatShortDecimal(double value, int maxFractionDigits);

// Reads the leading number of a text as a single-precision value ("2.31"
// and "2.3.0.0" give 2.31 and 2.3; a text without a leading number gives 0).
float leadingFloat(const std::string& text);

// Truncates toward zero into the range of the result type; NaN gives 0.
// Values read from a file may be anything, and a plain cast of an
// out-of-range double is undefined.
std::int64_t truncatedInt64(double value);
std::uint64_t truncatedUInt64(double value);

}  // namespace orb
