#include "formats/containers/PngChunks.h"

#include <functional>

#include "core/NSDataOrbAdditions.h"
#include "formats/containers/ContainerRead.h"

namespace lum::containers {
namespace {

constexpr std::uint64_t kSignatureLength = 8;
constexpr std::uint32_t kEXIF = 0x65584966u;  // "eXIf"
constexpr std::uint32_t kIEND = 0x49454E44u;
constexpr std::uint32_t kIHDR = 0x49484452u;
constexpr int kMaxChunks = 1 << 20;

struct Chunk {
  std::uint64_t offset = 0;  // of its length field
  std::uint32_t length = 0;
  std::uint32_t type = 0;
  std::uint64_t dataOffset() const { return offset + 8; }
};

// Calls visit for each whole chunk in file order until it returns false or
// IEND has been visited; returns true when IEND was reached.
bool walkChunks(std::uint64_t fileSize, const RangeReader& read, const std::function<bool(const Chunk&)>& visit) {
  std::uint64_t pos = kSignatureLength;
  for (int i = 0; i < kMaxChunks; ++i) {
    const auto head = readClipped(read, fileSize, pos, 8);
    const orb::ByteView view = viewOf(head);
    const auto length = view.u32(0);
    const auto type = view.u32(4);
    if (!length || !type || *length > fileSize || pos + 12 + *length > fileSize) return false;
    const Chunk chunk{pos, *length, *type};
    if (!visit(chunk)) return false;
    if (chunk.type == kIEND) return true;
    pos += 12 + std::uint64_t{*length};
  }
  return false;
}

std::optional<TiffBlock> exifChunkBlock(const RangeReader& read, std::uint64_t fileSize, const Chunk& chunk) {
  const auto head = readClipped(read, fileSize, chunk.dataOffset(), 10);
  const orb::ByteView view = viewOf(head);
  std::uint64_t skip = 0;
  if (view.u32(0) == std::optional<std::uint32_t>(0x45786966u) && view.u16(4) == std::optional<std::uint16_t>(0))
    skip = 6;  // "Exif\0\0" as in a JPEG segment
  const auto tiff = view.sub(skip, 4);
  if (!tiff || !startsWithTiffHeader(*tiff) || chunk.length < skip + 8) return std::nullopt;
  const ChecksumRange crc{chunk.offset + 4, 4 + std::uint64_t{chunk.length}, chunk.dataOffset() + chunk.length};
  return TiffBlock{chunk.dataOffset() + skip, chunk.length - skip, "eXIf chunk", BlockRole::Main, crc};
}

bool startsWithHeader(std::uint64_t fileSize, const RangeReader& read) {
  return viewOf(readClipped(read, fileSize, kSignatureLength + 4, 4)).u32(0) == std::optional<std::uint32_t>(kIHDR);
}

}  // namespace

bool looksLikePng(orb::ByteView head) {
  return head.u32(0) == std::optional<std::uint32_t>(0x89504E47u) &&
         head.u32(4) == std::optional<std::uint32_t>(0x0D0A1A0Au);
}

ContainerScan scanPng(std::uint64_t fileSize, const RangeReader& read) {
  ContainerScan scan;
  scan.name = "PNG";
  // Every PNG begins with its header chunk; bytes that do not are no image.
  if (!startsWithHeader(fileSize, read)) {
    scan.refusal = "the file's PNG chunks are damaged: it does not begin with its image header";
    return scan;
  }
  walkChunks(fileSize, read, [&](const Chunk& chunk) {
    if (chunk.type != kEXIF) return true;
    if (auto block = exifChunkBlock(read, fileSize, chunk)) scan.blocks.push_back(*block);
    return false;  // one eXIf chunk at most
  });
  return scan;
}

std::optional<std::uint32_t> pngChunkCrc(std::uint64_t fileSize, const RangeReader& read, std::uint64_t chunkOffset) {
  const auto lengthBytes = readClipped(read, fileSize, chunkOffset, 4);
  const auto length = viewOf(lengthBytes).u32(0);
  if (!length || chunkOffset + 12 + *length > fileSize) return std::nullopt;
  std::uint32_t crc = 0;
  const std::uint64_t end = chunkOffset + 8 + *length;
  for (std::uint64_t pos = chunkOffset + 4; pos < end;) {
    const auto piece = readClipped(read, fileSize, pos, end - pos);
    if (piece.empty()) return std::nullopt;
    crc = NSDataOrbAdditions::CRC_32Update(crc, piece);
    pos += piece.size();
  }
  return crc;
}

bool pngCrcsAreRight(std::uint64_t fileSize, const RangeReader& read) {
  return walkChunks(fileSize, read, [&](const Chunk& chunk) {
    const auto stored = readClipped(read, fileSize, chunk.dataOffset() + chunk.length, 4);
    const auto want = pngChunkCrc(fileSize, read, chunk.offset);
    const auto have = viewOf(stored).u32(0);
    return want && have && *want == *have;
  });
}

}  // namespace lum::containers
