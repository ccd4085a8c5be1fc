// Bounded byte helpers, ranges, CRC-32 and the localized-string hook.

#include <gtest/gtest.h>

#include "core/ByteHelpers.h"
#include "core/Localization.h"
#include "core/NSDataOrbAdditions.h"
#include "core/TextNumber.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(ByteHelpers, ReadsAndWritesStopAtTheEndWithoutMoving) {
  const Bytes block = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  std::uint64_t pos = 1;
  std::uint16_t v16 = 0;
  std::uint32_t v32 = 0;
  ASSERT_TRUE(ByteHelpers::readUInt16BE(block, &pos, &v16));
  ASSERT_TRUE(ByteHelpers::readUInt32BE(block, &pos, &v32));
  EXPECT_EQ(v16, 0x0203);
  EXPECT_EQ(v32, 0x04050607u);
  EXPECT_FALSE(ByteHelpers::readUInt32BE(block, &pos, &v32));  // 2 bytes left
  EXPECT_EQ(pos, 7u);
  pos = ~std::uint64_t{0};
  EXPECT_FALSE(ByteHelpers::readUInt16BE(block, &pos, &v16));  // no wrap-around

  Bytes out(6, 0);
  pos = 0;
  ASSERT_TRUE(ByteHelpers::writeUInt32BE(out, &pos, 0x01020304));
  EXPECT_FALSE(ByteHelpers::writeUInt32BE(out, &pos, 0x05060708));
  EXPECT_EQ(out, (Bytes{1, 2, 3, 4, 0, 0}));
  EXPECT_FALSE(NSMutableDataOrbAdditions::replaceInt16ValueAtLocation(out, 5, 0xFFFF));
  EXPECT_EQ(NSDataOrbAdditions::uInt16ValueAtLocation(out, 5), 0);
}

TEST(NSDataOrbAdditions, RangeUntilNull) {
  const Bytes data = {'a', 'b', 0, 'c', 'd'};
  struct Case { std::uint64_t location, length; };
  const Case cases[] = {{0, 3}, {2, 1}, {3, 2}, {5, 0}, {99, 0}};  // the zero counts; none: to the end
  for (const auto& c : cases)
    EXPECT_EQ(NSDataOrbAdditions::rengeUntilNullFromLocation(data, c.location).length, c.length) << c.location;
  EXPECT_EQ(NSDataOrbAdditions::readDataWithRange(data, {3, 3}), std::nullopt);
}

TEST(NSDataOrbAdditions, CRC32KnownValues) {
  const auto crc = [](std::string_view text) { return NSDataOrbAdditions::CRC_32(Bytes(text.begin(), text.end())); };
  EXPECT_EQ(crc("123456789"), 0xCBF43926u);
  EXPECT_EQ(crc("The quick brown fox jumps over the lazy dog"), 0x414FA339u);
  EXPECT_EQ(crc(""), 0u);
}

TEST(TextNumber, ReadsLikeAVersionText) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"0230", 230}, {"  42x", 42}, {"-7", -7}, {"abc", 0}, {"4294967295", 2147483647}};
  for (const auto& [text, value] : cases) EXPECT_EQ(TextNumber::intValue(text), value) << text;
}

TEST(Localization, EnglishUnlessALookupAnswers) {
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    if (table == "IFD" && key == "Unknown") return std::string("Inconnu");
    return std::nullopt;
  });
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Inconnu");
  EXPECT_EQ(Localization::localizedString("", "Unknown"), "Unknown");
  Localization::setLookup({});
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Unknown");
}

}  // namespace
