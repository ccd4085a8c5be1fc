#include "formats/ImageDecoder.h"

namespace ImageDecoder {

Kind kindOf(orb::ByteView bytes) {
  const auto first = bytes.u16(0);
  if (!first) return Kind::Unknown;
  if (*first == 0x4949 || *first == 0x4D4D) return Kind::TIFF;
  if (*first == 0xFFD8) return Kind::JPEG;
  return Kind::Unknown;
}

HeaderCheck checkHeader(orb::ByteView bytes) {
  switch (kindOf(bytes)) {
    case Kind::JPEG: return checkJPEGHeader(bytes);
    case Kind::TIFF: return checkTIFFHeader(bytes);
    case Kind::Unknown: break;
  }
  return {false, 0, 0, "not a JPEG or TIFF image"};
}

std::shared_ptr<const lum::Bitmap> decodeForBox(orb::ByteView bytes, int boxWidth, int boxHeight) {
  switch (formatOf(bytes)) {
    case Format::JPEG: return decodeJPEG(bytes, boxWidth, boxHeight);
    case Format::TIFF: return decodeTIFF(bytes);
    case Format::RAW: return decodeRAW(bytes, boxWidth, boxHeight);
    case Format::HEIF: return decodeHEIF(bytes, boxWidth, boxHeight);
    case Format::PNG: return decodePNG(bytes);
    case Format::WebP: return decodeWebP(bytes);
    case Format::Unknown: break;
  }
  return nullptr;
}

std::shared_ptr<const lum::Bitmap> decodeFull(orb::ByteView bytes) { return decodeForBox(bytes, 0, 0); }

}  // namespace ImageDecoder
