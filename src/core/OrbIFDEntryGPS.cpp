// GPS positions and times of day read from OrbIFDEntry values.

#include <array>
#include <cmath>

#include "core/FixedNumberFormat.h"
#include "core/GPSMath.h"
#include "core/OrbIFDEntry.h"

namespace {

constexpr std::uint16_t kGPSTimeStampTag = 7;

bool isGPSPosition(const OrbIFDEntry& e) {
  if (e.ifdID() != kGPSIFDID) return false;
  const std::uint16_t tag = e.ifdTag();
  return tag == 2 || tag == 4 || tag == 20 || tag == 22;
}

bool isLatitude(std::uint16_t tag) { return tag == 2 || tag == 20; }

orb::gps::Triple rationals(const OrbIFDEntry& e) {
  orb::gps::Triple r;
  for (std::uint32_t i = 0; i < 3; ++i) r[i] = {e.unsignedIntAtIndex(2 * i), e.unsignedIntAtIndex(2 * i + 1)};
  return r;
}

}  // namespace

void OrbIFDEntry::getGPSDegree(std::uint32_t* degrees, double* decimal) const {
  if (!isGPSPosition(*this)) return;
  const double limit = isLatitude(ifdTag()) ? 324000 : 648000;
  const auto split = orb::gps::splitDegrees(rationals(*this), limit);
  if (!split) return;
  if (degrees) *degrees = split->degrees;
  if (decimal) *decimal = split->fraction;
}

double OrbIFDEntry::GPSDegree() const {
  return isGPSPosition(*this) ? orb::gps::decimalDegrees(rationals(*this)) : 0;
}

double OrbIFDEntry::GPSTimeStamp() const {
  if (ifdID() != kGPSIFDID || ifdTag() != kGPSTimeStampTag || dataCount() != 3) return 0;
  return orb::gps::totalSeconds(rationals(*this));
}

void OrbIFDEntry::GPSGetTimeStampHour(std::string* hour, std::string* minute, std::string* second) const {
  const double t = GPSTimeStamp();
  const double h = static_cast<double>(orb::truncatedUInt64(t / 3600));
  const double m = static_cast<double>(orb::truncatedUInt64((std::floor(t) - h * 3600) / 60));
  if (hour) *hour = orb::formatFixed(h, 2, 0);
  if (minute) *minute = orb::formatFixed(m, 2, 0);
  if (second) *second = orb::formatFixed(t - h * 3600 - m * 60, 2, 2);
}

void OrbIFDEntry::setGPSAltitudeRef(std::uint8_t value) {
  if (value >= 4) return;
  const std::array<std::uint8_t, 4> bytes{value, 0, 0, 0};
  setDataPtr(bytes);
}

bool OrbIFDEntry::isEqualToEntryByGPSDegree(const OrbIFDEntry& other) const {
  if (!isGPSPosition(*this)) return isEqualToEntry(other);
  if (endian() != other.endian() || ifdID() != other.ifdID() || ifdTag() != other.ifdTag() ||
      type() != other.type() || dataCount() != other.dataCount() || byteCount() != other.byteCount() ||
      byteCount() < 5)
    return false;
  return orb::formatFixed(GPSDegree(), 1, 10) == orb::formatFixed(other.GPSDegree(), 1, 10);
}
