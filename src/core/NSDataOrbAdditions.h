#pragma once
// Operations on byte buffers: big-endian numbers in and out, ranges, CRC-32.
//
// Reads are bounded: a number or range that would leave the buffer answers 0
// or nothing. Writers that replace bytes do nothing (and answer false) when
// the bytes would leave the buffer. The buffers carry no lock of their own:
// a buffer shared between threads is guarded by its owner.

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "core/ByteView.h"

struct OrbRange {
  std::uint64_t location = 0;
  std::uint64_t length = 0;
  friend bool operator==(const OrbRange&, const OrbRange&) = default;
};

namespace NSDataOrbAdditions {

std::vector<std::uint8_t> dataWithLength(std::size_t length);
std::vector<std::uint8_t> dataWith1ByteValue(std::uint8_t value);
std::vector<std::uint8_t> dataWith2ByteValue(std::uint16_t value);
std::vector<std::uint8_t> dataWith4ByteValue(std::uint32_t value);
std::vector<std::uint8_t> dataWith8ByteValue(std::uint64_t value);

std::uint8_t uInt8ValueAtLocation(std::span<const std::uint8_t> data, std::uint64_t location);
std::uint16_t uInt16ValueAtLocation(std::span<const std::uint8_t> data, std::uint64_t location);
std::uint32_t uInt32ValueAtLocation(std::span<const std::uint8_t> data, std::uint64_t location);
std::uint64_t uInt64ValueAtLocation(std::span<const std::uint8_t> data, std::uint64_t location);
inline std::uint8_t uInt8Value(std::span<const std::uint8_t> data) { return uInt8ValueAtLocation(data, 0); }
inline std::uint16_t uInt16Value(std::span<const std::uint8_t> data) { return uInt16ValueAtLocation(data, 0); }
inline std::uint32_t uInt32Value(std::span<const std::uint8_t> data) { return uInt32ValueAtLocation(data, 0); }
inline std::uint64_t uInt64Value(std::span<const std::uint8_t> data) { return uInt64ValueAtLocation(data, 0); }

// A copy of the range's bytes; nullopt when the range leaves the buffer.
std::optional<std::vector<std::uint8_t>> readDataWithRange(std::span<const std::uint8_t> data, OrbRange range);

// From the location up to and including the first zero byte (or up to the
// end when none follows); length 0 when the location is at or past the end.
OrbRange rengeUntilNullFromLocation(std::span<const std::uint8_t> data, std::uint64_t location);

// CRC-32 (reflected polynomial 0xEDB88320, start 0xFFFFFFFF, inverted at the
// end); 0 for an empty buffer.
std::uint32_t CRC_32(std::span<const std::uint8_t> data);
// The same, continued over more bytes: the CRC-32 of the earlier bytes
// (0 before any) followed by data, so a long range can be fed in pieces.
std::uint32_t CRC_32Update(std::uint32_t crc, std::span<const std::uint8_t> data);

}  // namespace NSDataOrbAdditions

namespace NSMutableDataOrbAdditions {

void append1ByteValue(std::vector<std::uint8_t>& data, std::uint8_t value);
void append2ByteValue(std::vector<std::uint8_t>& data, std::uint16_t value);
void append4ByteValue(std::vector<std::uint8_t>& data, std::uint32_t value);
void append8ByteValue(std::vector<std::uint8_t>& data, std::uint64_t value);

bool replaceInt8ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint8_t value);
bool replaceInt16ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint16_t value);
bool replaceInt32ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint32_t value);
bool replaceInt64ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint64_t value);

}  // namespace NSMutableDataOrbAdditions
