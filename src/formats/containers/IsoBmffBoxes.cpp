// Box headers and box lists, read through a RangeReader.
#include "formats/containers/IsoBmffBoxes.h"

#include <algorithm>

namespace lum::isobmff {

namespace {

constexpr std::uint64_t kHeaderSize = 8;
constexpr std::uint64_t kLargeHeaderSize = 16;
constexpr std::uint64_t kUserTypeSize = 16;

}  // namespace

std::optional<std::vector<std::uint8_t>> readExactly(const RangeReader& read, std::uint64_t offset,
                                                     std::uint64_t length) {
  auto bytes = read(offset, length);
  if (!bytes || bytes->size() != length) return std::nullopt;
  return bytes;
}

std::optional<Box> readBox(const RangeReader& read, std::uint64_t at, std::uint64_t limit) {
  if (at > limit || limit - at < kHeaderSize) return std::nullopt;
  const std::uint64_t room = limit - at;
  const auto head = readExactly(read, at, std::min(room, kLargeHeaderSize + kUserTypeSize));
  if (!head) return std::nullopt;
  const orb::ByteView view(*head);
  const std::uint64_t size32 = *view.u32(0);
  Box box;
  box.type.assign(head->begin() + 4, head->begin() + 8);
  box.start = at;
  std::uint64_t header = kHeaderSize;
  std::uint64_t size = size32;
  if (size32 == 1) {
    const auto large = view.u64(8);
    if (!large) return std::nullopt;
    size = *large;
    header = kLargeHeaderSize;
  } else if (size32 == 0) {
    size = room;
  }
  if (box.type == "uuid") {
    const auto user = view.bytes(header, kUserTypeSize);
    if (!user) return std::nullopt;
    std::copy(user->begin(), user->end(), box.userType.begin());
    header += kUserTypeSize;
  }
  if (size < header || size > room) return std::nullopt;
  box.payload = at + header;
  box.end = at + size;
  return box;
}

Boxes readBoxes(const RangeReader& read, std::uint64_t begin, std::uint64_t end, std::size_t maxCount) {
  Boxes result;
  std::uint64_t at = begin;
  // Every box is at least its header long, so the walk only moves forward.
  while (at < end && result.boxes.size() < maxCount) {
    const auto box = readBox(read, at, end);
    if (!box) {
      result.damaged = true;
      break;
    }
    result.boxes.push_back(*box);
    at = box->end;
  }
  return result;
}

std::optional<Box> firstOfType(const Boxes& boxes, std::string_view type) {
  for (const Box& box : boxes.boxes)
    if (box.type == type) return box;
  return std::nullopt;
}

}  // namespace lum::isobmff
