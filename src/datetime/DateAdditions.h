#pragma once
// Date text and calendar arithmetic: building instants from calendar fields,
// splitting them back, parsing and normalising the date-time text users type
// and Exif stores ("yyyy:MM:dd HH:mm:ss"), and adding calendar offsets.
//
// Calendar: proleptic Gregorian with eras. Signed years in the builders mean
// era years, negative for BC (-1 is 1 BC); splitters give the era year
// (always positive) and a separate BC flag. Builders are lenient: month 13 is
// January of the next year, day 0 the last day of the previous month, hour 24
// midnight of the next day. They answer none only for fields so large that
// the instant would leave years -999'999..999'999.

#include <optional>
#include <string>
#include <string_view>

#include "datetime/Instant.h"
#include "datetime/TimeZone.h"

namespace DateAdditions {

// --- Builders ---------------------------------------------------------------
// UTC (a date without a zone is a wall-clock time), year used as an AD year
// (0 and below count back from 1 AD without an era: 0 is 1 BC).
std::optional<Instant> dateWithY(long y, long m, long d);
std::optional<Instant> dateWithY(long y, long m, long d, long hour, long minute, long second);
// The given zone, year as above.
std::optional<Instant> dateWithY(long y, long m, long d, const TimeZone& timeZone);
// The given zone; a negative year is that many years BC.
std::optional<Instant> dateWithY(long y, long m, long d, long hour, long minute, long second,
                                 const TimeZone& timeZone);
std::optional<Instant> dateWithY(long y, long m, long d, long hour, long minute, long second,
                                 long nanosecond, const TimeZone& timeZone);

// --- Splitters --------------------------------------------------------------
// Each writes only the outputs given a place. Years are era years; the BC
// flag is true in era BC. Weekdays: 1 = Sunday ... 7 = Saturday. A null zone
// means UTC. When the zone cannot describe the instant, nothing is written
// and the answer is false.
bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek);
bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek, long* hour,
             long* minute, long* second);
bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek, long* hour,
             long* minute, long* second, const TimeZone* timeZone, bool* bc);
bool getYear(const Instant& date, long* year, long* month, long* day, long* dayOfTheWeek, long* hour,
             long* minute, long* second, long* nanosecond, const TimeZone* timeZone, bool* bc);

// Single fields in the machine's local zone: what its clock reads, for
// filling fields with the present time. Dates of photos use the zone forms.
long year(const Instant& date);
long month(const Instant& date);
long day(const Instant& date);
long dayOfTheWeek(const Instant& date);
long hour(const Instant& date);
long minute(const Instant& date);
long second(const Instant& date);
// The instant that reads in zone `to` as date reads in zone `from`: the
// machine's clock (local) shown as a wall-clock date (UTC). None when either
// zone cannot describe it.
std::optional<Instant> wallClockIn(const Instant& date, const TimeZone& from, const TimeZone& to);
// Single fields in the given zone.
long yearWithTimeZone(const Instant& date, const TimeZone& timeZone);
long monthWithTimeZone(const Instant& date, const TimeZone& timeZone);
long dayWithTimeZone(const Instant& date, const TimeZone& timeZone);
long hourWithTimeZone(const Instant& date, const TimeZone& timeZone);
long minuteWithTimeZone(const Instant& date, const TimeZone& timeZone);
long secondWithTimeZone(const Instant& date, const TimeZone& timeZone);

// Abbreviated English weekday name of the date read in UTC: "Sun" ... "Sat".
std::string stringDayOfTheWeek(const Instant& date);

// --- Text -------------------------------------------------------------------
// Parses date-time text ("2019:03:07 09:05:30", "2019-03-07T09:05:30.5+09:00",
// "0000:01:01", ...) into normalised parts. On acceptance writes (where given):
//   ymd     "2019-03-07" / "-0044-03-15" / "2019-03" / "2019"
//   hms     "09" / "09:05" / "09:05:30", empty when no time was given
//   subsec  the typed fraction of the second (1..3 digits), empty when none
//   timeZone "Z", "+09:00" (or "+0900" without colon), empty when none
// Fields are normalised through the calendar in the text's zone (UTC when
// the text has none, so the machine's zone never moves a date), so
// 2019:02:30 becomes 2019-03-02.
// allowedYMDH accepts a time of the hour alone ("2019:03:07 09").
bool getDateTimeStrings(std::string_view text, std::string* ymd, std::string* hms, std::string* subsec,
                        std::string* timeZone, bool timeZoneWithColon, bool allowedYMDH);
bool getDateTimeStrings(std::string_view text, std::string* ymd, std::string* hms, std::string* subsec,
                        std::string* timeZone, bool allowedYMDH);

// The offset parser: "+09:00", "-0930", "+9", "+05:45:30" to signed seconds.
// Writes the normalised zone text on success. Failure answers exactly
// kOffsetFailure, a fraction no whole-second offset can equal.
inline constexpr double kOffsetFailure = 0.9999;
inline constexpr double kOffsetRejected = 0.1111;  // also refused by the text parser
double secondsFromOffsetString(std::string_view offset, bool withColon, std::string* zoneText);

// Date-time text to instant; a text without a zone is read as UTC.
std::optional<Instant> dateWithDateTimeString(std::string_view text);

// Text that users paste into a date field, normalised as
// ymd ["T" hms] ["." subsec] [zone]; none when the parser refuses it.
std::optional<std::string> normalizedPasteString(std::string_view text, bool allowedYMDH);

// --- Arithmetic -------------------------------------------------------------
// date plus the six signed offsets in UTC, larger units first; a day missing
// in the target month is clamped to its last day (Jan 31 + 1 month = Feb 28
// or 29). None when date itself is not a year 1..9999 (AD or BC) date. An
// offset so large that the result leaves the representable range gives the
// nearest representable instant, which every range check refuses.
std::optional<Instant> dateByAddingWithYears(const Instant& date, long years, long months, long days, long hours,
                                             long minutes, long seconds, bool* bc = nullptr);

// The Exif form "yyyy:MM:dd HH:mm:ss" of an instant read in UTC (era year,
// so 1 BC prints as 0001; years past 9999 print wider).
std::string tiffDateString(const Instant& date);

}  // namespace DateAdditions
