#pragma once
// The date rules of the editing documents: shifting a date text by calendar
// offsets, the allowed range of dates, and normalising typed text.
//
// Every date is the wall-clock reading of its Exif text taken as UTC, so the
// machine's time zone never changes a result.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "datetime/Instant.h"

namespace DateTextRules {

// Years, months, days, hours, minutes, seconds; signed (negative goes back).
using Offsets = std::array<long, 6>;

// The application-wide range of dates: 0001-01-01 00:00:00 to
// 9999-12-31 23:59:59 UTC.
inline constexpr Instant kMiniDate{-62'135'596'800, 0};
inline constexpr Instant kMaxDate{253'402'300'799, 0};

// "0000:00:00 00:00:00" is how many cameras say "no date". A shift passes
// such a date over: it is neither moved nor counted as leaving the range,
// so one unknown date among thousands holds no batch back. Setting a time
// or typing a date into it writes as usual: the entry is there to be filled.
inline constexpr std::string_view kZeroDate = "0000:00:00 00:00:00";
bool shiftPassesOver(const std::optional<std::string>& text);

// offsets as given when going forward, negated when going back.
Offsets directed(const Offsets& offsets, bool forward);

// date moved by the offsets, or none when the arithmetic refuses it; the
// result may lie outside the range (a preview shows it so).
std::optional<Instant> shiftedDate(const Instant& date, const Offsets& offsets);

// text shifted by the offsets, as "yyyy:MM:dd HH:mm:ss"; none when there is
// no text, it does not parse, a shift passes it over, or the result falls
// before year 1 or after 9999.
std::optional<std::string> shiftedDateTimeString(const std::optional<std::string>& text, const Offsets& offsets);

// True when text parses and shifting it gives a date outside the range.
// A text that does not parse, cannot be shifted or is passed over is never
// illegal.
bool shiftLeavesRange(const std::optional<std::string>& text, const Offsets& offsets);

// Typed text ("2021/3/4 5:06:07", "2021-03-04 05:06:07") as
// "yyyy:MM:dd HH:mm:ss", or none: it needs exactly six numbers, a year of
// 1..9999, and a date that stays inside years 1..9999 after roll-over.
std::optional<std::string> normalizedDateTimeString(std::string_view typed);

// The number of days of a month (any month number outside 1..12 counts 31).
int monthLength(long year, long month);

}  // namespace DateTextRules
