// JPEG through the TurboJPEG API of libjpeg-turbo.
#include <turbojpeg.h>

#include <memory>
#include <string>
#include <string_view>

#include "formats/ImageDecoder.h"
#include "tools/Resizing.h"

namespace ImageDecoder {

namespace {

struct HandleCloser {
  void operator()(void* handle) const { tjDestroy(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

Handle decompressor() { return Handle(tjInitDecompress()); }

struct Header {
  int width = 0, height = 0, subsampling = 0, colorspace = 0;
};

// True when the header gives an image; *complained when the decoder
// reported an error on the way (which can leave its handle unusable).
bool readHeader(tjhandle handle, orb::ByteView bytes, Header* header, bool* complained = nullptr) {
  const bool clean = tjDecompressHeader3(handle, bytes.data(), static_cast<unsigned long>(bytes.size()),
                                         &header->width, &header->height, &header->subsampling,
                                         &header->colorspace) == 0;
  if (complained) *complained = !clean;
  if (clean) return true;
  // TurboJPEG also refuses a header that libjpeg read without complaint
  // when the sampling factors or colour space have no TurboJPEG name; the
  // size is known by then, and such an image is still a real JPEG.
  const std::string_view message = tjGetErrorStr2(handle);
  const bool onlyUnnamed = message.find("Could not determine subsampling") != std::string_view::npos ||
                           message.find("Could not determine colorspace") != std::string_view::npos;
  return onlyUnnamed && header->width > 0 && header->height > 0;
}

// The largest reduction (1/8, 1/4, 1/2) that still leaves at least the
// size the image gets in the box, so the final resize only shrinks.
tjscalingfactor scaleFor(const Header& h, int boxWidth, int boxHeight) {
  tjscalingfactor best{1, 1};
  if (boxWidth <= 0 || boxHeight <= 0) return best;
  const auto fit = Resizing::newSize(h.width, h.height, boxWidth, boxHeight, false);
  if (!fit) return best;
  for (const int denom : {2, 4, 8}) {
    const tjscalingfactor f{1, denom};
    if (TJSCALED(h.width, f) >= fit->width && TJSCALED(h.height, f) >= fit->height) best = f;
  }
  return best;
}

}  // namespace

HeaderCheck checkJPEGHeader(orb::ByteView bytes) {
  // Every opened file is checked: each thread keeps one decompressor rather
  // than setting one up per file. A refused header can leave it unusable, so
  // it is replaced after a refusal.
  thread_local Handle handle;
  if (!handle) handle = decompressor();
  if (!handle) return {false, 0, 0, "the JPEG decoder could not be started"};
  Header h;
  bool complained = false;
  const bool read = readHeader(handle.get(), bytes, &h, &complained);
  const std::string message = read ? std::string() : tjGetErrorStr2(handle.get());
  if (complained) handle.reset();
  if (!read) return {false, 0, 0, message};
  if (h.width <= 0 || h.height <= 0) return {false, 0, 0, "the JPEG image has no size"};
  return {true, h.width, h.height, {}};
}

std::shared_ptr<const lum::Bitmap> decodeJPEG(orb::ByteView bytes, int boxWidth, int boxHeight) {
  const Handle handle = decompressor();
  Header h;
  if (!handle || !readHeader(handle.get(), bytes, &h) || h.width <= 0 || h.height <= 0) return nullptr;
  const tjscalingfactor scale = scaleFor(h, boxWidth, boxHeight);
  const int width = TJSCALED(h.width, scale);
  const int height = TJSCALED(h.height, scale);
  if (static_cast<long long>(width) * height > kMaxDecodedPixels) return nullptr;

  int format = TJPF_RGB;
  auto space = lum::ColorSpace::RGB;
  if (h.colorspace == TJCS_GRAY) {
    format = TJPF_GRAY;
    space = lum::ColorSpace::Gray;
  } else if (h.colorspace == TJCS_CMYK || h.colorspace == TJCS_YCCK) {
    format = TJPF_CMYK;
    space = lum::ColorSpace::CMYK;
  }
  auto bitmap = std::make_shared<lum::Bitmap>();
  bitmap->width = width;
  bitmap->height = height;
  bitmap->bitsPerComponent = 8;
  bitmap->bytesPerRow = width * tjPixelSize[format];
  bitmap->bitmapInfo = static_cast<std::uint32_t>(lum::AlphaInfo::None);
  bitmap->colorSpace = space;
  bitmap->pixels.assign(static_cast<std::size_t>(bitmap->bytesPerRow) * height, 0);
  const int result = tjDecompress2(handle.get(), bytes.data(), static_cast<unsigned long>(bytes.size()),
                                   bitmap->pixels.data(), width, bitmap->bytesPerRow, height, format, 0);
  // A warning (a cut scan, say) still leaves a usable picture.
  if (result != 0 && tjGetErrorCode(handle.get()) != TJERR_WARNING) return nullptr;
  return bitmap;
}

}  // namespace ImageDecoder
