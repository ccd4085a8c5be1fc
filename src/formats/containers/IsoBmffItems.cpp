// Finding the Exif item of a "meta" box and the file range of its bytes.
#include "formats/containers/IsoBmffItems.h"

#include <vector>

namespace lum::isobmff {

namespace {

constexpr std::uint64_t kFullBoxHeader = 4;             // version and flags
constexpr std::uint64_t kMaxLocationBytes = 1u << 20;  // an "iloc" box larger than this is refused
constexpr std::uint32_t kMaxExtents = 64;              // extents joined into one range

// Item ids whose type is "Exif", in the order "iinf" lists them.
std::vector<std::uint32_t> exifItemIDs(const RangeReader& read, const Box& iinf) {
  std::vector<std::uint32_t> ids;
  const auto head = readExactly(read, iinf.payload, 1);
  if (!head) return ids;
  const std::uint64_t countSize = (*head)[0] == 0 ? 2 : 4;
  const Boxes entries = readBoxes(read, iinf.payload + kFullBoxHeader + countSize, iinf.end);
  for (const Box& infe : entries.boxes) {
    if (infe.type != "infe" || infe.end - infe.payload < 12) continue;
    const auto bytes = readExactly(read, infe.payload, std::min<std::uint64_t>(infe.end - infe.payload, 14));
    if (!bytes) continue;
    const orb::ByteView view(*bytes);
    const std::uint8_t version = *view.u8(0);
    if (version < 2) continue;  // older entries carry no item type
    const std::uint64_t idSize = version == 2 ? 2 : 4;
    const auto id = idSize == 2 ? std::optional<std::uint32_t>(view.u16(4)) : view.u32(4);
    const auto type = view.bytes(4 + idSize + 2, 4);
    if (!id || !type) continue;
    if (std::string(type->begin(), type->end()) == "Exif") ids.push_back(*id);
  }
  return ids;
}

// A field of 0, 4 or 8 bytes; advances `at`.
std::optional<std::uint64_t> sized(orb::ByteView view, std::uint64_t& at, unsigned size) {
  std::optional<std::uint64_t> value;
  if (size == 0) value = 0;
  else if (size == 4) value = view.u32(at);
  else if (size == 8) value = view.u64(at);
  if (value) at += size;
  return value;
}

struct Location {
  unsigned method = 0;  // 0: file offsets; 1: offsets into "idat"
  std::uint64_t base = 0;
  std::vector<ItemRange> extents;
};

// The location "iloc" gives the item, or why there is none.
std::variant<Location, std::string> itemLocation(orb::ByteView iloc, std::uint32_t itemID) {
  const auto version = iloc.u8(0);
  const auto sizes = iloc.u8(4);
  const auto sizes2 = iloc.u8(5);
  if (!version || !sizes || !sizes2) return std::string("the item location box is cut short");
  if (*version > 2) return std::string("the item location box has an unknown version");
  const unsigned offsetSize = *sizes >> 4, lengthSize = *sizes & 15, baseSize = *sizes2 >> 4;
  const unsigned indexSize = *version >= 1 ? *sizes2 & 15 : 0;
  for (const unsigned s : {offsetSize, lengthSize, baseSize, indexSize})
    if (s != 0 && s != 4 && s != 8) return std::string("the item location box has an unknown field size");
  std::uint64_t at = 6;
  const auto count = *version < 2 ? std::optional<std::uint32_t>(iloc.u16(at)) : iloc.u32(at);
  at += *version < 2 ? 2 : 4;
  // Every item takes at least six bytes, so a false count ends at the box's end.
  for (std::uint32_t i = 0; count && i < *count; ++i) {
    const auto id = *version < 2 ? std::optional<std::uint32_t>(iloc.u16(at)) : iloc.u32(at);
    at += *version < 2 ? 2 : 4;
    Location location;
    if (*version >= 1) {
      const auto method = iloc.u16(at);
      if (!method) break;
      location.method = *method & 15;
      at += 2;
    }
    at += 2;  // data reference index
    const auto base = sized(iloc, at, baseSize);
    const auto extents = iloc.u16(at);
    if (!id || !base || !extents) break;
    location.base = *base;
    at += 2;
    for (std::uint32_t e = 0; e < *extents; ++e) {
      std::uint64_t skip = at;
      if (!sized(iloc, skip, indexSize)) return std::string("the item location box is cut short");
      at = skip;
      const auto offset = sized(iloc, at, offsetSize);
      const auto length = sized(iloc, at, lengthSize);
      if (!offset || !length) return std::string("the item location box is cut short");
      if (location.extents.size() < kMaxExtents) location.extents.push_back({*offset, *length});
    }
    if (*id == itemID) return location;
  }
  return std::string("the Exif item has no location");
}

// The extents joined while each begins where the one before ends, bounded by
// [begin, end); a zero length means "to the end".
std::optional<ItemRange> joined(const Location& location, std::uint64_t begin, std::uint64_t end) {
  std::optional<ItemRange> range;
  for (const ItemRange& extent : location.extents) {
    const std::uint64_t room = end - begin;
    if (location.base > room || extent.offset > room - location.base) return range;
    const std::uint64_t offset = begin + location.base + extent.offset;
    const std::uint64_t length = extent.length == 0 ? end - offset : extent.length;
    if (length > end - offset) return range;
    if (!range) range = ItemRange{offset, length};
    else if (offset == range->offset + range->length && length > 0) range->length += length;
    else break;
  }
  return range;
}

}  // namespace

std::variant<ItemRange, std::string> exifItemRange(const RangeReader& read, const Box& meta, std::uint64_t fileSize) {
  const Boxes children = readBoxes(read, meta.payload + kFullBoxHeader, meta.end);
  const auto iinf = firstOfType(children, "iinf");
  const auto iloc = firstOfType(children, "iloc");
  if (!iinf || !iloc) return std::string("the meta box lists no items");
  const auto ids = exifItemIDs(read, *iinf);
  if (ids.empty()) return std::string("the file has no Exif item");
  if (iloc->end - iloc->payload > kMaxLocationBytes) return std::string("the item location box is too large");
  const auto ilocBytes = readExactly(read, iloc->payload, iloc->end - iloc->payload);
  if (!ilocBytes) return std::string("the item location box cannot be read");
  const auto found = itemLocation(orb::ByteView(*ilocBytes), ids.front());
  if (const auto* why = std::get_if<std::string>(&found)) return *why;
  const Location& location = std::get<Location>(found);
  std::uint64_t begin = 0, end = fileSize;
  if (location.method == 1) {
    const auto idat = firstOfType(children, "idat");
    if (!idat) return std::string("the Exif item lies in a missing item data box");
    begin = idat->payload;
    end = idat->end;
  } else if (location.method != 0) {
    return std::string("the Exif item is stored in a way that is not supported");
  }
  const auto range = joined(location, begin, end);
  if (!range) return std::string("the Exif item lies outside the file");
  return *range;
}

}  // namespace lum::isobmff
