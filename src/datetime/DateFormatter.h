#pragma once
// Dates as text by pattern, independent of the user's locale (English
// names, Gregorian calendar with eras). Pattern letters, repeated for width:
//   y  era year (yy: last two digits)     G  era, "AD" or "BC"
//   M  month      d  day      H  hour (0-23)      m  minute      s  second
//   S  fraction of the second, truncated to the run's length
//   E  abbreviated weekday, "Sun" ... "Sat"
//   Z  offset "+0900"; ZZZZZ "+09:00", "+05:45:30" or "Z" for GMT
// Text in single quotes is literal ('' is a quote); other characters are
// copied. Each formatter is a small value: make one per thread or per use.

#include <string>
#include <string_view>

#include "datetime/Instant.h"
#include "datetime/TimeZone.h"

class DateFormatter {
 public:
  // UTC unless told otherwise: dates of photos are wall-clock times kept as
  // UTC instants, and the machine's zone must not move them.
  explicit DateFormatter(std::string pattern = "", TimeZone zone = TimeZone::gmt())
      : pattern_(std::move(pattern)), zone_(zone) {}

  void setDateFormat(std::string pattern) { pattern_ = std::move(pattern); }
  const std::string& dateFormat() const { return pattern_; }
  void setTimeZone(const TimeZone& zone) { zone_ = zone; }
  const TimeZone& timeZone() const { return zone_; }

  // Empty when the zone cannot describe the instant.
  std::string stringFromDate(const Instant& date) const;

 private:
  std::string pattern_;
  TimeZone zone_;
};
