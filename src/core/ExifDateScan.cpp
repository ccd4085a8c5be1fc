#include "core/ExifDateScan.h"

#include <algorithm>

#include "core/OrbIFDEntry.h"

namespace ExifDateScan {
namespace {

constexpr std::uint16_t kDateTimeTag = 0x0132;
constexpr std::uint16_t kExifPointer = 0x8769;
constexpr std::size_t kDateLength = 19;

struct Wanted {
  std::uint16_t tag;
  Field field;
};
// The Exif IFD's entries read; DateTime is the one entry read from IFD0.
constexpr Wanted kExifTags[] = {{0x9003, kDateTimeOriginal},    {0x9004, kDateTimeDigitized},
                                {0x9290, kSubSecTime},          {0x9291, kSubSecTimeOriginal},
                                {0x9292, kSubSecTimeDigitized}};

struct Entry {
  std::uint64_t at = 0;  // position of its 12 bytes in the block
  std::uint16_t tag = 0;
  std::uint16_t type = 0;
  std::uint32_t field = 0;      // value, or the value's offset from the header
  std::uint32_t byteCount = 0;  // 32-bit like the structure's own, so a huge count wraps the same way
};

std::string_view untilZero(std::span<const std::uint8_t> bytes) {
  const auto end = std::find(bytes.begin(), bytes.end(), std::uint8_t{0});
  return {reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(end - bytes.begin())};
}

bool isASCII(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

class Tables {
 public:
  Tables(orb::ByteView block, std::uint64_t header, std::uint64_t maxLocation, orb::ByteOrder order)
      : block_(block), header_(header), max_(maxLocation), order_(order) {}

  std::uint64_t maxLocation() const { return max_; }

  // Reads the IFD table at offset from the header, giving each entry read
  // to visit; answers the next-IFD offset (0 when it lies outside the
  // block), or nullopt when there is no table there. The entries are read
  // while the next one starts below the limit, as the structure reads them.
  template <typename Visit>
  std::optional<std::uint32_t> read(std::uint32_t offset, Visit visit) const {
    if (header_ + offset >= max_) return std::nullopt;
    std::uint64_t pos = header_ + offset;
    const auto count = block_.u16(pos, order_);
    if (!count) return std::nullopt;
    pos += 2;
    for (std::uint32_t i = 0; i < *count; ++i) {
      const auto entry = entryAt(pos);
      if (!entry) break;
      visit(*entry);
      pos += 12;
      if (pos >= max_) break;
    }
    return block_.u32(pos, order_).value_or(0);
  }

  // An out-of-line value must lie inside both the block and the limit (it
  // may end exactly at the limit); otherwise the structure drops the entry.
  bool keeps(const Entry& e) const {
    if (e.byteCount < 5) return true;
    const std::uint64_t start = header_ + e.field;
    return block_.contains(start, e.byteCount) && start + e.byteCount <= max_;
  }

  Value valueOf(const Entry& e, bool isDate) const {
    Value value;
    const bool outOfLine = e.byteCount > 4;
    if (outOfLine) value.valueOffset = e.field;
    if (e.type != kOrbTypeASCII && e.type != kOrbTypeUTF8) {
      value.kind = Value::Kind::Other;
      return value;
    }
    // A date keeps no more than its 19 characters and a zero.
    const std::uint64_t length = isDate && outOfLine ? std::min<std::uint64_t>(e.byteCount, kDateLength) : e.byteCount;
    const auto bytes = block_.bytes(outOfLine ? header_ + e.field : e.at + 8, length);
    const std::string_view text = bytes ? untilZero(*bytes) : std::string_view();
    value.kind = isASCII(text) ? Value::Kind::Text : Value::Kind::Other;
    if (value.kind == Value::Kind::Text) value.text = text;
    return value;
  }

 private:
  std::optional<Entry> entryAt(std::uint64_t pos) const {
    if (!block_.contains(pos, 12)) return std::nullopt;
    Entry e;
    e.at = pos;
    e.tag = *block_.u16(pos, order_);
    e.type = *block_.u16(pos + 2, order_);
    e.field = *block_.u32(pos + 8, order_);
    e.byteCount = OrbIFDEntry::bytesByType(e.type) * *block_.u32(pos + 4, order_);
    return e;
  }

  orb::ByteView block_;
  std::uint64_t header_;
  std::uint64_t max_;
  orb::ByteOrder order_;
};

// Follows the chain from IFD0 to its end only to learn whether it ends on
// an offset past the limit. The IFDs already read are remembered in a fixed
// array: a chain that comes back to one of them ends there.
void followChain(const Tables& tables, std::uint32_t first, std::uint32_t next, Dates& dates) {
  std::array<std::uint32_t, kMaxChain> visited{first};
  std::size_t read = 1;
  for (;;) {
    // The offset is relative to the header while the limit is absolute; the
    // structure compares them that way too.
    if (next >= tables.maxLocation()) {
      dates.nextIFDPastLimit = next;
      return;
    }
    if (next == 0 || std::find(visited.begin(), visited.begin() + read, next) != visited.begin() + read) return;
    if (read == kMaxChain) {
      dates.chainUnresolved = true;
      return;
    }
    visited[read++] = next;
    const auto after = tables.read(next, [](const Entry&) {});
    if (!after) return;
    next = *after;
  }
}

}  // namespace

bool Dates::complete() const {
  return !chainUnresolved &&
         std::none_of(fields.begin(), fields.end(), [](const Value& v) { return v.kind == Value::Kind::Other; });
}

Dates scan(orb::ByteView block, std::uint64_t headerLocation, std::uint64_t maxLocation) {
  Dates dates;
  const auto mark = block.u16(headerLocation);
  if (!mark || (*mark != 0x4949 && *mark != 0x4D4D)) return dates;
  const orb::ByteOrder order = *mark == 0x4949 ? orb::ByteOrder::Little : orb::ByteOrder::Big;
  const auto magic = block.u16(headerLocation + 2, order);
  const auto first = block.u32(headerLocation + 4, order);
  if (!magic || *magic != 42 || !first) return dates;
  dates.isTiff = true;
  if (*first == 0) return dates;

  const Tables tables(block, headerLocation, maxLocation, order);
  std::optional<std::uint32_t> exifOffset;
  const auto next = tables.read(*first, [&](const Entry& e) {
    if (e.tag == kDateTimeTag && tables.keeps(e)) dates.fields[kDateTime] = tables.valueOf(e, true);
    if (e.tag == kExifPointer && tables.keeps(e)) exifOffset = e.field;
  });
  if (!next) return dates;
  if (exifOffset)
    tables.read(*exifOffset, [&](const Entry& e) {
      for (const Wanted& w : kExifTags)
        if (e.tag == w.tag && tables.keeps(e)) dates.fields[w.field] = tables.valueOf(e, w.field <= kDateTime);
    });
  followChain(tables, *first, *next, dates);
  return dates;
}

}  // namespace ExifDateScan
