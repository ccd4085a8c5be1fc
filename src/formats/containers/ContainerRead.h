#pragma once
// Reading pieces of a file through a RangeReader, clipped to the file.

#include <algorithm>
#include <cstdint>
#include <vector>

#include "core/ByteView.h"
#include "formats/containers/ContainerTypes.h"

namespace lum::containers {

// The most bytes one read asks for: headers, directories and chunk heads
// are far smaller, and bigger payloads are read in pieces.
inline constexpr std::uint64_t kMaxRead = std::uint64_t{1} << 20;

// Bytes [offset, offset + length) clipped to the file and to kMaxRead;
// empty when offset is at or past the end or the read fails.
inline std::vector<std::uint8_t> readClipped(const RangeReader& read, std::uint64_t fileSize, std::uint64_t offset,
                                             std::uint64_t length) {
  if (offset >= fileSize || length == 0) return {};
  length = std::min({length, fileSize - offset, kMaxRead});
  auto bytes = read(offset, length);
  if (!bytes) return {};
  if (bytes->size() > length) bytes->resize(static_cast<std::size_t>(length));
  return std::move(*bytes);
}

inline orb::ByteView viewOf(const std::vector<std::uint8_t>& bytes) {
  return orb::ByteView(bytes.data(), bytes.size());
}

// True when the bytes start with a TIFF header ("II*\0" or "MM\0*").
inline bool startsWithTiffHeader(orb::ByteView bytes) {
  const auto head = bytes.u32(0);
  return head && (*head == 0x49492A00u || *head == 0x4D4D002Au);
}

}  // namespace lum::containers
