// A listing opens a JPEG from its head alone only when that gives exactly
// what opening the whole file gives; whenever the scan wants a byte past the
// head, the whole file is read.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "formats/ImageFileTestSupport.h"
#include "formats/ShownRecord.h"

namespace {

using lumtest::Bytes;
using lumtest::JpegBuilder;

constexpr std::size_t kFirstHead = LumImageFile::kHeadBytes[0];
constexpr std::size_t kHead = LumImageFile::kHeadBytes[1];
const std::string kDate = "2020:01:02 03:04:05";

Bytes datedExif() {
  return lumtest::exifTiff({{0x0132, "2021:02:03 04:05:06" + std::string(1, '\0')}},
                           {{0x9003, kDate + '\0'}, {0x9291, "250"}});
}

// Grows a file past the head with bytes after the image, as camera files
// carry preview images there.
Bytes withTrailer(Bytes bytes, std::size_t total = 3 * kHead) {
  if (bytes.size() < total) bytes.resize(total, 0x5A);
  return bytes;
}

// The Exif block's DateTimeOriginal value moved to `to` in the file: the
// entry's offset field now points there (past the APP1 segment, which the
// scan allows as long as it stays inside the file).
Bytes dateMovedTo(Bytes bytes, std::size_t to) {
  constexpr std::size_t kTiffAt = 12;  // SOI, APP1 marker and length, "Exif\0\0"
  const auto at = static_cast<std::size_t>(
      std::search(bytes.begin(), bytes.end(), kDate.begin(), kDate.end()) - bytes.begin());
  const auto oldField = static_cast<std::uint32_t>(at - kTiffAt);
  const auto newField = static_cast<std::uint32_t>(to - kTiffAt);
  for (std::size_t i = kTiffAt; i + 4 <= bytes.size(); ++i) {
    std::uint32_t v = 0;
    std::memcpy(&v, &bytes[i], 4);  // the test's TIFF is little-endian, as is the machine
    if (v == oldField) {
      std::memcpy(&bytes[i], &newField, 4);
      break;
    }
  }
  std::copy(kDate.begin(), kDate.end(), bytes.begin() + static_cast<std::ptrdiff_t>(to));
  return bytes;
}

// A filler APPn segment of n payload bytes.
Bytes filler(std::size_t n) { return Bytes(n, 0x20); }

TEST(DatesOnlyOpening, AgreesWithOpeningTheWholeFile) {
  const struct {
    const char* name;
    Bytes bytes;
    bool fromHead;  // whether the head alone sufficed
  } cases[] = {
      {"dates in the head, image data after it", withTrailer(JpegBuilder().jfif(1, 1).exif(datedExif()).build()),
       true},
      {"shorter than the head", JpegBuilder().exif(datedExif()).build(), false},
      {"headers past the first head but inside the second",
       withTrailer(JpegBuilder().exif(datedExif()).segment(0xE2, filler(kFirstHead)).build()), true},
      {"a date value stored past the head",
       dateMovedTo(withTrailer(JpegBuilder().exif(datedExif()).build()), kHead + 1000), false},
      {"segments before the image reaching past the head",
       withTrailer(JpegBuilder().exif(datedExif()).segment(0xE2, filler(60000)).segment(0xE3, filler(20000)).build()),
       false},
      // Without an APP1 the marker walk goes on through the image data to
      // the file's end, so it needs the whole file.
      {"no Exif", withTrailer(JpegBuilder().jfif(1, 2).build()), false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(c.bytes);
    LumError keptError, listedError;
    const auto kept = LumImageFile::imageFileWithURL(temp.path(), &keptError);
    const auto listed = LumImageFile::imageFileWithURL(temp.path(), &listedError, LumImageFile::Holding::DatesOnly);
    ASSERT_TRUE(kept && listed) << keptError.reason << " / " << listedError.reason;
    EXPECT_EQ(lumtest::shown(*listed), lumtest::shown(*kept));
    EXPECT_EQ(!listed->imageData()->holdsWholeFile(), c.fromHead);
  }
}

TEST(DatesOnlyOpening, RefusedFilesGiveTheSameError) {
  Bytes notAnImage = {0xFF, 0xD8, 0xFF, 0xE1, 0x00, 0x08, 'E', 'x', 'i', 'f', 0, 0};
  const struct { const char* name; Bytes bytes; } cases[] = {
      {"FF D8 then noise", withTrailer(notAnImage)},
      {"Exif and no image", withTrailer(JpegBuilder().exif(datedExif()).build(false))},
      {"a TIFF header without an image", withTrailer({'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0})},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(c.bytes);
    LumError keptError, listedError;
    EXPECT_EQ(LumImageFile::imageFileWithURL(temp.path(), &keptError), nullptr);
    EXPECT_EQ(LumImageFile::imageFileWithURL(temp.path(), &listedError, LumImageFile::Holding::DatesOnly), nullptr);
    EXPECT_EQ(listedError, keptError);
  }
}

}  // namespace
