#include "formats/containers/JpegExif.h"

#include <algorithm>

#include "formats/containers/ContainerRead.h"

namespace lum::containers {
namespace {

constexpr std::uint8_t kSOS = 0xDA, kEOI = 0xD9, kAPP1 = 0xE1;
constexpr int kMaxSegments = 4096;

bool standalone(std::uint8_t marker) { return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7); }

// The block when the APP1 at segment (its marker) with the given length
// field is an Exif segment holding a TIFF header.
std::optional<TiffBlock> exifBlock(const RangeReader& read, std::uint64_t end, std::uint64_t segment,
                                   std::uint16_t lengthField, const std::string& where) {
  if (lengthField < 2 + 6 + 8) return std::nullopt;
  const auto head = readClipped(read, end, segment + 4, 6 + 4);
  const orb::ByteView view = viewOf(head);
  const auto exif = view.u32(0);
  const auto zeros = view.u16(4);
  if (!exif || *exif != 0x45786966u || !zeros || *zeros != 0) return std::nullopt;  // "Exif\0\0"
  const auto tiff = view.sub(6, 4);
  if (!tiff || !startsWithTiffHeader(*tiff)) return std::nullopt;
  return TiffBlock{segment + 10, std::uint64_t{lengthField} - 8, where, BlockRole::Main, std::nullopt};
}

}  // namespace

std::optional<TiffBlock> locateJpegExif(std::uint64_t fileSize, const RangeReader& read, std::uint64_t start,
                                        std::uint64_t length, const std::string& where) {
  if (start >= fileSize) return std::nullopt;
  const std::uint64_t end = start + std::min(length, fileSize - start);
  const auto soi = readClipped(read, end, start, 2);
  if (viewOf(soi).u16(0) != std::optional<std::uint16_t>(0xFFD8)) return std::nullopt;
  std::uint64_t pos = start + 2;
  for (int i = 0; i < kMaxSegments; ++i) {
    const auto head = readClipped(read, end, pos, 4);
    const orb::ByteView view = viewOf(head);
    const auto ff = view.u8(0);
    const auto marker = view.u8(1);
    if (!ff || !marker || *ff != 0xFF) return std::nullopt;
    if (*marker == 0xFF) {  // a fill byte before the marker
      pos += 1;
      continue;
    }
    if (standalone(*marker)) {
      pos += 2;
      continue;
    }
    if (*marker == kSOS || *marker == kEOI) return std::nullopt;
    const auto segmentLength = view.u16(2);
    if (!segmentLength || *segmentLength < 2 || pos + 2 + *segmentLength > end) return std::nullopt;
    if (*marker == kAPP1)
      if (auto block = exifBlock(read, end, pos, *segmentLength, where)) return block;
    pos += 2 + std::uint64_t{*segmentLength};
  }
  return std::nullopt;
}

}  // namespace lum::containers
