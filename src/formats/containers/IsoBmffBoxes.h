#pragma once
// Reading the boxes of an ISO base media file through a RangeReader: each
// box's header (32-bit, 64-bit and to-the-end sizes, "uuid" user types) and
// the list of boxes inside a range. Every size is checked against the
// enclosing range before it is believed. A list walk only moves forward
// (every box is at least its header long) and the locators descend a fixed
// number of levels, so no box is read twice and no walk can loop.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ByteView.h"
#include "formats/containers/ContainerTypes.h"

namespace lum::isobmff {

struct Box {
  std::string type;            // the four type characters
  std::uint64_t start = 0;     // file offset of the size field
  std::uint64_t payload = 0;   // file offset of the contents (past size, type, large size, user type)
  std::uint64_t end = 0;       // one past the last byte; never past the enclosing range
  std::array<std::uint8_t, 16> userType{};  // "uuid" boxes only
};

// The box whose header starts at `at`, or nullopt when its header does not
// fit before `limit` or its size is impossible (smaller than its header, or
// reaching past `limit`). Size 0 means "to the end of the enclosing range".
std::optional<Box> readBox(const RangeReader& read, std::uint64_t at, std::uint64_t limit);

// The boxes that fill [begin, end), in order, at most maxCount of them.
// `damaged` tells that the walk stopped at a box it could not believe.
struct Boxes {
  std::vector<Box> boxes;
  bool damaged = false;
};
Boxes readBoxes(const RangeReader& read, std::uint64_t begin, std::uint64_t end, std::size_t maxCount = 4096);

// The first box of that type, if any.
std::optional<Box> firstOfType(const Boxes& boxes, std::string_view type);

// Exactly length bytes at offset, or nullopt when fewer are there.
std::optional<std::vector<std::uint8_t>> readExactly(const RangeReader& read, std::uint64_t offset,
                                                     std::uint64_t length);

}  // namespace lum::isobmff
