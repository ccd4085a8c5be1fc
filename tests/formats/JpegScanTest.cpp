// The JPEG marker walk and the JFIF fields, on hand-built segment layouts.
#include <gtest/gtest.h>

#include <algorithm>

#include "formats/LumImageFile.h"
#include "support/JpegBuilder.h"

namespace {

using lumtest::Bytes;
using lumtest::JpegBuilder;

const Bytes kTiff = lumtest::exifTiff({{0x0132, std::string("2020:01:02 03:04:05\0", 20)}}, {});

// Walks from just after SOI; answers the file and where the TIFF header was found, if it was.
std::pair<std::unique_ptr<LumImageFile>, std::optional<std::uint64_t>> walk(const Bytes& bytes) {
  auto file = std::make_unique<LumImageFile>();
  std::uint64_t location = 2;
  const bool found = file->pSearchJPEG(orb::ByteView(bytes.data(), bytes.size()), &location, bytes.size());
  return {std::move(file), found ? std::optional(location) : std::nullopt};
}

TEST(JpegScan, JfifFieldTexts) {
  // Version bytes are signed and a zero minor prints nothing; thumbnail sizes of 128 and more are left out.
  const auto dpc = walk(JpegBuilder().jfif(0xFF, 0, 2, 300, 600, 2, 1, Bytes(6, 0)).build()).first;
  const auto none = walk(JpegBuilder().jfif(1, 2, 3, 1, 1, 128, 1, Bytes(384, 0)).build()).first;
  std::vector<std::optional<std::string>> read;
  for (const char* key : {"JFIF Version", "Density Unit", "X Density", "Thumbnail Width", "Thumbnail Height"})
    read.insert(read.end(), {dpc->JFIFValue(key), none->JFIFValue(key)});
  EXPECT_EQ(read, (decltype(read){"-1.", "1.2", "dpc", "No Units", "300", "1", "2", {}, "1", "1"}));
}

// Layouts the real camera files already have (XMP or another kind of APP1
// first, ICC or APP13 before the Exif) are checked by their suite.
TEST(JpegScan, Layouts) {
  // An APP0 with thumbnail pixels that spell an Exif APP1: the walk goes on
  // right after the thumbnail sizes, so it finds them, which shows where it stands.
  Bytes pixels = {0xFF, 0xE1, 0x00, 0x10, 'E', 'x', 'i', 'f', 0, 0};
  pixels.resize(12, 0);
  Bytes cutJfif = JpegBuilder().jfif(1, 1).build(false);
  cutJfif.resize(14);  // ends inside the density fields
  Bytes cutApp1 = JpegBuilder().exif(kTiff).build(false);
  cutApp1.resize(8);
  const std::nullopt_t no = std::nullopt;
  const struct {
    const char* name; Bytes bytes; std::optional<std::uint64_t> header;
    std::optional<LumRange> exif = {}, jfif = {};  // checked when given
  } cases[] = {
      {"other segments first",
       JpegBuilder().segment(0xDB, Bytes(65, 0)).segment(0xED, Bytes(10, 1)).exif(kTiff).build(), 2 + 69 + 14 + 10},
      {"JFXX APP0 skipped whole", JpegBuilder().segment(0xE0, {'J', 'F', 'X', 'X', 0, 0x10, 1, 2}).exif(kTiff).build(),
       2 + 12 + 10},
      {"later APP0 skipped", JpegBuilder().segment(0xDB, Bytes(4, 0)).jfif(1, 1).exif(kTiff).build(), 2 + 8 + 18 + 10},
      {"JFIF thumbnail pixels", JpegBuilder().jfif(1, 1, 1, 72, 72, 2, 2, pixels).build(), 30, {}, LumRange{2, 30}},
      {"cut JFIF: its range, no fields", cutJfif, no, {}, LumRange{2, 18}},
      {"no APP1", JpegBuilder().jfif(1, 1).build(), no},
      {"Exif after the start of scan", JpegBuilder().jfif(1, 1).raw({0xFF, 0xDA, 0, 2}).exif(kTiff).build(false), no},
      {"segment reaching exactly the end", JpegBuilder().segment(0xDB, Bytes(6, 0), 8).build(false), no},
      {"length carrying past the end", JpegBuilder().segment(0xDB, Bytes(6, 0), 0xFFFF).exif(kTiff).build(), no},
      {"cut inside the APP1 identifier", cutApp1, no},
      {"cut inside the length", Bytes{0xFF, 0xD8, 0xFF, 0xDB, 0x00}, no},
      {"only SOI", Bytes{0xFF, 0xD8}, no},
      {"zero lengths still progress", JpegBuilder().raw({0xFF, 0xDB, 0, 0, 0, 0, 0, 0}).build(false), no},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto [file, header] = walk(c.bytes);
    EXPECT_EQ(header, c.header);
    if (c.exif) { EXPECT_EQ(file->exifSegmentRange(), c.exif); }
    if (c.jfif) { EXPECT_EQ(file->JFIFSegmentRange(), c.jfif); }
    if (c.jfif && !c.header) { EXPECT_FALSE(file->JFIF()); }
  }
  // A file without Exif is not read past its start of scan, however far the walk may go.
  Bytes b = JpegBuilder().jfif(1, 1).build();
  const Bytes sos = {0xFF, 0xDA};
  b.resize(static_cast<std::size_t>(std::search(b.begin(), b.end(), sos.begin(), sos.end()) - b.begin()) + 4);
  bool refused = false;
  std::uint64_t location = 2;
  EXPECT_FALSE(LumImageFile().pSearchJPEG(orb::ByteView(b.data(), b.size(), &refused), &location, 1u << 30));
  EXPECT_FALSE(refused);
}

}  // namespace
