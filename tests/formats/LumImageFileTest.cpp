// Opening image files: error codes, the date texts kept, and reading the file
// again after opening. (How files without dates open is the real files' suite's.)
#include <gtest/gtest.h>

#include <fstream>
#include <functional>

#include "core/OrbTiff.h"
#include "formats/ImageFileTestSupport.h"

namespace {

using lumtest::AsciiEntry;
using lumtest::Bytes;
using lumtest::JpegBuilder;

std::string nul(std::string s) { return s + '\0'; }

TEST(LumImageFileOpen, UnreadableFileIsMinusTwoAndLogged) {
  LumError error;
  testing::internal::CaptureStderr();
  EXPECT_EQ(LumImageFile::imageFileWithURL("/nonexistent/lumidate/photo.jpg", &error), nullptr);
  const std::string log = testing::internal::GetCapturedStderr();
  EXPECT_EQ(error.code, -2);
  EXPECT_EQ(log.rfind("LumImageFile - NSData error ", 0), 0u) << log;
  // Without an error place nothing is logged.
  testing::internal::CaptureStderr();
  EXPECT_EQ(LumImageFile::imageFileWithURL("/nonexistent/lumidate/photo.jpg", nullptr), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// Ranges, value offsets and the date texts are checked over every real file;
// here what those cannot show.
TEST(LumImageFileOpen, JpegWithJfifAndExif) {
  const Bytes tiff = lumtest::exifTiff({{0x0132, nul("2021:02:03 04:05:06")}},
                                       {{0x9003, nul("2020:01:02 03:04:05")}, {0x9291, nul("  5")}});
  const Bytes bytes = JpegBuilder().jfif(1, 1).exif(tiff).build();
  const lumtest::TempFile temp(bytes);
  const auto f = LumImageFile::imageFileWithURL(temp.path(), nullptr);
  ASSERT_TRUE(f && f->tiff());
  // The location is cleared after the scan on purpose; the structure keeps it.
  EXPECT_EQ(std::tuple(f->tiffHeaderLocation(), f->tiff()->tiffHeaderLocation()), std::tuple(0u, 30u));
  EXPECT_EQ(std::tuple(f->originalDateTimeString(), f->originalSubSecDateTimeOriginalString()),
            std::tuple("2021:02:03 04:05:06", "  5"));  // blanks kept
  // The structure is read from the file when asked for: one replaced since
  // opening gives none, never the new file's.
  const auto replaced = LumImageFile::imageFileWithURL(temp.path(), nullptr);
  std::ofstream(temp.path(), std::ios::binary | std::ios::trunc) << std::string(bytes.begin(), bytes.end()) << 'x';
  EXPECT_EQ(replaced->tiff(), nullptr);
}

TEST(LumImageFileOpen, WhichDateTextsAreKept) {
  // Real files already hold a count of 19 without NUL, a text with an offset
  // after its 19 characters, a blank date and a date of zeros.
  const struct { std::string value; std::optional<std::string> kept; } cases[] = {
      {nul("2020:01:02 03:04:05"), "2020:01:02 03:04:05"},
      {nul("2020:01:02 03:04"), std::nullopt},                         // shorter than 19
      {nul("2020:01:0x 03:04:05"), std::nullopt},
      {std::string("2020:01:02 03:04:05XYZ", 22), "2020:01:02 03:04:05"},  // longer value cut to 20 bytes
  };
  for (const auto& c : cases) {
    const auto o = lumtest::openBytes(JpegBuilder().exif(lumtest::exifTiff({}, {{0x9004, c.value}})).build());
    ASSERT_TRUE(o.file) << c.value;
    EXPECT_EQ(o.file->originalDateTimeDigitizedString(), c.kept) << c.value;
    EXPECT_EQ(o.file->isEdit(), c.kept.has_value()) << c.value;
  }
}

bool mapsAnyFileIn(const std::filesystem::path& folder) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);)
    if (line.find(folder.string()) != std::string::npos) return true;
  return false;
}

// After opening, the file is read again only while it is still the one
// opened: a thumbnail of a changed file is the placeholder, and opening it
// again as the file a save left fails with the reason. Nothing stays mapped.
// (Each kind of change is told apart in the file data suite.)
TEST(LumImageFileAfterOpening, AChangedFileIsNeverReadAsTheOneOpened) {
  const lumtest::TempFile another(lumtest::encodeJpeg(64, 48), "another.jpg");
  const struct {
    const char* name;
    std::function<void(const std::filesystem::path&)> change;
    bool hasOwner = true;
  } cases[] = {
      {"left alone", nullptr},
      {"no owner, so no path", nullptr, false},
      {"replaced by another photo", [&](const auto& p) { std::filesystem::copy_file(another.path(), p,
                                                           std::filesystem::copy_options::overwrite_existing); }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(lumtest::encodeJpeg(640, 480));
    const auto file = LumImageFile::imageFileWithURL(temp.path(), nullptr);
    ASSERT_TRUE(file);
    EXPECT_FALSE(mapsAnyFileIn(temp.path().parent_path()));
    if (c.change) c.change(temp.path());
    lumtest::PathOwner owner(temp.path());
    if (c.hasOwner) file->setOwnerDocument(&owner);
    file->makeThumbnail();
    const int expectedWidth = !c.hasOwner ? 0 : c.change ? file->errorImage()->width : 150;
    EXPECT_EQ(file->thumbnail() ? file->thumbnail()->width : 0, expectedWidth);
    LumError error;
    const bool reopened = LumImageFile::imageFileIfUnchanged(temp.path(), *file->stampAsOpened(), &error) != nullptr;
    EXPECT_EQ(reopened, !c.change);
    EXPECT_EQ(error.reason, c.change ? lum::kChangedSinceOpenedReason : "");
  }
}

// A JPEG whose luma sampling is 1 x 3, which has no TurboJPEG name
// (libjpeg reads the header all the same).
Bytes withUnusualSampling() {
  Bytes bytes = JpegBuilder().build();
  for (std::size_t sof = 2; sof + 11 < bytes.size(); ++sof)
    if (bytes[sof] == 0xFF && bytes[sof + 1] == 0xC0) {
      bytes[sof + 11] = 0x13;  // first component's sampling factors
      return bytes;
    }
  ADD_FAILURE() << "the built JPEG has no SOF0";
  return bytes;
}

// Each refused file gives its code, and a good file opened right after it
// on the same thread still opens: the header check reuses its decoder from
// file to file.
TEST(LumImageFileOpen, RefusedFilesGiveTheirCodesAndDoNotSpoilTheNext) {
  Bytes png = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
  png.resize(64, 0);
  Bytes fakeJpeg = {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 'J', 'F', 'I', 'F'};
  fakeJpeg.resize(200, 0x55);
  const Bytes good = JpegBuilder().build();
  const struct { const char* name; Bytes bytes; int code; } cases[] = {  // code 0: opens
      {"empty file", {}, -2},
      {"one byte", {0xFF}, -1},
      {"PNG without its header chunk", png, kLumErrorRefused},
      {"FF D8 that does not decode", fakeJpeg, -1},
      {"TIFF header without an image", {'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0}, -1},  // an IFD with no entries: no size
      {"JPEG with Exif but no image", JpegBuilder().exif(lumtest::exifTiff({}, {})).build(false), -1},
      // A second start-of-image marker: the decoder refuses it and, left as
      // it was, refused every later file with the same complaint.
      {"two starts", {0xFF, 0xD8, 0xFF, 0xE1, 0x00, 0x08, 'E', 'x', 'i', 'f', 0, 0, 0xFF, 0xD8, 0xFF, 0xD9}, -1},
      {"sampling without a TurboJPEG name", withUnusualSampling(), 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto o = lumtest::openBytes(c.bytes);
    EXPECT_EQ(o.file != nullptr, c.code == 0);
    if (c.code) { EXPECT_EQ(std::tuple(o.error.domain, o.error.code), std::tuple("LumErrorDomain", c.code)); }
    EXPECT_TRUE(lumtest::openBytes(good).file) << "a good file after it";
  }
}

}  // namespace
