#include "formats/containers/WebpChunks.h"

#include <algorithm>

#include "formats/containers/ContainerRead.h"

namespace lum::containers {
namespace {

constexpr std::uint32_t kRIFF = 0x52494646u, kWEBP = 0x57454250u, kEXIF = 0x45584946u;
constexpr int kMaxChunks = 1 << 16;

std::optional<TiffBlock> exifChunkBlock(const RangeReader& read, std::uint64_t end, std::uint64_t data,
                                        std::uint32_t length) {
  const auto head = readClipped(read, end, data, 10);
  const orb::ByteView view = viewOf(head);
  std::uint64_t skip = 0;
  if (view.u32(0) == std::optional<std::uint32_t>(0x45786966u) && view.u16(4) == std::optional<std::uint16_t>(0))
    skip = 6;  // "Exif\0\0", as some writers put it first
  const auto tiff = view.sub(skip, 4);
  if (!tiff || !startsWithTiffHeader(*tiff) || length < skip + 8) return std::nullopt;
  return TiffBlock{data + skip, length - skip, "EXIF chunk", BlockRole::Main, std::nullopt};
}

}  // namespace

bool looksLikeWebp(orb::ByteView head) {
  return head.u32(0) == std::optional<std::uint32_t>(kRIFF) && head.u32(8) == std::optional<std::uint32_t>(kWEBP);
}

ContainerScan scanWebp(std::uint64_t fileSize, const RangeReader& read) {
  ContainerScan scan;
  scan.name = "WebP";
  const auto head = readClipped(read, fileSize, 0, 12);
  const auto riffSize = viewOf(head).u32(4, orb::ByteOrder::Little);
  if (!riffSize) return scan;
  const std::uint64_t end = std::min<std::uint64_t>(fileSize, std::uint64_t{*riffSize} + 8);
  std::uint64_t pos = 12;
  for (int i = 0; i < kMaxChunks; ++i) {
    const auto chunkHead = readClipped(read, end, pos, 8);
    const orb::ByteView view = viewOf(chunkHead);
    const auto type = view.u32(0);
    const auto length = view.u32(4, orb::ByteOrder::Little);
    if (!type || !length || pos + 8 + *length > end) break;
    if (*type == kEXIF) {
      if (auto block = exifChunkBlock(read, end, pos + 8, *length)) scan.blocks.push_back(*block);
      break;
    }
    pos += 8 + std::uint64_t{*length} + (*length & 1);  // chunks are padded to even sizes
  }
  return scan;
}

}  // namespace lum::containers
