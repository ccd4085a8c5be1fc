// The JFIF record: text forms, keyed access and the serialised segment.

#include <gtest/gtest.h>

#include <vector>

#include "formats/OrbJFIF.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes serialise(const OrbJFIF& jfif, std::size_t bufferSize) {
  Bytes out(bufferSize, 0xAA);
  jfif.getByte(out);
  return out;
}

TEST(JFIFRecord, FieldsLandAtTheirOffsets) {
  EXPECT_EQ(serialise(OrbJFIF::jfif(), 18),
            (Bytes{0xFF, 0xE0, 0x00, 0x10, 0x4A, 0x46, 0x49, 0x46, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  OrbJFIF jfif;
  jfif.setVersion({1, 1});
  jfif.setUnit(1);
  jfif.setXDensity(300);
  jfif.setYDensity(300);
  const Bytes out = serialise(jfif, 18);
  EXPECT_EQ(Bytes(out.begin() + 9, out.begin() + 16), (Bytes{0x01, 0x01, 0x01, 0x01, 0x2C, 0x01, 0x2C}));
  EXPECT_EQ(jfif.stringJFIFVersion() + " " + jfif.stringJFIFUnit() + " " + jfif.stringJFIFDensityX(), "1.01 Dots per inch 300");
  jfif.setVersion({1, 10});
  jfif.setUnit(3);
  EXPECT_EQ(jfif.stringJFIFVersion() + " " + jfif.stringJFIFUnit(), "1.10 No Units");
}

TEST(JFIFRecord, KeysTakeTheLowBits) {
  // The value set under each key, and what the key reads back.
  const std::tuple<const char*, int, std::optional<int>> cases[] = {
      {"X Density", 65608, 72}, {"Density Unit", 0x1FF, -1}, {"Thumbnail Width", 0x102, 2},
      {"Y Density", 7, 7},      {"Thumbnail Height", 0, 0},  {"JFIF Version", 9, std::nullopt}};
  OrbJFIF jfif;
  for (const auto& [key, value, read] : cases) jfif.setValue(value, key);
  for (const auto& [key, value, read] : cases) EXPECT_EQ(jfif.numberForKey(key), read) << key;
  EXPECT_EQ(jfif.version(), (OrbJFIFVersion{0, 0}));
}

TEST(JFIFRecord, ThumbnailAndGuards) {
  OrbJFIF jfif;
  const Bytes pixels{1, 2, 3, 4, 5, 6};
  jfif.setThumbnail(pixels, 6);
  jfif.setSize(18 + 6);
  jfif.setThumbnailWidth(2);
  jfif.setThumbnailHeight(1);
  const Bytes out = serialise(jfif, 24);
  EXPECT_EQ(out[3], 22);
  EXPECT_EQ(Bytes(out.begin() + 18, out.end()), pixels);

  // Buffer smaller than the segment, or a size below 18: nothing written.
  const Bytes tooSmall = serialise(jfif, 20);
  jfif.setSize(10);
  EXPECT_TRUE(tooSmall == Bytes(20, 0xAA) && serialise(jfif, 20) == Bytes(20, 0xAA));
  // A size beyond the thumbnail: the missing bytes are zeros.
  jfif.setSize(18 + 8);
  const Bytes longer = serialise(jfif, 26);
  EXPECT_EQ(Bytes(longer.begin() + 18, longer.end()), (Bytes{1, 2, 3, 4, 5, 6, 0, 0}));

  jfif.setThumbnail(pixels, 0);
  EXPECT_FALSE(jfif.thumbnail());
  jfif.setThumbnail(pixels, 0x10002);  // count taken in 16 bits
  EXPECT_EQ(jfif.thumbnail()->size(), 2u);
}

}  // namespace
