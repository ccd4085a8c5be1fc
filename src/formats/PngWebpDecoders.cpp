// PNG through libpng's simplified reader and WebP through libwebp: 8-bit
// RGB, or RGBA with straight alpha when the image has transparency.
#include <png.h>
#include <webp/decode.h>

#include <memory>

#include "formats/DecodedBitmap.h"
#include "formats/ImageDecoder.h"

namespace ImageDecoder {

namespace {

struct PngRead {
  png_image image{};
  PngRead() { image.version = PNG_IMAGE_VERSION; }
  ~PngRead() { png_image_free(&image); }
  PngRead(const PngRead&) = delete;
  PngRead& operator=(const PngRead&) = delete;
};

}  // namespace

std::shared_ptr<const lum::Bitmap> decodePNG(orb::ByteView bytes) {
  // libpng keeps its messages in image.message; nothing is printed.
  PngRead read;
  if (bytes.empty() || !png_image_begin_read_from_memory(&read.image, bytes.data(), bytes.size())) return nullptr;
  const bool alpha = (read.image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
  read.image.format = alpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
  auto bitmap = blankBitmap(read.image.width, read.image.height, alpha ? 4 : 3,
                            alpha ? lum::AlphaInfo::Last : lum::AlphaInfo::None);
  if (!bitmap || !png_image_finish_read(&read.image, nullptr, bitmap->pixels.data(), bitmap->bytesPerRow, nullptr))
    return nullptr;
  return bitmap;
}

std::shared_ptr<const lum::Bitmap> decodeWebP(orb::ByteView bytes) {
  WebPBitstreamFeatures features;
  if (bytes.empty() || WebPGetFeatures(bytes.data(), bytes.size(), &features) != VP8_STATUS_OK) return nullptr;
  const bool alpha = features.has_alpha != 0;
  auto bitmap = blankBitmap(features.width, features.height, alpha ? 4 : 3,
                            alpha ? lum::AlphaInfo::Last : lum::AlphaInfo::None);
  if (!bitmap) return nullptr;
  std::uint8_t* const out = bitmap->pixels.data();
  const auto decoded = alpha ? WebPDecodeRGBAInto(bytes.data(), bytes.size(), out, bitmap->pixels.size(),
                                                  bitmap->bytesPerRow)
                             : WebPDecodeRGBInto(bytes.data(), bytes.size(), out, bitmap->pixels.size(),
                                                 bitmap->bytesPerRow);
  return decoded ? bitmap : nullptr;
}

}  // namespace ImageDecoder
