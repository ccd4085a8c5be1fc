// Which picture the list thumbnail comes from: the camera's own Exif
// thumbnail only when it gives exactly the size the main image would get in
// the box; the main image otherwise. The two are told apart by colour: the
// main images here are black, the embedded thumbnails white.
#include <gtest/gtest.h>

#include "formats/ImageFileTestSupport.h"

namespace {

using lumtest::Bytes;
using lumtest::flatGrayJpeg;

void put16(Bytes& b, std::uint32_t v) {
  b.push_back(static_cast<std::uint8_t>(v));
  b.push_back(static_cast<std::uint8_t>(v >> 8));
}
void put32(Bytes& b, std::uint32_t v) {
  put16(b, v & 0xFFFF);
  put16(b, v >> 16);
}

// A little-endian TIFF block: an empty IFD0 chained to an IFD1 whose JPEG
// thumbnail entries give `offsetShift` more than the thumbnail's real place.
Bytes tiffWithThumbnail(const Bytes& thumbnail, std::uint32_t offsetShift = 0) {
  Bytes b = {'I', 'I', 42, 0};
  put32(b, 8);
  put16(b, 0);   // IFD0: no entries
  put32(b, 14);  // next: IFD1
  put16(b, 2);
  const std::uint32_t thumbnailAt = 14 + 2 + 2 * 12 + 4;
  for (const auto& [tag, value] : {std::pair<std::uint16_t, std::uint32_t>{0x0201, thumbnailAt + offsetShift},
                                  {0x0202, static_cast<std::uint32_t>(thumbnail.size())}}) {
    put16(b, tag);
    put16(b, 4);  // LONG
    put32(b, 1);
    put32(b, value);
  }
  put32(b, 0);
  b.insert(b.end(), thumbnail.begin(), thumbnail.end());
  return b;
}

Bytes photo(int width, int height, const Bytes& tiff) {
  Bytes out = lumtest::JpegBuilder().exif(tiff).build(false);
  const Bytes body = lumtest::jpegBody(flatGrayJpeg(width, height, 0));
  out.insert(out.end(), body.begin(), body.end());
  return out;
}

TEST(LumImageFileThumbnail, TheCamerasThumbnailOnlyWhenItGivesTheSameSize) {
  const Bytes white4x3 = flatGrayJpeg(160, 120, 255);
  const struct {
    const char* name;
    Bytes bytes;
    int width, height;
    bool embedded;
  } cases[] = {
      {"same shape, larger than the box", photo(640, 480, tiffWithThumbnail(white4x3)), 150, 113, true},
      {"padded to another shape", photo(600, 400, tiffWithThumbnail(white4x3)), 150, 100, false},
      {"smaller than the box needs", photo(640, 480, tiffWithThumbnail(flatGrayJpeg(80, 60, 255))), 150, 113, false},
      {"main image already fits the box", photo(100, 75, tiffWithThumbnail(white4x3)), 100, 75, false},
      {"offset past the file's end", photo(640, 480, tiffWithThumbnail(white4x3, 1u << 20)), 150, 113, false},
      {"not a JPEG", photo(640, 480, tiffWithThumbnail(Bytes(500, 0x11))), 150, 113, false},
      {"no thumbnail", photo(640, 480, lumtest::exifTiff({}, {})), 150, 113, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(c.bytes);
    LumError error;
    const auto file = LumImageFile::imageFileWithURL(temp.path(), &error);
    ASSERT_TRUE(file) << error.reason;
    lumtest::PathOwner owner;
    owner.path = temp.path();
    file->setOwnerDocument(&owner);
    file->makeThumbnail();
    const auto thumb = file->thumbnail();
    ASSERT_TRUE(thumb && thumb->isConsistent());
    EXPECT_EQ(thumb->width, c.width);
    EXPECT_EQ(thumb->height, c.height);
    const std::uint8_t centre = thumb->pixels[static_cast<std::size_t>(thumb->height / 2 * thumb->bytesPerRow +
                                                                       thumb->width / 2 * thumb->componentsPerPixel())];
    EXPECT_EQ(centre > 128, c.embedded) << int(centre);
  }
}

}  // namespace
