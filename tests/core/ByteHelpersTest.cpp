// Byte helpers, buffer operations, CRC-32, boxing and the localized-string hook.

#include <gtest/gtest.h>

#include "core/ByteHelpers.h"
#include "core/Localization.h"
#include "core/NSDataOrbAdditions.h"
#include "core/NSValueIFDItemID.h"
#include "core/TextNumber.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(ByteHelpers, ReadersAdvanceAndStopAtTheEnd) {
  const Bytes block = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  std::uint64_t pos = 1;
  std::uint16_t v16 = 0;
  std::uint32_t v32 = 0;
  std::uint64_t v64 = 0;
  ASSERT_TRUE(ByteHelpers::readUInt16BE(block, &pos, &v16));
  EXPECT_EQ(v16, 0x0203);
  EXPECT_EQ(pos, 3u);
  ASSERT_TRUE(ByteHelpers::readUInt32BE(block, &pos, &v32));
  EXPECT_EQ(v32, 0x04050607u);
  EXPECT_FALSE(ByteHelpers::readUInt32BE(block, &pos, &v32));  // 2 bytes left
  EXPECT_EQ(pos, 7u);
  EXPECT_EQ(v32, 0x04050607u);  // untouched
  ASSERT_TRUE(ByteHelpers::readUInt64BE(block, nullptr, &v64));  // at the start, no advance
  EXPECT_EQ(v64, 0x0102030405060708u);
  EXPECT_FALSE(ByteHelpers::readUInt16BE(block, &pos, nullptr));
  pos = ~std::uint64_t{0};
  EXPECT_FALSE(ByteHelpers::readUInt16BE(block, &pos, &v16));
}

TEST(ByteHelpers, WritersStoreMostSignificantFirst) {
  Bytes block(10, 0);
  std::uint64_t pos = 0;
  ASSERT_TRUE(ByteHelpers::writeUInt16BE(block, &pos, 0x0102));
  ASSERT_TRUE(ByteHelpers::writeUInt32BE(block, &pos, 0x03040506));
  EXPECT_FALSE(ByteHelpers::writeUInt64BE(block, &pos, 1));  // would leave the block
  ASSERT_TRUE(ByteHelpers::writeUInt32BE(block, &pos, 0x0708090A));
  EXPECT_EQ(block, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_EQ(ByteHelpers::zeroedBlock(3), Bytes(3, 0));
  EXPECT_EQ(ByteHelpers::swap16(0x1234), 0x3412);
  EXPECT_EQ(ByteHelpers::swap32(0x12345678), 0x78563412u);
  EXPECT_EQ(ByteHelpers::swap64(0x0102030405060708), 0x0807060504030201u);
}

TEST(NSDataOrbAdditions, NumbersInAndOut) {
  using namespace NSDataOrbAdditions;
  EXPECT_EQ(dataWithLength(4), Bytes(4, 0));
  EXPECT_EQ(dataWith1ByteValue(0xAB), (Bytes{0xAB}));
  EXPECT_EQ(dataWith2ByteValue(0x0102), (Bytes{1, 2}));
  EXPECT_EQ(dataWith4ByteValue(0x01020304), (Bytes{1, 2, 3, 4}));
  EXPECT_EQ(dataWith8ByteValue(0x0102030405060708), (Bytes{1, 2, 3, 4, 5, 6, 7, 8}));
  const Bytes data = {1, 2, 3, 4, 5};
  EXPECT_EQ(uInt8Value(data), 1);
  EXPECT_EQ(uInt16ValueAtLocation(data, 3), 0x0405);
  EXPECT_EQ(uInt16ValueAtLocation(data, 4), 0);  // position + width past the length
  EXPECT_EQ(uInt32Value(data), 0x01020304u);
  EXPECT_EQ(uInt64Value(data), 0u);
  EXPECT_EQ(uInt8ValueAtLocation(data, 5), 0);
}

TEST(NSDataOrbAdditions, Ranges) {
  using namespace NSDataOrbAdditions;
  const Bytes data = {'a', 'b', 0, 'c', 'd'};
  EXPECT_EQ(readDataWithRange(data, {1, 3}), (Bytes{'b', 0, 'c'}));
  EXPECT_EQ(readDataWithRange(data, {3, 3}), std::nullopt);
  EXPECT_EQ(readDataWithRange(data, {5, 0}), Bytes{});
  EXPECT_EQ(rengeUntilNullFromLocation(data, 0), (OrbRange{0, 3}));  // the zero counts
  EXPECT_EQ(rengeUntilNullFromLocation(data, 2), (OrbRange{2, 1}));
  EXPECT_EQ(rengeUntilNullFromLocation(data, 3), (OrbRange{3, 2}));  // no zero: to the end
  EXPECT_EQ(rengeUntilNullFromLocation(data, 5).length, 0u);
  EXPECT_EQ(rengeUntilNullFromLocation(data, 99).length, 0u);
}

TEST(NSDataOrbAdditions, CRC32KnownValues) {
  using NSDataOrbAdditions::CRC_32;
  const std::string check = "123456789";
  EXPECT_EQ(CRC_32(Bytes(check.begin(), check.end())), 0xCBF43926u);
  EXPECT_EQ(CRC_32(Bytes{}), 0u);
  EXPECT_EQ(CRC_32(Bytes{0}), 0xD202EF8Du);
  const std::string fox = "The quick brown fox jumps over the lazy dog";
  EXPECT_EQ(CRC_32(Bytes(fox.begin(), fox.end())), 0x414FA339u);
}

TEST(NSMutableDataOrbAdditions, AppendAndReplace) {
  using namespace NSMutableDataOrbAdditions;
  Bytes data;
  append1ByteValue(data, 1);
  append2ByteValue(data, 0x0203);
  append4ByteValue(data, 0x04050607);
  append8ByteValue(data, 0x08090A0B0C0D0E0F);
  EXPECT_EQ(data, (Bytes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}));
  EXPECT_TRUE(replaceInt16ValueAtLocation(data, 13, 0xAABB));
  EXPECT_FALSE(replaceInt16ValueAtLocation(data, 14, 0xCCDD));
  EXPECT_FALSE(replaceInt64ValueAtLocation(data, 8, 0));
  EXPECT_TRUE(replaceInt64ValueAtLocation(data, 7, 0));
  EXPECT_TRUE(replaceInt8ValueAtLocation(data, 0, 0xEE));
  EXPECT_FALSE(replaceInt8ValueAtLocation(data, 15, 0xEE));
  EXPECT_TRUE(replaceInt32ValueAtLocation(data, 1, 0x11223344));
  EXPECT_EQ(data, (Bytes{0xEE, 0x11, 0x22, 0x33, 0x44, 6, 7, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(NSValueIFDItemID, BoxingKeepsTheKindAndValue) {
  using namespace NSValueIFDItemID;
  const auto id = valueWithIFDID(kExifIFDID, 0x9003);
  EXPECT_EQ(id.objCType(), "{_IFDItemID=IS}");
  EXPECT_EQ(ifdItemID(id), (IFDItemID{kExifIFDID, 0x9003}));
  EXPECT_EQ(ifdItemID(id).itemKey(), 0x29003u);
  EXPECT_EQ(orbRational(id), OrbRational{});
  const auto r = valueWithNumerator(28, 10);
  EXPECT_EQ(r.objCType(), "{_OrbRational=II}");
  EXPECT_EQ(orbRational(r), (OrbRational{28, 10}));
  EXPECT_EQ(orbRational(zeroRational()), (OrbRational{0, 1}));
  EXPECT_EQ(valueWithIFDItemID({kGPSIFDID, 2}), valueWithIFDID(kGPSIFDID, 2));
}

TEST(TextNumber, ReadsLikeAVersionText) {
  struct Case {
    const char* text;
    std::int32_t value;
  };
  const Case cases[] = {{"0230", 230}, {"2300", 2300}, {"  42x", 42}, {"-7", -7}, {"+5", 5}, {"abc", 0},
                        {"", 0}, {"4294967295", 2147483647}, {"-99999999999", -2147483647 - 1}};
  for (const auto& c : cases) EXPECT_EQ(TextNumber::intValue(c.text), c.value) << c.text;
}

TEST(Localization, EnglishUnlessALookupAnswers) {
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Unknown");
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    if (table == "IFD" && key == "Unknown") return std::string("Inconnu");
    return std::nullopt;
  });
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Inconnu");
  EXPECT_EQ(Localization::localizedString("", "Unknown"), "Unknown");
  EXPECT_EQ(Localization::localizedString("IFD", "Flash"), "Flash");
  Localization::setLookup({});
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Unknown");
}

}  // namespace
