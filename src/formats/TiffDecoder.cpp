// TIFF through libtiff, reading from the bytes in memory.
#include <tiffio.h>

#include <cstring>
#include <memory>

#include "formats/ImageDecoder.h"

namespace ImageDecoder {

namespace {

// A read-only stream over the bytes for libtiff's client procedures.
struct Stream {
  orb::ByteView bytes;
  std::uint64_t position = 0;
  std::string message;
};

tmsize_t readProc(thandle_t h, void* buffer, tmsize_t size) {
  auto* s = static_cast<Stream*>(h);
  if (size <= 0 || s->position >= s->bytes.size()) return 0;
  const auto n = std::min<std::uint64_t>(static_cast<std::uint64_t>(size), s->bytes.size() - s->position);
  std::memcpy(buffer, s->bytes.data() + s->position, n);
  s->position += n;
  return static_cast<tmsize_t>(n);
}
tmsize_t writeProc(thandle_t, void*, tmsize_t) { return 0; }
toff_t seekProc(thandle_t h, toff_t offset, int whence) {
  auto* s = static_cast<Stream*>(h);
  std::uint64_t base = 0;
  if (whence == SEEK_CUR) base = s->position;
  if (whence == SEEK_END) base = s->bytes.size();
  s->position = base + offset;  // past the end is allowed; reads there give nothing
  return s->position;
}
int closeProc(thandle_t) { return 0; }
toff_t sizeProc(thandle_t h) { return static_cast<Stream*>(h)->bytes.size(); }
int mapProc(thandle_t, void**, toff_t*) { return 0; }
void unmapProc(thandle_t, void*, toff_t) {}

int errorProc(TIFF*, void* user, const char* module, const char* fmt, va_list ap) {
  auto* s = static_cast<Stream*>(user);
  if (s->message.empty()) {
    char text[512];
    std::vsnprintf(text, sizeof text, fmt, ap);
    s->message = std::string("libtiff: ") + (module ? module : "") + ": " + text;
  }
  return 1;  // handled: nothing is printed
}
int warningProc(TIFF*, void*, const char*, const char*, va_list) { return 1; }

struct TiffCloser {
  void operator()(TIFF* t) const { TIFFClose(t); }
};
using TiffHandle = std::unique_ptr<TIFF, TiffCloser>;

TiffHandle openTiff(Stream& stream) {
  TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
  TIFFOpenOptionsSetErrorHandlerExtR(options, errorProc, &stream);
  TIFFOpenOptionsSetWarningHandlerExtR(options, warningProc, &stream);
  TIFF* tif = TIFFClientOpenExt("image", "rm", &stream, readProc, writeProc, seekProc, closeProc, sizeProc, mapProc,
                                unmapProc, options);
  TIFFOpenOptionsFree(options);
  return TiffHandle(tif);
}

bool sizeOf(TIFF* tif, std::uint32_t* width, std::uint32_t* height) {
  return TIFFGetField(tif, TIFFTAG_IMAGEWIDTH, width) == 1 && TIFFGetField(tif, TIFFTAG_IMAGELENGTH, height) == 1 &&
         *width > 0 && *height > 0;
}

}  // namespace

HeaderCheck checkTIFFHeader(orb::ByteView bytes) {
  Stream stream{bytes, 0, {}};
  const TiffHandle tif = openTiff(stream);
  if (!tif) return {false, 0, 0, stream.message.empty() ? "libtiff: cannot read the first directory" : stream.message};
  std::uint32_t width = 0, height = 0;
  if (!sizeOf(tif.get(), &width, &height)) return {false, 0, 0, "the TIFF image has no size"};
  return {true, static_cast<int>(width), static_cast<int>(height), {}};
}

std::shared_ptr<const lum::Bitmap> decodeTIFF(orb::ByteView bytes) {
  Stream stream{bytes, 0, {}};
  const TiffHandle tif = openTiff(stream);
  std::uint32_t width = 0, height = 0;
  if (!tif || !sizeOf(tif.get(), &width, &height)) return nullptr;
  if (static_cast<long long>(width) * height > kMaxDecodedPixels) return nullptr;
  std::vector<std::uint32_t> raster(static_cast<std::size_t>(width) * height);
  if (TIFFReadRGBAImageOriented(tif.get(), width, height, raster.data(), ORIENTATION_TOPLEFT, 0) != 1) return nullptr;

  // libtiff hands back associated (premultiplied) RGBA whatever the file's
  // alpha kind; unpack it into bytes in R, G, B, A order.
  auto bitmap = std::make_shared<lum::Bitmap>();
  bitmap->width = static_cast<int>(width);
  bitmap->height = static_cast<int>(height);
  bitmap->bitsPerComponent = 8;
  bitmap->bytesPerRow = bitmap->width * 4;
  bitmap->bitmapInfo = static_cast<std::uint32_t>(lum::AlphaInfo::PremultipliedLast);
  bitmap->colorSpace = lum::ColorSpace::RGB;
  bitmap->pixels.resize(raster.size() * 4);
  for (std::size_t i = 0; i < raster.size(); ++i) {
    bitmap->pixels[4 * i + 0] = static_cast<std::uint8_t>(TIFFGetR(raster[i]));
    bitmap->pixels[4 * i + 1] = static_cast<std::uint8_t>(TIFFGetG(raster[i]));
    bitmap->pixels[4 * i + 2] = static_cast<std::uint8_t>(TIFFGetB(raster[i]));
    bitmap->pixels[4 * i + 3] = static_cast<std::uint8_t>(TIFFGetA(raster[i]));
  }
  return bitmap;
}

}  // namespace ImageDecoder
