// The position of the image from its GPS entries.

#include <array>

#include "core/OrbTiff.h"

namespace {

constexpr std::array<std::uint16_t, 4> kPositionTags{1, 2, 3, 4};
constexpr std::array<std::uint16_t, 4> kDestinationTags{19, 20, 21, 22};

// Latitude and longitude with their reference letters applied: only an
// upper-case "S" or "W" makes a value negative.
OrbLocationCoordinate signedPosition(const std::vector<const OrbIFDEntry*>& e, std::string latRef,
                                     std::string lonRef) {
  const double latitude = e[1]->GPSDegree();
  const double longitude = e[3]->GPSDegree();
  return {latRef == "S" ? -latitude : latitude, lonRef == "W" ? -longitude : longitude};
}

}  // namespace

OrbLocationCoordinate OrbTiff::gpsLocationCoordinate(bool destination) const {
  const auto& tags = destination ? kDestinationTags : kPositionTags;
  const auto e = entriesWithIFDTags(tags, kGPSIFDID);
  if (e.size() != tags.size()) return kOrbLocationCoordinateInvalid;
  return signedPosition(e, e[0]->stringData(), e[2]->stringData());
}

bool OrbTiff::getLatitude(double* latitude, double* longitude) const {
  if (!latitude || !longitude) return false;
  const auto e = entriesWithIFDTags(kPositionTags, kGPSIFDID);
  if (e.size() != kPositionTags.size()) return false;
  const OrbLocationCoordinate c = signedPosition(e, e[0]->dataObject().text(), e[2]->dataObject().text());
  *latitude = c.latitude;
  *longitude = c.longitude;
  return true;
}
