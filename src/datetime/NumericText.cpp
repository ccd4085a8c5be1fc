#include "datetime/NumericText.h"

#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstdio>

namespace numtext {

bool isNumericToken(std::string_view text, bool allowMinus) {
  if (text.empty()) return false;
  bool seenDot = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') continue;
    if (c == '.' && !seenDot) {
      seenDot = true;
      continue;
    }
    if (i == 0 && (c == '+' || (allowMinus && c == '-'))) continue;
    return false;
  }
  return true;
}

long integerValue(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  long value = 0;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    const int digit = text[i] - '0';
    if (value > (LONG_MAX - digit) / 10) return negative ? LONG_MIN : LONG_MAX;
    value = value * 10 + digit;
  }
  return negative ? -value : value;
}

std::vector<std::string> split(std::string_view text, std::string_view separators, bool dropEmpty) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    if (i < text.size() && separators.find(text[i]) == std::string_view::npos) continue;
    if (!dropEmpty || i > start) parts.emplace_back(text.substr(start, i - start));
    start = i + 1;
  }
  return parts;
}

std::string trimSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  const std::size_t last = text.find_last_not_of(' ');
  return std::string(text.substr(first, last - first + 1));
}

std::string format(const char* pattern, ...) {
  char buffer[128];
  va_list args;
  va_start(args, pattern);
  const int n = std::vsnprintf(buffer, sizeof buffer, pattern, args);
  va_end(args);
  if (n < 0) return {};
  return std::string(buffer, std::min<std::size_t>(static_cast<std::size_t>(n), sizeof buffer - 1));
}

}  // namespace numtext
