#pragma once
// The image decoders behind one small interface: libjpeg-turbo for JPEG,
// libtiff for TIFF, libraw for camera RAW, libheif for HEIC/HEIF/AVIF,
// libpng and libwebp, all reading straight from the file's bytes.
//
// checkHeader() is the fast "can it be decoded" test used when a file is
// opened: the decoder must accept the image's header and report a non-zero
// size; no pixels are decoded. The pixel decoders are for thumbnails and the
// viewer. No decoder prints anything; messages are returned.

#include <memory>
#include <string>

#include "core/ByteView.h"
#include "formats/containers/ContainerTypes.h"
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

// JPEG and TIFF only: opening checks the other formats otherwise.
HeaderCheck checkHeader(orb::ByteView bytes);
HeaderCheck checkJPEGHeader(orb::ByteView bytes);
HeaderCheck checkTIFFHeader(orb::ByteView bytes);

// Which decoder a picture needs, told by the container scan: a RAW file
// that starts like a TIFF goes to libraw, never to libtiff, whose first
// directory would give its tiny preview.
enum class Format { Unknown, JPEG, TIFF, RAW, HEIF, PNG, WebP };
Format formatOf(orb::ByteView bytes);

// Decodes the image at a size near a box of boxWidth x boxHeight but not
// below what fitting it there needs (JPEG: scaled decoding by 1/2, 1/4 or
// 1/8; TIFF: the whole first image; RAW: the camera's preview; HEIF: its
// thumbnail when that is large enough). nullptr when it cannot be decoded.
std::shared_ptr<const lum::Bitmap> decodeForBox(orb::ByteView bytes, int boxWidth, int boxHeight);
// The whole image at full size.
std::shared_ptr<const lum::Bitmap> decodeFull(orb::ByteView bytes);

std::shared_ptr<const lum::Bitmap> decodeJPEG(orb::ByteView bytes, int boxWidth, int boxHeight);
std::shared_ptr<const lum::Bitmap> decodeTIFF(orb::ByteView bytes);
// The camera's embedded preview; without one, and only for a box larger than
// kRawDecodeBox (or a full-size decode), the RAW data at half size.
std::shared_ptr<const lum::Bitmap> decodeRAW(orb::ByteView bytes, int boxWidth, int boxHeight);
// Only the preview, read through `read` from a RAW file of fileSize bytes:
// just the pieces libraw asks for (directories, the preview), never the
// sensor data that makes up most of the file.
std::shared_ptr<const lum::Bitmap> decodeRAWPreview(const lum::RangeReader& read, std::uint64_t fileSize,
                                                    int boxWidth, int boxHeight);
std::shared_ptr<const lum::Bitmap> decodeHEIF(orb::ByteView bytes, int boxWidth, int boxHeight);
std::shared_ptr<const lum::Bitmap> decodePNG(orb::ByteView bytes);
std::shared_ptr<const lum::Bitmap> decodeWebP(orb::ByteView bytes);

// Developing RAW data takes about a second: never for list thumbnails.
inline constexpr int kRawDecodeBox = 512;

// Images with more pixels than this are not decoded: a hostile header must
// not make the program allocate gigabytes.
inline constexpr long long kMaxDecodedPixels = 100LL * 1000 * 1000;

}  // namespace ImageDecoder
