#include "formats/containers/ExifDateEntries.h"

#include <algorithm>

#include "formats/containers/ContainerRead.h"

namespace lum {
namespace {

using namespace containers;

enum class Ifd : std::uint8_t { Zero, One, Exif };

constexpr std::uint16_t kDateTime = 0x0132, kDateTimeOriginal = 0x9003, kDateTimeDigitized = 0x9004;
constexpr std::uint16_t kExifPointer = 0x8769;
constexpr std::uint16_t kSubSecTime = 0x9290, kSubSecTimeOriginal = 0x9291, kSubSecTimeDigitized = 0x9292;
constexpr std::uint16_t kAsciiType = 2, kUtf8Type = 129;
constexpr std::uint32_t kMaxEntries = 1000;
constexpr std::uint32_t kMaxText = 64;  // a date is 20 bytes; sub-seconds a few
constexpr std::size_t kDateLength = 19;

// Field indexes: DateTimeOriginal, DateTimeDigitized, DateTime.
constexpr std::size_t kOriginal = 0, kDigitized = 1, kEdited = 2;

struct Entry {
  std::uint16_t tag = 0;
  Ifd ifd = Ifd::Zero;
  std::string text;
  std::optional<std::uint64_t> offset;  // file offset of an out-of-line value
  bool mainBlock = true;                // not in an embedded preview
};

// The date an entry states, by where it sits: IFD0 and IFD1 may hold
// DateTime, IFD0 and the Exif IFD DateTimeOriginal, the Exif IFD alone
// DateTimeDigitized.
std::optional<std::size_t> dateField(Ifd ifd, std::uint16_t tag) {
  if (tag == kDateTime && ifd != Ifd::Exif) return kEdited;
  if (tag == kDateTimeOriginal && ifd != Ifd::One) return kOriginal;
  if (tag == kDateTimeDigitized && ifd == Ifd::Exif) return kDigitized;
  return std::nullopt;
}

std::optional<std::size_t> subSecondField(Ifd ifd, std::uint16_t tag) {
  if (ifd != Ifd::Exif) return std::nullopt;
  if (tag == kSubSecTimeOriginal) return kOriginal;
  if (tag == kSubSecTimeDigitized) return kDigitized;
  if (tag == kSubSecTime) return kEdited;
  return std::nullopt;
}

// The entry the date's own directory holds, as opposed to a copy.
bool isMainEntry(const Entry& entry, std::size_t field) {
  return entry.mainBlock && (field == kEdited ? entry.ifd == Ifd::Zero : entry.ifd == Ifd::Exif);
}

// Reads of one block, at offsets from its TIFF header; nothing outside it.
struct BlockReader {
  std::uint64_t fileSize;
  const RangeReader& read;
  const TiffBlock& block;
  orb::ByteOrder order;

  std::vector<std::uint8_t> bytes(std::uint64_t at, std::uint64_t length) const {
    if (at > block.length || length > block.length - at) return {};
    auto got = readClipped(read, fileSize, block.offset + at, length);
    if (got.size() != length) return {};
    return got;
  }
};

std::string textUpToNul(orb::ByteView bytes) {
  const auto* begin = reinterpret_cast<const char*>(bytes.data());
  const std::string_view text(begin, bytes.size());
  return std::string(text.substr(0, text.find('\0')));
}

// A text entry's value, read inline or from its offset.
std::optional<Entry> textEntry(const BlockReader& r, orb::ByteView entry, Ifd ifd, std::uint16_t tag) {
  const auto type = entry.u16(2, r.order);
  const auto count = entry.u32(4, r.order);
  if (!type || !count || (*type != kAsciiType && *type != kUtf8Type)) return std::nullopt;
  Entry found{tag, ifd, {}, std::nullopt, true};
  if (*count <= 4) {
    const auto inline_ = entry.sub(8, *count);
    if (!inline_) return std::nullopt;
    found.text = textUpToNul(*inline_);
    return found;
  }
  const auto at = entry.u32(8, r.order);
  const auto value = at ? r.bytes(*at, std::min(*count, kMaxText)) : std::vector<std::uint8_t>{};
  if (value.empty()) return std::nullopt;
  found.text = textUpToNul(viewOf(value));
  found.offset = r.block.offset + *at;
  return found;
}

struct Directory {
  std::vector<Entry> entries;
  std::optional<std::uint32_t> exifIFD;
  std::optional<std::uint32_t> next;
};

Directory readDirectory(const BlockReader& r, std::uint32_t at, Ifd ifd) {
  Directory dir;
  const auto count = viewOf(r.bytes(at, 2)).u16(0, r.order);
  if (!count || *count > kMaxEntries) return dir;
  const std::uint64_t tableLength = 12 * std::uint64_t{*count};
  auto table = r.bytes(std::uint64_t{at} + 2, tableLength + 4);
  if (table.empty()) table = r.bytes(std::uint64_t{at} + 2, tableLength);  // no room for the next-IFD offset
  if (table.empty()) return dir;
  const orb::ByteView view = viewOf(table);
  dir.next = view.u32(tableLength, r.order);
  for (std::uint32_t i = 0; i < *count; ++i) {
    const auto entry = view.sub(12 * std::uint64_t{i}, 12);
    const auto tag = entry ? entry->u16(0, r.order) : std::nullopt;
    if (!tag) break;
    if (*tag == kExifPointer && ifd == Ifd::Zero) dir.exifIFD = entry->u32(8, r.order);
    if (!dateField(ifd, *tag) && !subSecondField(ifd, *tag)) continue;
    if (auto found = textEntry(r, *entry, ifd, *tag)) dir.entries.push_back(std::move(*found));
  }
  return dir;
}

// IFD0, IFD1 and the Exif IFD of a block, each read at most once.
std::vector<Entry> entriesOf(std::uint64_t fileSize, const RangeReader& read, const TiffBlock& block) {
  const auto head = readClipped(read, fileSize, block.offset, 8);
  const orb::ByteView view = viewOf(head);
  const auto mark = view.u16(0);
  if (!mark || (*mark != 0x4949 && *mark != 0x4D4D)) return {};
  const BlockReader r{fileSize, read, block, *mark == 0x4949 ? orb::ByteOrder::Little : orb::ByteOrder::Big};
  const auto first = view.u32(4, r.order);
  if (!first) return {};
  if (block.role == BlockRole::ExifIFDFirst) return readDirectory(r, *first, Ifd::Exif).entries;
  const Directory ifd0 = readDirectory(r, *first, Ifd::Zero);
  std::vector<Entry> entries = ifd0.entries;
  const auto append = [&entries](const Directory& dir) {
    entries.insert(entries.end(), dir.entries.begin(), dir.entries.end());
  };
  if (ifd0.next && *ifd0.next != 0 && *ifd0.next != *first) append(readDirectory(r, *ifd0.next, Ifd::One));
  if (ifd0.exifIFD && *ifd0.exifIFD != *first && ifd0.exifIFD != ifd0.next)
    append(readDirectory(r, *ifd0.exifIFD, Ifd::Exif));
  if (block.role == BlockRole::EmbeddedPreview)
    for (Entry& entry : entries) entry.mainBlock = false;
  return entries;
}

std::string_view dateText(const std::string& text) { return std::string_view(text).substr(0, kDateLength); }

DatePlaces placesOf(const std::vector<Entry>& entries, std::size_t field) {
  const auto states = [field](const Entry& e) { return dateField(e.ifd, e.tag) == field; };
  auto chosen = std::find_if(entries.begin(), entries.end(),
                             [&](const Entry& e) { return states(e) && isMainEntry(e, field); });
  if (chosen == entries.end()) chosen = std::find_if(entries.begin(), entries.end(), states);
  DatePlaces places;
  if (chosen == entries.end()) return places;
  places.text = chosen->text;
  places.offset = chosen->offset;
  if (!chosen->offset || chosen->text.size() < kDateLength) return places;
  for (const Entry& e : entries)
    if (&e != &*chosen && states(e) && e.offset && e.offset != chosen->offset && e.text.size() >= kDateLength &&
        dateText(e.text) == dateText(chosen->text))
      places.copies.push_back(*e.offset);
  return places;
}

}  // namespace

ContainerDates containerDates(std::uint64_t fileSize, const RangeReader& read, const std::vector<TiffBlock>& blocks) {
  std::vector<Entry> entries;
  for (const TiffBlock& block : blocks) {
    std::vector<Entry> more = entriesOf(fileSize, read, block);
    entries.insert(entries.end(), more.begin(), more.end());
  }
  ContainerDates dates;
  for (std::size_t field = 0; field < kDateCount; ++field) {
    dates.dates[field] = placesOf(entries, field);
    const auto subSeconds = std::find_if(entries.begin(), entries.end(), [field](const Entry& e) {
      return e.mainBlock && subSecondField(e.ifd, e.tag) == field;
    });
    if (subSeconds != entries.end()) dates.subSeconds[field] = subSeconds->text;
  }
  return dates;
}

}  // namespace lum
