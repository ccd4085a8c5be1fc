// The list thumbnail of LumImageFile.
//
// A camera's own Exif thumbnail (the JPEG that IFD1 carries) is used when it
// gives a picture of exactly the size the main image would get in the box.
// Decoding a 12-megapixel image costs some 40 ms of entropy decoding even at
// an eighth of its size; its 160 x 120 thumbnail well under a millisecond.
// Every other file (no thumbnail, one padded to another shape or too small,
// a TIFF) gets the main image decoded and reduced. A camera RAW gives its
// own preview, read from the file piece by piece: its sensor data, most of
// a 25 MB file, is never read (libraw asks for some 25 KB).
#include "formats/LumImageFile.h"

#include <utility>

#include "formats/FileRangeReader.h"
#include "formats/ImageDecoder.h"
#include "tools/Resizing.h"

namespace {

constexpr int kBox = static_cast<int>(LumImageFile::kThumbnailBox);
constexpr std::uint16_t kThumbnailOffsetTag = 0x0201;
constexpr std::uint16_t kThumbnailLengthTag = 0x0202;
constexpr std::uint16_t kLongType = 4;

// The size an image of w x h gets in the box, never enlarged.
Resizing::PixelSize boxedSize(int width, int height) {
  return Resizing::newSize(width, height, kBox, kBox, false).value_or(Resizing::PixelSize{width, height});
}

// The offset (from the TIFF header) and length of the JPEG thumbnail that
// IFD1 of the TIFF block at `header` names. Only the two IFD headers and
// IFD1's entries are read, so making thumbnails never parses the whole
// structure again.
std::optional<std::pair<std::uint32_t, std::uint32_t>> thumbnailEntries(orb::ByteView bytes, std::uint64_t header) {
  const auto mark = bytes.u16(header);
  if (!mark || (*mark != 0x4949 && *mark != 0x4D4D)) return std::nullopt;
  const auto order = *mark == 0x4949 ? orb::ByteOrder::Little : orb::ByteOrder::Big;
  const auto ifd0 = bytes.u32(header + 4, order);
  const auto count0 = ifd0 ? bytes.u16(header + *ifd0, order) : std::nullopt;
  if (!count0) return std::nullopt;
  const auto ifd1 = bytes.u32(header + *ifd0 + 2 + 12ull * *count0, order);
  const auto count1 = ifd1 && *ifd1 != 0 ? bytes.u16(header + *ifd1, order) : std::nullopt;
  if (!count1) return std::nullopt;
  std::optional<std::uint32_t> offset, length;
  for (std::uint64_t i = 0, at = header + *ifd1 + 2; i < *count1; ++i, at += 12) {
    const auto tag = bytes.u16(at, order);
    const auto type = bytes.u16(at + 2, order);
    const auto count = bytes.u32(at + 4, order);
    const auto value = bytes.u32(at + 8, order);
    if (!tag || !type || !count || !value) return std::nullopt;
    if (*type != kLongType || *count != 1) continue;
    if (*tag == kThumbnailOffsetTag) offset = *value;
    if (*tag == kThumbnailLengthTag) length = *value;
  }
  if (!offset || !length) return std::nullopt;
  return std::pair{*offset, *length};
}

// The bytes of the JPEG thumbnail in IFD1 of a JPEG file's Exif; nullopt
// when there is none inside the bytes.
std::optional<orb::ByteView> embeddedJPEG(orb::ByteView bytes) {
  LumImageFile probe;
  std::uint64_t header = 2;
  if (ImageDecoder::kindOf(bytes) != ImageDecoder::Kind::JPEG || !probe.pSearchJPEG(bytes, &header, bytes.size()))
    return std::nullopt;
  const auto entries = thumbnailEntries(bytes, header);
  if (!entries) return std::nullopt;
  return bytes.sub(header + entries->first, entries->second);
}

// The embedded thumbnail fitted to the box, when it comes out at exactly the
// size the main image would.
std::shared_ptr<const lum::Bitmap> fromEmbeddedThumbnail(orb::ByteView bytes) {
  const auto embedded = embeddedJPEG(bytes);
  if (!embedded) return nullptr;
  const ImageDecoder::HeaderCheck image = ImageDecoder::checkJPEGHeader(bytes);
  const ImageDecoder::HeaderCheck thumb = ImageDecoder::checkJPEGHeader(*embedded);
  if (!image.ok || !thumb.ok) return nullptr;
  const Resizing::PixelSize wanted = boxedSize(image.width, image.height);
  // Never enlarged, and the same shape: a thumbnail padded with bars to
  // another aspect ratio, or one smaller than the box needs, is not used.
  if (thumb.width < wanted.width || thumb.height < wanted.height ||
      boxedSize(thumb.width, thumb.height) != wanted)
    return nullptr;
  auto result = Resizing::resizedBitmapFromBitmap(ImageDecoder::decodeForBox(*embedded, kBox, kBox), false,
                                                  LumImageFile::kThumbnailBox, LumImageFile::kThumbnailBox);
  if (!result || Resizing::PixelSize{result->width, result->height} != wanted) return nullptr;
  return result;
}

std::shared_ptr<const lum::Bitmap> fitted(std::shared_ptr<const lum::Bitmap> bitmap) {
  return Resizing::resizedBitmapFromBitmap(std::move(bitmap), false, LumImageFile::kThumbnailBox,
                                           LumImageFile::kThumbnailBox);
}

// The preview of the RAW file at url whose head was read, read further only
// while it is still the file that head came from.
std::shared_ptr<const lum::Bitmap> rawPreview(const std::filesystem::path& url,
                                              std::shared_ptr<const lum::FileData> head) {
  lum::FileRangeReader file(url, std::move(head));
  auto preview = ImageDecoder::decodeRAWPreview(file.reader(), file.fileSize(), kBox, kBox);
  return file.failed() ? nullptr : fitted(std::move(preview));
}

}  // namespace

std::shared_ptr<const lum::Bitmap> LumImageFile::thumbnailOfBytes(orb::ByteView bytes) {
  if (auto embedded = fromEmbeddedThumbnail(bytes)) return embedded;
  return fitted(ImageDecoder::decodeForBox(bytes, kBox, kBox));
}

void LumImageFile::makeThumbnail() {
  if (thumbnail()) return;
  if (const auto url = fileURL()) setThumbnail(readThumbnail(*url));
}

std::shared_ptr<const lum::Bitmap> LumImageFile::readThumbnail(const std::filesystem::path& url) const {
  // Read now, and only while the file is still the one opened: another
  // program may have changed it since, and this thumbnail must show what the
  // dates belong to. A camera's thumbnail lies in the file's first bytes;
  // without one a RAW's preview is read piece by piece, any other file whole.
  const auto read = [&](std::size_t length) {
    return stamp_ ? lum::FileData::readIfUnchanged(url, *stamp_, length) : lum::FileData::readHead(url, length);
  };
  std::shared_ptr<const lum::Bitmap> result;
  if (const auto head = read(kHeadBytes[1])) {
    result = fromEmbeddedThumbnail(head->bytes());
    if (!result && head->holdsWholeFile()) {
      result = thumbnailOfBytes(head->bytes());
    } else if (!result && ImageDecoder::formatOf(head->bytes()) == ImageDecoder::Format::RAW) {
      result = rawPreview(url, head);
    } else if (!result) {
      if (const auto whole = read(lum::FileData::kWholeFile)) result = thumbnailOfBytes(whole->bytes());
    }
  }
  return result ? result : errorImage();
}
