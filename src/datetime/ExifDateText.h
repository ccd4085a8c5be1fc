#pragma once
// The common case of a date text, "yyyy:MM:dd HH:mm:ss" with every field in
// its range, read and shifted with plain calendar arithmetic. Shifting the
// dates of thousands of files goes through here; any other text (or an
// offset too large for this arithmetic) is left to the general date parser,
// which gives the same results for the texts accepted here.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ExifDateText {

// Seconds since 1970-01-01 00:00:00 UTC of a text of exactly 19 characters
// "yyyy:MM:dd HH:mm:ss" with year 0001..9999, a day that exists in its month,
// hour < 24, minute < 60, second < 60; none for anything else.
std::optional<std::int64_t> secondsOf(std::string_view text);

// seconds shifted by years, months, days, hours, minutes, seconds: years
// and months first, each keeping the day inside the target month, then the
// rest as plain seconds. None when an offset is beyond the range this
// arithmetic serves (a hundred thousand years).
std::optional<std::int64_t> shiftedSeconds(std::int64_t seconds, const std::array<long, 6>& offsets);

// "yyyy:MM:dd HH:mm:ss" of seconds inside years 0001..9999; none outside.
std::optional<std::string> textOf(std::int64_t seconds);

}  // namespace ExifDateText
