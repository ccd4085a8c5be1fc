#include "core/CodedWords.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/IFDItemID.h"

namespace cw = orb::codedwords;

namespace {

struct Case {
  std::uint32_t ifd;
  std::uint16_t tag;
  std::uint16_t value;
  std::uint32_t version;
  const char* word;
};

TEST(CodedWords, WordsAndFallbacks) {
  constexpr std::uint32_t T = kTIFFIFDID, E = kExifIFDID;
  const Case cases[] = {
      {T, 274, 6, 0, "6 Right-Top"},
      {T, 274, 1, 0, "1 Top-Left"},
      {T, 274, 8, 0, "8 Left-Bottom"},
      {T, 274, 0, 0, "0"},
      {T, 274, 9, 0, "9"},
      {T, 259, 6, 0, "JPEG Compression"},
      {T, 259, 32773, 0, "PackBits"},
      {T, 259, 7, 0, "7"},
      {T, 262, 0, 0, "Grayscale"},
      {T, 262, 7, 0, "7"},
      {T, 262, 10, 0, "Lab"},
      {T, 262, 11, 0, "11"},
      {T, 284, 2, 0, "Planar Format"},
      {T, 296, 1, 0, ""},
      {T, 296, 2, 0, "inches"},
      {T, 296, 4, 0, "4"},
      {T, 296, 0, 0, "0"},
      {T, 317, 1, 0, "Non"},
      {T, 317, 4, 0, ""},
      {T, 531, 2, 0, "Co-sited"},
      {T, 50741, 0, 0, "Unsafe"},
      {T, 50741, 1, 0, "Safe"},
      {T, 50741, 2, 0, ""},
      {E, 34850, 9, 220, "9"},
      {E, 34850, 3, 220, "Aperture Priority"},
      {E, 34864, 7, 230, "SOS, REI and ISO Speed"},
      {E, 34864, 8, 230, ""},
      {E, 37383, 255, 220, "Other"},
      {E, 37383, 254, 220, "254"},
      {E, 40961, 65535, 220, "Uncalibrated"},
      {E, 40961, 2, 220, "2"},
      {E, 41488, 1, 220, ""},
      {E, 41488, 3, 220, "centimeters"},
      {E, 41488, 4, 220, ""},
      {E, 41495, 6, 220, ""},
      {E, 41495, 7, 220, "Trilinear Sensor"},
      {E, 41495, 9, 220, ""},
      {E, 41728, 3, 220, "DSC"},
      {E, 41729, 1, 220, "Directly Photographed Image"},
      {E, 41729, 0, 220, "0"},
      {E, 41985, 1, 220, "Custom Process"},
      {E, 41986, 2, 220, "Auto Bracket"},
      {E, 41986, 3, 220, "3"},
      {E, 41987, 2, 220, "2"},
      {E, 41990, 4, 220, ""},
      {E, 41990, 3, 220, "Night Scene"},
      {E, 41991, 4, 220, "High Gain Down"},
      {E, 41992, 2, 220, "Hard"},
      {E, 41993, 1, 220, "Low Saturation"},
      {E, 41994, 3, 220, ""},
      {E, 41996, 3, 220, "Distant View"},
      {E, 42080, 3, 232, "Composite Image Captured When Shooting Reserved"},
      {E, 42080, 4, 232, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.tag << "=" << c.value);
    const std::uint16_t values[] = {c.value};
    EXPECT_EQ(cw::wordFor(c.ifd, c.tag, values, c.version), c.word);
  }
}

TEST(CodedWords, LightSourceDependsOnTheExifVersion) {
  struct LCase {
    std::uint16_t value;
    const char* before230;
    const char* from230;
  };
  const LCase cases[] = {
      {0, "Unknown", "Unknown"},
      {4, "Flash", "Flash"},
      {5, "5", "5"},
      {6, "6", "6"},
      {8, "8", "8"},
      {12, "Daylight Fluorescent", "Daylight Fluorescent"},
      {13, "Day White Fluorescent", "Day White Fluorescent 0230"},
      {15, "White Fluorescent", "White Fluorescent 0230"},
      {16, "16", "Warm White Fluorescent"},
      {17, "Standard Light A", "Standard Light A"},
      {24, "ISO Studio Tungsten", "ISO Studio Tungsten"},
      {25, "25", "25"},
      {255, "Other Light Source", "Other Light Source"},
  };
  for (const LCase& c : cases) {
    SCOPED_TRACE(c.value);
    const std::uint16_t values[] = {c.value};
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37384, values, 221), c.before230);
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37384, values, 229), c.before230);
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37384, values, 230), c.from230);
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37384, values, 300), c.from230);
  }
}

TEST(CodedWords, FlashByWholeValue) {
  struct FCase {
    std::uint16_t value;
    const char* word;
  };
  const FCase cases[] = {
      {0x19, "Fired, Auto Mode"},
      {0x59, "Fired, Auto Mode, Red-eye Reduction Mode"},
      {2, "2"},
      {0, "Did not Fire"},
      {16, "Did not Fire, Compulsory Flash Suppression Mode"},
      {93, "Fired, Auto Mode, Return Light not Detected, Red-eye Reduction Mode"},
      {69, "Fired, Red-eye Reduction Mode, Return Light not Detected"},
      {65535, "65535"},
      {0x41 | 0x100, "321"},  // not decoded bit by bit
  };
  for (const FCase& c : cases) {
    const std::uint16_t values[] = {c.value};
    EXPECT_EQ(cw::wordFor(kExifIFDID, 37385, values, 230), c.word) << c.value;
  }
}

TEST(CodedWords, YCbCrSubSamplingNamesItsPair) {
  struct SCase {
    std::vector<std::uint16_t> values;
    const char* word;
  };
  const SCase cases[] = {
      {{2, 1}, "YCbCr 4:2:2"}, {{2, 2}, "YCbCr 4:2:0"}, {{1, 1}, "(1 - 1)"},
      {{4, 2}, "(4 - 2)"},     {{2}, "(2 - 0)"},
  };
  for (const SCase& c : cases) EXPECT_EQ(cw::wordFor(kTIFFIFDID, 530, c.values, 0), c.word);
}

TEST(CodedWords, OnlyCodedTagsOfTheirOwnIFD) {
  const std::uint16_t one[] = {1};
  EXPECT_FALSE(cw::wordFor(kTIFFIFDID, 0x0100, one, 0));         // ImageWidth is a quantity
  EXPECT_FALSE(cw::wordFor(kExifIFDID, 274, one, 220));          // Orientation belongs to TIFF
  EXPECT_FALSE(cw::wordFor(kGPSIFDID, 30, one, 2300));           // GPS has no words
  EXPECT_FALSE(cw::wordFor(kInteroperabilityIFDID, 1, one, 0));  // nor Interoperability
  EXPECT_FALSE(cw::wordFor(kTIFFIFDID, 274, {}, 0));             // no value, nothing to name
  EXPECT_TRUE(cw::isCoded(kExifIFDID, 37384));
  EXPECT_TRUE(cw::isCoded(kTIFFIFDID, 530));
  EXPECT_FALSE(cw::isCoded(kExifIFDID, 530));
}

}  // namespace
