#pragma once
// Entries built the way a parse builds them, for the catalogue's tests.

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "core/OrbIFDEntry.h"

namespace cattest {

// An entry of any type whose value is the given bytes (inline up to 4).
inline OrbIFDEntry withBytes(std::int8_t endian, std::uint16_t tag, std::uint32_t ifdID, std::uint16_t type,
                             std::uint32_t count, std::vector<std::uint8_t> bytes) {
  auto entry = OrbIFDEntry::initWithEndian(endian, tag, ifdID);
  entry->setType(type);
  entry->setDataCount(count);
  if (bytes.size() > 4) return entry->setValue(bytes), *entry;
  bytes.resize(4, 0);
  entry->setDataPtr(bytes);
  return *entry;
}

// A RATIONAL entry of the tag holding the given numerator/denominator pairs.
inline OrbIFDEntry rationals(std::int8_t endian, std::uint16_t tag, std::uint32_t ifdID,
                             std::initializer_list<std::uint32_t> numbers) {
  std::vector<std::uint8_t> bytes;
  for (const std::uint32_t n : numbers)
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<std::uint8_t>(n >> (endian == kOrbLittleEndian ? 8 * i : 24 - 8 * i)));
  return withBytes(endian, tag, ifdID, kOrbTypeRational, static_cast<std::uint32_t>(numbers.size() / 2), bytes);
}

// A SHORT entry with one or two values in its data field.
inline OrbIFDEntry shorts(std::int8_t endian, std::uint16_t tag, std::uint32_t ifdID, std::uint16_t first,
                          std::optional<std::uint16_t> second = std::nullopt, std::uint32_t version = 0) {
  auto entry = OrbIFDEntry::initWithEndian(endian, tag, ifdID);
  entry->setType(kOrbTypeShort);
  entry->setDataCount(second ? 2 : 1);
  entry->setDataShort1(first);
  if (second) entry->setDataShort2(*second);
  entry->setVersion(version);
  return *entry;
}

inline OrbIFDEntry text(std::int8_t endian, std::uint16_t tag, std::uint32_t ifdID, std::string_view text) {
  auto entry = OrbIFDEntry::initWithEndian(endian, tag, ifdID);
  entry->setASCIIString(text);
  return *entry;
}

}  // namespace cattest
