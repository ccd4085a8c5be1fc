// The JPEG marker walk and the JFIF fields, on hand-built segment layouts.
#include <gtest/gtest.h>

#include <algorithm>

#include "formats/LumImageFile.h"
#include "support/JpegBuilder.h"

namespace {

using lumtest::Bytes;
using lumtest::JpegBuilder;

const Bytes kSOS = {0xFF, 0xDA};
const Bytes kTiff = lumtest::exifTiff({{0x0132, std::string("2020:01:02 03:04:05\0", 20)}}, {});

struct Walk {
  bool found = false;
  std::uint64_t location = 0;
  std::unique_ptr<LumImageFile> file = std::make_unique<LumImageFile>();
};

Walk walk(const Bytes& bytes) {
  Walk w;
  w.location = 2;
  w.found = w.file->pSearchJPEG(orb::ByteView(bytes.data(), bytes.size()), &w.location, bytes.size());
  return w;
}

TEST(JpegScan, JfifFieldTexts) {
  struct Case {
    std::uint8_t major, minor, unit, thumbW, thumbH;
    const char* version;
    const char* unitText;
    std::optional<std::string> width, height;
  };
  const Case cases[] = {
      {1, 0, 0, 0, 0, "1.", "No Units", {}, {}},       // a zero minor prints nothing
      {1, 2, 2, 0, 0, "1.2", "dpc", {}, {}},
      {1, 10, 3, 0, 0, "1.10", "No Units", {}, {}},
      {2, 1, 1, 127, 1, "2.1", "dpi", "127", "1"},
      {1, 1, 1, 128, 200, "1.1", "dpi", {}, {}},       // 128 and more are negative as signed bytes
      {0xFF, 0xFE, 1, 0, 0, "-1.-2", "dpi", {}, {}},   // version bytes are signed
  };
  for (const Case& c : cases) {
    const Bytes thumb(static_cast<std::size_t>(c.thumbW) * c.thumbH * 3, 0);
    const Walk w = walk(JpegBuilder().jfif(c.major, c.minor, c.unit, 300, 600, c.thumbW, c.thumbH, thumb).build());
    EXPECT_EQ(w.file->JFIFValue("JFIF Version"), c.version);
    EXPECT_EQ(w.file->JFIFValue("Density Unit"), c.unitText);
    EXPECT_EQ(w.file->JFIFValue("X Density"), "300");
    EXPECT_EQ(w.file->JFIFValue("Y Density"), "600");
    EXPECT_EQ(w.file->JFIFValue("Thumbnail Width"), c.width) << c.version;
    EXPECT_EQ(w.file->JFIFValue("Thumbnail Height"), c.height) << c.version;
  }
}

TEST(JpegScan, Layouts) {
  struct Case {
    const char* name;
    Bytes bytes;
    bool found;
    std::uint64_t header;  // when found
    std::optional<LumRange> exif = {}, jfif = {};  // checked when given
  };
  // An APP0 with thumbnail pixels that spell an Exif APP1: the walk goes on
  // right after the thumbnail sizes, so it finds them, which shows where it
  // stands.
  Bytes pixels = {0xFF, 0xE1, 0x00, 0x10, 'E', 'x', 'i', 'f', 0, 0};
  pixels.resize(12, 0);
  const Case cases[] = {
      {"APP1 right after SOI", JpegBuilder().exif(kTiff).build(), true, 12},
      {"XMP APP1 before Exif", JpegBuilder().jfif(1, 1).xmp().exif(kTiff).build(), false, 0},
      {"other segments first", JpegBuilder().segment(0xDB, Bytes(65, 0)).segment(0xED, Bytes(10, 1)).exif(kTiff).build(),
       true, 2 + 69 + 14 + 10},
      {"JFXX APP0 skipped whole", JpegBuilder().segment(0xE0, {'J', 'F', 'X', 'X', 0, 0x10, 1, 2}).exif(kTiff).build(),
       true, 2 + 12 + 10},
      {"later APP0 skipped", JpegBuilder().segment(0xDB, Bytes(4, 0)).jfif(1, 1).exif(kTiff).build(), true,
       2 + 8 + 18 + 10},
      {"XMP first: its range is kept", JpegBuilder().xmp("abc").exif(kTiff).build(), false, 0, LumRange{2, 2 + 2 + 29 + 3}},
      {"JFIF thumbnail pixels", JpegBuilder().jfif(1, 1, 1, 72, 72, 2, 2, pixels).build(), true, 2 + 18 + 10, {},
       LumRange{2, 30}},
      {"APP1 of another kind only", JpegBuilder().segment(0xE1, {'Q', 'V', 'C', 'I', 0, 0}).build(), false, 0},
      {"no APP1", JpegBuilder().jfif(1, 1).build(), false, 0},
      {"Exif after the start of scan", JpegBuilder().jfif(1, 1).raw({0xFF, 0xDA, 0, 2}).exif(kTiff).build(false),
       false, 0},
      {"segment reaching exactly the end",
       JpegBuilder().segment(0xDB, Bytes(6, 0), 8).build(false), false, 0},
      {"length carrying past the end", JpegBuilder().segment(0xDB, Bytes(6, 0), 0xFFFF).exif(kTiff).build(), false, 0},
      {"cut inside the APP1 identifier", [&] { Bytes b = JpegBuilder().exif(kTiff).build(false); b.resize(8); return b; }(),
       false, 0},
      {"cut inside the length", Bytes{0xFF, 0xD8, 0xFF, 0xDB, 0x00}, false, 0},
      {"only SOI", Bytes{0xFF, 0xD8}, false, 0},
      {"zero lengths still progress", JpegBuilder().raw({0xFF, 0xDB, 0, 0, 0, 0, 0, 0}).build(false), false, 0},
  };
  for (const Case& c : cases) {
    const Walk w = walk(c.bytes);
    EXPECT_EQ(w.found, c.found) << c.name;
    if (c.found) {
      EXPECT_EQ(w.location, c.header) << c.name;
    }
    if (c.exif) {
      EXPECT_EQ(w.file->exifSegmentRange(), c.exif) << c.name;
    }
    if (c.jfif) {
      EXPECT_EQ(w.file->JFIFSegmentRange(), c.jfif) << c.name;
    }
  }
}

TEST(JpegScan, AFileWithoutExifIsNotReadPastItsStartOfScan) {
  Bytes b = JpegBuilder().jfif(1, 1).build();
  b.resize(static_cast<std::size_t>(std::search(b.begin(), b.end(), kSOS.begin(), kSOS.end()) - b.begin()) + 4);
  bool refused = false;
  std::uint64_t location = 2;
  EXPECT_FALSE(LumImageFile().pSearchJPEG(orb::ByteView(b.data(), b.size(), &refused), &location, 1u << 30));
  EXPECT_FALSE(refused);
}

TEST(JpegScan, CutJfifGivesNoDictionary) {
  Bytes b = JpegBuilder().jfif(1, 1).build(false);
  b.resize(14);  // ends inside the density fields
  const Walk w = walk(b);
  EXPECT_FALSE(w.found);
  EXPECT_FALSE(w.file->JFIF());
  EXPECT_EQ(w.file->JFIFSegmentRange(), (LumRange{2, 18}));
}

}  // namespace
