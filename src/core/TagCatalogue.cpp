#include "core/TagCatalogue.h"

#include <cstdio>

#include "core/Localization.h"
#include "core/LocalizationKeys.h"
#include "core/TagTableExif.h"
#include "core/TagTableGPS.h"
#include "core/TagTableInteroperability.h"
#include "core/TagTableTiff.h"

namespace orb::catalogue {

namespace {

constexpr std::uint16_t kISOSpeedRatings = 0x8827;
constexpr std::uint16_t kLightSource = 37384;

bool inRange(std::uint16_t tag, std::uint16_t first, std::uint16_t last) { return tag >= first && tag <= last; }

// Exif tags that need a newer file than 2.2: (first tag, last tag, version).
struct VersionRange {
  std::uint16_t first, last;
  std::uint32_t needs;
};
constexpr VersionRange kExifVersionRanges[] = {
    {42038, 42044, 300}, {42032, 42037, 230}, {42080, 42082, 232}, {37888, 37893, 231},
    {42240, 42240, 221}, {34864, 34869, 230}, {36880, 36882, 231},
};

bool lightSourceCompatible(std::uint32_t version, std::int64_t value) {
  if (version >= 220) return !(value == 16 && version < 230);
  // Before 2.2 the fluorescent family (and code 4, flash) had other meanings.
  return !(value == 4 || (value >= 9 && value <= 16));
}

}  // namespace

std::span<const TagInfo> tableForIFD(std::uint32_t ifdID) {
  switch (ifdID) {
    case kTIFFIFDID: return kTiffTags;
    case kExifIFDID: return kExifTags;
    case kInteroperabilityIFDID: return kInteroperabilityTags;
    case kGPSIFDID: return kGPSTags;
    default: return {};
  }
}

std::optional<TagInfo> tagInfo(std::uint16_t tag, std::uint32_t ifdID) { return findTag(tableForIFD(ifdID), tag); }

std::string titleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version) {
  if (ifdID == kExifIFDID && tag == kISOSpeedRatings)
    return std::string(version >= 230 ? Localization::keys::kPhotographicSensitivity : "ISO Speed Ratings");
  if (const auto info = tagInfo(tag, ifdID)) return std::string(info->title);
  char text[16];
  std::snprintf(text, sizeof text, "(0x%X)", static_cast<unsigned>(tag));
  return text;
}

std::string localizedTitleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version) {
  return Localization::localizedString(Localization::kIFDTable, titleWithTag(tag, ifdID, version));
}

std::uint16_t typeWithIFDTag(std::uint16_t tag, std::uint32_t ifdID) {
  const auto info = tagInfo(tag, ifdID);
  return info ? info->type : kNoExpectedType;
}

std::uint32_t availableVersionWithIFDTag(std::uint16_t tag, std::uint32_t ifdID) {
  if (ifdID != kExifIFDID && ifdID != kGPSIFDID) return 0;
  const auto info = tagInfo(tag, ifdID);
  return info ? info->version : 0;
}

bool isCompatibleWithVersion(std::uint32_t version, std::uint16_t tag, std::uint32_t ifdID,
                             std::optional<std::int64_t> lightSource) {
  if (ifdID == kGPSIFDID) {
    if (inRange(tag, 27, 30)) return version >= 2200;
    if (tag == 31) return version >= 2300;
    return true;
  }
  if (ifdID != kExifIFDID) return true;
  for (const VersionRange& r : kExifVersionRanges)
    if (inRange(tag, r.first, r.last)) return version >= r.needs;
  if (tag == kLightSource && lightSource) return lightSourceCompatible(version, *lightSource);
  return true;
}

bool isCorrectTag(std::uint16_t tag, std::uint32_t ifdID) {
  const bool typedInTiff = typeWithIFDTag(tag, kTIFFIFDID) != kNoExpectedType;
  const bool typedInExif = typeWithIFDTag(tag, kExifIFDID) != kNoExpectedType;
  if (ifdID == kExifIFDID) return typedInExif || !typedInTiff;
  if (ifdID == kTIFFIFDID) return typedInTiff || !typedInExif;
  return true;
}

bool isLegalExifImageUniqueID(std::optional<std::string_view> text, LumError* error) {
  if (!text) return false;
  bool legal = text->size() == 32;
  for (const char c : *text)
    legal = legal && ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'));
  if (!legal && error) *error = LumError{kOrbStringNumberErrorDomain, -4, {}};
  return legal;
}

}  // namespace orb::catalogue
