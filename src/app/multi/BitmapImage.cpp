#include "app/multi/BitmapImage.h"

#include <cstring>
#include <optional>

#include "tools/Bitmap.h"

namespace {

struct PixelLayout {
  int colours = 3;        // 1 grey, 3 RGB, 4 CMYK
  int components = 3;     // per pixel, with the alpha or padding slot
  int colourStart = 0;    // first colour component
  int alpha = -1;         // component holding alpha, -1 when opaque
  bool premultiplied = false;
};

std::optional<PixelLayout> layoutOf(const lum::Bitmap& b) {
  PixelLayout l;
  l.colours = b.colorSpace == lum::ColorSpace::Gray ? 1 : b.colorSpace == lum::ColorSpace::CMYK ? 4 : 3;
  using A = lum::AlphaInfo;
  const A info = b.alphaInfo();
  if (info == A::Only) return std::nullopt;
  const bool slot = info != A::None;
  const bool first = info == A::PremultipliedFirst || info == A::First || info == A::NoneSkipFirst;
  const bool skip = info == A::NoneSkipFirst || info == A::NoneSkipLast;
  l.components = l.colours + (slot ? 1 : 0);
  l.colourStart = slot && first ? 1 : 0;
  if (slot && !skip) l.alpha = first ? 0 : l.colours;
  l.premultiplied = info == A::PremultipliedFirst || info == A::PremultipliedLast;
  const int bytes = b.bitsPerComponent / 8;
  if ((bytes != 1 && bytes != 2) || static_cast<long>(l.components) * bytes * b.width > b.bytesPerRow)
    return std::nullopt;
  return l;
}

// A component as 8 bits: 16-bit components are in host order.
int component(const std::uint8_t* pixel, int index, int bytes) {
  if (bytes == 1) return pixel[index];
  std::uint16_t value = 0;
  std::memcpy(&value, pixel + 2 * index, 2);
  return value >> 8;
}

}  // namespace

QImage imageFromBitmap(const lum::Bitmap& b) {
  if (!b.isConsistent()) return {};
  const std::optional<PixelLayout> l = layoutOf(b);
  if (!l) return {};
  QImage image(b.width, b.height,
               l->premultiplied ? QImage::Format_RGBA8888_Premultiplied : QImage::Format_RGBA8888);
  const int bytes = b.bitsPerComponent / 8;
  for (int y = 0; y < b.height; ++y) {
    const std::uint8_t* row = b.pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(b.bytesPerRow);
    uchar* out = image.scanLine(y);
    for (int x = 0; x < b.width; ++x, out += 4) {
      const std::uint8_t* pixel = row + static_cast<std::size_t>(x) * static_cast<std::size_t>(l->components * bytes);
      const auto c = [&](int i) { return component(pixel, l->colourStart + i, bytes); };
      int r = 0, g = 0, bl = 0;
      if (l->colours == 1) {
        r = g = bl = c(0);
      } else if (l->colours == 3) {
        r = c(0), g = c(1), bl = c(2);
      } else {  // CMYK, plainly without a colour profile
        const int k = 255 - c(3);
        r = (255 - c(0)) * k / 255, g = (255 - c(1)) * k / 255, bl = (255 - c(2)) * k / 255;
      }
      out[0] = static_cast<uchar>(r), out[1] = static_cast<uchar>(g), out[2] = static_cast<uchar>(bl);
      out[3] = static_cast<uchar>(l->alpha >= 0 ? component(pixel, l->alpha, bytes) : 255);
    }
  }
  return image;
}
