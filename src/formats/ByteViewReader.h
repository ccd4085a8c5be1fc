#pragma once
// A RangeReader over bytes already in memory, for scanning them with the
// container scan. The bytes must outlive the reader.

#include <algorithm>
#include <vector>

#include "core/ByteView.h"
#include "formats/containers/ContainerTypes.h"

namespace lum {

inline RangeReader readerOver(orb::ByteView bytes) {
  return [bytes](std::uint64_t offset, std::uint64_t length) -> std::optional<std::vector<std::uint8_t>> {
    if (offset > bytes.size()) return std::nullopt;
    const auto piece = bytes.sub(offset, std::min<std::uint64_t>(length, bytes.size() - offset));
    if (!piece) return std::nullopt;
    return std::vector<std::uint8_t>(piece->data(), piece->data() + piece->size());
  };
}

}  // namespace lum
