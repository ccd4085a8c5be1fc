// Date text typed into a date field, normalised to the Exif form.
//
// Must hold: an accepted text becomes exactly "yyyy:MM:dd HH:mm:ss" with a
// year of 0001..9999, and normalising that result gives it back unchanged.
#include <cstdint>
#include <string_view>

#include "FuzzCheck.h"
#include "documents/DateTextRules.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view typed(reinterpret_cast<const char*>(data), size);
  const auto normalized = DateTextRules::normalizedDateTimeString(typed);
  if (!normalized) return 0;
  FUZZ_CHECK(fuzzcheck::isExifDateText(*normalized));
  FUZZ_CHECK(normalized->compare(0, 4, "0000") != 0);
  const auto again = DateTextRules::normalizedDateTimeString(*normalized);
  FUZZ_CHECK(again && *again == *normalized);
  return 0;
}
