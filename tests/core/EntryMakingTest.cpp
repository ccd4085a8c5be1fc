#include <gtest/gtest.h>

#include <vector>

#include "core/ExifDateText.h"
#include "core/OrbIFDEntry.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes bytesOf(std::span<const std::uint8_t> s) { return Bytes(s.begin(), s.end()); }

TEST(EntryMaking, NewEntriesGetTheirCataloguedContent) {
  struct Case { std::uint16_t tag; std::uint32_t ifd; std::uint16_t type; std::uint32_t count; };
  const Case cases[] = {
      {29, kGPSIFDID, kOrbTypeASCII, 11}, {36864, kExifIFDID, kOrbTypeUndefined, 4},
      {306, kTIFFIFDID, kOrbTypeASCII, 0}, {297, kTIFFIFDID, kOrbTypeShort, 2},
      {0xA20D, kExifIFDID, 0, 0},          {271, 0x50000, 0, 0},  // unknown here: untyped
  };
  for (const Case& c : cases) {
    const auto e = OrbIFDEntry::initWithEndian(kOrbLittleEndian, c.tag, c.ifd);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->type(), c.type) << c.tag;
    EXPECT_EQ(e->dataCount(), c.count) << c.tag;
    EXPECT_FALSE(e->hasValue()) << c.tag;
  }
}

TEST(EntryMaking, TimeStampValueInBothByteOrders) {
  constexpr std::int64_t k20210630_235958 = 1625097598;
  const auto little = OrbIFDEntry::timeStampEntry(kOrbLittleEndian, k20210630_235958, std::nullopt);
  ASSERT_TRUE(little);
  EXPECT_EQ(little->dataCount(), 3u);
  EXPECT_EQ(bytesOf(little->value()), (Bytes{0x17, 0, 0, 0, 1, 0, 0, 0, 0x3B, 0, 0, 0, 1, 0, 0, 0, 0xA8, 0x16, 0, 0,
                                             0x64, 0, 0, 0}));
  const auto big = OrbIFDEntry::timeStampEntry(kOrbBigEndian, k20210630_235958, std::nullopt);
  EXPECT_EQ(bytesOf(big->value()), (Bytes{0, 0, 0, 0x17, 0, 0, 0, 1, 0, 0, 0, 0x3B, 0, 0, 0, 1, 0, 0, 0x16, 0xA8,
                                          0, 0, 0, 0x64}));
  // Two hours east of UTC it is already 01:59:58.
  EXPECT_EQ(OrbIFDEntry::timeStampEntry(kOrbBigEndian, k20210630_235958, 7200)->stringData(), "01:59:58.00");
}

TEST(EntryMaking, VersionIndexAndPointerEntries) {
  struct Case {
    std::unique_ptr<OrbIFDEntry> (*make)(std::int8_t);
    std::uint16_t tag;
    std::uint32_t ifd;
    std::uint16_t type;
    Bytes data;
    std::uint32_t version;
  };
  const Case cases[] = {
      {&OrbIFDEntry::defaultExifVersionEntry, 36864, kExifIFDID, kOrbTypeUndefined, {'0', '2', '3', '2'}, 232},
      {&OrbIFDEntry::defaultGPSVersionEntry, 0, kGPSIFDID, kOrbTypeByte, {2, 3, 0, 0}, 2300},
      {&OrbIFDEntry::latestInteroperabilityVersionEntry, 2, kInteroperabilityIFDID, kOrbTypeUndefined,
       {'0', '1', '0', '0'}, 0},
      {&OrbIFDEntry::InteroperabilityIndexR98Entry, 1, kInteroperabilityIFDID, kOrbTypeASCII, {'R', '9', '8', 0}, 0},
      {&OrbIFDEntry::IFDExifPointerEntry, 34665, kTIFFIFDID, kOrbTypeLong, {0, 0, 0, 0}, 0},
      {&OrbIFDEntry::IFDInteroperabilityPointerEntry, 40965, kExifIFDID, kOrbTypeLong, {0, 0, 0, 0}, 0},
  };
  for (const std::int8_t endian : {kOrbBigEndian, kOrbLittleEndian})
    for (const Case& c : cases) {
      const auto e = c.make(endian);
      ASSERT_TRUE(e);
      EXPECT_EQ(e->itemID(), (IFDItemID{c.ifd, c.tag}));
      EXPECT_EQ(e->type(), c.type) << c.tag;
      EXPECT_EQ(e->dataCount(), c.type == kOrbTypeLong ? 1u : 4u) << c.tag;
      EXPECT_EQ(bytesOf(e->dataPtr()), c.data) << c.tag;
      EXPECT_EQ(e->version(), c.version) << c.tag;
    }
}

TEST(EntryMaking, DateTexts) {
  const auto now = OrbIFDEntry::entryIFDDateTime(kOrbLittleEndian);
  EXPECT_EQ(now->dataCount(), 20u);
  ASSERT_EQ(now->value().size(), 20u);
  EXPECT_EQ(now->value()[4], ':');
  struct Case { std::int64_t seconds; std::optional<std::int32_t> zone; const char* text; };
  const Case cases[] = {{951782400, {}, "2000:02:29 00:00:00"}, {1625097598, -86400, "2021:06:29 23:59:58"},
                        {-62135596801, {}, "0000:12:31 23:59:59"}};  // the last: 1 BC
  for (const Case& c : cases) EXPECT_EQ(orb::exifDateText(c.seconds, c.zone), c.text) << c.seconds;
}

}  // namespace
