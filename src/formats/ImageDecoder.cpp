// The header check of opening. Decoding pictures (PictureDecoding.cpp) is
// apart: a program that only opens files does not load the decoders of the
// other formats.
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

}  // namespace ImageDecoder
