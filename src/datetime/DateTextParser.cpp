// The date-time text parser, the offset parser and what is built on them.
#include <cmath>
#include <optional>

#include "datetime/DateAdditions.h"
#include "datetime/NumericText.h"

namespace DateAdditions {
namespace {

using numtext::integerValue;
using numtext::isNumericToken;
using numtext::split;

bool endsWithNumeric(const std::string& text) { return !text.empty() && isNumericToken(text.substr(text.size() - 1)); }

bool hasFraction(const std::string& text) { return text.find_first_of(".,") != std::string::npos; }

// A fraction of 1..3 digits times 60, truncated; computed in single
// precision so that 10.7 hours reads as 10:42 and 10.33 as 10:19.
unsigned sixtiethsOf(const std::string& fraction) {
  const float scale = std::pow(10.0f, static_cast<float>(fraction.size()));
  const float part = static_cast<float>(integerValue(fraction)) / scale;
  return static_cast<unsigned>(part * 60.0f);
}

// "09.5" -> integer part "09" and fraction "5"; none when malformed.
std::optional<std::pair<std::string, std::string>> splitFraction(const std::string& text) {
  const auto parts = split(text, ".,", false);
  if (parts.size() != 2 || !isNumericToken(parts[1]) || parts[1].size() > 3) return std::nullopt;
  return std::pair{parts[0], parts[1]};
}

// Texts without a zone are wall-clock times of a camera: they are read in
// UTC, so the machine's zone never moves them.
struct ZoneSuffix {
  TimeZone zone = TimeZone::gmt();
  std::string text;  // "Z", "+09:00", ... or empty when the text has no zone
};

// Finds and removes a trailing zone ("Z" or a signed offset) from work.
// False rejects the whole input.
bool takeZoneSuffix(std::string& work, std::size_t componentCount, bool withColon, ZoneSuffix& out) {
  if (!work.empty() && (work.back() == 'Z' || work.back() == 'z')) {
    work.pop_back();
    if (!work.empty() && (work.back() == '+' || work.back() == '-')) work.pop_back();
    work = numtext::trimSpaces(work);
    if (!endsWithNumeric(work)) return false;
    out = {TimeZone::gmt(), "Z"};
    return true;
  }
  // Dates alone have at most 4 components; an offset needs a time before it.
  if (componentCount < 5) return true;
  const auto parts = split(work, " +-", true);
  if (parts.size() < 2) return true;
  const std::size_t at = work.rfind(parts.back());
  if (at == std::string::npos || at == 0 || (work[at - 1] != '+' && work[at - 1] != '-')) return true;

  std::string zoneText;
  const double seconds = secondsFromOffsetString(work.substr(at - 1), withColon, &zoneText);
  if (!zoneText.empty()) {
    const std::size_t n = zoneText.size();
    if (withColon ? (n != 6 && n != 9) : (n != 5 && n != 7)) return false;
  }
  if (seconds == kOffsetRejected) return false;
  if (seconds == kOffsetFailure) return true;  // left in the text; the time fields usually refuse it
  out = {TimeZone::withSecondsFromGMT(static_cast<long>(seconds)), zoneText};
  work = numtext::trimSpaces(work.substr(0, at - 1));
  return endsWithNumeric(work);
}

// The fields as read from the text; absent ones were not given.
struct TextFields {
  long signedYear = 0;
  std::optional<long> month, day, hour, minute, second;
  std::string subsec;
};

bool readDate(std::vector<std::string>& list, bool negative, TextFields& f) {
  const std::size_t count = list.size();
  if (!isNumericToken(list[0])) return false;
  const long year = integerValue(list[0]);
  // Year zero is 1 BC.
  f.signedYear = year == 0 ? -1 : (negative ? -year : year);
  list.erase(list.begin());
  if (count >= 2) {
    if (!isNumericToken(list[0])) return false;
    f.month = integerValue(list[0]);
    list.erase(list.begin());
  }
  if (count >= 3) {
    const auto parts = split(list[0], "T", false);
    if (parts.size() > 2) return false;
    list.erase(list.begin());
    if (parts.size() == 2) list.insert(list.begin(), parts[1]);
    if (!isNumericToken(parts[0])) return false;
    f.day = integerValue(parts[0]);
  }
  return true;
}

bool readTime(const std::vector<std::string>& list, bool allowedYMDH, bool hasZone, TextFields& f) {
  const std::size_t t = list.size();
  if ((!allowedYMDH && t == 1) || t > 3 || (t == 0 && hasZone)) return false;
  if (t >= 1) {
    std::string hour = list[0];
    if (hasFraction(hour)) {
      const auto parts = splitFraction(hour);
      if (!parts || t != 1) return false;
      f.minute = sixtiethsOf(parts->second);
      hour = parts->first;
    }
    if (!isNumericToken(hour)) return false;
    f.hour = integerValue(hour);
  }
  if (t >= 2) {
    std::string minute = list[1];
    if (hasFraction(minute)) {
      const auto parts = splitFraction(minute);
      if (!parts || t != 2) return false;
      f.second = sixtiethsOf(parts->second);
      minute = parts->first;
    }
    if (!isNumericToken(minute)) return false;
    f.minute = integerValue(minute);
  }
  if (t == 3) {
    std::string second = list[2];
    if (hasFraction(second)) {
      const auto parts = splitFraction(second);
      if (!parts) return false;
      f.subsec = parts->second;
      second = parts->first;
    }
    if (!isNumericToken(second)) return false;
    f.second = integerValue(second);
  }
  return true;
}

// Rolls the given fields over through the calendar in the text's zone and
// reads them back, so 2019:02:30 becomes 2019-03-02.
bool normalise(TextFields& f, const TimeZone& zone) {
  const auto date = dateWithY(f.signedYear, f.month.value_or(1), f.day.value_or(1), f.hour.value_or(0),
                              f.minute.value_or(0), f.second.value_or(0), zone);
  if (!date) return false;
  long y = 0, m = 0, d = 0, h = 0, mi = 0, s = 0;
  bool bc = false;
  if (!getYear(*date, &y, &m, &d, nullptr, &h, &mi, &s, &zone, &bc)) return false;
  f.signedYear = bc ? -y : y;
  if (f.month) f.month = m;
  if (f.day) f.day = d;
  if (f.hour) f.hour = h;
  if (f.minute) f.minute = mi;
  if (f.second) f.second = s;
  return true;
}

}  // namespace

bool getDateTimeStrings(std::string_view text, std::string* ymd, std::string* hms, std::string* subsec,
                        std::string* timeZone, bool timeZoneWithColon, bool allowedYMDH) {
  std::string work(text);
  if (work.empty()) return false;
  if (work.front() == '+') work.erase(0, 1);
  if (work.empty()) return false;
  if (work.front() == '-') {
    if (work.size() >= 2 && !isNumericToken(work.substr(1, 1))) return false;
  } else if (!isNumericToken(work.substr(0, 1))) {
    return false;
  }
  const bool negative = work.front() == '-';
  if (negative) work.erase(0, 1);

  ZoneSuffix zone;
  if (!takeZoneSuffix(work, split(work, " -+:;/T", true).size(), timeZoneWithColon, zone)) return false;

  std::vector<std::string> list = split(work, " +-:;/", true);
  if (list.empty()) return false;
  TextFields f;
  if (!readDate(list, negative, f) || !readTime(list, allowedYMDH, !zone.text.empty(), f)) return false;
  if (!normalise(f, zone.zone)) return false;

  if (ymd) {
    *ymd = numtext::format("%.4ld", f.signedYear);
    if (f.month) *ymd += numtext::format("-%.2lu", static_cast<unsigned long>(*f.month));
    if (f.month && f.day) *ymd += numtext::format("-%.2lu", static_cast<unsigned long>(*f.day));
  }
  if (hms) {
    hms->clear();
    if (f.hour) *hms += numtext::format("%.2lu", static_cast<unsigned long>(*f.hour));
    if (f.minute) *hms += numtext::format(":%.2lu", static_cast<unsigned long>(*f.minute));
    if (f.second) *hms += numtext::format(":%.2lu", static_cast<unsigned long>(*f.second));
  }
  if (subsec) *subsec = f.subsec;
  if (timeZone) *timeZone = zone.text;
  return true;
}

bool getDateTimeStrings(std::string_view text, std::string* ymd, std::string* hms, std::string* subsec,
                        std::string* timeZone, bool allowedYMDH) {
  return getDateTimeStrings(text, ymd, hms, subsec, timeZone, true, allowedYMDH);
}

double secondsFromOffsetString(std::string_view offset, bool withColon, std::string* zoneText) {
  if (offset.empty() || (offset.front() != '+' && offset.front() != '-')) return kOffsetFailure;
  const char sign = offset.front();
  std::string body(offset.substr(1));
  if (body.size() == 4 && isNumericToken(body)) body = body.substr(0, 2) + ":" + body.substr(2);
  auto parts = split(body, "-:;/", false);
  if (parts.size() == 1) {
    // A whole-hour offset such as "+9".
    const long hours = integerValue(parts[0]);
    if (hours < -12 || hours > 14) return kOffsetFailure;
    parts.emplace_back("00");
  }
  if (parts.size() >= 4) return kOffsetFailure;
  if (!isNumericToken(parts[0]) || integerValue(parts[0]) < 0) return kOffsetFailure;
  const long hours = integerValue(parts[0]);
  std::string text = std::string(1, sign) + numtext::format("%.2lu", static_cast<unsigned long>(hours));
  double seconds = static_cast<double>(hours) * 3600.0;

  const char* const unitForm = withColon ? ":%.2lu" : "%.2lu";
  if (!isNumericToken(parts[1]) || integerValue(parts[1]) > 59) return kOffsetFailure;
  const long minutes = integerValue(parts[1]);
  text += numtext::format(unitForm, static_cast<unsigned long>(minutes));
  seconds += static_cast<double>(minutes) * 60.0;

  if (parts.size() == 3) {
    if (!isNumericToken(parts[2]) || integerValue(parts[2]) > 59) return kOffsetFailure;
    const long extra = integerValue(parts[2]);
    if (extra != 0) text += numtext::format(unitForm, static_cast<unsigned long>(extra));
    seconds += static_cast<double>(extra);
  }
  if (zoneText) *zoneText = text;
  return sign == '-' ? -seconds : seconds;
}

std::optional<Instant> dateWithDateTimeString(std::string_view text) {
  std::string ymd, hms, subsec, zone;
  if (!getDateTimeStrings(text, &ymd, &hms, &subsec, &zone, true, true)) return std::nullopt;
  if (zone.empty() || zone == "Z") zone = "+00:00";

  const bool negative = !ymd.empty() && ymd.front() == '-';
  const auto parts = split(negative ? ymd.substr(1) : ymd, "-:", false);
  long y = 0, m = 1, d = 1;
  if (parts.size() == 3) {
    y = negative ? -integerValue(parts[0]) : integerValue(parts[0]);
    m = integerValue(parts[1]);
    d = integerValue(parts[2]);
  }
  const auto field = [&hms](std::size_t from) {
    return hms.size() >= from + 2 ? integerValue(std::string_view(hms).substr(from, 2)) : 0L;
  };
  long nanosecond = 0;
  if (!subsec.empty()) {
    std::string digits = subsec.size() > 9 ? subsec.substr(9) : subsec;
    digits.resize(std::max<std::size_t>(digits.size(), 9), '0');
    nanosecond = integerValue(digits);
  }
  // The failure marker truncates to 0: GMT.
  const auto offset = static_cast<long>(secondsFromOffsetString(zone, true, nullptr));
  return dateWithY(y, m, d, field(0), field(3), field(6), nanosecond, TimeZone::withSecondsFromGMT(offset));
}

std::optional<std::string> normalizedPasteString(std::string_view text, bool allowedYMDH) {
  std::string ymd, hms, subsec, zone;
  if (!getDateTimeStrings(text, &ymd, &hms, &subsec, &zone, allowedYMDH)) return std::nullopt;
  std::string result = ymd;
  if (!hms.empty()) result += (ymd.empty() ? "" : "T") + hms;
  if (!subsec.empty()) result += "." + subsec;
  return result + zone;
}

}  // namespace DateAdditions
