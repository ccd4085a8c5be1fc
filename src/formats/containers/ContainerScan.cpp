#include "formats/containers/ContainerScan.h"

#include <algorithm>
#include <string_view>

#include "formats/containers/ContainerRead.h"
#include "formats/containers/IsoBmffExif.h"
#include "formats/containers/JpegExif.h"
#include "formats/containers/PngChunks.h"
#include "formats/containers/TiffFamily.h"
#include "formats/containers/WebpChunks.h"

namespace lum {
namespace {

using namespace containers;

constexpr std::uint64_t kHeadLength = 96;
constexpr std::uint64_t kRafJpegPointer = 84;  // big-endian offset, then length, of the embedded JPEG

ContainerScan scanJpeg(std::uint64_t fileSize, const RangeReader& read) {
  ContainerScan scan;
  scan.name = "JPEG";
  if (auto block = locateJpegExif(fileSize, read, 0, fileSize, "APP1 segment")) scan.blocks.push_back(*block);
  return scan;
}

ContainerScan scanRaf(std::uint64_t fileSize, orb::ByteView head, const RangeReader& read) {
  ContainerScan scan;
  scan.name = "RAF";
  const auto offset = head.u32(kRafJpegPointer);
  const auto length = head.u32(kRafJpegPointer + 4);
  if (!offset || !length) {
    scan.refusal = "the file ends before the place of its embedded JPEG";
    return scan;
  }
  if (auto block = locateJpegExif(fileSize, read, *offset, *length, "embedded JPEG's APP1 segment"))
    scan.blocks.push_back(*block);
  return scan;
}

ContainerScan scanIsoBmff(std::uint64_t fileSize, const RangeReader& read) {
  isobmff::Result found = isobmff::locateExif(fileSize, read);
  ContainerScan scan;
  scan.name = found.name;
  scan.blocks = std::move(found.blocks);
  if (found.isVideo)
    scan.refusal = kVideoRefusal;
  else if (scan.blocks.empty() && found.problem)
    scan.refusal = *found.problem;
  else if (scan.name.empty())
    scan.refusal = "an ISO base media file of a kind Lumidate does not read";
  return scan;
}

bool startsWith(orb::ByteView head, std::string_view text) {
  const auto bytes = head.bytes(0, text.size());
  return bytes && std::equal(bytes->begin(), bytes->end(), text.begin());
}

}  // namespace

ContainerScan scanContainer(std::uint64_t fileSize, const RangeReader& read) {
  const auto headBytes = readClipped(read, fileSize, 0, kHeadLength);
  const orb::ByteView head = viewOf(headBytes);
  if (head.u16(0) == std::optional<std::uint16_t>(0xFFD8)) return scanJpeg(fileSize, read);
  if (const auto name = tiffFamilyHeader(head)) return scanTiffFamily(fileSize, read, *name);
  if (startsWith(head, "FUJIFILM")) return scanRaf(fileSize, head, read);
  if (looksLikePng(head)) return scanPng(fileSize, read);
  if (looksLikeWebp(head)) return scanWebp(fileSize, read);
  if (isobmff::looksLikeIsoBmff(head)) return scanIsoBmff(fileSize, read);
  ContainerScan scan;
  scan.refusal = fileSize == 0 ? "the file is empty" : "the bytes are not those of a photo format Lumidate reads";
  return scan;
}

}  // namespace lum
