#pragma once
// The Interoperability IFD, reached through tag 0xA005 of the Exif IFD.

#include <array>

#include "core/TagInfo.h"

namespace orb {

inline constexpr auto kInteroperabilityTags = [] {
  return std::array{
      row(0x0001, "Interoperability Index", kOrbTypeASCII, 4),
      row(0x0002, "Interoperability Version", kOrbTypeUndefined, 4),
      row(0x1000, "Related Image File Format", kOrbTypeASCII),
      row(0x1001, "Related Image Width", kOrbTypeLong, 1),
      row(0x1002, "Related Image Length", kOrbTypeLong, 1),
  };
}();
static_assert(sortedByTag(kInteroperabilityTags));

}  // namespace orb
