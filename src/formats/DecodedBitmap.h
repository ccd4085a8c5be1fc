#pragma once
// The empty bitmap a decoder fills, of 8-bit components, refused (nullptr)
// when the size is not positive or above kMaxDecodedPixels.

#include <memory>

#include "formats/ImageDecoder.h"

namespace ImageDecoder {

inline std::shared_ptr<lum::Bitmap> blankBitmap(long long width, long long height, int components,
                                                lum::AlphaInfo alpha = lum::AlphaInfo::None,
                                                lum::ColorSpace space = lum::ColorSpace::RGB) {
  if (width <= 0 || height <= 0 || width * height > kMaxDecodedPixels) return nullptr;
  auto bitmap = std::make_shared<lum::Bitmap>();
  bitmap->width = static_cast<int>(width);
  bitmap->height = static_cast<int>(height);
  bitmap->bitsPerComponent = 8;
  bitmap->bytesPerRow = bitmap->width * components;
  bitmap->bitmapInfo = static_cast<std::uint32_t>(alpha);
  bitmap->colorSpace = space;
  bitmap->pixels.assign(static_cast<std::size_t>(bitmap->bytesPerRow) * static_cast<std::size_t>(height), 0);
  return bitmap;
}

}  // namespace ImageDecoder
