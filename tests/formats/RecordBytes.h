#pragma once
// Byte-building helpers for the record tests: concatenation, big-endian
// numbers, Photoshop resource blocks and IPTC datasets as writers lay them out.

#include <cstdint>
#include <string>
#include <vector>

namespace recordtest {

using Bytes = std::vector<std::uint8_t>;

inline Bytes operator+(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

inline Bytes be16(std::uint32_t v) { return {static_cast<std::uint8_t>(v >> 8), static_cast<std::uint8_t>(v)}; }
inline Bytes be32(std::uint32_t v) { return be16(v >> 16) + be16(v & 0xFFFF); }
inline Bytes text(const std::string& s) { return Bytes(s.begin(), s.end()); }

// "8BIM", id, name field padded to even, size, data, pad byte after odd data.
inline Bytes block(std::uint16_t id, const std::string& name, const Bytes& data) {
  Bytes out = text("8BIM") + be16(id);
  out.push_back(static_cast<std::uint8_t>(name.size()));
  out = out + text(name);
  if (out.size() % 2) out.push_back(0);
  out = out + be32(static_cast<std::uint32_t>(data.size())) + data;
  if (data.size() % 2) out.push_back(0);
  return out;
}

// A standard IPTC dataset: 0x1C, record, number, 16-bit size, data.
inline Bytes dataSet(std::uint8_t record, std::uint8_t number, const Bytes& data) {
  return Bytes{0x1C, record, number} + be16(static_cast<std::uint32_t>(data.size())) + data;
}

}  // namespace recordtest
