#include "core/ByteView.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

using orb::ByteOrder;
using orb::ByteView;

namespace {

constexpr std::array<std::uint8_t, 8> kBytes{0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC, 0xDE, 0xF0};
constexpr ByteView kView(kBytes.data(), kBytes.size());

TEST(ByteView, ReadsBothByteOrders) {
  EXPECT_EQ(kView.u16(0, ByteOrder::Big), 0x1234);
  EXPECT_EQ(kView.u16(0, ByteOrder::Little), 0x3412);
  EXPECT_EQ(kView.u32(4, ByteOrder::Big), 0x9ABCDEF0u);
  EXPECT_EQ(kView.u32(4, ByteOrder::Little), 0xF0DEBC9Au);
  EXPECT_EQ(kView.u64(0), 0x123456789ABCDEF0ull);
}

TEST(ByteView, RefusesEveryReadThatLeavesTheBlock) {
  struct Case { std::uint64_t offset, length; bool inside; };
  constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();
  const Case cases[] = {
      {0, 8, true},  {8, 0, true},      {7, 1, true},    {7, 2, false},
      {8, 1, false}, {9, 0, false},     {kMax, 1, false}, {1, kMax, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.offset << "+" << c.length);
    EXPECT_EQ(kView.contains(c.offset, c.length), c.inside);
    EXPECT_EQ(kView.bytes(c.offset, c.length).has_value(), c.inside);
    // A noting view notes exactly the refusals, through its sub-views too.
    bool refused = false;
    const ByteView noting(kBytes.data(), kBytes.size(), &refused);
    EXPECT_EQ(noting.sub(0, 8)->bytes(c.offset, c.length).has_value(), c.inside);
    EXPECT_EQ(refused, !c.inside);
  }
  EXPECT_FALSE(kView.u16(7));
  EXPECT_FALSE(kView.u32(5));
  EXPECT_FALSE(kView.u64(1));
  EXPECT_FALSE(kView.u8(8));
}

TEST(ByteView, SubViewsStayInsideTheirParent) {
  const auto sub = kView.sub(2, 4);
  ASSERT_TRUE(sub);
  EXPECT_EQ(sub->size(), 4u);
  EXPECT_EQ(sub->u8(0), 0x56);
  EXPECT_FALSE(sub->u8(4)) << "a sub-view must not see its parent's later bytes";
  EXPECT_TRUE(kView.tail(8).empty());
  EXPECT_TRUE(kView.tail(100).empty());
  EXPECT_TRUE(ByteView(nullptr, 10).empty());
  // Where a tail ends depends on the block's size, so a noting view counts
  // taking one as a refusal.
  bool refused = false;
  EXPECT_EQ(ByteView(kBytes.data(), kBytes.size(), &refused).tail(2).size(), 6u);
  EXPECT_TRUE(refused);
}

}  // namespace
