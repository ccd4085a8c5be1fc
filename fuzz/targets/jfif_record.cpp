// The JFIF APP0 segment: read from a JPEG's first segment, and written out.
//
// Must hold: reading any APP0 leaves the walk no further than the segment's
// end or the end of the fixed JFIF fields, or at the file's end; a segment
// written from fields reads back as those fields.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "FuzzCheck.h"
#include "core/ByteView.h"
#include "formats/LumImageFile.h"
#include "formats/OrbJFIF.h"

namespace {

// SOI, APP0 marker, then the segment bytes from its length field on.
std::vector<std::uint8_t> jpegWithAPP0(const std::uint8_t* segment, std::size_t size) {
  std::vector<std::uint8_t> file{0xFF, 0xD8, 0xFF, 0xE0};
  file.insert(file.end(), segment, segment + size);
  return file;
}

void checkReading(const std::vector<std::uint8_t>& file) {
  const orb::ByteView bytes(file.data(), file.size());
  LumImageFile image;
  std::uint64_t location = 4;
  image.pSearchJFIF(bytes, &location, file.size());
  const auto& range = image.JFIFSegmentRange();
  if (range) {
    FUZZ_CHECK(range->location == 2);
    // The walk goes on after the JFIF fields even when the length field says
    // the segment is shorter than they are.
    FUZZ_CHECK(location <= range->location + std::max<std::uint64_t>(range->length, OrbJFIF::kFixedSize));
  } else {
    FUZZ_CHECK(location == file.size());
  }
}

void checkWriting(const std::uint8_t* data, std::size_t size) {
  if (size < 9) return;
  OrbJFIF jfif;
  jfif.setVersion({static_cast<std::int8_t>(data[0] % 3), static_cast<std::int8_t>(data[1] % 12)});
  jfif.setUnit(static_cast<std::int8_t>(data[2] % 3));
  jfif.setXDensity(static_cast<std::uint16_t>(data[3] << 8 | data[4]));
  jfif.setYDensity(static_cast<std::uint16_t>(data[5] << 8 | data[6]));
  const std::uint8_t width = data[7] % 4, height = data[8] % 4;
  jfif.setThumbnailWidth(width);
  jfif.setThumbnailHeight(height);
  const std::size_t pixels = std::size_t{width} * height * 3;
  jfif.setSize(static_cast<std::uint16_t>(OrbJFIF::kFixedSize + pixels));
  jfif.setThumbnail(std::span<const std::uint8_t>(data, size), pixels);

  std::vector<std::uint8_t> file{0xFF, 0xD8};
  file.resize(2 + jfif.size());
  jfif.getByte(std::span<std::uint8_t>(file).subspan(2));
  file.insert(file.end(), {0xFF, 0xD9});
  LumImageFile image;
  std::uint64_t location = 4;
  image.pSearchJFIF(orb::ByteView(file.data(), file.size()), &location, file.size());
  FUZZ_CHECK(image.JFIFSegmentRange() && image.JFIFSegmentRange()->length == jfif.size());
  FUZZ_CHECK(image.JFIFValue("X Density") == jfif.stringJFIFDensityX());
  FUZZ_CHECK(image.JFIFValue("Y Density") == jfif.stringJFIFDensityY());
  FUZZ_CHECK(image.JFIFValue("Thumbnail Width") ==
             (width ? std::optional<std::string>(std::to_string(width)) : std::nullopt));
  FUZZ_CHECK(image.JFIFValue("Thumbnail Height") ==
             (height ? std::optional<std::string>(std::to_string(height)) : std::nullopt));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  checkReading(jpegWithAPP0(data, size));
  checkWriting(data, size);
  return 0;
}
