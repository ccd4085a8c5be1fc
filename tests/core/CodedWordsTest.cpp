#include "core/CodedWords.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/IFDItemID.h"

namespace cw = orb::codedwords;

namespace {

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
