#pragma once
// The ranges of the six fields of the multi-file document (year, month, day,
// hour, minute, second), per kind of action. Integers only.

#include <array>
#include <cstdint>

enum class LumActionMode : std::uint8_t { Backward = 0, Forward = 1, SetTime = 2 };

struct LumFieldLimit {
  long minimum;
  long maximum;
  constexpr bool accepts(long value) const { return value >= minimum && value <= maximum; }
};

using LumFieldLimits = std::array<LumFieldLimit, 6>;

// Shifting backward or forward: counts of each unit.
inline constexpr LumFieldLimits kOffsetFieldLimits{{
    {0, 9999}, {0, 99999}, {0, 3652058}, {0, 99999}, {0, 99999}, {0, 99999},
}};

// Setting one time: a calendar date and time. The day's maximum is the
// length of the month in the fields, put in when the fields are filled.
inline constexpr LumFieldLimits kSetTimeFieldLimits{{
    {1, 9999}, {1, 12}, {1, 31}, {0, 23}, {0, 59}, {0, 59},
}};

// The mode words shown in the pop-up and used in undo action names.
inline constexpr std::array<const char*, 3> kActionModeWords{"Backward", "Forward", "Set Time"};
