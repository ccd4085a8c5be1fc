// Which picture the list thumbnail comes from: the camera's own Exif
// thumbnail only when it gives exactly the size the main image would get in
// the box; the main image otherwise. The two are told apart by colour: the
// main images here are black, the embedded thumbnails white.
#include <gtest/gtest.h>

#include "formats/ImageFileTestSupport.h"

namespace {

using lumtest::Bytes;
using lumtest::flatGrayJpeg;

// A JPEG of a black main image whose little-endian TIFF block has an empty
// IFD0 chained to an IFD1 giving the thumbnail's place (`offsetShift` more
// than its real one, 44) and length as LONGs.
Bytes photo(int width, int height, const Bytes& thumbnail, std::uint32_t offsetShift = 0) {
  Bytes tiff = {'I', 'I', 42, 0, 8, 0, 0, 0, /* IFD0 */ 0, 0, 14, 0, 0, 0, /* IFD1 */ 2, 0};
  for (const auto& [tag, value] : {std::pair<std::uint8_t, std::uint32_t>{0x01, 44 + offsetShift},
                                   {0x02, static_cast<std::uint32_t>(thumbnail.size())}}) {
    tiff.insert(tiff.end(), {tag, 0x02, 4, 0, 1, 0, 0, 0});
    for (int shift = 0; shift < 32; shift += 8) tiff.push_back(static_cast<std::uint8_t>(value >> shift));
  }
  tiff.insert(tiff.end(), 4, 0);
  tiff.insert(tiff.end(), thumbnail.begin(), thumbnail.end());
  Bytes out = lumtest::JpegBuilder().exif(thumbnail.empty() ? lumtest::exifTiff({}, {}) : tiff).build(false);
  const Bytes body = lumtest::jpegBody(flatGrayJpeg(width, height, 0));
  out.insert(out.end(), body.begin(), body.end());
  return out;
}

TEST(LumImageFileThumbnail, TheCamerasThumbnailOnlyWhenItGivesTheSameSize) {
  const Bytes white4x3 = flatGrayJpeg(160, 120, 255);
  const struct { const char* name; Bytes bytes; int width, height; bool embedded; } cases[] = {
      {"same shape, larger than the box", photo(640, 480, white4x3), 150, 113, true},
      {"padded to another shape", photo(600, 400, white4x3), 150, 100, false},
      {"smaller than the box needs", photo(640, 480, flatGrayJpeg(80, 60, 255)), 150, 113, false},
      {"main image already fits the box", photo(100, 75, white4x3), 100, 75, false},
      {"offset past the file's end", photo(640, 480, white4x3, 1u << 20), 150, 113, false},
      {"not a JPEG", photo(640, 480, Bytes(500, 0x11)), 150, 113, false},
      {"no thumbnail", photo(640, 480, {}), 150, 113, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(c.bytes);
    LumError error;
    const auto file = LumImageFile::imageFileWithURL(temp.path(), &error);
    ASSERT_TRUE(file) << error.reason;
    lumtest::PathOwner owner(temp.path());
    file->setOwnerDocument(&owner);
    // Read without being kept, then made and kept: the same picture.
    const auto read = file->readThumbnail(temp.path());
    EXPECT_FALSE(file->thumbnail());
    file->makeThumbnail();
    const auto thumb = file->thumbnail();
    ASSERT_TRUE(thumb && thumb->isConsistent() && read);
    EXPECT_EQ(read->pixels, thumb->pixels);
    EXPECT_EQ(std::pair(thumb->width, thumb->height), std::pair(c.width, c.height));
    const std::uint8_t centre = thumb->pixels[static_cast<std::size_t>(thumb->height / 2 * thumb->bytesPerRow +
                                                                       thumb->width / 2 * thumb->componentsPerPixel())];
    EXPECT_EQ(centre > 128, c.embedded) << int(centre);
  }
}

}  // namespace
