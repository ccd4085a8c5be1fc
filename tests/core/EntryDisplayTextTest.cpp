#include <gtest/gtest.h>

#include "CatalogueTestEntries.h"
#include "core/Localization.h"

using namespace cattest;

namespace {

constexpr std::int8_t kEndians[] = {kOrbBigEndian, kOrbLittleEndian};

TEST(EntryDisplay, CodedShortsShowWords) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd;
    std::uint16_t value;
    std::optional<std::uint16_t> second;
    std::uint32_t version;
    const char* shown;
  };
  const Case cases[] = {
      {274, kTIFFIFDID, 6, {}, 0, "6 Right-Top"},
      {274, kTIFFIFDID, 0, {}, 0, "0"},
      {37384, kExifIFDID, 16, {}, 230, "Warm White Fluorescent"},
      {37384, kExifIFDID, 16, {}, 221, "16"},
      {37385, kExifIFDID, 0x59, {}, 221, "Fired, Auto Mode, Red-eye Reduction Mode"},
      {530, kTIFFIFDID, 2, 1, 0, "YCbCr 4:2:2"},
      {530, kTIFFIFDID, 2, 2, 0, "YCbCr 4:2:0"},
      {530, kTIFFIFDID, 1, 1, 0, "(1 - 1)"},
      {41990, kExifIFDID, 4, {}, 230, ""},
      {0x0100, kTIFFIFDID, 640, {}, 0, "640"},  // a quantity, not a code
      {274, kExifIFDID, 6, {}, 0, "6"},         // Orientation has words only in a TIFF IFD
  };
  for (const std::int8_t endian : kEndians)
    for (const Case& c : cases) {
      SCOPED_TRACE(testing::Message() << c.tag << "=" << c.value << " endian " << int(endian));
      EXPECT_EQ(shorts(endian, c.tag, c.ifd, c.value, c.second, c.version).stringData(), c.shown);
    }
}

TEST(EntryDisplay, WordsAreLocalizedThroughTheIFDTable) {
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    if (table == "IFD" && key == "6 Right-Top") return std::string("6 Rechts oben");
    return std::nullopt;
  });
  const OrbIFDEntry e = shorts(kOrbBigEndian, 274, kTIFFIFDID, 6);
  EXPECT_EQ(e.localizedDataObject().stringValue(), "6 Rechts oben");
  EXPECT_EQ(e.stringData(), "6 Right-Top");
  Localization::setLookup({});
}

TEST(EntryDisplay, ReadableTexts) {
  struct Case {
    const char* what;
    OrbIFDEntry entry;
    const char* shown;
  };
  const std::int8_t B = kOrbBigEndian, L = kOrbLittleEndian;
  const Case cases[] = {
      {"exposure 1/250", rationals(B, 0x829A, kExifIFDID, {1, 250}), "1/250 s"},
      {"exposure 10/2500", rationals(L, 0x829A, kExifIFDID, {10, 2500}), "1/250 s"},
      {"exposure 3/1000", rationals(B, 0x829A, kExifIFDID, {3, 1000}), "1/333.3 s"},
      {"exposure 2/1", rationals(B, 0x829A, kExifIFDID, {2, 1}), "2 s"},
      {"exposure 13/10", rationals(B, 0x829A, kExifIFDID, {13, 10}), "1.3 s"},
      {"exposure 1/0", rationals(B, 0x829A, kExifIFDID, {1, 0}), "1/0"},
      {"f-number", rationals(L, 0x829D, kExifIFDID, {28, 10}), "f/2.8"},
      {"f-number 8", rationals(B, 0x829D, kExifIFDID, {8, 1}), "f/8"},
      {"focal length", rationals(B, 0x920A, kExifIFDID, {35, 1}), "35 mm"},
      {"focal length 5.8", rationals(B, 0x920A, kExifIFDID, {58, 10}), "5.8 mm"},
      {"35mm focal length", shorts(L, 0xA405, kExifIFDID, 50), "50 mm"},
      {"subject distance", rationals(B, 0x9206, kExifIFDID, {0xFFFFFFFF, 1}), "Infinity"},
      {"plain rational", rationals(B, 0x011A, kTIFFIFDID, {72, 1}), "72"},
      {"plain rational 1/3", rationals(B, 0xA404, kExifIFDID, {3, 2}), "1.5"},
      {"Exif version", withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'}), "2.31"},
      {"Flashpix version", withBytes(L, 0xA000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '1', '0', '0'}), "1.00"},
      {"Interoperability version", withBytes(B, 2, kInteroperabilityIFDID, kOrbTypeUndefined, 4, {'0', '1', '0', '0'}),
       "1.00"},
      {"components", withBytes(B, 0x9101, kExifIFDID, kOrbTypeUndefined, 4, {1, 2, 3, 0}), "YCbCr"},
      {"components RGB", withBytes(B, 0x9101, kExifIFDID, kOrbTypeUndefined, 4, {4, 5, 6, 0}), "RGB"},
      {"file source", withBytes(B, 0xA300, kExifIFDID, kOrbTypeUndefined, 1, {3}), "DSC"},
      {"scene type", withBytes(B, 0xA301, kExifIFDID, kOrbTypeUndefined, 1, {1}), "Directly Photographed Image"},
      {"GPS version", withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 3, 0, 0}), "2.3.0.0"},
      {"GPS latitude", rationals(L, 2, kGPSIFDID, {35, 1, 30, 1, 725, 100}), "35\u00B0 30' 7.25\""},
      {"GPS longitude", rationals(B, 4, kGPSIFDID, {139, 1, 59, 1, 59999, 1000}), "140\u00B0 0' 0.00\""},
      {"GPS altitude", rationals(B, 6, kGPSIFDID, {12345, 100}), "123.45 m"},
      {"GPS below sea level", withBytes(B, 5, kGPSIFDID, kOrbTypeByte, 1, {1}), "Below Sea Level"},
      {"GPS altitude ref 2", withBytes(B, 5, kGPSIFDID, kOrbTypeByte, 1, {2}), "2"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.entry.stringData(), c.shown) << c.what;
}

TEST(EntryDisplay, TitlesFollowTheEntrysVersion) {
  OrbIFDEntry iso = shorts(kOrbBigEndian, 0x8827, kExifIFDID, 100);
  iso.setVersion(221);
  EXPECT_EQ(iso.title(), "ISO Speed Ratings");
  iso.setVersion(230);
  EXPECT_EQ(iso.title(), "Photographic Sensitivity");
  EXPECT_EQ(iso.titleWithTag(0x8827, kTIFFIFDID), "(0x8827)");
  EXPECT_EQ(shorts(kOrbBigEndian, 0xA20D, kExifIFDID, 1).title(), "(0xA20D)");
  EXPECT_EQ(OrbIFDEntry::localizedTitleWithTag(0x010F, kTIFFIFDID, 0), "Make");
}

TEST(EntryDisplay, VersionRulesOfAnEntry) {
  struct Case {
    const char* what;
    OrbIFDEntry entry;
    std::uint32_t version;
    bool compatible;
  };
  const std::int8_t B = kOrbBigEndian;
  OrbIFDEntry utf8Light = shorts(B, 37384, kExifIFDID, 1);
  utf8Light.setType(kOrbTypeUTF8);
  OrbIFDEntry utf8Make = text(B, 271, kTIFFIFDID, "Lumi");
  utf8Make.setType(kOrbTypeUTF8);
  const Case cases[] = {
      {"light 16 in 2.21", shorts(B, 37384, kExifIFDID, 16), 221, false},
      {"light 16 in 2.30", shorts(B, 37384, kExifIFDID, 16), 230, true},
      {"light 4 in 2.10", shorts(B, 37384, kExifIFDID, 4), 210, false},
      {"light 6 in 2.10", shorts(B, 37384, kExifIFDID, 6), 210, true},
      {"light as UTF-8 before 3.0", utf8Light, 232, false},
      {"light as UTF-8 in 3.0", utf8Light, 300, true},
      {"Make as UTF-8 in 2.32", utf8Make, 232, false},
      {"Make as UTF-8 in 3.0", utf8Make, 300, true},
      {"Exif version 2.31 for 2.32", withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'}), 232,
       false},
      {"Exif version 2.31 for 2.31", withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'}), 231,
       true},
      {"GPS version 2.2 for 2.3", withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 2, 0, 0}), 2300, false},
      {"GPS version 2.3 for 2.3", withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 3, 0, 0}), 2300, true},
      {"lens model in 2.21", text(B, 42036, kExifIFDID, "Lens"), 221, false},
      {"lens model in 2.30", text(B, 42036, kExifIFDID, "Lens"), 230, true},
      {"GPS positioning error in 2.2", rationals(B, 31, kGPSIFDID, {1, 1}), 2200, false},
  };
  for (const Case& c : cases) EXPECT_EQ(c.entry.isCompatibleWithVersion(c.version), c.compatible) << c.what;
}

}  // namespace
