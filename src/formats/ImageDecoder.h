#pragma once
// The image decoders behind one small interface: libjpeg-turbo for JPEG,
// libtiff for TIFF, both reading straight from the file's bytes.
//
// checkHeader() is the fast "can it be decoded" test used when a file is
// opened: the decoder must accept the image's header and report a non-zero
// size; no pixels are decoded. The pixel decoders are for thumbnails and the
// viewer. No decoder prints anything; messages are returned.

#include <memory>
#include <string>

#include "core/ByteView.h"
#include "tools/Bitmap.h"

namespace ImageDecoder {

enum class Kind { Unknown, JPEG, TIFF };

// By the first bytes: FF D8 is JPEG, "II" or "MM" is TIFF.
Kind kindOf(orb::ByteView bytes);

struct HeaderCheck {
  bool ok = false;
  int width = 0;
  int height = 0;
  std::string message;  // the decoder's reason when not ok
};

HeaderCheck checkHeader(orb::ByteView bytes);
HeaderCheck checkJPEGHeader(orb::ByteView bytes);
HeaderCheck checkTIFFHeader(orb::ByteView bytes);

// Decodes the image at a size near a box of boxWidth x boxHeight but not
// below what fitting it there needs (JPEG: scaled decoding by 1/2, 1/4 or
// 1/8; TIFF: the whole first image). nullptr when it cannot be decoded.
std::shared_ptr<const lum::Bitmap> decodeForBox(orb::ByteView bytes, int boxWidth, int boxHeight);
// The whole image at full size.
std::shared_ptr<const lum::Bitmap> decodeFull(orb::ByteView bytes);

std::shared_ptr<const lum::Bitmap> decodeJPEG(orb::ByteView bytes, int boxWidth, int boxHeight);
std::shared_ptr<const lum::Bitmap> decodeTIFF(orb::ByteView bytes);

// Images with more pixels than this are not decoded: a hostile header must
// not make the program allocate gigabytes.
inline constexpr long long kMaxDecodedPixels = 100LL * 1000 * 1000;

}  // namespace ImageDecoder
