#pragma once
// Time-zone offsets as text: "+09:00", "-09:30", "Z".

#include <string>
#include <string_view>

#include "datetime/Instant.h"
#include "datetime/TimeZone.h"

namespace TimeZoneAdditions {

TimeZone gmtTimeZone();

// "Z" is GMT; "+0930" and "+09:30" (after trimming spaces) are fixed
// offsets. Anything else (no sign, wrong length) gives the local zone.
TimeZone timeZoneFromString(std::string_view text);

// "+09:00", "-09:30", "+00:00": sign, hours and minutes, both truncated;
// seconds of the offset are dropped.
std::string stringTimeZoneForSecondsFromGMT(long seconds);

// The zone's offset now, as text.
std::string timeZoneString(const TimeZone& zone);

// The zone's offset at the given instant, as text ("+00:00" for GMT and
// whenever the offset cannot be told).
std::string timeZoneStringWithDate(const TimeZone& zone, const Instant& date);

}  // namespace TimeZoneAdditions
