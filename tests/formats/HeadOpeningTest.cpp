// A JPEG is parsed from its head alone only when that gives exactly what
// parsing the whole file gives; whenever the scan wants a byte past the head,
// the whole file is read. Either way the file opens, or fails, as parsing all
// of its bytes at once does.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "formats/FileData.h"
#include "formats/ImageFileTestSupport.h"
#include "formats/ShownRecord.h"

namespace {

using lumtest::Bytes;
using lumtest::JpegBuilder;
using nlohmann::json;

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

// IFD0's next-IFD offset (datedExif() in a JPEG without JFIF) set far past
// the file's end, which the parse reports on the console.
Bytes nextIFDPastTheEnd(Bytes bytes) {
  constexpr std::size_t kNextField = 12 + 8 + 2 + 2 * 12;  // TIFF header, IFD0 count, two entries
  const std::uint32_t far = 0x7FFFFFFF;
  std::memcpy(&bytes[kNextField], &far, 4);
  return bytes;
}

// What parsing the bytes in memory, all of them at once, shows (or the
// error it gives).
json shownFromAllBytes(const Bytes& bytes) {
  LumImageFile file;
  LumError error;
  if (!file.searchImageDataAndMakeExifObject(orb::ByteView(bytes.data(), bytes.size()), &error))
    return {{"error", error.code}, {"reason", error.reason}};
  file.setImageData(lum::FileData::fromBytes(bytes));
  file.setEdit(!file.noDateTimes());
  return lumtest::shown(file);
}

std::size_t occurrences(const std::string& text, const std::string& what) {
  std::size_t n = 0;
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
  return n;
}

TEST(HeadOpening, AgreesWithParsingTheWholeFile) {
  const Bytes dated = JpegBuilder().exif(datedExif()).build();
  const Bytes notAnImage = {0xFF, 0xD8, 0xFF, 0xE1, 0x00, 0x08, 'E', 'x', 'i', 'f', 0, 0};
  const struct {
    const char* name;
    Bytes bytes;
    std::size_t consoleLines;
  } cases[] = {
      {"dates in the head, image data after it", withTrailer(JpegBuilder().jfif(1, 1).exif(datedExif()).build()), 0},
      {"shorter than the head", dated, 0},
      {"headers past the first head but inside the second",
       withTrailer(JpegBuilder().exif(datedExif()).segment(0xE2, filler(kFirstHead)).build()), 0},
      {"a date value stored past the head", dateMovedTo(withTrailer(dated), kHead + 1000), 0},
      {"segments before the image reaching past the head",
       withTrailer(JpegBuilder().exif(datedExif()).segment(0xE2, filler(60000)).segment(0xE3, filler(20000)).build()),
       0},
      {"no Exif", withTrailer(JpegBuilder().jfif(1, 2).build()), 0},
      {"next IFD past the end", nextIFDPastTheEnd(withTrailer(dated)), 1},
      // Every head tried parses IFD0 and meets the bad offset; the line is
      // still printed once, by the parse that is kept.
      {"next IFD past the end, a date past the head",
       nextIFDPastTheEnd(dateMovedTo(withTrailer(dated), kHead + 1000)), 1},
      {"FF D8 then noise", withTrailer(notAnImage), 0},
      {"Exif and no image", withTrailer(JpegBuilder().exif(datedExif()).build(false)), 0},
      {"a TIFF header without an image", withTrailer({'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0}), 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(c.bytes);
    const json expected = shownFromAllBytes(c.bytes);
    // A listing holds no TIFF structure, only the texts it prints.
    json listed = expected;
    if (!expected.contains("error")) {
      listed["tiffHeaderLocation"] = nullptr;
      listed["date_offsets"] = json::object();
    }
    for (const auto holding : {LumImageFile::Holding::Kept, LumImageFile::Holding::DatesOnly}) {
      LumError error;
      testing::internal::CaptureStderr();
      const auto file = LumImageFile::imageFileWithURL(temp.path(), &error, holding);
      const std::string console = testing::internal::GetCapturedStderr();
      const json got = file ? lumtest::shown(*file) : json{{"error", error.code}, {"reason", error.reason}};
      EXPECT_EQ(got, holding == LumImageFile::Holding::Kept ? expected : listed);
      EXPECT_EQ(occurrences(console, "nextIFDLocation: (2147483647)"), c.consoleLines) << console;
    }
  }
}

}  // namespace
