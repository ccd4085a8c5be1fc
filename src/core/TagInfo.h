#pragma once
// One row of the tag catalogue, and the generic lookup over a table of rows.
//
// Every IFD has its own constexpr table (TagTableTiff.h, TagTableExif.h, ...),
// sorted by tag so that one binary search serves them all. A table is pure
// data: the rules that read it live in TagCatalogue.cpp.

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/IFDItemID.h"
#include "core/OrbIFDEntry.h"

namespace orb {

// The catalogue's "no expected type".
inline constexpr std::uint16_t kNoExpectedType = 0;

// What a newly made entry of the tag gets as its count.
enum class DefaultCount : std::uint8_t {
  Leave,      // the count stays 0
  Count,      // TagInfo::count
  EmptyText,  // an empty ASCII text (type ASCII, count 0, no value)
};

struct TagInfo {
  std::uint16_t tag = 0;
  std::string_view title;
  std::uint16_t type = kNoExpectedType;
  DefaultCount setup = DefaultCount::Leave;
  std::uint32_t count = 0;
  std::uint32_t version = 0;  // Exif 220 = 2.2, GPS 2200 = 2.2.0.0; 0 elsewhere
};

// Shorthands that keep the tables one row per line.
constexpr TagInfo row(std::uint16_t tag, std::string_view title, std::uint16_t type = kNoExpectedType,
                      std::uint32_t count = 0, std::uint32_t version = 0) {
  return {tag, title, type, count ? DefaultCount::Count : DefaultCount::Leave, count, version};
}
constexpr TagInfo textRow(std::uint16_t tag, std::string_view title) {
  return {tag, title, kOrbTypeASCII, DefaultCount::EmptyText, 0, 0};
}

constexpr bool sortedByTag(std::span<const TagInfo> table) {
  return std::is_sorted(table.begin(), table.end(),
                        [](const TagInfo& a, const TagInfo& b) { return a.tag < b.tag; }) &&
         std::adjacent_find(table.begin(), table.end(),
                            [](const TagInfo& a, const TagInfo& b) { return a.tag == b.tag; }) == table.end();
}

// The row of `tag` in a table sorted by tag, or nullopt.
constexpr std::optional<TagInfo> findTag(std::span<const TagInfo> table, std::uint16_t tag) {
  const auto it = std::lower_bound(table.begin(), table.end(), tag,
                                   [](const TagInfo& info, std::uint16_t t) { return info.tag < t; });
  if (it == table.end() || it->tag != tag) return std::nullopt;
  return *it;
}

}  // namespace orb
