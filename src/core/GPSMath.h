#pragma once
// GPS angles and times of day from their three rationals (degrees or hours,
// minutes, seconds). A rational with a zero denominator counts as absent.

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "core/IFDItemID.h"

namespace orb::gps {

using Triple = std::array<OrbRational, 3>;

// Seconds (of arc, or of the day) that the three rationals stand for.
double totalSeconds(const Triple& r);

// Decimal degrees, with no limit applied.
double decimalDegrees(const Triple& r);

struct WholeDegrees {
  std::uint32_t degrees;
  double fraction;  // of a degree, in [0, 1)
};
// Whole degrees and their fraction, or nullopt when the angle exceeds
// `limitSeconds` (324000 for a latitude, 648000 for a longitude).
std::optional<WholeDegrees> splitDegrees(const Triple& r, double limitSeconds);

// Degrees, minutes and seconds of an angle, without its sign:
// 35.5 is 35° 30' 0.00".
std::string degreesMinutesSeconds(double degrees);

}  // namespace orb::gps
