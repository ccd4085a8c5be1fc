#include "tools/Resizing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace {

using lum::AlphaInfo;
using lum::Bitmap;
using lum::ColorSpace;

std::shared_ptr<Bitmap> solid(int w, int h, int comps, AlphaInfo info, std::vector<std::uint8_t> pixel,
                              ColorSpace space = ColorSpace::RGB, int bpc = 8) {
  auto b = std::make_shared<Bitmap>();
  b->width = w;
  b->height = h;
  b->bitsPerComponent = bpc;
  b->bytesPerRow = w * comps * (bpc / 8);
  b->bitmapInfo = static_cast<std::uint32_t>(info);
  b->colorSpace = space;
  b->pixels.resize(static_cast<std::size_t>(b->bytesPerRow) * h);
  for (std::size_t i = 0; i < b->pixels.size(); i += pixel.size()) std::memcpy(&b->pixels[i], pixel.data(), pixel.size());
  return b;
}

TEST(ResizingSize, FitsTheBoxKeepingAspect) {
  using Size = Resizing::PixelSize;
  const std::tuple<int, int, bool, std::optional<Size>> cases[] = {
      {4000, 3000, false, Size{150, 113}}, {3000, 4000, false, Size{113, 150}},
      {100, 80, false, std::nullopt}, {100, 80, true, Size{150, 120}},  // already fits; grown
      {150, 100, true, std::nullopt},  // box not larger in both directions
      {151, 10, false, Size{150, 10}}};  // 9.93 rounds to 10
  for (const auto& [w, h, up, expected] : cases)
    EXPECT_EQ(Resizing::newSize(w, h, 150, 150, up), expected) << w << "x" << h << " up=" << up;
}

TEST(ResizingFormat, ComponentCountAndAlphaAreNormalised) {
  struct Case { int comps; AlphaInfo info; int components; std::uint32_t bitmapInfo; int bpc = 8, rowBytes = 0; };
  // Grey and RGB gain a padding alpha, premultiplied last; NoneSkipFirst has
  // bit 2 of 6 set, so "last" wins; PremultipliedFirst (2) has a low bit set:
  // last; CMYK stays without alpha; padded rows: 64 / 2 / 10 truncates to 3.
  const Case cases[] = {
      {1, AlphaInfo::None, 2, 1}, {4, AlphaInfo::NoneSkipFirst, 4, 1}, {4, AlphaInfo::First, 4, 2},
      {4, AlphaInfo::PremultipliedFirst, 4, 1}, {4, AlphaInfo::None, 4, 0}, {3, AlphaInfo::None, 4, 1, 16, 64}};
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(c.comps) + "/" + std::to_string(static_cast<int>(c.info)) + "/" + std::to_string(c.bpc));
    auto b = solid(10, 2, c.comps, c.info, std::vector<std::uint8_t>(static_cast<std::size_t>(c.comps * c.bpc / 8), 0),
                   ColorSpace::RGB, c.bpc);
    if (c.rowBytes) b->bytesPerRow = c.rowBytes;
    const auto f = Resizing::pixelFormat(*b, 7);
    EXPECT_EQ(std::tuple(f->components, f->bitmapInfo, f->bytesPerRow),
              std::tuple(c.components, c.bitmapInfo, c.components * c.bpc / 8 * 7));
  }
}

TEST(ResizingPixels, FirstPixelAfterShrinking) {
  struct Case { const char* what; std::shared_ptr<Bitmap> in; int box, width, height; std::uint32_t bitmapInfo;
                std::vector<std::uint8_t> firstPixel; };
  auto greyPair = solid(2, 1, 1, AlphaInfo::None, {0}, ColorSpace::Gray);
  greyPair->pixels[1] = 255;
  const std::uint16_t deep = 40000;
  std::vector<std::uint8_t> deepPixel(2);
  std::memcpy(deepPixel.data(), &deep, 2);
  const Case cases[] = {
      {"straight alpha first is premultiplied and stays first", solid(4, 4, 4, AlphaInfo::First, {128, 255, 0, 100}), 2,
       2, 2, 2, {128, 128, 0, 50}},
      {"skip-first padding becomes an opaque last alpha", solid(4, 2, 4, AlphaInfo::NoneSkipFirst, {7, 1, 2, 3}), 2, 2,
       1, 1, {1, 2, 3, 255}},
      {"black and white columns average to mid grey", greyPair, 1, 1, 1, 1, {128, 255}},
      {"16-bit components keep their depth", solid(8, 8, 1, AlphaInfo::None, deepPixel, ColorSpace::Gray, 16), 4, 4, 4,
       1, {deepPixel[0], deepPixel[1]}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const auto out = Resizing::resizedBitmap(c.in, c.box, c.box, false);
    ASSERT_TRUE(out);
    EXPECT_EQ(std::tuple(out->width, out->height, out->bitmapInfo, out->bitsPerComponent),
              std::tuple(c.width, c.height, c.bitmapInfo, c.in->bitsPerComponent));
    const auto pixelBytes = static_cast<std::size_t>(out->bytesPerRow / out->width);
    ASSERT_EQ(out->pixels.size(), pixelBytes * static_cast<std::size_t>(out->width * out->height));
    // Every output pixel of a solid input equals the first.
    for (std::size_t i = 0; i < out->pixels.size(); i += pixelBytes)
      ASSERT_TRUE(std::equal(c.firstPixel.begin(), c.firstPixel.end(), out->pixels.begin() + static_cast<std::ptrdiff_t>(i)))
          << "pixel at byte " << i;
  }
}

TEST(ResizingPixels, UnsupportedFormatsGiveNoneAndAFittingBitmapItself) {
  const std::shared_ptr<const Bitmap> fits = solid(100, 80, 3, AlphaInfo::None, {1, 2, 3});
  EXPECT_EQ(Resizing::resizedBitmap(fits, 150, 150, false), fits);
  EXPECT_EQ(Resizing::resizedBitmapFromBitmap(nullptr, false, 150, 150), nullptr);
  // A colour space that disagrees with the component count; fewer than 8 bits
  // per component; pixels shorter than the header claims; a side that rounds to nothing.
  EXPECT_EQ(Resizing::resizedBitmap(solid(8, 8, 3, AlphaInfo::None, {0, 0, 0}, ColorSpace::Gray), 4, 4, false), nullptr);
  auto packed = solid(8, 8, 1, AlphaInfo::None, {0}, ColorSpace::Gray);
  packed->bitsPerComponent = 1;
  EXPECT_EQ(Resizing::resizedBitmap(packed, 4, 4, false), nullptr);
  auto cut = solid(8, 8, 3, AlphaInfo::None, {0, 0, 0});
  cut->pixels.resize(10);
  EXPECT_EQ(Resizing::resizedBitmap(cut, 4, 4, false), nullptr);
  EXPECT_EQ(Resizing::resizedBitmap(solid(1000, 1, 3, AlphaInfo::None, {0, 0, 0}), 150, 150, false), nullptr);
}

}  // namespace
