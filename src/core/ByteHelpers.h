#pragma once
// Big-endian readers and writers over a bounded block.
//
// Each takes an optional in/out position: with a position the access is at
// *pos and the position advances by the width; without one the access is at
// the block's start and nothing advances. A read or write that would leave
// the block does nothing and answers false (the result and position are left
// as they were). Little-endian fields are read with these and then swapped.

#include <cstdint>
#include <span>
#include <vector>

#include "core/ByteView.h"

namespace ByteHelpers {

bool readUInt16BE(orb::ByteView block, std::uint64_t* pos, std::uint16_t* result);
bool readUInt32BE(orb::ByteView block, std::uint64_t* pos, std::uint32_t* result);
bool readUInt64BE(orb::ByteView block, std::uint64_t* pos, std::uint64_t* result);
inline bool readUInt16BE(std::span<const std::uint8_t> block, std::uint64_t* pos, std::uint16_t* result) {
  return readUInt16BE(orb::ByteView(block), pos, result);
}
inline bool readUInt32BE(std::span<const std::uint8_t> block, std::uint64_t* pos, std::uint32_t* result) {
  return readUInt32BE(orb::ByteView(block), pos, result);
}
inline bool readUInt64BE(std::span<const std::uint8_t> block, std::uint64_t* pos, std::uint64_t* result) {
  return readUInt64BE(orb::ByteView(block), pos, result);
}

bool writeUInt16BE(std::span<std::uint8_t> block, std::uint64_t* pos, std::uint16_t value);
bool writeUInt32BE(std::span<std::uint8_t> block, std::uint64_t* pos, std::uint32_t value);
bool writeUInt64BE(std::span<std::uint8_t> block, std::uint64_t* pos, std::uint64_t value);

// A new block of n zero bytes.
std::vector<std::uint8_t> zeroedBlock(std::size_t n);

constexpr std::uint16_t swap16(std::uint16_t v) { return static_cast<std::uint16_t>((v >> 8) | (v << 8)); }
constexpr std::uint32_t swap32(std::uint32_t v) {
  return (v >> 24) | ((v >> 8) & 0xFF00u) | ((v << 8) & 0xFF0000u) | (v << 24);
}
constexpr std::uint64_t swap64(std::uint64_t v) {
  return (static_cast<std::uint64_t>(swap32(static_cast<std::uint32_t>(v))) << 32) | swap32(static_cast<std::uint32_t>(v >> 32));
}

}  // namespace ByteHelpers
