#include "core/ByteHelpers.h"

namespace ByteHelpers {
namespace {

template <typename T>
bool readBE(orb::ByteView block, std::uint64_t* pos, T* result) {
  if (!result) return false;
  const std::uint64_t at = pos ? *pos : 0;
  std::optional<T> value;
  if constexpr (sizeof(T) == 2) value = block.u16(at);
  else if constexpr (sizeof(T) == 4) value = block.u32(at);
  else value = block.u64(at);
  if (!value) return false;
  *result = *value;
  if (pos) *pos += sizeof(T);
  return true;
}

template <typename T>
bool writeBE(std::span<std::uint8_t> block, std::uint64_t* pos, T value) {
  const std::uint64_t at = pos ? *pos : 0;
  if (at > block.size() || sizeof(T) > block.size() - at) return false;
  for (std::size_t i = 0; i < sizeof(T); ++i)
    block[at + i] = static_cast<std::uint8_t>(value >> (8 * (sizeof(T) - 1 - i)));
  if (pos) *pos += sizeof(T);
  return true;
}

}  // namespace

bool readUInt16BE(orb::ByteView block, std::uint64_t* pos, std::uint16_t* result) { return readBE(block, pos, result); }
bool readUInt32BE(orb::ByteView block, std::uint64_t* pos, std::uint32_t* result) { return readBE(block, pos, result); }
bool readUInt64BE(orb::ByteView block, std::uint64_t* pos, std::uint64_t* result) { return readBE(block, pos, result); }

bool writeUInt16BE(std::span<std::uint8_t> block, std::uint64_t* pos, std::uint16_t value) { return writeBE(block, pos, value); }
bool writeUInt32BE(std::span<std::uint8_t> block, std::uint64_t* pos, std::uint32_t value) { return writeBE(block, pos, value); }
bool writeUInt64BE(std::span<std::uint8_t> block, std::uint64_t* pos, std::uint64_t value) { return writeBE(block, pos, value); }

std::vector<std::uint8_t> zeroedBlock(std::size_t n) { return std::vector<std::uint8_t>(n, 0); }

}  // namespace ByteHelpers
