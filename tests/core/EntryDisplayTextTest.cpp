#include <gtest/gtest.h>

#include "CatalogueTestEntries.h"

using namespace cattest;

namespace {

TEST(EntryDisplay, CodedShortsShowWordsInEitherByteOrder) {
  for (const std::int8_t endian : {kOrbBigEndian, kOrbLittleEndian}) {
    EXPECT_EQ(shorts(endian, 274, kTIFFIFDID, 6).stringData(), "6 Right-Top");
    EXPECT_EQ(shorts(endian, 530, kTIFFIFDID, 2, 1).stringData(), "YCbCr 4:2:2");
    EXPECT_EQ(shorts(endian, 37384, kExifIFDID, 16, {}, 230).stringData(), "Warm White Fluorescent");
    EXPECT_EQ(shorts(endian, 0x0100, kTIFFIFDID, 640).stringData(), "640");  // a quantity
  }
}

TEST(EntryDisplay, ReadableTexts) {
  struct Case { OrbIFDEntry entry; const char* shown; };
  const std::int8_t B = kOrbBigEndian, L = kOrbLittleEndian;
  const Case cases[] = {
      {rationals(B, 0x829A, kExifIFDID, {1, 250}), "1/250 s"},
      {rationals(L, 0x829A, kExifIFDID, {10, 2500}), "1/250 s"},
      {rationals(B, 0x829A, kExifIFDID, {3, 1000}), "1/333.3 s"},
      {rationals(B, 0x829A, kExifIFDID, {13, 10}), "1.3 s"}, {rationals(B, 0x829A, kExifIFDID, {1, 0}), "1/0"},
      {rationals(L, 0x829D, kExifIFDID, {28, 10}), "f/2.8"}, {rationals(B, 0x920A, kExifIFDID, {58, 10}), "5.8 mm"},
      {shorts(L, 0xA405, kExifIFDID, 50), "50 mm"}, {rationals(B, 0x9206, kExifIFDID, {0xFFFFFFFF, 1}), "Infinity"},
      {rationals(B, 0xA432, kExifIFDID, {24, 1, 70, 1, 28, 10, 4, 1}), "24-70mm F2.8-4"},
      {rationals(L, 0xA432, kExifIFDID, {50, 1, 50, 1, 18, 10, 0, 0}), "50mm F1.8-?"},
      {withBytes(B, 0x9214, kExifIFDID, kOrbTypeShort, 4, {0, 10, 0, 20, 0, 5, 0, 6}),
       "Center Coordinates (10, 20), Area Size 5 x 6"},
      {withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'}), "2.31"},
      {withBytes(L, 0xA000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '1', '0', '0'}), "1.00"},
      {withBytes(B, 0x9101, kExifIFDID, kOrbTypeUndefined, 4, {1, 2, 3, 0}), "YCbCr"},
      {withBytes(B, 0xA300, kExifIFDID, kOrbTypeUndefined, 1, {3}), "DSC"},
      {withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 3, 0, 0}), "2.3.0.0"},
      {rationals(L, 2, kGPSIFDID, {35, 1, 30, 1, 725, 100}), "35\u00B0 30' 7.25\""},
      {rationals(B, 4, kGPSIFDID, {139, 1, 59, 1, 59999, 1000}), "140\u00B0 0' 0.00\""},
      {rationals(B, 6, kGPSIFDID, {12345, 100}), "123.45 m"},
      {withBytes(B, 5, kGPSIFDID, kOrbTypeByte, 1, {1}), "Below Sea Level"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.entry.stringData(), c.shown) << c.entry.title();
}

TEST(EntryDisplay, TitlesAndVersionRulesOfAnEntry) {
  OrbIFDEntry iso = shorts(kOrbBigEndian, 0x8827, kExifIFDID, 100, {}, 221);
  EXPECT_EQ(iso.title(), "ISO Speed Ratings");
  iso.setVersion(230);
  EXPECT_EQ(iso.title(), "Photographic Sensitivity");
  EXPECT_EQ(iso.titleWithTag(0x8827, kTIFFIFDID), "(0x8827)");

  struct Case { OrbIFDEntry entry; std::uint32_t version; bool compatible; };
  const std::int8_t B = kOrbBigEndian;
  OrbIFDEntry utf8Light = shorts(B, 37384, kExifIFDID, 1);
  utf8Light.setType(kOrbTypeUTF8);
  const OrbIFDEntry exif231 = withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'});
  const OrbIFDEntry gps22 = withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 2, 0, 0});
  const Case cases[] = {
      {shorts(B, 37384, kExifIFDID, 16), 221, false}, {shorts(B, 37384, kExifIFDID, 16), 230, true},
      {shorts(B, 37384, kExifIFDID, 4), 210, false},  {utf8Light, 232, false}, {utf8Light, 300, true},
      {exif231, 232, false}, {exif231, 231, true}, {gps22, 2300, false}, {gps22, 2200, true},
      {text(B, 42036, kExifIFDID, "Lens"), 221, false},
  };
  for (const Case& c : cases)
    EXPECT_EQ(c.entry.isCompatibleWithVersion(c.version), c.compatible) << c.entry.title() << " " << c.version;
}

}  // namespace
