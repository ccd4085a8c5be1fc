// The pictures of the other photo formats: each real test file goes to the
// decoder its bytes call for and gives a bitmap of the size the library
// reports (checked against exiftool's ImageSize where the picture is the
// main image), or nullptr where its image data was stripped or cut off.
// Cut and garbled copies of the files that decode must never crash.
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include <nlohmann/json.hpp>

#include "formats/ByteViewReader.h"
#include "formats/ImageDecoder.h"
#include "formats/ImageFileTestSupport.h"

namespace {

using ImageDecoder::Format;
using Bytes = std::vector<std::uint8_t>;

struct Expected {
  Format format;
  int width = 0, height = 0;  // 0 x 0: nothing decodes
};

// The RAW files' pictures are their embedded previews (RAF: 160 x 120, RW2:
// an 8 x 8 JPEG); their RAW data is stripped or cut off, and developing it
// must not give a picture of zeros.
const std::map<std::string, Expected> kFiles{
    {"canon-eos-350d-cr2-stripped.cr2", {Format::RAW}},
    {"canon-eos-350d-dng-stripped.dng", {Format::RAW}},
    {"nikon-d70-nef-stripped.nef", {Format::RAW}},
    {"sony-zv-e10-arw-truncated-100k.arw", {Format::RAW}},
    {"panasonic-dmc-lx3-rw2-stripped.rw2", {Format::RAW, 8, 8}},
    {"fujifilm-finepix-s5pro-raf-stripped.raf", {Format::RAW, 160, 120}},
    {"olympus-orf-header-only-128b.orf", {Format::RAW}},
    {"canon-eos-m50-cr3-stripped.cr3", {Format::RAW}},
    {"canon-eos-r6-cr3-truncated-mdat.cr3", {Format::RAW}},
    {"apple-iphone11pro-heic.HEIC", {Format::HEIF, 3024, 4032}},
    {"apple-iphone11pro-heic-exif-at-eof.heic", {Format::HEIF, 3024, 4032}},
    {"samsung-galaxy-s24fe-heic.heic", {Format::HEIF, 4000, 1848}},
    {"canon-eos-r5-hif.HIF", {Format::HEIF, 2400, 1600}},
    {"hmd-nokia-8.3-heif-modifydate-only.heif", {Format::HEIF, 3456, 4608}},
    {"heif-conformance-c034-exif-no-offset-prefix.heic", {Format::HEIF, 1280, 720}},
    {"heic-exif-item-no-dates.heic", {Format::HEIF, 64, 64}},
    {"canon-eos-70d-avif.avif", {Format::HEIF, 5472, 3648}},
    {"avif-exif-modifydate-only.avif", {Format::HEIF, 120, 120}},
    {"png-exif-chunk-after-idat-canon-s40.png", {Format::PNG, 1, 1}},
    {"png-exif-chunk-vivo-zero-crc.png", {Format::PNG}},  // libpng refuses the broken CRCs
    {"png-rawprofile-text-only-nikon-d70.png", {Format::PNG, 320, 211}},
    {"png-rawprofile-ztxt-only-nikon-d1x.png", {Format::PNG, 200, 130}},
    {"nikon-d1x-webp.webp", {Format::WebP, 600, 391}},
    {"apple-iphonex-webp-exif-header.webp", {Format::WebP, 320, 240}},
    {"htc-desire-webp-no-modifydate.webp", {Format::WebP, 776, 909}},
    {"apple-iphone6-with-gps.mov", {Format::Unknown}},
    {"sony-a7-xavc-truncated.MP4", {Format::Unknown}},
};

orb::ByteView viewOf(const Bytes& bytes) { return {bytes.data(), bytes.size()}; }

class PictureDecoding : public ::testing::Test {
 protected:
  void SetUp() override {
    const char* env = std::getenv("LUMIDATE_FORMATS_TESTDATA");
    dir = env && *env ? env : LUMIDATE_FORMATS_TESTDATA;
    if (!std::filesystem::is_regular_file(dir / "expected.json"))
      GTEST_SKIP() << "format test files not found (set LUMIDATE_FORMATS_TESTDATA); skipped";
  }
  std::filesystem::path dir;
};

TEST_F(PictureDecoding, RealFilesOfOtherFormats) {
  for (const auto& record : nlohmann::json::parse(std::ifstream(dir / "expected.json"))) {
    const std::string name = record.at("file");
    SCOPED_TRACE(name);
    const auto expected = kFiles.find(name);
    ASSERT_NE(expected, kFiles.end()) << "a test file without an expectation here";
    const Bytes bytes = lumtest::readFile(dir / name);
    EXPECT_EQ(ImageDecoder::formatOf(viewOf(bytes)), expected->second.format);
    const auto bitmap = ImageDecoder::decodeFull(viewOf(bytes));
    const std::pair size{expected->second.width, expected->second.height};
    if (size.first == 0) {
      EXPECT_FALSE(bitmap);
      continue;
    }
    ASSERT_TRUE(bitmap && bitmap->isConsistent());
    EXPECT_EQ(std::pair(bitmap->width, bitmap->height), size);
  }
}

// A small box takes a HEIF file's thumbnail when it gives the same size as
// the primary image would (Samsung's 512 x 235, the Canon's 320 x 214, coded
// as a padded square), never one smaller than needed.
TEST_F(PictureDecoding, HeifThumbnailForSmallBoxes) {
  const struct { const char* name; int box, width, height; } cases[] = {
      {"canon-eos-r5-hif.HIF", 150, 320, 214},
      {"canon-eos-r5-hif.HIF", 1000, 2400, 1600},
      {"samsung-galaxy-s24fe-heic.heic", 150, 512, 235},
      {"samsung-galaxy-s24fe-heic.heic", 1000, 4000, 1848},
      {"heic-exif-item-no-dates.heic", 150, 64, 64},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " in " + std::to_string(c.box));
    const Bytes bytes = lumtest::readFile(dir / c.name);
    const auto bitmap = ImageDecoder::decodeForBox(viewOf(bytes), c.box, c.box);
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(std::pair(bitmap->width, bitmap->height), std::pair(c.width, c.height));
  }
}

// A RAW file's list thumbnail is its preview, read piece by piece: of a RAF
// padded to 4 MB, as its sensor data would fill it, only the directories
// and the preview are read.
TEST_F(PictureDecoding, RawThumbnailReadsOnlyThePreview) {
  Bytes raf = lumtest::readFile(dir / "fujifilm-finepix-s5pro-raf-stripped.raf");
  raf.resize(4u << 20, 0x5A);
  std::uint64_t asked = 0;
  const lum::RangeReader whole = lum::readerOver(viewOf(raf));
  const lum::RangeReader counting = [&](std::uint64_t offset, std::uint64_t length) {
    asked += length;
    return whole(offset, length);
  };
  const auto preview = ImageDecoder::decodeRAWPreview(counting, raf.size(), 150, 150);
  ASSERT_TRUE(preview);
  EXPECT_EQ(std::pair(preview->width, preview->height), std::pair(160, 120));
  EXPECT_LT(asked, 256u * 1024);
  const lumtest::TempFile file(raf, "photo.raf");
  const auto thumbnail = LumImageFile().readThumbnail(file.path());
  ASSERT_TRUE(thumbnail);
  EXPECT_EQ(std::pair(thumbnail->width, thumbnail->height), std::pair(150, 113));
}

// Every file that decodes, cut at several lengths and with garbage after
// its first bytes: any answer but a crash or an inconsistent bitmap.
TEST_F(PictureDecoding, CutAndGarbledFilesNeverCrash) {
  for (const auto& [name, expected] : kFiles) {
    if (expected.width == 0 || expected.width * expected.height > 4'000'000) continue;
    SCOPED_TRACE(name);
    const Bytes whole = lumtest::readFile(dir / name);
    for (const double part : {0.0, 0.1, 0.5, 0.9}) {
      const auto length = static_cast<std::size_t>(static_cast<double>(whole.size()) * part);
      for (const bool garbage : {false, true}) {
        Bytes bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(std::max<std::size_t>(length, 16)));
        if (garbage)
          for (std::size_t i = 0; i < whole.size() - bytes.size(); ++i) bytes.push_back(static_cast<std::uint8_t>(i * 131));
        const auto bitmap = ImageDecoder::decodeForBox(viewOf(bytes), 150, 150);
        EXPECT_TRUE(!bitmap || bitmap->isConsistent());
        if (expected.format != Format::RAW) continue;
        const auto preview = ImageDecoder::decodeRAWPreview(lum::readerOver(viewOf(bytes)), bytes.size(), 150, 150);
        EXPECT_TRUE(!preview || preview->isConsistent());
      }
    }
  }
}

}  // namespace
