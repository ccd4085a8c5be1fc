#include <gtest/gtest.h>

#include <regex>
#include <vector>

#include "core/ExifDateText.h"
#include "core/OrbIFDEntry.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes bytesOf(std::span<const std::uint8_t> s) { return Bytes(s.begin(), s.end()); }

TEST(EntryMaking, NewEntriesGetTheirCataloguedContent) {
  struct Case {
    std::uint16_t tag;
    std::uint32_t ifd;
    std::uint16_t type;
    std::uint32_t count;
  };
  const Case cases[] = {
      {29, kGPSIFDID, kOrbTypeASCII, 11},         {27, kGPSIFDID, kOrbTypeUndefined, 0},
      {36864, kExifIFDID, kOrbTypeUndefined, 4},  {306, kTIFFIFDID, kOrbTypeASCII, 0},
      {271, kTIFFIFDID, kOrbTypeASCII, 0},        {297, kTIFFIFDID, kOrbTypeShort, 2},
      {258, kTIFFIFDID, kOrbTypeShort, 0},        {0x800D, kTIFFIFDID, 0, 0},
      {36867, kExifIFDID, kOrbTypeASCII, 0},      {42034, kExifIFDID, kOrbTypeRational, 4},
      {1, kInteroperabilityIFDID, kOrbTypeASCII, 4}, {0xA20D, kExifIFDID, 0, 0},
      {271, 0x50000, 0, 0},
  };
  for (const std::int8_t endian : {kOrbBigEndian, kOrbLittleEndian})
    for (const Case& c : cases) {
      SCOPED_TRACE(testing::Message() << std::hex << c.ifd << "/" << c.tag);
      const auto e = OrbIFDEntry::initWithEndian(endian, c.tag, c.ifd);
      ASSERT_TRUE(e);
      EXPECT_EQ(e->type(), c.type);
      EXPECT_EQ(e->dataCount(), c.count);
      EXPECT_EQ(e->data(), 0u);
      EXPECT_FALSE(e->hasValue());
      EXPECT_EQ(e->endian(), endian);
    }
}

TEST(EntryMaking, TimeStampValueInBothByteOrders) {
  constexpr std::int64_t k20210630_235958 = 1625097598;
  const auto little = OrbIFDEntry::timeStampEntry(kOrbLittleEndian, k20210630_235958, std::nullopt);
  ASSERT_TRUE(little);
  EXPECT_EQ(little->type(), kOrbTypeRational);
  EXPECT_EQ(little->dataCount(), 3u);
  EXPECT_EQ(little->data(), 0u);
  EXPECT_EQ(bytesOf(little->value()), (Bytes{0x17, 0, 0, 0, 1, 0, 0, 0, 0x3B, 0, 0, 0, 1, 0, 0, 0, 0xA8, 0x16, 0, 0,
                                             0x64, 0, 0, 0}));
  const auto big = OrbIFDEntry::timeStampEntry(kOrbBigEndian, k20210630_235958, std::nullopt);
  EXPECT_EQ(bytesOf(big->value()), (Bytes{0, 0, 0, 0x17, 0, 0, 0, 1, 0, 0, 0, 0x3B, 0, 0, 0, 1, 0, 0, 0x16, 0xA8,
                                          0, 0, 0, 0x64}));
  EXPECT_DOUBLE_EQ(big->GPSTimeStamp(), 23 * 3600 + 59 * 60 + 58);
  // Two hours east of UTC it is already 01:59:58.
  const auto east = OrbIFDEntry::timeStampEntry(kOrbBigEndian, k20210630_235958, 7200);
  EXPECT_EQ(east->stringData(), "01:59:58.00");
}

TEST(EntryMaking, VersionIndexAndPointerEntries) {
  struct Case {
    const char* name;
    std::unique_ptr<OrbIFDEntry> (*make)(std::int8_t);
    std::uint16_t tag;
    std::uint32_t ifd;
    std::uint16_t type;
    std::uint32_t count;
    Bytes data;
    std::uint32_t version;
  };
  const Case cases[] = {
      {"ExifVersion", &OrbIFDEntry::defaultExifVersionEntry, 36864, kExifIFDID, kOrbTypeUndefined, 4,
       {'0', '2', '3', '2'}, 232},
      {"GPSVersionID", &OrbIFDEntry::defaultGPSVersionEntry, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 3, 0, 0}, 2300},
      {"InteroperabilityVersion", &OrbIFDEntry::latestInteroperabilityVersionEntry, 2, kInteroperabilityIFDID,
       kOrbTypeUndefined, 4, {'0', '1', '0', '0'}, 0},
      {"R98", &OrbIFDEntry::InteroperabilityIndexR98Entry, 1, kInteroperabilityIFDID, kOrbTypeASCII, 4,
       {'R', '9', '8', 0}, 0},
      {"Exif pointer", &OrbIFDEntry::IFDExifPointerEntry, 34665, kTIFFIFDID, kOrbTypeLong, 1, {0, 0, 0, 0}, 0},
      {"GPS pointer", &OrbIFDEntry::IFDGPSPointerEntry, 34853, kTIFFIFDID, kOrbTypeLong, 1, {0, 0, 0, 0}, 0},
      {"Interoperability pointer", &OrbIFDEntry::IFDInteroperabilityPointerEntry, 40965, kExifIFDID, kOrbTypeLong, 1,
       {0, 0, 0, 0}, 0},
  };
  for (const std::int8_t endian : {kOrbBigEndian, kOrbLittleEndian})
    for (const Case& c : cases) {
      SCOPED_TRACE(c.name);
      const auto e = c.make(endian);
      ASSERT_TRUE(e);
      EXPECT_EQ(e->ifdTag(), c.tag);
      EXPECT_EQ(e->ifdID(), c.ifd);
      EXPECT_EQ(e->type(), c.type);
      EXPECT_EQ(e->dataCount(), c.count);
      EXPECT_EQ(bytesOf(e->dataPtr()), c.data);
      EXPECT_EQ(e->version(), c.version);
      EXPECT_FALSE(e->hasValue());
    }
  EXPECT_EQ(OrbIFDEntry::defaultExifVersionEntry(kOrbBigEndian)->exifVersion(), 232u);
  EXPECT_EQ(OrbIFDEntry::defaultGPSVersionEntry(kOrbLittleEndian)->GPSVersion(), 2300u);
}

TEST(EntryMaking, DateTimeNowIsAnExifDate) {
  const auto e = OrbIFDEntry::entryIFDDateTime(kOrbLittleEndian);
  ASSERT_TRUE(e);
  EXPECT_EQ(e->ifdTag(), 306);
  EXPECT_EQ(e->type(), kOrbTypeASCII);
  EXPECT_EQ(e->dataCount(), 20u);
  ASSERT_EQ(e->value().size(), 20u);
  EXPECT_EQ(e->value()[19], 0);
  EXPECT_TRUE(std::regex_match(e->stringData(), std::regex(R"(\d{4}:\d\d:\d\d \d\d:\d\d:\d\d)"))) << e->stringData();
}

TEST(EntryMaking, ExifDateTextOfInstants) {
  struct Case {
    std::int64_t seconds;
    std::optional<std::int32_t> zone;
    const char* text;
  };
  const Case cases[] = {
      {0, {}, "1970:01:01 00:00:00"},
      {-1, {}, "1969:12:31 23:59:59"},
      {951782400, {}, "2000:02:29 00:00:00"},
      {1625097598, {}, "2021:06:30 23:59:58"},
      {1625097598, 3600, "2021:07:01 00:59:58"},
      {1625097598, -86400, "2021:06:29 23:59:58"},
      {253402300799, {}, "9999:12:31 23:59:59"},
      {-62135596800, {}, "0001:01:01 00:00:00"},
      {-62135596801, {}, "0000:12:31 23:59:59"},  // 1 BC
      {4107542400, {}, "2100:03:01 00:00:00"},     // 2100 is no leap year
  };
  for (const Case& c : cases) EXPECT_EQ(orb::exifDateText(c.seconds, c.zone), c.text) << c.seconds;
}

}  // namespace
