// OrbIFDEntry's class operations over the tag catalogue, the per-IFD set-up
// of new entries and the version rules of an entry.

#include "core/FixedNumberFormat.h"
#include "core/OrbIFDEntry.h"
#include "core/TagCatalogue.h"

namespace cat = orb::catalogue;

namespace {
constexpr std::uint16_t kLightSourceTag = 37384;
constexpr std::uint16_t kExifVersionTag = 0x9000;
constexpr std::uint16_t kGPSVersionIDTag = 0;
constexpr std::uint32_t kUTF8FromVersion = 300;
}  // namespace

std::string OrbIFDEntry::titleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version) {
  return cat::titleWithTag(tag, ifdID, version);
}

std::string OrbIFDEntry::localizedTitleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version) {
  return cat::localizedTitleWithTag(tag, ifdID, version);
}

std::string OrbIFDEntry::titleWithTag(std::uint16_t tag, std::uint32_t ifdID) const {
  return cat::titleWithTag(tag, ifdID, version());
}

std::uint16_t OrbIFDEntry::typeWithIFDTag(std::uint16_t tag, std::uint32_t ifdID) {
  return cat::typeWithIFDTag(tag, ifdID);
}

std::uint32_t OrbIFDEntry::availableVersionWithIFDTag(std::uint16_t tag, std::uint32_t ifdID) {
  return cat::availableVersionWithIFDTag(tag, ifdID);
}

bool OrbIFDEntry::isCompatibleWithVersion(std::uint32_t version, std::uint16_t tag, std::uint32_t ifdID,
                                          std::optional<std::int64_t> dataValue) {
  return cat::isCompatibleWithVersion(version, tag, ifdID, dataValue);
}

bool OrbIFDEntry::isCompatibleWithVersion(std::uint32_t v) const {
  const bool utf8TooEarly = v < kUTF8FromVersion && type() == kOrbTypeUTF8;
  if (ifdID() == kExifIFDID && ifdTag() == kLightSourceTag)
    return !utf8TooEarly && cat::isCompatibleWithVersion(v, ifdTag(), ifdID(), shortData1());
  // A version entry is compatible when its own version reaches v.
  if (ifdID() == kExifIFDID && ifdTag() == kExifVersionTag) {
    const float number = orb::leadingFloat(stringData()) * 100.0f;
    if (orb::truncatedUInt64(number) < v) return false;
  } else if (ifdID() == kGPSIFDID && ifdTag() == kGPSVersionIDTag) {
    const float number = orb::leadingFloat(stringData()) * 1000.0f;
    if (orb::truncatedUInt64(number) < v) return false;
  }
  return !utf8TooEarly && cat::isCompatibleWithVersion(v, ifdTag(), ifdID(), std::nullopt);
}

bool OrbIFDEntry::isCorrectTag(std::uint16_t tag, std::uint32_t ifdID) { return cat::isCorrectTag(tag, ifdID); }

bool OrbIFDEntry::isLegalExifImageUniqueID(std::optional<std::string_view> text, LumError* error) {
  return cat::isLegalExifImageUniqueID(text, error);
}
