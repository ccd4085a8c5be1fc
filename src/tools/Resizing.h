#pragma once
// Aspect-keeping bitmap resizing, used for thumbnails and the single-file
// picture.
//
// The new size makes the limiting side take the box's size exactly and rounds
// the other (halves away from zero). The new bitmap always has room for
// alpha: grey and colour sources gain a padding alpha component, and alpha is
// stored premultiplied, last or first as the source had it.

#include <memory>
#include <optional>

#include "tools/Bitmap.h"

namespace Resizing {

struct PixelSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

// The size the bitmap gets in a box of w x h, or nullopt when it already fits
// and is left as it is.
std::optional<PixelSize> newSize(int width, int height, double boxWidth, double boxHeight, bool upSizing);

// The pixel layout of the resized bitmap: component count, normalised alpha
// information and bytes per row for the given new width.
struct PixelFormat {
  int components = 0;
  std::uint32_t bitmapInfo = 0;
  int bytesPerRow = 0;
  friend bool operator==(const PixelFormat&, const PixelFormat&) = default;
};
std::optional<PixelFormat> pixelFormat(const lum::Bitmap& source, int newWidth);

// The bitmap itself when no resizing is needed, a new resized bitmap
// otherwise, or nullptr when the new bitmap cannot be made (an unsupported
// pixel format, or an inconsistent source).
std::shared_ptr<const lum::Bitmap> resizedBitmap(const std::shared_ptr<const lum::Bitmap>& bitmap, double boxWidth,
                                                 double boxHeight, bool upSizing);

// The helper callers use: nullptr for no bitmap, else resizedBitmap().
std::shared_ptr<const lum::Bitmap> resizedBitmapFromBitmap(const std::shared_ptr<const lum::Bitmap>& bitmap,
                                                           bool upSizing, double boxWidth, double boxHeight);

}  // namespace Resizing
