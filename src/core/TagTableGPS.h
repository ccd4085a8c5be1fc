#pragma once
// The GPS IFD with the GPS version that introduced each tag
// (2000 = 2.0.0.0, 2200 = 2.2.0.0, 2300 = 2.3.0.0).

#include <array>

#include "core/TagInfo.h"

namespace orb {

inline constexpr auto kGPSTags = [] {
  return std::array{
      row(0, "GPS Version", kOrbTypeByte, 4, 2000),
      row(1, "GPS Latitude Reference", kOrbTypeASCII, 2, 2000),
      row(2, "GPS Latitude", kOrbTypeRational, 3, 2000),
      row(3, "GPS Longitude Reference", kOrbTypeASCII, 2, 2000),
      row(4, "GPS Longitude", kOrbTypeRational, 3, 2000),
      row(5, "GPS Altitude Reference", kOrbTypeByte, 1, 2000),
      row(6, "GPS Altitude", kOrbTypeRational, 1, 2000),
      row(7, "GPS Time Stamp", kOrbTypeRational, 3, 2000),
      row(8, "GPS Satellites", kOrbTypeASCII, 0, 2000),
      row(9, "GPS Status", kOrbTypeASCII, 2, 2000),
      row(10, "GPS Measure Mode", kOrbTypeASCII, 2, 2000),
      row(11, "GPS DOP", kOrbTypeRational, 1, 2000),
      row(12, "GPS Speed Reference", kOrbTypeASCII, 2, 2000),
      row(13, "GPS Speed", kOrbTypeRational, 1, 2000),
      row(14, "GPS Track Reference", kOrbTypeASCII, 2, 2000),
      row(15, "GPS Track", kOrbTypeRational, 1, 2000),
      row(16, "GPS Image Direction Reference", kOrbTypeASCII, 2, 2000),
      row(17, "GPS Image Direction", kOrbTypeRational, 1, 2000),
      row(18, "GPS Map Datum", kOrbTypeASCII, 0, 2000),
      row(19, "GPS Destination Latitude Reference", kOrbTypeASCII, 2, 2000),
      row(20, "GPS Destination Latitude", kOrbTypeRational, 3, 2000),
      row(21, "GPS Destination Longitude Reference", kOrbTypeASCII, 2, 2000),
      row(22, "GPS Destination Longitude", kOrbTypeRational, 3, 2000),
      row(23, "GPS Destination Bearing Reference", kOrbTypeASCII, 2, 2000),
      row(24, "GPS Destination Bearing", kOrbTypeRational, 1, 2000),
      row(25, "GPS Destination Distance Reference", kOrbTypeASCII, 2, 2000),
      row(26, "GPS Destination Distance", kOrbTypeRational, 1, 2000),
      row(27, "GPS Processing Method", kOrbTypeUndefined, 0, 2200),
      row(28, "GPS Area Information", kOrbTypeUndefined, 0, 2200),
      row(29, "GPS Date Stamp", kOrbTypeASCII, 11, 2200),
      row(30, "GPS Differential", kOrbTypeShort, 1, 2200),
      row(31, "GPS HPositioning Error", kOrbTypeRational, 1, 2300),
  };
}();
static_assert(sortedByTag(kGPSTags));

}  // namespace orb
