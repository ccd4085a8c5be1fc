// Time-zone offsets typed or stored as text ("+09:00", "-0930", "+9").
//
// Must hold: the answer is a failure mark or whole seconds; an accepted
// offset's normalised text reads back as the same offset.
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "FuzzCheck.h"
#include "datetime/DateAdditions.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const bool withColon = (data[0] & 1) != 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  std::string zone;
  const double seconds = DateAdditions::secondsFromOffsetString(text, withColon, &zone);
  if (seconds == DateAdditions::kOffsetFailure || seconds == DateAdditions::kOffsetRejected) return 0;
  FUZZ_CHECK(std::trunc(seconds) == seconds);
  FUZZ_CHECK(!zone.empty() && (zone.front() == '+' || zone.front() == '-'));
  // "+HHMMSS" has no colon-free reading, so only the colon form and the
  // four-digit form must read back.
  if (withColon || zone.size() == 5) {
    std::string zoneAgain;
    FUZZ_CHECK(DateAdditions::secondsFromOffsetString(zone, withColon, &zoneAgain) == seconds);
    FUZZ_CHECK(zoneAgain == zone);
  }
  return 0;
}
