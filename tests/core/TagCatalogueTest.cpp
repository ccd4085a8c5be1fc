#include "core/TagCatalogue.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/CodedWords.h"
#include "core/IFDItemID.h"

namespace cat = orb::catalogue;
namespace cw = orb::codedwords;

namespace {

TEST(TagCatalogue, TitlesTypesAndVersions) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd, version;
    const char* title;
    std::uint16_t type;
    std::uint32_t introduced;
  };
  const Case cases[] = {
      {0x8827, kExifIFDID, 221, "ISO Speed Ratings", kOrbTypeShort, 100},
      {0x8827, kExifIFDID, 230, "Photographic Sensitivity", kOrbTypeShort, 100},
      {0x8827, kTIFFIFDID, 230, "(0x8827)", 0, 0}, {0xA20D, kExifIFDID, 230, "(0xA20D)", 0, 0},
      {0x0000, kTIFFIFDID, 0, "Byte Order", 0, 0}, {0x800D, kTIFFIFDID, 0, "Image ID", 0, 0},  // titled, untyped
      {0x0214, kTIFFIFDID, 0, "Reference Black White", kOrbTypeLong, 0},                    // LONG on purpose
      {0xA500, kExifIFDID, 0, "Gamma", kOrbTypeRational, 221},
      {27, kGPSIFDID, 0, "GPS Processing Method", kOrbTypeUndefined, 2200},
      {31, kGPSIFDID, 0, "GPS HPositioning Error", kOrbTypeRational, 2300}, {32, kGPSIFDID, 0, "(0x20)", 0, 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.title);
    EXPECT_EQ(cat::titleWithTag(c.tag, c.ifd, c.version), c.title);
    EXPECT_EQ(cat::typeWithIFDTag(c.tag, c.ifd), c.type);
    EXPECT_EQ(cat::availableVersionWithIFDTag(c.tag, c.ifd), c.introduced);
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
      {230, 37893, kExifIFDID, {}, false}, {220, 42240, kExifIFDID, {}, false}, {231, 42080, kExifIFDID, {}, false},
      {100, 41985, kExifIFDID, {}, true},  // always, although introduced in 2.2
      {2200, 31, kGPSIFDID, {}, false},    {2300, 31, kGPSIFDID, {}, true},
      {2000, 27, kGPSIFDID, {}, false},    {0, 42044, kTIFFIFDID, {}, true},
      // LightSource depends on its value.
      {221, 37384, kExifIFDID, 16, false}, {230, 37384, kExifIFDID, 16, true},
      {220, 37384, kExifIFDID, 4, true},   {210, 37384, kExifIFDID, 4, false},
      {210, 37384, kExifIFDID, 9, false},  {210, 37384, kExifIFDID, 16, false},
      {210, 37384, kExifIFDID, 5, true},   {210, 37384, kExifIFDID, 17, true}, {210, 37384, kExifIFDID, {}, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.tag << " v" << c.version << " L" << c.light.value_or(-1));
    EXPECT_EQ(cat::isCompatibleWithVersion(c.version, c.tag, c.ifd, c.light), c.compatible);
  }
}

TEST(TagCatalogue, CorrectTagForItsIFD) {
  const std::tuple<std::uint16_t, std::uint32_t, bool> cases[] = {
      {0x010F, kExifIFDID, false}, {0x9003, kTIFFIFDID, false}, {0x1234, kTIFFIFDID, true}, {0x1234, kExifIFDID, true},
      {0x882A, kExifIFDID, true},  {0x882A, kTIFFIFDID, true},  {0x800D, kExifIFDID, true}, {0x010F, kGPSIFDID, true}};
  for (const auto& [tag, ifd, correct] : cases) EXPECT_EQ(cat::isCorrectTag(tag, ifd), correct) << tag << " in " << ifd;
}

TEST(TagCatalogue, ImageUniqueID) {
  const std::pair<const char*, bool> cases[] = {
      {"0123456789abcdefABCDEF0123456789", true},  {"0123456789abcdefABCDEF012345678", false},
      {"0123456789abcdefABCDEF01234567890", false}, {"0123456789abcdefABCDEF012345678G", false}, {"", false}};
  for (const auto& [text, legal] : cases) {
    LumError error{"untouched", 1, {}};
    EXPECT_EQ(cat::isLegalExifImageUniqueID(std::string_view(text), &error), legal) << text;
    EXPECT_EQ(error, (legal ? LumError{"untouched", 1, {}} : LumError{"OrbStringNumberErrorDomain", -4, {}}));
  }
  LumError error{"untouched", 1, {}};
  EXPECT_FALSE(cat::isLegalExifImageUniqueID(std::nullopt, &error));  // not a text: no error
  EXPECT_EQ(error.domain, "untouched");
}

TEST(CodedWords, WordsAndFallbacks) {
  struct Case {
    std::uint32_t ifd;
    std::uint16_t tag;
    std::vector<std::uint16_t> values;
    std::uint32_t version;
    const char* word;
  };
  constexpr std::uint32_t T = kTIFFIFDID, E = kExifIFDID;
  // Fallbacks: the number, nothing (no absolute unit, or the same words), or
  // a flash value as a whole, never bit by bit.
  const Case cases[] = {
      {T, 274, {6}, 0, "6 Right-Top"}, {T, 274, {0}, 0, "0"}, {T, 262, {7}, 0, "7"}, {T, 296, {1}, 0, ""},
      {E, 41488, {4}, 220, ""}, {T, 317, {1}, 0, "Non"}, {T, 50741, {2}, 0, ""}, {E, 34850, {9}, 220, "9"},
      {E, 37383, {255}, 220, "Other"}, {E, 37383, {254}, 220, "254"}, {E, 40961, {65535}, 220, "Uncalibrated"},
      {E, 37385, {0x19}, 220, "Fired, Auto Mode"}, {E, 37385, {0x59}, 220, "Fired, Auto Mode, Red-eye Reduction Mode"},
      {E, 37385, {0x141}, 220, "321"}, {T, 530, {2, 1}, 0, "YCbCr 4:2:2"}, {T, 530, {2, 2}, 0, "YCbCr 4:2:0"},
      {T, 530, {4, 2}, 0, "(4 - 2)"}, {T, 530, {2}, 0, "(2 - 0)"},
  };
  for (const Case& c : cases) EXPECT_EQ(cw::wordFor(c.ifd, c.tag, c.values, c.version), c.word) << c.tag;
}

TEST(CodedWords, LightSourceDependsOnTheExifVersion) {
  struct Case { std::uint16_t value; const char* before230; const char* from230; };
  const Case cases[] = {{4, "Flash", "Flash"}, {6, "6", "6"}, {13, "Day White Fluorescent", "Day White Fluorescent 0230"},
                        {16, "16", "Warm White Fluorescent"}, {24, "ISO Studio Tungsten", "ISO Studio Tungsten"},
                        {25, "25", "25"}};
  for (const Case& c : cases) {
    const std::uint16_t values[] = {c.value};
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37384, values, 229), c.before230) << c.value;
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37384, values, 230), c.from230) << c.value;
  }
}

TEST(CodedWords, OnlyCodedTagsOfTheirOwnIFD) {
  const std::uint16_t one[] = {1};
  EXPECT_FALSE(cw::wordFor(kTIFFIFDID, 0x0100, one, 0));  // ImageWidth is a quantity
  EXPECT_FALSE(cw::wordFor(kExifIFDID, 274, one, 220));   // Orientation belongs to TIFF
  EXPECT_FALSE(cw::wordFor(kGPSIFDID, 30, one, 2300));
  EXPECT_FALSE(cw::wordFor(kTIFFIFDID, 274, {}, 0));  // no value, nothing to name
}

}  // namespace
