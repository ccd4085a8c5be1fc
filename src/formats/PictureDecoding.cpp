// Decoding a picture by the decoder that the container scan's name for the
// file calls for.
#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "formats/ByteViewReader.h"
#include "formats/ImageDecoder.h"
#include "formats/containers/ContainerScan.h"

namespace ImageDecoder {

namespace {

// Every other name the scan gives is a camera RAW format (DNG, CR2, NEF,
// ARW, ..., ORF, RW2, RAF, CR3).
constexpr std::array<std::pair<std::string_view, Format>, 10> kFormats{{
    {"", Format::Unknown},
    {"JPEG", Format::JPEG},
    {"MP4", Format::Unknown},
    {"MOV", Format::Unknown},
    {"TIFF", Format::TIFF},
    {"HEIC", Format::HEIF},
    {"HEIF", Format::HEIF},
    {"AVIF", Format::HEIF},
    {"PNG", Format::PNG},
    {"WebP", Format::WebP},
}};

}  // namespace

Format formatOf(orb::ByteView bytes) {
  // A JPEG needs no scan of its segments to be told apart.
  if (kindOf(bytes) == Kind::JPEG) return Format::JPEG;
  const std::string name = lum::scanContainer(bytes.size(), lum::readerOver(bytes)).name;
  const auto known = std::find_if(kFormats.begin(), kFormats.end(), [&](const auto& row) { return row.first == name; });
  return known != kFormats.end() ? known->second : Format::RAW;
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
