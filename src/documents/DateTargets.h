#pragma once
// The three dates a document edits, in their fixed order, with where each
// lives in the file, its key in a date set, its target-mask bit and its
// table column.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace DateTargets {

enum Index : int { Original = 0, Digitized = 1, Edited = 2 };
inline constexpr int kCount = 3;

struct Target {
  Index index;
  std::uint16_t tag;
  std::uint32_t ifdID;
  std::string_view setKey;  // key in a date set
  std::string_view column;  // table column identifier
  unsigned maskBit;         // bit of the edit-target mask
};

inline constexpr std::array<Target, kCount> kTargets{{
    {Original, 0x9003, 0x20000, "LumDateTimeOriginalKey", "DateTimeOriginal", 1},
    {Digitized, 0x9004, 0x20000, "LumDateTimeDigitizedKey", "DateTimeDigitized", 2},
    {Edited, 0x0132, 0x10000, "LumDateTimeEditedKey", "DateTime", 4},
}};

inline constexpr unsigned kAllMask = 7;

// The target whose column identifier is `column`, or nullopt.
constexpr std::optional<Target> targetForColumn(std::string_view column) {
  for (const Target& t : kTargets)
    if (t.column == column) return t;
  return std::nullopt;
}

// One optional text per date, in target order.
using Texts = std::array<std::optional<std::string>, kCount>;

}  // namespace DateTargets
