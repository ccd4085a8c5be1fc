#pragma once
// A position on the earth in decimal degrees, south and west negative.

#include <cmath>

struct OrbLocationCoordinate {
  double latitude = 0;
  double longitude = 0;

  friend bool operator==(const OrbLocationCoordinate&, const OrbLocationCoordinate&) = default;
};

// "No position": no latitude is -180 degrees, so this pair never stands for
// a place that a file can hold within the ranges below.
inline constexpr OrbLocationCoordinate kOrbLocationCoordinateInvalid{-180.0, -180.0};

// True for a latitude within [-90, 90] and a longitude within [-180, 180].
inline bool isValidLocationCoordinate(const OrbLocationCoordinate& c) {
  return std::fabs(c.latitude) <= 90.0 && std::fabs(c.longitude) <= 180.0;
}
