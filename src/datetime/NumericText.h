#pragma once
// Small text helpers of the date parser: the numeric-token test, integer
// reading that saturates instead of overflowing, splitting and trimming.

#include <string>
#include <string_view>
#include <vector>

namespace numtext {

// A non-empty ASCII text of digits with at most one "." anywhere; the first
// character may be "+" (or "-" when allowMinus).
bool isNumericToken(std::string_view text, bool allowMinus = false);

// Leading spaces, an optional sign, then digits up to the first non-digit;
// 0 when there are none. Saturates at the limits of long.
long integerValue(std::string_view text);

// Splits at any of the separator characters; dropEmpty leaves out empty parts.
std::vector<std::string> split(std::string_view text, std::string_view separators, bool dropEmpty);

// Removes spaces at both ends.
std::string trimSpaces(std::string_view text);

// printf into a std::string.
std::string format(const char* pattern, ...) __attribute__((format(printf, 1, 2)));

}  // namespace numtext
