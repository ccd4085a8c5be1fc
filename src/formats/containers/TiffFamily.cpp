#include "formats/containers/TiffFamily.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

#include "formats/containers/ContainerRead.h"
#include "formats/containers/JpegExif.h"

namespace lum::containers {
namespace {

constexpr std::uint16_t kNewSubfileType = 0x00FE, kMake = 0x010F, kSubIFDs = 0x014A, kDNGVersion = 0xC612;
// A Panasonic RW2's full-size preview JPEG, which carries a whole Exif of its own.
constexpr std::uint16_t kJpgFromRaw = 0x002E;
constexpr std::uint32_t kMaxEntries = 1000;

// What the first directory tells about the kind of file.
struct FirstDirectory {
  bool complete = false;  // the whole entry table lies inside the file
  bool dng = false;
  bool subIFDs = false;
  bool reducedImage = false;  // NewSubfileType 1: a preview first, the RAW data elsewhere
  std::string make;
  std::optional<std::pair<std::uint32_t, std::uint32_t>> previewJpeg;  // offset, length
};

std::string makeText(const RangeReader& read, std::uint64_t fileSize, orb::ByteView entry, orb::ByteOrder order) {
  const auto count = entry.u32(4, order);
  if (!count || *count == 0) return {};
  std::vector<std::uint8_t> bytes;
  if (*count <= 4) {
    const auto inline_ = entry.bytes(8, *count);
    if (inline_) bytes.assign(inline_->begin(), inline_->end());
  } else if (const auto at = entry.u32(8, order)) {
    bytes = readClipped(read, fileSize, *at, std::min<std::uint32_t>(*count, 64));
  }
  std::string text(bytes.begin(), bytes.end());
  return text.substr(0, text.find('\0'));
}

FirstDirectory readFirstDirectory(std::uint64_t fileSize, const RangeReader& read, orb::ByteOrder order,
                                  std::uint32_t at) {
  FirstDirectory dir;
  const auto countBytes = readClipped(read, fileSize, at, 2);
  const auto count = viewOf(countBytes).u16(0, order);
  if (!count || *count > kMaxEntries) return dir;
  const std::uint64_t tableLength = 12 * std::uint64_t{*count};
  const auto table = readClipped(read, fileSize, std::uint64_t{at} + 2, tableLength);
  if (table.size() < tableLength) return dir;
  dir.complete = true;
  const orb::ByteView view = viewOf(table);
  for (std::uint32_t i = 0; i < *count; ++i) {
    const auto entry = view.sub(12 * std::uint64_t{i}, 12);
    const auto tag = entry ? entry->u16(0, order) : std::nullopt;
    if (!tag) break;
    if (*tag == kDNGVersion) dir.dng = true;
    if (*tag == kSubIFDs) dir.subIFDs = true;
    if (*tag == kNewSubfileType) dir.reducedImage = entry->u32(8, order) == std::optional<std::uint32_t>(1);
    if (*tag == kMake) dir.make = makeText(read, fileSize, *entry, order);
    if (*tag == kJpgFromRaw) {
      const auto length = entry->u32(4, order);
      const auto offset = entry->u32(8, order);
      if (length && offset) dir.previewJpeg = std::pair{*offset, *length};
    }
  }
  return dir;
}

// The RAW format a camera maker's TIFF-based files are known by.
std::string rawNameForMake(std::string_view make) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 10> kMakers{{
      {"NIKON", "NEF"},
      {"SONY", "ARW"},
      {"PENTAX", "PEF"},
      {"SAMSUNG", "SRW"},
      {"KODAK", "DCR"},
      {"EPSON", "ERF"},
      {"Hasselblad", "3FR"},
      {"Mamiya", "MEF"},
      {"Leaf", "MOS"},
      {"Phase One", "IIQ"},
  }};
  for (const auto& [prefix, name] : kMakers)
    if (make.substr(0, prefix.size()) == prefix) return std::string(name);
  return "TIFF RAW";
}

std::string nameFor(const std::string& headerName, bool canonRaw, const FirstDirectory& dir) {
  if (headerName != "TIFF") return headerName;
  if (canonRaw) return "CR2";
  if (dir.dng) return "DNG";
  if (dir.subIFDs || dir.reducedImage) return rawNameForMake(dir.make);
  return "TIFF";
}

}  // namespace

std::optional<std::string> tiffFamilyHeader(orb::ByteView head) {
  const auto magic = head.u32(0);
  if (!magic) return std::nullopt;
  switch (*magic) {
    case 0x49492A00u:  // "II*\0"
    case 0x4D4D002Au:  // "MM\0*"
      return "TIFF";
    case 0x4949524Fu:  // "IIRO"
    case 0x49495253u:  // "IIRS"
    case 0x4D4D4F52u:  // "MMOR"
      return "ORF";
    case 0x49495500u:  // "IIU\0"
      return "RW2";
    default:
      return std::nullopt;
  }
}

ContainerScan scanTiffFamily(std::uint64_t fileSize, const RangeReader& read, const std::string& headerName) {
  const auto head = readClipped(read, fileSize, 0, 16);
  const orb::ByteView view = viewOf(head);
  const orb::ByteOrder order =
      view.u8(0) == std::optional<std::uint8_t>('I') ? orb::ByteOrder::Little : orb::ByteOrder::Big;
  const bool canonRaw = view.u16(8) == std::optional<std::uint16_t>(0x4352);  // "CR"
  const auto first = view.u32(4, order);
  ContainerScan scan;
  const FirstDirectory dir =
      first && *first >= 8 ? readFirstDirectory(fileSize, read, order, *first) : FirstDirectory{};
  scan.name = nameFor(headerName, canonRaw, dir);
  if (!dir.complete) {
    scan.refusal = "the file holds only " + std::to_string(fileSize) +
                   " bytes and ends before its first directory is complete: its image and dates are missing";
    return scan;
  }
  scan.blocks.push_back(TiffBlock{0, fileSize, "TIFF structure", BlockRole::Main, std::nullopt});
  if (headerName == "RW2" && dir.previewJpeg)
    if (auto preview = locateJpegExif(fileSize, read, dir.previewJpeg->first, dir.previewJpeg->second,
                                      "embedded preview JPEG's APP1 segment")) {
      preview->role = BlockRole::EmbeddedPreview;
      scan.blocks.push_back(*preview);
    }
  return scan;
}

}  // namespace lum::containers
