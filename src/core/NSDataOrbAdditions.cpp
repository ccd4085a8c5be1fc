#include "core/NSDataOrbAdditions.h"

#include <array>
#include <cstring>

#include "core/ByteHelpers.h"

namespace {

template <typename T>
void appendBE(std::vector<std::uint8_t>& data, T value) {
  for (int i = static_cast<int>(sizeof(T)) - 1; i >= 0; --i) data.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

template <typename T>
std::vector<std::uint8_t> bigEndianBytes(T value) {
  std::vector<std::uint8_t> data;
  appendBE(data, value);
  return data;
}

const std::array<std::uint32_t, 256>& crcTable() {
  static const std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> t{};
    for (std::uint32_t n = 0; n < 256; ++n) {
      std::uint32_t c = n;
      for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[n] = c;
    }
    return t;
  }();
  return table;
}

}  // namespace

namespace NSDataOrbAdditions {

std::vector<std::uint8_t> dataWithLength(std::size_t length) { return ByteHelpers::zeroedBlock(length); }
std::vector<std::uint8_t> dataWith1ByteValue(std::uint8_t value) { return bigEndianBytes(value); }
std::vector<std::uint8_t> dataWith2ByteValue(std::uint16_t value) { return bigEndianBytes(value); }
std::vector<std::uint8_t> dataWith4ByteValue(std::uint32_t value) { return bigEndianBytes(value); }
std::vector<std::uint8_t> dataWith8ByteValue(std::uint64_t value) { return bigEndianBytes(value); }

std::uint8_t uInt8ValueAtLocation(std::span<const std::uint8_t> bytes, std::uint64_t location) {
  return orb::ByteView(bytes).u8(location).value_or(0);
}
std::uint16_t uInt16ValueAtLocation(std::span<const std::uint8_t> bytes, std::uint64_t location) {
  return orb::ByteView(bytes).u16(location).value_or(0);
}
std::uint32_t uInt32ValueAtLocation(std::span<const std::uint8_t> bytes, std::uint64_t location) {
  return orb::ByteView(bytes).u32(location).value_or(0);
}
std::uint64_t uInt64ValueAtLocation(std::span<const std::uint8_t> bytes, std::uint64_t location) {
  return orb::ByteView(bytes).u64(location).value_or(0);
}

std::optional<std::vector<std::uint8_t>> readDataWithRange(std::span<const std::uint8_t> bytes, OrbRange range) {
  const auto range_ = orb::ByteView(bytes).bytes(range.location, range.length);
  if (!range_) return std::nullopt;
  return std::vector<std::uint8_t>(range_->begin(), range_->end());
}

OrbRange rengeUntilNullFromLocation(std::span<const std::uint8_t> bytes, std::uint64_t location) {
  if (location >= bytes.size()) return {location, 0};
  const orb::ByteView rest = orb::ByteView(bytes).tail(location);
  const void* zero = std::memchr(rest.data(), 0, rest.size());
  const std::uint64_t length =
      zero ? static_cast<std::uint64_t>(static_cast<const std::uint8_t*>(zero) - rest.data()) + 1 : rest.size();
  return {location, length};
}

std::uint32_t CRC_32(std::span<const std::uint8_t> bytes) { return CRC_32Update(0, bytes); }

std::uint32_t CRC_32Update(std::uint32_t crc, std::span<const std::uint8_t> bytes) {
  const auto& table = crcTable();
  crc ^= 0xFFFFFFFFu;
  for (std::uint8_t b : bytes) crc = table[(crc ^ b) & 0xFF] ^ (crc >> 8);
  return crc ^ 0xFFFFFFFFu;
}

}  // namespace NSDataOrbAdditions

namespace NSMutableDataOrbAdditions {

void append1ByteValue(std::vector<std::uint8_t>& data, std::uint8_t value) { appendBE(data, value); }
void append2ByteValue(std::vector<std::uint8_t>& data, std::uint16_t value) { appendBE(data, value); }
void append4ByteValue(std::vector<std::uint8_t>& data, std::uint32_t value) { appendBE(data, value); }
void append8ByteValue(std::vector<std::uint8_t>& data, std::uint64_t value) { appendBE(data, value); }

bool replaceInt8ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint8_t value) {
  if (location >= data.size()) return false;
  data[location] = value;
  return true;
}
bool replaceInt16ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint16_t value) {
  return ByteHelpers::writeUInt16BE(data, &location, value);
}
bool replaceInt32ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint32_t value) {
  return ByteHelpers::writeUInt32BE(data, &location, value);
}
bool replaceInt64ValueAtLocation(std::span<std::uint8_t> data, std::uint64_t location, std::uint64_t value) {
  return ByteHelpers::writeUInt64BE(data, &location, value);
}

}  // namespace NSMutableDataOrbAdditions
