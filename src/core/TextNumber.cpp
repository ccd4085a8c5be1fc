#include "core/TextNumber.h"

#include <limits>

namespace TextNumber {

std::int32_t intValue(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n' || text[i] == '\r')) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  std::int64_t value = 0;
  constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    value = value * 10 + (text[i] - '0');
    if (value > kLimit) value = kLimit;  // saturate; more digits change nothing
  }
  if (negative) return static_cast<std::int32_t>(-value);
  return value >= kLimit ? std::numeric_limits<std::int32_t>::max() : static_cast<std::int32_t>(value);
}

}  // namespace TextNumber
