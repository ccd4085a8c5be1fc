#pragma once
// The shared formatters of the program. Shared ones are immutable objects
// created once on first use (thread-safe), so the loading threads may use
// them alongside the main thread.

#include <optional>
#include <string>
#include <string_view>

#include "datetime/DateFormatter.h"
#include "datetime/Instant.h"
#include "datetime/NumberFormatter.h"

// The Exif date form "yyyy:MM:dd HH:mm:ss" in GMT.
class TiffDateFormatter {
 public:
  // Era years: 1 BC prints as 0001; years past 9999 print wider than 19.
  std::string stringFromDate(const Instant& date) const;
  // Exactly 19 characters in the Exif form with every field in range
  // (year 0001..9999); none otherwise.
  std::optional<Instant> dateFromString(std::string_view text) const;
};

namespace OrbAdditions {

// A new pattern formatter in the local zone, with English names.
DateFormatter nullLocaleDateFormatter();
const TiffDateFormatter& dateFormatterForTIFF();

// A new plain formatter: whole numbers, no grouping, "." as separator.
NumberFormatter unlocalizedFormatter();
// "#,##0": 1234567 is "1,234,567".
const NumberFormatter& thousandSeparateFormatter();
// "#,##0.###############": up to fifteen fraction digits, no trailing zeros.
const NumberFormatter& doubleValueFormatter();
// n zeros grouped by threes from the right: 4 gives "0,000", 0 gives "".
NumberFormatter separatorFormatterWithDigit(int digits);

// The pattern formatters the entry texts use: "00", "00.00", "0000",
// "0.0000000000".
std::string stringWithFormat(std::string_view pattern, double value);

}  // namespace OrbAdditions
