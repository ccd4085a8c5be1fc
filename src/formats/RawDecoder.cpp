// Camera RAW through libraw: the camera's own preview (a JPEG decoded by
// libjpeg-turbo, or a bitmap taken as it is), or, where a large picture is
// wanted and no preview is as large as the half-size RAW, the RAW data
// developed at half size.
#include <libraw/libraw.h>

#include <cstring>
#include <memory>

#include "formats/DecodedBitmap.h"
#include "formats/ImageDecoder.h"
#include "formats/RawRangeStream.h"

namespace ImageDecoder {

namespace {

// Raw sensor data beyond this is refused before libraw allocates for it.
constexpr long long kMaxRawPixels = 4 * kMaxDecodedPixels;

// libraw reports damaged data and failed allocations through these; the
// default ones print to stderr. A failed allocation shows in the return
// codes; data that ends early or is damaged is only reported here (libraw
// goes on with zeros), so it is noted in *damaged.
void noteDataError(void* damaged, const char*, const int) { *static_cast<bool*>(damaged) = true; }
void ignoreMemoryError(void*, const char*, const char*) {}

struct ProcessedFree {
  void operator()(libraw_processed_image_t* image) const { LibRaw::dcraw_clear_mem(image); }
};
using Processed = std::unique_ptr<libraw_processed_image_t, ProcessedFree>;

std::unique_ptr<LibRaw> openRaw(LibRaw_abstract_datastream& stream, bool* damaged) {
  auto raw = std::make_unique<LibRaw>();
  raw->set_dataerror_handler(noteDataError, damaged);
  raw->set_memerror_handler(ignoreMemoryError, nullptr);
  if (stream.size() <= 0 || raw->open_datastream(&stream) != LIBRAW_SUCCESS) return nullptr;
  return raw;
}

// True when the preview lies inside the file. libraw would hand over one
// cut off by the file's end with whatever its buffer held in place of the
// missing bytes, and its own JPEG reading would print its complaints.
bool previewInside(LibRaw& raw, std::uint64_t fileSize) {
  const INT64 offset = raw.get_internal_data_pointer()->internal_data.toffset;
  const std::uint64_t length = raw.imgdata.thumbnail.tlength;
  return offset > 0 && static_cast<std::uint64_t>(offset) <= fileSize && length <= fileSize - offset;
}

// An 8- or 16-bit grey or RGB image of libraw's as a bitmap (16-bit
// components keep their high byte).
std::shared_ptr<const lum::Bitmap> bitmapOf(const libraw_processed_image_t& image) {
  const int colours = image.colors;
  const int bytes = image.bits / 8;
  if (image.type != LIBRAW_IMAGE_BITMAP || (colours != 1 && colours != 3) || (bytes != 1 && bytes != 2))
    return nullptr;
  auto bitmap = blankBitmap(image.width, image.height, colours, lum::AlphaInfo::None,
                            colours == 1 ? lum::ColorSpace::Gray : lum::ColorSpace::RGB);
  if (!bitmap || image.data_size < bitmap->pixels.size() * static_cast<std::size_t>(bytes)) return nullptr;
  for (std::size_t i = 0; i < bitmap->pixels.size(); ++i) {
    if (bytes == 1) {
      bitmap->pixels[i] = image.data[i];
    } else {
      std::uint16_t value = 0;
      std::memcpy(&value, image.data + 2 * i, 2);  // host order
      bitmap->pixels[i] = static_cast<std::uint8_t>(value >> 8);
    }
  }
  return bitmap;
}

std::shared_ptr<const lum::Bitmap> preview(LibRaw& raw, std::uint64_t fileSize, int boxWidth, int boxHeight) {
  if (!previewInside(raw, fileSize) || raw.unpack_thumb() != LIBRAW_SUCCESS) return nullptr;
  int error = 0;
  const Processed image(raw.dcraw_make_mem_thumb(&error));
  if (!image) return nullptr;
  if (image->type != LIBRAW_IMAGE_JPEG) return bitmapOf(*image);
  return decodeJPEG(orb::ByteView(image->data, image->data_size), boxWidth, boxHeight);
}

// Refused when the file is too short to hold the RAW data at even one bit
// a pixel (stripped or cut off): libraw would develop whatever it found.
std::shared_ptr<const lum::Bitmap> developHalfSize(LibRaw& raw, std::uint64_t fileSize, const bool& damaged) {
  const libraw_image_sizes_t& sizes = raw.imgdata.sizes;
  const long long pixels = static_cast<long long>(sizes.raw_width) * sizes.raw_height;
  if (pixels > kMaxRawPixels || fileSize * 8 < static_cast<unsigned long long>(pixels)) return nullptr;
  raw.imgdata.params.half_size = 1;
  raw.imgdata.params.output_bps = 8;
  raw.imgdata.params.use_camera_wb = 1;
  if (raw.unpack() != LIBRAW_SUCCESS || damaged || raw.dcraw_process() != LIBRAW_SUCCESS) return nullptr;
  int error = 0;
  const Processed image(raw.dcraw_make_mem_image(&error));
  return image ? bitmapOf(*image) : nullptr;
}

}  // namespace

std::shared_ptr<const lum::Bitmap> decodeRAW(orb::ByteView bytes, int boxWidth, int boxHeight) {
  bool damaged = false;
  // libraw only reads the buffer; its interface is older than const.
  LibRaw_buffer_datastream stream(const_cast<std::uint8_t*>(bytes.data()), bytes.size());
  const std::unique_ptr<LibRaw> raw = openRaw(stream, &damaged);
  if (!raw) return nullptr;
  std::shared_ptr<const lum::Bitmap> result = preview(*raw, bytes.size(), boxWidth, boxHeight);
  const bool large = boxWidth <= 0 || boxHeight <= 0 || boxWidth > kRawDecodeBox || boxHeight > kRawDecodeBox;
  if (!large || (result && 2 * result->width >= raw->imgdata.sizes.width)) return result;
  damaged = false;
  std::shared_ptr<const lum::Bitmap> developed = developHalfSize(*raw, bytes.size(), damaged);
  return developed ? developed : result;
}

std::shared_ptr<const lum::Bitmap> decodeRAWPreview(const lum::RangeReader& read, std::uint64_t fileSize,
                                                    int boxWidth, int boxHeight) {
  bool damaged = false;
  RawRangeStream stream(read, fileSize);
  const std::unique_ptr<LibRaw> raw = openRaw(stream, &damaged);
  return raw ? preview(*raw, fileSize, boxWidth, boxHeight) : nullptr;
}

}  // namespace ImageDecoder
