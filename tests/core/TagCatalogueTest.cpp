#include "core/TagCatalogue.h"

#include <gtest/gtest.h>

#include "core/Localization.h"
#include "core/TagTableExif.h"
#include "core/TagTableGPS.h"
#include "core/TagTableInteroperability.h"
#include "core/TagTableTiff.h"

namespace cat = orb::catalogue;

namespace {

TEST(TagCatalogue, Titles) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd, version;
    const char* title;
  };
  const Case cases[] = {
      {0x8827, kExifIFDID, 221, "ISO Speed Ratings"},
      {0x8827, kExifIFDID, 230, "Photographic Sensitivity"},
      {0x8827, kExifIFDID, 0, "ISO Speed Ratings"},
      {0x8827, kTIFFIFDID, 230, "(0x8827)"},
      {0xA20D, kExifIFDID, 230, "(0xA20D)"},
      {0x0001, 0x50000, 0, "(0x1)"},
      {0x0000, kTIFFIFDID, 0, "Byte Order"},
      {0x0000, kGPSIFDID, 0, "GPS Version"},
      {0x0000, kExifIFDID, 0, "(0x0)"},
      {0x0202, kTIFFIFDID, 0, "JPEG Interchange Format Lngth"},
      {0x0107, kTIFFIFDID, 0, "Threshholding"},
      {0x1002, kInteroperabilityIFDID, 0, "Related Image Length"},
      {0x001F, kGPSIFDID, 2300, "GPS HPositioning Error"},
      {0xFFFF, kGPSIFDID, 2300, "(0xFFFF)"},
      {0xA500, kExifIFDID, 221, "Gamma"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.title);
    EXPECT_EQ(cat::titleWithTag(c.tag, c.ifd, c.version), c.title);
  }
}

TEST(TagCatalogue, LocalizedTitlesGoThroughTheIFDTable) {
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    if (table == "IFD" && key == "Make") return std::string("Hersteller");
    return std::nullopt;
  });
  EXPECT_EQ(cat::localizedTitleWithTag(0x010F, kTIFFIFDID, 0), "Hersteller");
  EXPECT_EQ(cat::localizedTitleWithTag(0x0110, kTIFFIFDID, 0), "Model");
  Localization::setLookup({});
  EXPECT_EQ(cat::localizedTitleWithTag(0x010F, kTIFFIFDID, 0), "Make");
}

TEST(TagCatalogue, TypesAndVersions) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd;
    std::uint16_t type;
    std::uint32_t version;
  };
  const Case cases[] = {
      {0x0214, kTIFFIFDID, kOrbTypeLong, 0},        // deliberately LONG
      {0x0152, kTIFFIFDID, kOrbTypeByte, 0},        // deliberately BYTE
      {0x800D, kTIFFIFDID, 0, 0},                   // titled but untyped
      {0x882A, kTIFFIFDID, kOrbTypeSShort, 0},
      {0x882A, kExifIFDID, kOrbTypeSShort, 100},
      {0x9009, kExifIFDID, 0, 100},
      {0xA401, kExifIFDID, kOrbTypeShort, 220},
      {0xA432, kExifIFDID, kOrbTypeRational, 230},
      {0xA43C, kExifIFDID, kOrbTypeASCII, 300},
      {0xA462, kExifIFDID, kOrbTypeUndefined, 232},
      {0xA500, kExifIFDID, kOrbTypeRational, 221},
      {0x9405, kExifIFDID, kOrbTypeSRational, 231},
      {0xA20D, kExifIFDID, 0, 0},
      {0x0002, kInteroperabilityIFDID, kOrbTypeUndefined, 0},
      {0, kGPSIFDID, kOrbTypeByte, 2000},
      {27, kGPSIFDID, kOrbTypeUndefined, 2200},
      {30, kGPSIFDID, kOrbTypeShort, 2200},
      {31, kGPSIFDID, kOrbTypeRational, 2300},
      {32, kGPSIFDID, 0, 0},
      {0x010F, 0x50000, 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << std::hex << c.ifd << "/" << c.tag);
    EXPECT_EQ(cat::typeWithIFDTag(c.tag, c.ifd), c.type);
    EXPECT_EQ(cat::availableVersionWithIFDTag(c.tag, c.ifd), c.version);
  }
}

TEST(TagCatalogue, EveryTypedTagHasATitleAndTablesHaveTheirSizes) {
  for (const std::uint32_t ifd : {kTIFFIFDID, kExifIFDID, kInteroperabilityIFDID, kGPSIFDID})
    for (const orb::TagInfo& info : cat::tableForIFD(ifd)) EXPECT_FALSE(info.title.empty()) << info.tag;
  EXPECT_EQ(orb::kTiffTags.size(), 91u);
  EXPECT_EQ(orb::kExifTags.size(), 92u);
  EXPECT_EQ(orb::kInteroperabilityTags.size(), 5u);
  EXPECT_EQ(orb::kGPSTags.size(), 32u);
  EXPECT_TRUE(cat::tableForIFD(0x50000).empty());
}

TEST(TagCatalogue, DefaultCounts) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd;
    orb::DefaultCount setup;
    std::uint32_t count;
  };
  using orb::DefaultCount;
  const Case cases[] = {
      {306, kTIFFIFDID, DefaultCount::EmptyText, 0},   {297, kTIFFIFDID, DefaultCount::Count, 2},
      {258, kTIFFIFDID, DefaultCount::Leave, 0},       {36864, kExifIFDID, DefaultCount::Count, 4},
      {36867, kExifIFDID, DefaultCount::Leave, 0},     {42034, kExifIFDID, DefaultCount::Count, 4},
      {42081, kExifIFDID, DefaultCount::Count, 2},     {1, kInteroperabilityIFDID, DefaultCount::Count, 4},
      {29, kGPSIFDID, DefaultCount::Count, 11},        {27, kGPSIFDID, DefaultCount::Leave, 0},
      {18, kGPSIFDID, DefaultCount::Leave, 0},         {2, kGPSIFDID, DefaultCount::Count, 3},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.tag);
    const auto info = cat::tagInfo(c.tag, c.ifd);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->setup, c.setup);
    EXPECT_EQ(info->count, c.count);
  }
}

TEST(TagCatalogue, VersionCompatibility) {
  struct Case {
    std::uint32_t version;
    std::uint16_t tag;
    std::uint32_t ifd;
    std::optional<std::int64_t> light;
    bool compatible;
  };
  const Case cases[] = {
      {221, 42036, kExifIFDID, {}, false}, {230, 42036, kExifIFDID, {}, true},
      {232, 42038, kExifIFDID, {}, false}, {300, 42044, kExifIFDID, {}, true},
      {231, 42080, kExifIFDID, {}, false}, {232, 42082, kExifIFDID, {}, true},
      {230, 37888, kExifIFDID, {}, false}, {231, 37893, kExifIFDID, {}, true},
      {220, 42240, kExifIFDID, {}, false}, {221, 42240, kExifIFDID, {}, true},
      {221, 34864, kExifIFDID, {}, false}, {230, 36880, kExifIFDID, {}, false},
      {231, 36882, kExifIFDID, {}, true},  {100, 41985, kExifIFDID, {}, true},  // always, unlike its version
      {210, 42037, kExifIFDID, {}, false}, {100, 42045, kExifIFDID, {}, true},
      {2200, 31, kGPSIFDID, {}, false},    {2300, 31, kGPSIFDID, {}, true},
      {2000, 27, kGPSIFDID, {}, false},    {2200, 30, kGPSIFDID, {}, true},
      {2000, 26, kGPSIFDID, {}, true},     {0, 42044, kTIFFIFDID, {}, true},
      {0, 31, kInteroperabilityIFDID, {}, true},
      // LightSource depends on its value.
      {221, 37384, kExifIFDID, 16, false}, {230, 37384, kExifIFDID, 16, true},
      {220, 37384, kExifIFDID, 4, true},   {210, 37384, kExifIFDID, 4, false},
      {210, 37384, kExifIFDID, 9, false},  {210, 37384, kExifIFDID, 15, false},
      {210, 37384, kExifIFDID, 16, false}, {210, 37384, kExifIFDID, 5, true},
      {210, 37384, kExifIFDID, 8, true},   {210, 37384, kExifIFDID, 17, true},
      {210, 37384, kExifIFDID, 3, true},   {210, 37384, kExifIFDID, {}, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.tag << " v" << c.version << " L" << c.light.value_or(-1));
    EXPECT_EQ(cat::isCompatibleWithVersion(c.version, c.tag, c.ifd, c.light), c.compatible);
  }
}

TEST(TagCatalogue, CorrectTagForItsIFD) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd;
    bool correct;
  };
  const Case cases[] = {
      {0x010F, kExifIFDID, false}, {0x010F, kTIFFIFDID, true},  {0x9003, kTIFFIFDID, false},
      {0x9003, kExifIFDID, true},  {0x1234, kTIFFIFDID, true},  {0x1234, kExifIFDID, true},
      {0x882A, kExifIFDID, true},  {0x882A, kTIFFIFDID, true},  {0x800D, kExifIFDID, true},  // untyped
      {0x010F, kGPSIFDID, true},   {0x9003, 0x50000, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << std::hex << c.ifd << "/" << c.tag);
    EXPECT_EQ(cat::isCorrectTag(c.tag, c.ifd), c.correct);
  }
}

TEST(TagCatalogue, ImageUniqueID) {
  struct Case {
    const char* text;
    bool legal;
  };
  const Case cases[] = {
      {"0123456789abcdefABCDEF0123456789", true}, {"00000000000000000000000000000000", true},
      {"0123456789abcdefABCDEF012345678", false}, {"0123456789abcdefABCDEF01234567890", false},
      {"0123456789abcdefABCDEF012345678G", false}, {"0123456789abcdef ABCDEF012345678", false},
      {"", false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    LumError error{"untouched", 1, {}};
    EXPECT_EQ(cat::isLegalExifImageUniqueID(std::string_view(c.text), &error), c.legal);
    if (c.legal) {
      EXPECT_EQ(error.domain, "untouched");
    } else {
      EXPECT_EQ(error, (LumError{"OrbStringNumberErrorDomain", -4, {}}));
    }
    EXPECT_EQ(cat::isLegalExifImageUniqueID(std::string_view(c.text), nullptr), c.legal);
  }
  LumError error{"untouched", 1, {}};
  EXPECT_FALSE(cat::isLegalExifImageUniqueID(std::nullopt, &error));
  EXPECT_EQ(error.domain, "untouched");
}

}  // namespace
