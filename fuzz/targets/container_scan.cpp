// The container scan over any bytes, read through a bounds-checked view.
//
// Must hold: every block found lies inside the file, is named, and starts
// with a TIFF header (or, for ORF and RW2, their own header); a refusal is
// never empty, and a file of no known format is refused; the scan answers
// the same twice. The date entries of the blocks lie inside the file, each
// copy of a date apart from the date itself. The PNG CRC check runs over the
// same bytes without reading past them.
#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "FuzzCheck.h"
#include "core/ByteView.h"
#include "formats/ByteViewReader.h"
#include "formats/containers/ContainerScan.h"
#include "formats/containers/ExifDateEntries.h"
#include "formats/containers/PngChunks.h"

namespace {

bool startsLikeTiff(orb::ByteView file, std::uint64_t offset) {
  const auto order = file.u16(offset);
  return order && (*order == 0x4949 || *order == 0x4D4D);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const orb::ByteView file(data, size);
  const lum::RangeReader read = lum::readerOver(file);
  const lum::ContainerScan scan = lum::scanContainer(size, read);
  for (const lum::TiffBlock& block : scan.blocks) {
    FUZZ_CHECK(file.contains(block.offset, block.length));
    FUZZ_CHECK(block.length >= 8);
    FUZZ_CHECK(!block.where.empty());
    FUZZ_CHECK(startsLikeTiff(file, block.offset));
  }
  FUZZ_CHECK(!scan.refusal || !scan.refusal->empty());
  if (scan.name.empty()) FUZZ_CHECK(scan.refusal && scan.blocks.empty());
  const lum::ContainerScan again = lum::scanContainer(size, read);
  FUZZ_CHECK(again.name == scan.name && again.blocks.size() == scan.blocks.size() && again.refusal == scan.refusal);
  const lum::ContainerDates dates = lum::containerDates(size, read, scan.blocks);
  for (const lum::DatePlaces& places : dates.dates) {
    if (places.offset) FUZZ_CHECK(places.text && file.contains(*places.offset, 1));
    for (const std::uint64_t copy : places.copies) FUZZ_CHECK(copy != places.offset && file.contains(copy, 19));
  }
  (void)lum::containers::pngCrcsAreRight(size, read);
  return 0;
}
