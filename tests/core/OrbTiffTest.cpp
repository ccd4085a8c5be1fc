// Parsing well-formed TIFF structures, lookups and changes.

#include <gtest/gtest.h>

#include "core/OrbTiff.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;

constexpr std::uint16_t kMake = 0x010F;
constexpr std::uint16_t kOrientation = 0x0112;
constexpr std::uint16_t kExifVersion = 0x9000;

std::unique_ptr<OrbTiff> parse(const std::vector<std::uint8_t>& block, std::uint64_t location = 0) {
  return OrbTiff::exifWithPtr(block, &location, block.size());
}

TEST(OrbTiffHeader, AcceptsOnlyTheTwoByteOrdersWithTheirMagic) {
  struct Case {
    const char* name;
    std::vector<std::uint8_t> bytes;
    bool parses;
    std::int8_t endian;
  };
  const Case cases[] = {
      {"II 2A 00", {'I', 'I', 0x2A, 0x00, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0}, true, 1},
      {"MM 00 2A", {'M', 'M', 0x00, 0x2A, 0, 0, 0, 8, 0, 0, 0, 0, 0, 0}, true, 0},
      {"II 00 2A", {'I', 'I', 0x00, 0x2A, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0}, false, 0},
      {"MM 2A 00", {'M', 'M', 0x2A, 0x00, 0, 0, 0, 8, 0, 0, 0, 0, 0, 0}, false, 0},
      {"IM", {'I', 'M', 0x2A, 0x00, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0}, false, 0},
      {"JPEG start", {0xFF, 0xD8, 0xFF, 0xE1, 0, 0, 0, 0}, false, 0},
      {"cut after magic", {'M', 'M', 0x00, 0x2A, 0}, false, 0},
      {"empty", {}, false, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    auto tiff = parse(c.bytes);
    ASSERT_EQ(tiff != nullptr, c.parses);
    if (!tiff) continue;
    EXPECT_EQ(tiff->endian(), c.endian);
    EXPECT_EQ(tiff->isLittleEndian(), c.endian == 1);
    ASSERT_NE(tiff->IFDs(), nullptr);
    EXPECT_EQ(tiff->IFDs()->size(), 1u);  // the empty IFD at offset 8
  }
}

TEST(OrbTiffHeader, ZeroIFD0OffsetIsAValidStructureWithoutIFDs) {
  TiffBuilder builder;
  builder.noIFD();
  auto tiff = parse(builder.build());
  ASSERT_NE(tiff, nullptr);
  EXPECT_EQ(tiff->entries(), nullptr);
  ASSERT_NE(tiff->IFDs(), nullptr);
  EXPECT_TRUE(tiff->IFDs()->empty());
}

TEST(OrbTiffHeader, NullLocationMeansZero) {
  TiffBuilder builder;
  builder.ifd0().ascii(kMake, "Maker");
  const auto block = builder.build();
  auto tiff = OrbTiff::exifWithPtr(block, nullptr, block.size());
  ASSERT_NE(tiff, nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
}

// Both byte orders, header at 0 and deeper in the block: the same numbers,
// and the value offset plus the header location finds the value's bytes.
TEST(OrbTiffParse, BothByteOrdersAndHeaderPositions) {
  for (bool little : {TiffBuilder::kBig, TiffBuilder::kLittle}) {
    for (std::uint64_t location : {0u, 12u, 4097u}) {
      SCOPED_TRACE(testing::Message() << (little ? "II" : "MM") << " at " << location);
      TiffBuilder builder(little);
      auto& ifd0 = builder.ifd0();
      ifd0.ascii(kMake, "Maker").shorts(kOrientation, {6}).longs(0x0100, {4000});
      ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05").rationals(33437, {{28, 10}});
      const auto block = builder.build(location);
      auto tiff = parse(block, location);
      ASSERT_NE(tiff, nullptr);
      EXPECT_EQ(tiff->tiffHeaderLocation(), location);
      EXPECT_EQ(tiff->isLittleEndian(), little);

      const OrbIFDEntry* orientation = tiff->entryWithIFDTag(kOrientation, kTIFFIFDID);
      ASSERT_NE(orientation, nullptr);
      EXPECT_EQ(orientation->type(), 3);
      EXPECT_EQ(orientation->dataCount(), 1u);
      EXPECT_EQ(orientation->shortData1(), 6);
      EXPECT_EQ(tiff->entryWithIFDTag(0x0100, kTIFFIFDID)->data(), 4000u);

      const OrbIFDEntry* date = tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID);
      ASSERT_NE(date, nullptr);
      EXPECT_EQ(date->dataCount(), 20u);
      const std::uint64_t absolute = date->data() + tiff->tiffHeaderLocation();
      EXPECT_EQ(absolute, builder.valueOffset(ifd0.exif(), kDateTimeOriginalTag));
      EXPECT_EQ(std::string(block.begin() + static_cast<long>(absolute), block.begin() + static_cast<long>(absolute) + 19),
                "2024:01:02 03:04:05");
      EXPECT_EQ(date->stringData(), "2024:01:02 03:04:05");

      const OrbIFDEntry* fNumber = tiff->entryWithIFDTag(33437, kExifIFDID);
      ASSERT_NE(fNumber, nullptr);
      EXPECT_EQ(fNumber->unsignedIntAtIndex(0), 28u);
      EXPECT_EQ(fNumber->unsignedIntAtIndex(1), 10u);
    }
  }
}

TEST(OrbTiffParse, RawEntryBytesStayInFileOrder) {
  TiffBuilder builder(TiffBuilder::kLittle);
  builder.ifd0().shorts(kOrientation, {1});
  auto tiff = parse(builder.build());
  const auto raw = tiff->entryWithIFDTag(kOrientation, kTIFFIFDID)->rawEntry();
  const std::vector<std::uint8_t> expected = {0x12, 0x01, 0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00};
  EXPECT_EQ(std::vector<std::uint8_t>(raw.begin(), raw.end()), expected);
}

TEST(OrbTiffParse, ValuesOfFourBytesStayInlineFromFiveOnTheyAreCopied) {
  TiffBuilder builder;
  builder.ifd0().shorts(0x0102, {8, 8}).shorts(0x0103, {8, 8, 8}).ascii(0x0131, "abc");
  auto tiff = parse(builder.build());
  const OrbIFDEntry* two = tiff->entryWithIFDTag(0x0102, kTIFFIFDID);
  const OrbIFDEntry* three = tiff->entryWithIFDTag(0x0103, kTIFFIFDID);
  EXPECT_FALSE(two->hasValue());
  EXPECT_EQ(two->shortData2(), 8);
  ASSERT_TRUE(three->hasValue());
  EXPECT_EQ(three->value().size(), 6u);
  EXPECT_EQ(three->unsignedShortAtIndex(2), 8);
  EXPECT_EQ(tiff->entryWithIFDTag(0x0131, kTIFFIFDID)->stringData(), "abc");
}

TEST(OrbTiffParse, SubIFDsLandInTheMapOfTheirChainIFD) {
  TiffBuilder builder;
  auto& ifd0 = builder.ifd0();
  ifd0.ascii(kMake, "Maker");
  auto& exif = ifd0.exif();
  exif.ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05");
  exif.interop().ascii(0x0001, "R98");
  ifd0.gps().bytes(0x0000, 1, {2, 2, 0, 0});
  ifd0.next().ascii(kDateTimeTag, "2001:01:01 01:01:01").exif().ascii(kDateTimeOriginalTag, "2002:02:02 02:02:02");
  auto tiff = parse(builder.build());
  ASSERT_EQ(tiff->IFDs()->size(), 2u);
  EXPECT_NE(tiff->entryWithIFDTag(0x0001, kInteroperabilityIFDID), nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(0x0000, kGPSIFDID), nullptr);
  // The pointer entries stay.
  EXPECT_NE(tiff->entryWithIFDTag(kExifPointerTag, kTIFFIFDID), nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(kGPSPointerTag, kTIFFIFDID), nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(kInteroperabilityPointerTag, kExifIFDID), nullptr);
  // IFD1 and its own Exif IFD only at index 1.
  EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeTag, kTIFFIFDID), nullptr);
  ASSERT_NE(tiff->entryWithIFDTag(kDateTimeTag, kTIFFIFDID, 1), nullptr);
  EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID)->stringData(), "2024:01:02 03:04:05");
  EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID, 1)->stringData(), "2002:02:02 02:02:02");
  EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID, 2), nullptr);
}

TEST(OrbTiffParse, VersionEntriesStampTheirWholeIFD) {
  struct Case {
    std::vector<std::uint8_t> exifVersion;
    std::vector<std::uint8_t> gpsVersion;
    std::uint32_t exifStamp;
    std::uint32_t gpsStamp;
  };
  const Case cases[] = {
      {{'0', '2', '3', '0'}, {2, 3, 0, 0}, 230, 2300},
      {{'0', '3', '0', '0'}, {2, 2, 0, 0}, 300, 2200},
      {{'0', '2', '2', '1'}, {2, 0, 0, 0}, 221, 2000},
  };
  for (const auto& c : cases) {
    TiffBuilder builder(TiffBuilder::kLittle);
    auto& ifd0 = builder.ifd0();
    ifd0.ascii(kMake, "Maker");
    ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05").undefined(kExifVersion, c.exifVersion);
    ifd0.gps().bytes(0x0000, 1, c.gpsVersion).ascii(0x0001, "N");
    ifd0.exif().interop().ascii(0x0001, "R98");
    auto tiff = parse(builder.build());
    SCOPED_TRACE(c.exifStamp);
    EXPECT_EQ(tiff->exifVersion(), c.exifStamp);
    EXPECT_EQ(tiff->GPSVersion(), c.gpsStamp);
    for (const OrbIFDEntry* e : tiff->entriesWithIFDID(kExifIFDID)) EXPECT_EQ(e->version(), c.exifStamp);
    for (const OrbIFDEntry* e : tiff->entriesWithIFDID(kGPSIFDID)) EXPECT_EQ(e->version(), c.gpsStamp);
    EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->version(), 0u);
    EXPECT_EQ(tiff->entryWithIFDTag(0x0001, kInteroperabilityIFDID)->version(), 0u);
  }
}

TEST(OrbTiffParse, LaterEntryWithTheSameTagReplacesTheEarlier) {
  TiffBuilder builder;
  builder.ifd0().ascii(kMake, "First").ascii(kMake, "Second");
  auto tiff = parse(builder.build());
  EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Second");
  EXPECT_EQ(tiff->entries()->size(), 1u);
}

// ---- lookups ----

class OrbTiffLookup : public testing::Test {
 protected:
  void SetUp() override {
    TiffBuilder builder;
    auto& ifd0 = builder.ifd0();
    ifd0.shorts(kOrientation, {1}).ascii(kMake, "Maker");
    ifd0.exif().ascii(0x9004, "2024:01:02 03:04:05").ascii(0x9003, "2024:01:02 03:04:05").undefined(kExifVersion, {'0', '2', '3', '2'});
    tiff_ = parse(builder.build());
    ASSERT_NE(tiff_, nullptr);
  }
  std::vector<std::uint16_t> tags(const std::vector<const OrbIFDEntry*>& entries) {
    std::vector<std::uint16_t> out;
    for (const auto* e : entries) out.push_back(e->ifdTag());
    return out;
  }
  std::unique_ptr<OrbTiff> tiff_;
};

TEST_F(OrbTiffLookup, WithoutTagsGivesTheIFDOrderedByTag) {
  const auto exif = static_cast<const OrbTiff&>(*tiff_).entriesWithIFDTags({}, kExifIFDID);
  EXPECT_EQ(tags(exif), (std::vector<std::uint16_t>{0x9000, 0x9003, 0x9004}));
  const auto tiffTags = static_cast<const OrbTiff&>(*tiff_).entriesWithIFDTags({}, kTIFFIFDID);
  EXPECT_EQ(tags(tiffTags), (std::vector<std::uint16_t>{kMake, kOrientation, kExifPointerTag}));
}

TEST_F(OrbTiffLookup, WithTagsKeepsTheirOrderSkipsMissingAndRepeatsDuplicates) {
  const std::uint16_t wanted[] = {0x9004, 0x1234, 0x9003, 0x9004};
  const auto found = static_cast<const OrbTiff&>(*tiff_).entriesWithIFDTags(wanted, kExifIFDID);
  EXPECT_EQ(tags(found), (std::vector<std::uint16_t>{0x9004, 0x9003, 0x9004}));
  EXPECT_TRUE(static_cast<const OrbTiff&>(*tiff_).entriesWithIFDTags(wanted, kExifIFDID, 1).empty());
}

TEST_F(OrbTiffLookup, EntriesWithIFDIDAndHasEntries) {
  EXPECT_EQ(tiff_->entriesWithIFDID(kExifIFDID).size(), 3u);
  EXPECT_TRUE(tiff_->hasEntriesWithIFDID(kExifIFDID));
  EXPECT_FALSE(tiff_->hasEntriesWithIFDID(kGPSIFDID));
  EXPECT_EQ(tiff_->entriesAtIndex(1), nullptr);
}

// ---- changes ----

TEST_F(OrbTiffLookup, SetEntryAtIndexAppendsEmptyMapsFirst) {
  OrbIFDEntry entry;
  entry.setIFDID(kTIFFIFDID);
  entry.setIFDTag(kMake);
  entry.setASCIIString("Other");
  tiff_->setEntry(entry, 2);
  ASSERT_EQ(tiff_->IFDs()->size(), 3u);
  EXPECT_TRUE(tiff_->entriesAtIndex(1)->empty());
  EXPECT_EQ(tiff_->entryWithIFDTag(kMake, kTIFFIFDID, 2)->stringData(), "Other");
  EXPECT_EQ(tiff_->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Maker");
  tiff_->setEntry(nullptr, 5);
  EXPECT_EQ(tiff_->IFDs()->size(), 3u);
}

TEST(OrbTiffChanges, SetEntryOnAnEmptyStructureCreatesTheList) {
  OrbTiff tiff;
  EXPECT_EQ(tiff.IFDs(), nullptr);
  OrbIFDEntry entry;
  entry.setIFDID(kExifIFDID);
  entry.setIFDTag(0x9003);
  tiff.setEntry(entry);
  ASSERT_NE(tiff.IFDs(), nullptr);
  EXPECT_NE(tiff.entryWithIFDTag(0x9003, kExifIFDID), nullptr);
}

TEST_F(OrbTiffLookup, Removals) {
  EXPECT_FALSE(tiff_->removeIFDAtIndex(1));  // index equal to the count
  EXPECT_EQ(tiff_->IFDs()->size(), 1u);
  EXPECT_TRUE(tiff_->removeEntryWithIFDTag(kMake, kTIFFIFDID));
  EXPECT_FALSE(tiff_->removeEntryWithIFDTag(kMake, kTIFFIFDID));
  EXPECT_TRUE(tiff_->removeEntryWithIFDItemID({kTIFFIFDID, kOrientation}));
  EXPECT_TRUE(tiff_->removeEntryWithIFDID(kExifIFDID));
  EXPECT_FALSE(tiff_->removeEntryWithIFDID(kExifIFDID));
  EXPECT_EQ(tiff_->entries()->size(), 1u);  // the Exif pointer
  EXPECT_TRUE(tiff_->removeIFDAtIndex(0));
  EXPECT_TRUE(tiff_->IFDs()->empty());
  EXPECT_FALSE(tiff_->removeEntryWithIFDTag(kExifPointerTag, kTIFFIFDID));
}

TEST_F(OrbTiffLookup, DeepCopyIsIndependent) {
  auto copy = tiff_->mutableCopy();
  copy->entryWithIFDTag(kMake, kTIFFIFDID)->setASCIIString("Changed");
  copy->removeEntryWithIFDTag(0x9003, kExifIFDID);
  EXPECT_EQ(tiff_->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Maker");
  EXPECT_NE(tiff_->entryWithIFDTag(0x9003, kExifIFDID), nullptr);
  EXPECT_EQ(copy->tiffHeaderLocation(), tiff_->tiffHeaderLocation());
  EXPECT_EQ(OrbTiff().mutableCopy()->IFDs(), nullptr);
}

TEST(OrbTiffChanges, UTF8AllowanceLooksAtTheFirstMapOnly) {
  OrbTiff tiff;
  OrbIFDEntry other;
  other.setIFDID(kTIFFIFDID);
  other.setIFDTag(kOrientation);
  tiff.setEntry(other);
  EXPECT_FALSE(tiff.hasExifVersionNotAllowedUTF8());
  OrbIFDEntry lens;
  lens.setIFDID(kExifIFDID);
  lens.setIFDTag(0xA434);  // LensModel
  tiff.setEntry(lens, 1);
  EXPECT_FALSE(tiff.hasExifVersionNotAllowedUTF8());
  tiff.setEntry(lens);
  EXPECT_TRUE(tiff.hasExifVersionNotAllowedUTF8());
  EXPECT_FALSE(tiff.hasGPSVersionNotAllowedUTF8());
  OrbIFDEntry method;
  method.setIFDID(kGPSIFDID);
  method.setIFDTag(27);
  tiff.setEntry(method);
  EXPECT_TRUE(tiff.hasGPSVersionNotAllowedUTF8());
}

}  // namespace
