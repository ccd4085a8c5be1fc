// The placeholder shown in place of a thumbnail that cannot be made: a
// 100 x 60 template image with a grey rounded frame and the word "Error",
// drawn into a plain bitmap so that no GUI toolkit is needed here.
#include <array>
#include <cmath>
#include <string_view>

#include "formats/LumImageFile.h"

namespace {

constexpr int kWidth = 100, kHeight = 60;
constexpr int kFrameX = 4, kFrameY = 4, kFrameW = 92, kFrameH = 52, kRadius = 4;
constexpr std::uint8_t kFrameGrey = 89;  // white level 0.35

// 5 x 7 glyphs of the letters the word needs.
struct Glyph {
  char letter;
  std::array<std::string_view, 7> rows;
};
constexpr Glyph kGlyphs[] = {
    {'E', {"#####", "#....", "#....", "####.", "#....", "#....", "#####"}},
    {'r', {".....", ".....", "#.##.", "##..#", "#....", "#....", "#...."}},
    {'o', {".....", ".....", ".###.", "#...#", "#...#", "#...#", ".###."}},
};

const Glyph* glyphFor(char letter) {
  for (const Glyph& g : kGlyphs)
    if (g.letter == letter) return &g;
  return nullptr;
}

void put(lum::Bitmap& b, int x, int y, std::uint8_t grey) {
  if (x < 0 || y < 0 || x >= b.width || y >= b.height) return;
  std::uint8_t* p = &b.pixels[static_cast<std::size_t>(y) * b.bytesPerRow + static_cast<std::size_t>(x) * 4];
  p[0] = p[1] = p[2] = grey;
  p[3] = 255;
}

// True when (x, y) lies on the one-pixel outline of the rounded rectangle.
bool onFrame(int x, int y) {
  const int left = kFrameX, right = kFrameX + kFrameW - 1, top = kFrameY, bottom = kFrameY + kFrameH - 1;
  if (x < left || x > right || y < top || y > bottom) return false;
  const int cx = x < left + kRadius ? left + kRadius : (x > right - kRadius ? right - kRadius : x);
  const int cy = y < top + kRadius ? top + kRadius : (y > bottom - kRadius ? bottom - kRadius : y);
  if (cx == x || cy == y) return x == left || x == right || y == top || y == bottom;
  const double d = std::hypot(x - cx, y - cy);
  return d > kRadius - 1 && d <= kRadius;
}

}  // namespace

std::shared_ptr<const lum::Bitmap> LumImageFile::errorImage() {
  static const std::shared_ptr<const lum::Bitmap> image = [] {
    auto b = std::make_shared<lum::Bitmap>();
    b->width = kWidth;
    b->height = kHeight;
    b->bitsPerComponent = 8;
    b->bytesPerRow = kWidth * 4;
    b->bitmapInfo = static_cast<std::uint32_t>(lum::AlphaInfo::PremultipliedLast);
    b->colorSpace = lum::ColorSpace::RGB;
    b->pixels.assign(static_cast<std::size_t>(b->bytesPerRow) * kHeight, 0);
    for (int y = 0; y < kHeight; ++y)
      for (int x = 0; x < kWidth; ++x)
        if (onFrame(x, y)) put(*b, x, y, kFrameGrey);
    constexpr std::string_view word = "Error";
    constexpr int scale = 2, advance = 6 * scale;
    const int left = (kWidth - static_cast<int>(word.size()) * advance + scale) / 2;
    const int top = (kHeight - 7 * scale) / 2;
    for (std::size_t i = 0; i < word.size(); ++i) {
      const Glyph* g = glyphFor(word[i]);
      for (int row = 0; g && row < 7; ++row)
        for (int col = 0; col < 5; ++col)
          if (g->rows[row][col] == '#')
            for (int dy = 0; dy < scale; ++dy)
              for (int dx = 0; dx < scale; ++dx)
                put(*b, left + static_cast<int>(i) * advance + col * scale + dx, top + row * scale + dy, 0);
    }
    return b;
  }();
  return image;
}
