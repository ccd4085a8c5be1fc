#pragma once
// Reading a number from the start of a text, the way version texts are read:
// leading blanks skipped, an optional sign, then decimal digits up to the
// first other character; no digits give 0, and a value past the 32-bit
// signed range is held at its limit.

#include <cstdint>
#include <string_view>

namespace TextNumber {

std::int32_t intValue(std::string_view text);

}  // namespace TextNumber
