// A JPEG is parsed from its head alone only when that gives exactly what
// parsing the whole file gives; whenever the scan wants a byte past the head,
// the whole file is read. A listing then keeps only the head, an opened
// document always the whole file.
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

// What parsing the bytes in memory, all of them at once, shows.
json shownFromAllBytes(const Bytes& bytes) {
  LumImageFile file;
  EXPECT_TRUE(file.searchImageDataAndMakeExifObject(orb::ByteView(bytes.data(), bytes.size()), nullptr));
  file.setImageData(lum::FileData::fromBytes(bytes));
  file.setEdit(!file.noDateTimes());
  return lumtest::shown(file);
}

struct Holdings {
  std::unique_ptr<LumImageFile> kept, listed;
  std::string keptConsole, listedConsole;
};

Holdings openBothWays(const std::filesystem::path& path) {
  Holdings h;
  LumError error;
  testing::internal::CaptureStderr();
  h.kept = LumImageFile::imageFileWithURL(path, &error);
  h.keptConsole = testing::internal::GetCapturedStderr();
  testing::internal::CaptureStderr();
  h.listed = LumImageFile::imageFileWithURL(path, &error, LumImageFile::Holding::DatesOnly);
  h.listedConsole = testing::internal::GetCapturedStderr();
  return h;
}

std::size_t occurrences(const std::string& text, const std::string& what) {
  std::size_t n = 0;
  for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
  return n;
}

TEST(HeadOpening, AgreesWithParsingTheWholeFile) {
  const Bytes dated = JpegBuilder().exif(datedExif()).build();
  const struct {
    const char* name;
    Bytes bytes;
    bool fromHead;  // whether a listing's head alone sufficed
    std::size_t consoleLines;
  } cases[] = {
      {"dates in the head, image data after it", withTrailer(JpegBuilder().jfif(1, 1).exif(datedExif()).build()),
       true, 0},
      {"shorter than the head", dated, false, 0},
      {"headers past the first head but inside the second",
       withTrailer(JpegBuilder().exif(datedExif()).segment(0xE2, filler(kFirstHead)).build()), true, 0},
      {"a date value stored past the head", dateMovedTo(withTrailer(dated), kHead + 1000), false, 0},
      {"segments before the image reaching past the head",
       withTrailer(JpegBuilder().exif(datedExif()).segment(0xE2, filler(60000)).segment(0xE3, filler(20000)).build()),
       false, 0},
      // Without an APP1 the marker walk goes on through the image data to
      // the file's end, so it needs the whole file.
      {"no Exif", withTrailer(JpegBuilder().jfif(1, 2).build()), false, 0},
      {"next IFD past the end", nextIFDPastTheEnd(withTrailer(dated)), true, 1},
      // Every head tried parses IFD0 and meets the bad offset; the line is
      // still printed once, by the parse that is kept.
      {"next IFD past the end, a date past the head",
       nextIFDPastTheEnd(dateMovedTo(withTrailer(dated), kHead + 1000)), false, 1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(c.bytes);
    const Holdings h = openBothWays(temp.path());
    ASSERT_TRUE(h.kept && h.listed);
    const json expected = shownFromAllBytes(c.bytes);
    EXPECT_EQ(lumtest::shown(*h.kept), expected);
    // A listing holds no TIFF structure, only the texts it prints.
    json listed = expected;
    listed["tiffHeaderLocation"] = nullptr;
    listed["date_offsets"] = json::object();
    EXPECT_EQ(lumtest::shown(*h.listed), listed);
    EXPECT_EQ(!h.listed->imageData()->holdsWholeFile(), c.fromHead);
    // A kept file holds the whole file whichever bytes were parsed.
    const orb::ByteView keptBytes = h.kept->imageData()->bytes();
    EXPECT_TRUE(std::equal(keptBytes.data(), keptBytes.data() + keptBytes.size(), c.bytes.begin(), c.bytes.end()));
    EXPECT_EQ(occurrences(h.keptConsole, "nextIFDLocation: (2147483647)"), c.consoleLines) << h.keptConsole;
    EXPECT_EQ(occurrences(h.listedConsole, "nextIFDLocation: (2147483647)"), c.consoleLines) << h.listedConsole;
  }
}

// The kernel's limit on mappings is shared with every thread stack and large
// allocation: past the budget, a document keeps what a listing keeps.
TEST(HeadOpening, PastTheMappingBudgetADocumentKeepsItsHead) {
  const lumtest::TempFile filler(Bytes(100, 'x'), "filler.jpg");
  std::vector<std::shared_ptr<const lum::FileData>> held;
  while (lum::FileData::mayKeepAnotherMapping() && held.size() <= lum::FileData::kMappingBudget)
    held.push_back(lum::FileData::mapFileWithHead(filler.path(), 16).whole);
  ASSERT_FALSE(lum::FileData::mayKeepAnotherMapping());

  const Bytes bytes = withTrailer(JpegBuilder().exif(datedExif()).build());
  const lumtest::TempFile temp(bytes);
  const auto file = LumImageFile::imageFileWithURL(temp.path(), nullptr);
  ASSERT_TRUE(file);
  EXPECT_FALSE(file->imageData()->isMapped());
  EXPECT_FALSE(file->imageData()->holdsWholeFile());
  EXPECT_EQ(lumtest::shown(*file), shownFromAllBytes(bytes));
  // Saved and opened again, it still maps nothing.
  const auto reread = LumImageFile::imageFileAfterSave(temp.path(), file->imageData());
  ASSERT_TRUE(reread);
  EXPECT_FALSE(reread->imageData()->isMapped());

  held.pop_back();
  EXPECT_TRUE(lum::FileData::mayKeepAnotherMapping());
  EXPECT_TRUE(LumImageFile::imageFileWithURL(temp.path(), nullptr)->imageData()->isMapped());
}

TEST(HeadOpening, RefusedFilesGiveTheSameError) {
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
