#pragma once
// The items of a "meta" box: which item holds the Exif ("iinf") and where
// its bytes lie in the file ("iloc", with "idat" for items stored inside the
// meta box).

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "formats/containers/IsoBmffBoxes.h"

namespace lum::isobmff {

// File range of an item's bytes.
struct ItemRange {
  std::uint64_t offset = 0;
  std::uint64_t length = 0;
};

// The bytes of the first Exif item of the meta box, or why they cannot be
// found. `meta` is a full box; fileSize bounds every range.
std::variant<ItemRange, std::string> exifItemRange(const RangeReader& read, const Box& meta, std::uint64_t fileSize);

}  // namespace lum::isobmff
