#pragma once
// Builds small JPEG files for tests: libjpeg-turbo encodes a real image, and
// the APP segments in front of it are put together by hand, so a test says
// exactly which bytes the scan sees (JFIF, Exif, XMP, odd lengths).
//
//   auto bytes = lumtest::JpegBuilder().jfif(1, 1).exif(lumtest::exifTiff(...)).build();
//
// Also here: exifTiff(), a minimal TIFF block with ASCII entries in IFD0 and
// the Exif IFD, enough to carry dates and sub-second texts.

#include <turbojpeg.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumtest {

using Bytes = std::vector<std::uint8_t>;

// Pixels (one byte a pixel when grey, three otherwise) compressed by
// libjpeg-turbo: SOI, its own JFIF APP0, tables, frame and scan.
inline Bytes compressPixels(const Bytes& pixels, int width, int height, bool gray) {
  tjhandle handle = tjInitCompress();
  unsigned char* out = nullptr;
  unsigned long size = 0;
  const int rc = tjCompress2(handle, pixels.data(), width, 0, height, gray ? TJPF_GRAY : TJPF_RGB, &out, &size,
                             gray ? TJSAMP_GRAY : TJSAMP_420, 90, 0);
  Bytes result;
  if (rc == 0) result.assign(out, out + size);
  tjFree(out);
  tjDestroy(handle);
  if (rc != 0) throw std::runtime_error("tjCompress2 failed");
  return result;
}

// A w x h JPEG of a fixed pattern.
inline Bytes encodeJpeg(int width = 16, int height = 8, bool gray = false) {
  Bytes pixels(static_cast<std::size_t>(width * height * (gray ? 1 : 3)));
  for (std::size_t i = 0; i < pixels.size(); ++i) pixels[i] = static_cast<std::uint8_t>((i * 37) & 0xFF);
  return compressPixels(pixels, width, height, gray);
}

// A w x h grey JPEG of one level.
inline Bytes flatGrayJpeg(int width, int height, std::uint8_t level) {
  return compressPixels(Bytes(static_cast<std::size_t>(width * height), level), width, height, true);
}

// The encoded image without SOI and without the APPn segments that follow
// it: what comes after the hand-built segments.
inline Bytes jpegBody(const Bytes& jpeg) {
  std::size_t pos = 2;
  while (pos + 4 <= jpeg.size() && jpeg[pos] == 0xFF && jpeg[pos + 1] >= 0xE0 && jpeg[pos + 1] <= 0xEF)
    pos += 2 + ((static_cast<std::size_t>(jpeg[pos + 2]) << 8) | jpeg[pos + 3]);
  return Bytes(jpeg.begin() + static_cast<std::ptrdiff_t>(pos), jpeg.end());
}

inline void appendBE16(Bytes& b, std::uint32_t v) {
  b.push_back(static_cast<std::uint8_t>(v >> 8));
  b.push_back(static_cast<std::uint8_t>(v));
}

class JpegBuilder {
 public:
  // A segment with the given marker byte (0xE0 for APP0 ...); its length
  // field is the payload size + 2 unless lengthOverride is given.
  JpegBuilder& segment(std::uint8_t marker, const Bytes& payload, int lengthOverride = -1) {
    segments_.push_back(0xFF);
    segments_.push_back(marker);
    appendBE16(segments_, lengthOverride >= 0 ? static_cast<std::uint32_t>(lengthOverride)
                                              : static_cast<std::uint32_t>(payload.size() + 2));
    segments_.insert(segments_.end(), payload.begin(), payload.end());
    return *this;
  }

  // A JFIF APP0 (16-byte length without thumbnail pixels).
  JpegBuilder& jfif(std::uint8_t major, std::uint8_t minor, std::uint8_t unit = 1, std::uint16_t xDensity = 72,
                    std::uint16_t yDensity = 72, std::uint8_t thumbWidth = 0, std::uint8_t thumbHeight = 0,
                    const Bytes& thumbPixels = {}) {
    Bytes p = {'J', 'F', 'I', 'F', 0, major, minor, unit};
    appendBE16(p, xDensity);
    appendBE16(p, yDensity);
    p.push_back(thumbWidth);
    p.push_back(thumbHeight);
    p.insert(p.end(), thumbPixels.begin(), thumbPixels.end());
    return segment(0xE0, p);
  }

  // An Exif APP1: "Exif", two zero bytes, then the TIFF block.
  JpegBuilder& exif(const Bytes& tiff) {
    Bytes p = {'E', 'x', 'i', 'f', 0, 0};
    p.insert(p.end(), tiff.begin(), tiff.end());
    return segment(0xE1, p);
  }

  // Raw bytes after the segments so far.
  JpegBuilder& raw(const Bytes& bytes) {
    segments_.insert(segments_.end(), bytes.begin(), bytes.end());
    return *this;
  }

  // SOI, the segments, then the encoded image (unless withImage is false).
  Bytes build(bool withImage = true) const {
    const Bytes body = withImage ? jpegBody(encodeJpeg()) : Bytes();
    // Sized once and filled, rather than appended to a two-byte literal:
    // GCC 12 at -O3 takes the literal's size for the buffer's and warns of
    // an out-of-bounds copy that cannot happen (-Warray-bounds).
    Bytes out(2 + segments_.size() + body.size());
    out[0] = 0xFF;
    out[1] = 0xD8;
    std::copy(body.begin(), body.end(), std::copy(segments_.begin(), segments_.end(), out.begin() + 2));
    return out;
  }

 private:
  Bytes segments_;
};

// One ASCII entry: tag and its raw value bytes (the count is their length,
// so a date is 19 characters plus the NUL the test adds or leaves out).
struct AsciiEntry {
  std::uint16_t tag;
  std::string value;
};

// A TIFF block: header, IFD0 with its entries and (when the Exif list is
// not empty) an Exif IFD pointer, the Exif IFD, then all values out of line.
// Values of 4 bytes or fewer stay inline, as TIFF wants.
inline Bytes exifTiff(std::vector<AsciiEntry> ifd0, std::vector<AsciiEntry> exif, bool littleEndian = true) {
  Bytes b;
  const auto put = [&](std::size_t at, std::uint32_t v, int size) {
    for (int i = 0; i < size; ++i)
      b[at + static_cast<std::size_t>(littleEndian ? i : size - 1 - i)] = static_cast<std::uint8_t>(v >> (8 * i));
  };
  if (!exif.empty()) ifd0.push_back({0x8769, {}});
  const std::size_t exifAt = 8 + 2 + 12 * ifd0.size() + 4;
  b.assign(exifAt + (exif.empty() ? 0 : 2 + 12 * exif.size() + 4), 0);
  b[0] = b[1] = littleEndian ? 'I' : 'M';
  put(2, 42, 2);
  put(4, 8, 4);
  std::size_t at = 8;
  for (std::vector<AsciiEntry>* entries : {&ifd0, &exif}) {
    if (entries == &exif && exif.empty()) break;
    std::sort(entries->begin(), entries->end(), [](const AsciiEntry& x, const AsciiEntry& y) { return x.tag < y.tag; });
    put(at, static_cast<std::uint32_t>(entries->size()), 2);
    at += 2;
    for (const AsciiEntry& e : *entries) {
      const bool pointer = entries == &ifd0 && e.tag == 0x8769 && !exif.empty();
      put(at, e.tag, 2);
      put(at + 2, pointer ? 4 : 2, 2);
      put(at + 4, pointer ? 1 : static_cast<std::uint32_t>(e.value.size()), 4);
      if (pointer) {
        put(at + 8, static_cast<std::uint32_t>(exifAt), 4);
      } else if (e.value.size() <= 4) {
        std::copy(e.value.begin(), e.value.end(), b.begin() + static_cast<std::ptrdiff_t>(at + 8));
      } else {
        put(at + 8, static_cast<std::uint32_t>(b.size()), 4);
        b.insert(b.end(), e.value.begin(), e.value.end());
      }
      at += 12;
    }
    at += 4;
  }
  return b;
}

}  // namespace lumtest
