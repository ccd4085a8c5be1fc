// The GPS presentation of the inspector: a GPS value is shown together with
// the reference entry that gives its direction.

#include "core/FixedNumberFormat.h"
#include "core/Localization.h"
#include "core/LocalizationKeys.h"
#include "core/OrbTiff.h"
#include "formats/inspector/LumInfoDataSource.h"

namespace {

std::string referenceLetter(const OrbTiff& tiff, std::uint16_t refTag) {
  const OrbIFDEntry* ref = tiff.entryWithIFDTag(refTag, kGPSIFDID);
  return ref ? ref->stringData() : std::string();
}

// 35° 30' 0.00" N (35.5): the reference letter "S" or "W" makes the decimal negative.
std::string positionText(const OrbIFDEntry& e, const OrbTiff& tiff, std::uint16_t refTag, const char* negative) {
  const std::string dms = e.stringData();
  const std::string letter = referenceLetter(tiff, refTag);
  const double degrees = e.GPSDegree();
  const double signedDegrees = letter == negative ? -degrees : degrees;
  std::string text = dms;
  if (!letter.empty()) text += " " + letter;
  return text + " (" + orb::formatShortDecimal(signedDegrees, 7) + ")";
}

std::string altitudeText(const OrbIFDEntry& e, const OrbTiff& tiff) {
  std::string text = e.stringData();
  const OrbIFDEntry* ref = tiff.entryWithIFDTag(5, kGPSIFDID);
  const auto bytes = ref ? ref->valueBytes() : std::span<const std::uint8_t>();
  if (bytes.empty() || bytes[0] > 1) return text;
  const std::string_view side = bytes[0] == 0 ? Localization::keys::kAboveSeaLevel : Localization::keys::kBelowSeaLevel;
  return text + " " + Localization::localizedString(Localization::kIFDTable, side);
}

bool isPositionValue(const OrbIFDEntry& e) { return e.type() == kOrbTypeRational && e.dataCount() == 3; }

}  // namespace

std::string LumInfoDataSource::pGPSObjectValueForTableColumn(std::string_view columnIdentifier,
                                                             const OrbIFDEntry& entory, const OrbTiff& tiff) {
  if (columnIdentifier != kValueColumn) return {};
  switch (entory.ifdTag()) {
    case 2: if (isPositionValue(entory)) return positionText(entory, tiff, 1, "S"); break;
    case 4: if (isPositionValue(entory)) return positionText(entory, tiff, 3, "W"); break;
    case 20: if (isPositionValue(entory)) return positionText(entory, tiff, 19, "S"); break;
    case 22: if (isPositionValue(entory)) return positionText(entory, tiff, 21, "W"); break;
    case 6: if (entory.type() == kOrbTypeRational) return altitudeText(entory, tiff); break;
    default: break;
  }
  return entory.localizedDataObject().stringValue();
}
