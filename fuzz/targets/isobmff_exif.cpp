// The Exif blocks of an ISO base media file.
//
// Must hold: the walk ends on any input; every block found lies inside the
// file and begins with a TIFF byte-order mark; a video has no block; a file
// without blocks says why; the same bytes give the same answer.
#include <cstdint>
#include <cstring>

#include "FuzzCheck.h"
#include "formats/ByteViewReader.h"
#include "formats/containers/IsoBmffExif.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const orb::ByteView bytes(data, size);
  const auto result = lum::isobmff::locateExif(size, lum::readerOver(bytes));
  if (result.isVideo) FUZZ_CHECK(result.blocks.empty());
  if (result.blocks.empty()) FUZZ_CHECK(result.problem.has_value());
  for (const lum::TiffBlock& block : result.blocks) {
    FUZZ_CHECK(block.length >= 8 && block.offset <= size && block.length <= size - block.offset);
    const bool little = std::memcmp(data + block.offset, "II*\0", 4) == 0;
    FUZZ_CHECK(little || std::memcmp(data + block.offset, "MM\0*", 4) == 0);
  }
  const auto again = lum::isobmff::locateExif(size, lum::readerOver(bytes));
  FUZZ_CHECK(again.name == result.name && again.blocks.size() == result.blocks.size());
  if (lum::isobmff::looksLikeIsoBmff(bytes)) FUZZ_CHECK(!result.name.empty() || result.problem.has_value());
  return 0;
}
