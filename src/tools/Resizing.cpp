#include "tools/Resizing.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

namespace Resizing {

std::optional<PixelSize> newSize(int width, int height, double boxWidth, double boxHeight, bool upSizing) {
  if (width <= 0 || height <= 0) return std::nullopt;
  if (width <= boxWidth && height <= boxHeight) {
    const bool enlarge = upSizing && boxWidth > width && boxHeight > height;
    if (!enlarge) return std::nullopt;
  }
  // The factors are single precision on purpose: the rounding of the free
  // side follows from them (4000 x 3000 in 150 x 150 gives 112.5 -> 113).
  const float sx = static_cast<float>(boxWidth) / static_cast<float>(width);
  const float sy = static_cast<float>(boxHeight) / static_cast<float>(height);
  if (sy > sx) return PixelSize{static_cast<int>(boxWidth), static_cast<int>(std::round(static_cast<float>(height) * sx))};
  return PixelSize{static_cast<int>(std::round(static_cast<float>(width) * sy)), static_cast<int>(boxHeight)};
}

namespace {

constexpr std::uint32_t normalisedAlphaInfo(std::uint32_t info) {
  if (info & 0x3) return 1;  // premultiplied, last
  if (info & 0x4) return 2;  // premultiplied, first
  return info;
}

}  // namespace

std::optional<PixelFormat> pixelFormat(const lum::Bitmap& source, int newWidth) {
  const int bytesPerComponent = source.bitsPerComponent / 8;
  if (bytesPerComponent <= 0 || source.width <= 0 || newWidth <= 0) return std::nullopt;
  const int c = source.componentsPerPixel();
  if (c <= 0) return std::nullopt;
  const bool addAlphaSlot = c == 1 || c == 3;
  const std::uint32_t start = addAlphaSlot ? 5u : source.bitmapInfo;
  PixelFormat format;
  format.components = addAlphaSlot ? c + 1 : c;
  format.bitmapInfo = normalisedAlphaInfo(start);
  format.bytesPerRow = format.components * bytesPerComponent * newWidth;
  return format;
}

namespace {

// How the source's components map onto the new bitmap's.
struct Layout {
  int sourceComponents = 0;
  int colours = 0;           // colour components (not alpha, not padding)
  int sourceColourStart = 0; // index of the first colour component
  int sourceAlpha = -1;      // index of alpha in the source, -1 for opaque
  bool sourcePremultiplied = false;
  int components = 0;        // of the new bitmap
  int colourStart = 0;       // index of the first colour in the new bitmap
  int alpha = -1;            // index of alpha in the new bitmap, -1 for none
};

int colourCount(lum::ColorSpace space) {
  switch (space) {
    case lum::ColorSpace::Gray: return 1;
    case lum::ColorSpace::RGB: return 3;
    case lum::ColorSpace::CMYK: return 4;
  }
  return 0;
}

std::optional<Layout> layoutFor(const lum::Bitmap& source, const PixelFormat& format) {
  Layout l;
  l.sourceComponents = source.componentsPerPixel();
  l.components = format.components;
  const auto info = source.alphaInfo();
  const bool sourceHasSlot = !(l.sourceComponents == 1 || l.sourceComponents == 3) && info != lum::AlphaInfo::None;
  if (sourceHasSlot) {
    const bool first = info == lum::AlphaInfo::PremultipliedFirst || info == lum::AlphaInfo::First ||
                       info == lum::AlphaInfo::NoneSkipFirst;
    const bool skip = info == lum::AlphaInfo::NoneSkipFirst || info == lum::AlphaInfo::NoneSkipLast;
    l.colours = l.sourceComponents - 1;
    l.sourceColourStart = first ? 1 : 0;
    l.sourceAlpha = skip ? -1 : (first ? 0 : l.sourceComponents - 1);
    l.sourcePremultiplied = info == lum::AlphaInfo::PremultipliedFirst || info == lum::AlphaInfo::PremultipliedLast;
  } else {
    l.colours = l.sourceComponents;
  }
  if (format.bitmapInfo == 0) {
    if (l.components != l.colours) return std::nullopt;
  } else if (format.bitmapInfo == 1 || format.bitmapInfo == 2) {
    if (l.components != l.colours + 1) return std::nullopt;
    l.colourStart = format.bitmapInfo == 2 ? 1 : 0;
    l.alpha = format.bitmapInfo == 2 ? 0 : l.components - 1;
  } else {
    return std::nullopt;
  }
  // A bitmap context holds only the colour components its space has.
  if (l.colours != colourCount(source.colorSpace)) return std::nullopt;
  return l;
}

double readComponent(const std::uint8_t* p, int bytesPerComponent) {
  if (bytesPerComponent == 1) return p[0] / 255.0;
  std::uint16_t v = 0;
  std::memcpy(&v, p, 2);
  return v / 65535.0;
}

void writeComponent(std::uint8_t* p, int bytesPerComponent, double value) {
  value = std::clamp(value, 0.0, 1.0);
  if (bytesPerComponent == 1) {
    p[0] = static_cast<std::uint8_t>(std::lround(value * 255.0));
    return;
  }
  const auto v = static_cast<std::uint16_t>(std::lround(value * 65535.0));
  std::memcpy(p, &v, 2);
}

// One source row in the new layout, premultiplied, as floats.
void convertRow(const std::uint8_t* row, const lum::Bitmap& source, const Layout& l, std::vector<float>& out) {
  const int bpc = source.bitsPerComponent / 8;
  out.assign(static_cast<std::size_t>(source.width) * l.components, 0.0f);
  for (int x = 0; x < source.width; ++x) {
    const std::uint8_t* px = row + static_cast<std::size_t>(x) * l.sourceComponents * bpc;
    float* o = out.data() + static_cast<std::size_t>(x) * l.components;
    const double a = l.sourceAlpha >= 0 ? readComponent(px + l.sourceAlpha * bpc, bpc) : 1.0;
    const double factor = (l.alpha >= 0 && !l.sourcePremultiplied) ? a : 1.0;
    for (int c = 0; c < l.colours; ++c)
      o[l.colourStart + c] = static_cast<float>(readComponent(px + (l.sourceColourStart + c) * bpc, bpc) * factor);
    if (l.alpha >= 0) o[l.alpha] = static_cast<float>(a);
  }
}

// Area-averaging weights: destination index i covers the source interval
// [i * scale, (i + 1) * scale); each source sample counts by its overlap.
struct Tap {
  int index;
  float weight;
};
std::vector<std::vector<Tap>> weights(int sourceLength, int newLength) {
  std::vector<std::vector<Tap>> result(static_cast<std::size_t>(newLength));
  const double scale = static_cast<double>(sourceLength) / newLength;
  for (int i = 0; i < newLength; ++i) {
    const double from = i * scale;
    const double to = std::min<double>((i + 1) * scale, sourceLength);
    double total = 0;
    for (int s = static_cast<int>(std::floor(from)); s < sourceLength && s < to; ++s) {
      const double overlap = std::min<double>(s + 1, to) - std::max<double>(s, from);
      if (overlap <= 0) continue;
      result[i].push_back({s, static_cast<float>(overlap)});
      total += overlap;
    }
    for (Tap& t : result[i]) t.weight = static_cast<float>(t.weight / total);
  }
  return result;
}

std::shared_ptr<const lum::Bitmap> draw(const lum::Bitmap& source, PixelSize size, const PixelFormat& format,
                                        const Layout& l) {
  const int bpc = source.bitsPerComponent / 8;
  const int comps = l.components;
  const auto across = weights(source.width, size.width);
  const auto down = weights(source.height, size.height);

  // Horizontal pass, one source row at a time, so only a narrow
  // intermediate of newWidth x sourceHeight is kept.
  std::vector<float> narrow(static_cast<std::size_t>(size.width) * source.height * comps, 0.0f);
  std::vector<float> row;
  for (int y = 0; y < source.height; ++y) {
    convertRow(source.pixels.data() + static_cast<std::size_t>(y) * source.bytesPerRow, source, l, row);
    float* out = narrow.data() + static_cast<std::size_t>(y) * size.width * comps;
    for (int x = 0; x < size.width; ++x)
      for (const Tap& t : across[x])
        for (int c = 0; c < comps; ++c) out[x * comps + c] += row[static_cast<std::size_t>(t.index) * comps + c] * t.weight;
  }

  auto result = std::make_shared<lum::Bitmap>();
  result->width = size.width;
  result->height = size.height;
  result->bitsPerComponent = source.bitsPerComponent;
  result->bytesPerRow = format.bytesPerRow;
  result->bitmapInfo = format.bitmapInfo;
  result->colorSpace = source.colorSpace;
  result->pixels.assign(static_cast<std::size_t>(format.bytesPerRow) * size.height, 0);
  std::vector<float> sum(static_cast<std::size_t>(comps));
  for (int y = 0; y < size.height; ++y) {
    std::uint8_t* outRow = result->pixels.data() + static_cast<std::size_t>(y) * format.bytesPerRow;
    for (int x = 0; x < size.width; ++x) {
      std::fill(sum.begin(), sum.end(), 0.0f);
      for (const Tap& t : down[y]) {
        const float* in = narrow.data() + (static_cast<std::size_t>(t.index) * size.width + x) * comps;
        for (int c = 0; c < comps; ++c) sum[c] += in[c] * t.weight;
      }
      for (int c = 0; c < comps; ++c) writeComponent(outRow + (static_cast<std::size_t>(x) * comps + c) * bpc, bpc, sum[c]);
    }
  }
  return result;
}

// Refuses sizes whose buffers could not be addressed as int rows.
bool reasonable(PixelSize size, const PixelFormat& format) {
  constexpr std::int64_t kMaxBytes = std::int64_t{1} << 31;
  return size.width > 0 && size.height > 0 && format.bytesPerRow > 0 &&
         static_cast<std::int64_t>(format.bytesPerRow) * size.height < kMaxBytes;
}

}  // namespace

std::shared_ptr<const lum::Bitmap> resizedBitmap(const std::shared_ptr<const lum::Bitmap>& bitmap, double boxWidth,
                                                 double boxHeight, bool upSizing) {
  if (!bitmap) return nullptr;
  const lum::Bitmap& source = *bitmap;
  const auto size = newSize(source.width, source.height, boxWidth, boxHeight, upSizing);
  if (!size) return bitmap;
  if (!source.isConsistent() || (source.bitsPerComponent != 8 && source.bitsPerComponent != 16)) return nullptr;
  const auto format = pixelFormat(source, size->width);
  if (!format || !reasonable(*size, *format)) return nullptr;
  const auto layout = layoutFor(source, *format);
  if (!layout) return nullptr;
  if (static_cast<std::int64_t>(layout->sourceComponents) * (source.bitsPerComponent / 8) * source.width > source.bytesPerRow)
    return nullptr;
  return draw(source, *size, *format, *layout);
}

std::shared_ptr<const lum::Bitmap> resizedBitmapFromBitmap(const std::shared_ptr<const lum::Bitmap>& bitmap,
                                                           bool upSizing, double boxWidth, double boxHeight) {
  if (!bitmap) return nullptr;
  return resizedBitmap(bitmap, boxWidth, boxHeight, upSizing);
}

}  // namespace Resizing
