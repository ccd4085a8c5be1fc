#pragma once
// The Exif date text "yyyy:MM:dd HH:mm:ss" of an instant, for the entries
// this layer makes itself (DateTime, GPSTimeStamp). Parsing and calendar
// arithmetic of date texts belong to the date layer.

#include <cstdint>
#include <optional>
#include <string>

namespace orb {

// The text of an instant (seconds since 1970 UTC) shifted by a zone offset
// in seconds (UTC when none), in the proleptic Gregorian calendar.
std::string exifDateText(std::int64_t secondsSince1970, std::optional<std::int32_t> zoneOffset);

// The current time in the machine's local time zone.
std::string exifDateTextNowLocal();

}  // namespace orb
