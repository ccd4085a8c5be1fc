#pragma once
// A decoded image held as plain pixels, the unit that decoders produce and
// the resizing helpers consume.
//
// The layout follows the usual bitmap-context conventions: rows of
// `bytesPerRow` bytes, each pixel a run of components of
// `bitsPerComponent` bits (8 or 16, host order for 16), and `alphaInfo`
// saying where an alpha component sits and whether colours are
// premultiplied by it.

#include <cstdint>
#include <vector>

namespace lum {

// Where the alpha component of a pixel sits; the numbers are the ones bitmap
// contexts use, which the resizing rules are written in.
enum class AlphaInfo : std::uint32_t {
  None = 0,                // no alpha component
  PremultipliedLast = 1,   // RGBA, colours premultiplied
  PremultipliedFirst = 2,  // ARGB, colours premultiplied
  Last = 3,                // RGBA, straight colours
  First = 4,               // ARGB, straight colours
  NoneSkipLast = 5,        // RGBX, the last slot is padding
  NoneSkipFirst = 6,       // XRGB, the first slot is padding
  Only = 7,                // alpha alone, no colour
};

enum class ColorSpace : std::uint8_t { Gray, RGB, CMYK };

struct Bitmap {
  int width = 0;
  int height = 0;
  int bitsPerComponent = 8;
  int bytesPerRow = 0;
  std::uint32_t bitmapInfo = 0;  // an AlphaInfo value
  ColorSpace colorSpace = ColorSpace::RGB;
  std::vector<std::uint8_t> pixels;  // height * bytesPerRow bytes

  AlphaInfo alphaInfo() const { return static_cast<AlphaInfo>(bitmapInfo & 0x1F); }

  // Components per pixel as the row length implies it (0 when unknowable).
  int componentsPerPixel() const {
    const int bytesPerComponent = bitsPerComponent / 8;
    if (bytesPerComponent <= 0 || width <= 0) return 0;
    return bytesPerRow / bytesPerComponent / width;
  }

  // True when the pixel buffer is as large as the header says.
  bool isConsistent() const {
    return width > 0 && height > 0 && bytesPerRow > 0 &&
           pixels.size() >= static_cast<std::uint64_t>(bytesPerRow) * static_cast<std::uint64_t>(height);
  }
};

}  // namespace lum
