// The bounded byte view and helpers, ranges, CRC-32 and the localized-string hook.

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "core/ByteHelpers.h"
#include "core/ByteView.h"
#include "core/Localization.h"
#include "core/NSDataOrbAdditions.h"
#include "core/TextNumber.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using orb::ByteOrder;
using orb::ByteView;

constexpr std::array<std::uint8_t, 8> kBytes{0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0};
constexpr ByteView kView(kBytes.data(), kBytes.size());

TEST(ByteView, ReadsBothByteOrdersAndRefusesEveryReadThatLeavesTheBlock) {
  EXPECT_EQ(std::tuple(kView.u16(0, ByteOrder::Big), kView.u16(0, ByteOrder::Little)), std::tuple(0x1234, 0x3412));
  EXPECT_EQ(std::tuple(kView.u32(4, ByteOrder::Big), kView.u32(4, ByteOrder::Little)),
            std::tuple(0x9ABCDEF0u, 0xF0DEBC9Au));
  EXPECT_EQ(kView.u64(0), 0x123456789ABCDEF0ull);
  EXPECT_FALSE(kView.u16(7) || kView.u32(5) || kView.u64(1) || kView.u8(8));
  constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();
  const std::tuple<std::uint64_t, std::uint64_t, bool> cases[] = {
      {8, 0, true}, {7, 2, false}, {9, 0, false}, {kMax, 1, false}, {1, kMax, false}};
  for (const auto& [offset, length, inside] : cases) {
    SCOPED_TRACE(testing::Message() << offset << "+" << length);
    EXPECT_EQ(kView.contains(offset, length), inside);
    // A noting view notes exactly the refusals, through its sub-views too.
    bool refused = false;
    const ByteView noting(kBytes.data(), kBytes.size(), &refused);
    EXPECT_EQ(noting.sub(0, 8)->bytes(offset, length).has_value(), inside);
    EXPECT_EQ(refused, !inside);
  }
  const auto sub = kView.sub(2, 4);
  EXPECT_EQ(std::tuple(sub->size(), *sub->u8(0)), std::tuple(4u, 0x56));
  EXPECT_FALSE(sub->u8(4)) << "a sub-view must not see its parent's later bytes";
  EXPECT_TRUE(kView.tail(100).empty() && ByteView(nullptr, 10).empty());
  // Where a tail ends depends on the block's size, so a noting view counts
  // taking one as a refusal.
  bool refused = false;
  EXPECT_EQ(ByteView(kBytes.data(), kBytes.size(), &refused).tail(2).size(), 6u);
  EXPECT_TRUE(refused);
}

TEST(ByteHelpers, ReadsAndWritesStopAtTheEndWithoutMoving) {
  const Bytes block = {1, 2, 3, 4, 5, 6, 7, 8, 9};
  std::uint64_t pos = 1;
  std::uint16_t v16 = 0;
  std::uint32_t v32 = 0;
  ASSERT_TRUE(ByteHelpers::readUInt16BE(block, &pos, &v16) && ByteHelpers::readUInt32BE(block, &pos, &v32));
  EXPECT_EQ(std::tuple(v16, v32), std::tuple(0x0203, 0x04050607u));
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

TEST(NSDataOrbAdditions, RangesAndCRC32) {
  const Bytes data = {'a', 'b', 0, 'c', 'd'};
  const std::pair<std::uint64_t, std::uint64_t> cases[] = {{0, 3}, {2, 1}, {3, 2}, {99, 0}};  // the zero counts
  for (const auto& [location, length] : cases)
    EXPECT_EQ(NSDataOrbAdditions::rengeUntilNullFromLocation(data, location).length, length) << location;
  EXPECT_EQ(NSDataOrbAdditions::readDataWithRange(data, {3, 3}), std::nullopt);
  const auto crc = [](std::string_view text) { return NSDataOrbAdditions::CRC_32(Bytes(text.begin(), text.end())); };
  EXPECT_EQ(crc("123456789"), 0xCBF43926u);
  EXPECT_EQ(crc(""), 0u);
}

TEST(TextNumberAndLocalization, VersionTextsAndLookups) {
  const std::pair<const char*, std::int32_t> cases[] = {{"  42x", 42}, {"-7", -7}, {"abc", 0}, {"4294967295", 2147483647}};
  for (const auto& [text, value] : cases) EXPECT_EQ(TextNumber::intValue(text), value) << text;
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    return table == "IFD" && key == "Unknown" ? std::optional<std::string>("Inconnu") : std::nullopt;
  });
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Inconnu");
  EXPECT_EQ(Localization::localizedString("", "Unknown"), "Unknown");
  Localization::setLookup({});
  EXPECT_EQ(Localization::localizedString("IFD", "Unknown"), "Unknown");
}

}  // namespace
