// Date-time text as users type it and files store it.
//
// Must hold: an accepted text splits into parts of the documented shapes; a
// text that becomes an instant between years 1 and 9999 formats to the
// 19-character Exif form, and that form reads back as the same second.
#include <cstdint>
#include <string>
#include <string_view>

#include "FuzzCheck.h"
#include "datetime/DateAdditions.h"

namespace {

// 0001-01-01 00:00:00 and 9999-12-31 23:59:59 UTC.
constexpr std::int64_t kFirstSecond = -62'135'596'800;
constexpr std::int64_t kLastSecond = 253'402'300'799;

bool isTimeText(std::string_view hms) {
  if (hms.empty()) return true;
  if (hms.size() != 2 && hms.size() != 5 && hms.size() != 8) return false;
  for (std::size_t i = 0; i < hms.size(); ++i)
    if ((i % 3 == 2) ? hms[i] != ':' : !fuzzcheck::allDigits(hms.substr(i, 1))) return false;
  return true;
}

bool isDateText(std::string_view ymd) {
  if (!ymd.empty() && ymd.front() == '-') ymd.remove_prefix(1);
  if (ymd.size() < 4) return false;
  for (const char c : ymd)
    if (c != '-' && (c < '0' || c > '9')) return false;
  return true;
}

bool isZoneText(std::string_view zone) {
  if (zone.empty() || zone == "Z") return true;
  if (zone.front() != '+' && zone.front() != '-') return false;
  for (const char c : zone.substr(1))
    if (c != ':' && (c < '0' || c > '9')) return false;
  return true;
}

void checkSplit(std::string_view text, bool withColon, bool allowedYMDH) {
  std::string ymd, hms, subsec, zone;
  if (!DateAdditions::getDateTimeStrings(text, &ymd, &hms, &subsec, &zone, withColon, allowedYMDH)) return;
  FUZZ_CHECK(isDateText(ymd));
  FUZZ_CHECK(isTimeText(hms));
  FUZZ_CHECK(subsec.size() <= 3 && fuzzcheck::allDigits(subsec));
  FUZZ_CHECK(isZoneText(zone));
  // Asking for fewer outputs must not change the answer.
  FUZZ_CHECK(DateAdditions::getDateTimeStrings(text, nullptr, nullptr, nullptr, nullptr, withColon, allowedYMDH));
}

void checkInstant(std::string_view text) {
  const auto instant = DateAdditions::dateWithDateTimeString(text);
  if (!instant) return;
  FUZZ_CHECK(instant->nanoseconds >= 0 && instant->nanoseconds <= 999'999'999);
  if (instant->seconds < kFirstSecond || instant->seconds > kLastSecond) return;
  const std::string exif = DateAdditions::tiffDateString(*instant);
  FUZZ_CHECK(fuzzcheck::isExifDateText(exif));
  const auto again = DateAdditions::dateWithDateTimeString(exif);
  FUZZ_CHECK(again && again->seconds == instant->seconds);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  // The first byte picks the parser's options; the rest is the text.
  const std::uint8_t options = data[0];
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  checkSplit(text, (options & 1) != 0, (options & 2) != 0);
  checkInstant(text);
  return 0;
}
