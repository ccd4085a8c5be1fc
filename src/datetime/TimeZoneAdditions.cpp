#include "datetime/TimeZoneAdditions.h"

#include <cstdlib>

#include "datetime/DateAdditions.h"
#include "datetime/DateFormatter.h"
#include "datetime/NumericText.h"

namespace TimeZoneAdditions {

TimeZone gmtTimeZone() { return TimeZone::gmt(); }

TimeZone timeZoneFromString(std::string_view text) {
  if (text == "Z") return TimeZone::gmt();
  const std::string trimmed = numtext::trimSpaces(text);
  if (trimmed.size() != 5 && trimmed.size() != 6) return TimeZone::local();
  // The separator between hours and minutes is not checked: +0930 and
  // +09:30 read alike.
  const long hours = numtext::integerValue(trimmed.substr(1, 2));
  const long minutes = numtext::integerValue(trimmed.substr(trimmed.size() - 2));
  const long seconds = hours * 3600 + minutes * 60;
  switch (trimmed.front()) {
    case '-':
      return TimeZone::withSecondsFromGMT(-seconds);
    case '+':
      return TimeZone::withSecondsFromGMT(seconds);
    default:
      return TimeZone::local();
  }
}

std::string stringTimeZoneForSecondsFromGMT(long seconds) {
  const unsigned long magnitude = seconds < 0 ? 0UL - static_cast<unsigned long>(seconds) : seconds;
  return numtext::format("%s%.2lu:%.2lu", seconds < 0 ? "-" : "+", magnitude / 3600, magnitude / 60 % 60);
}

std::string timeZoneString(const TimeZone& zone) { return timeZoneStringWithDate(zone, Instant::now()); }

std::string timeZoneStringWithDate(const TimeZone& zone, const Instant& date) {
  // Formatted with its offset and read back by the date parser, which keeps
  // only offsets it can represent. One formatter per call: no shared state.
  const DateFormatter formatter("yyyy-MM-dd HH:mm:ss ZZZZZ", zone);
  std::string zoneText;
  if (!DateAdditions::getDateTimeStrings(formatter.stringFromDate(date), nullptr, nullptr, nullptr, &zoneText, true,
                                         false) ||
      zoneText.empty() || zoneText == "Z")
    return "+00:00";
  return zoneText;
}

}  // namespace TimeZoneAdditions
