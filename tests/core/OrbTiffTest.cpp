// Parsing TIFF structures, lookups and changes; malformed and hostile
// structures: the parse ends, keeps what it could read, and never reads
// outside the block (the sanitizer run checks that).

#include <gtest/gtest.h>

#include "core/OrbTiff.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;

constexpr std::uint16_t kMake = 0x010F;
constexpr std::uint16_t kModel = 0x0110;
constexpr std::uint16_t kOrientation = 0x0112;

std::unique_ptr<OrbTiff> parse(const std::vector<std::uint8_t>& block, std::uint64_t location = 0,
                               std::optional<std::uint64_t> maxLocation = std::nullopt) {
  return OrbTiff::exifWithPtr(block, &location, maxLocation.value_or(block.size()));
}

std::vector<std::uint16_t> tagsOf(const std::vector<const OrbIFDEntry*>& entries) {
  std::vector<std::uint16_t> out;
  for (const auto* e : entries) out.push_back(e->ifdTag());
  return out;
}

TEST(OrbTiffHeader, AcceptsOnlyTheTwoByteOrdersWithTheirMagic) {
  const std::pair<std::vector<std::uint8_t>, bool> cases[] = {
      {{'I', 'I', 0x2A, 0, 8, 0, 0, 0, 0, 0}, true},  {{'M', 'M', 0, 0x2A, 0, 0, 0, 8, 0, 0}, true},
      {{'I', 'I', 0, 0x2A, 8, 0, 0, 0, 0, 0}, false}, {{'M', 'M', 0x2A, 0, 0, 0, 0, 8, 0, 0}, false},
      {{'I', 'M', 0x2A, 0, 8, 0, 0, 0, 0, 0}, false}, {{'M', 'M', 0, 0x2A, 0}, false},
  };
  for (const auto& [bytes, parses] : cases) {
    auto tiff = parse(bytes);
    ASSERT_EQ(tiff != nullptr, parses) << bytes[0] << bytes[1] << int(bytes[2]);
    if (tiff) { EXPECT_EQ(tiff->isLittleEndian(), bytes[0] == 'I'); }
  }
  TiffBuilder noIFD;
  auto empty = parse(noIFD.noIFD().build());
  ASSERT_NE(empty, nullptr);
  EXPECT_EQ(empty->entries(), nullptr);
  ASSERT_NE(empty->IFDs(), nullptr);
  EXPECT_TRUE(empty->IFDs()->empty());
}

// Both byte orders, header at 0 and deeper in the block: the same numbers,
// and the value offset plus the header location finds the value's bytes.
TEST(OrbTiffParse, BothByteOrdersAndHeaderPositions) {
  for (bool little : {TiffBuilder::kBig, TiffBuilder::kLittle}) {
    for (std::uint64_t location : {0u, 12u, 4097u}) {
      SCOPED_TRACE(testing::Message() << (little ? "II" : "MM") << " at " << location);
      TiffBuilder builder(little);
      auto& ifd0 = builder.ifd0();
      ifd0.shorts(kOrientation, {6}).longs(0x0100, {4000}).shorts(0x0102, {8, 8}).shorts(0x0103, {1, 2, 3});
      ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05");
      const auto block = builder.build(location);
      auto tiff = parse(block, location);
      ASSERT_NE(tiff, nullptr);
      EXPECT_EQ(tiff->tiffHeaderLocation(), location);
      EXPECT_EQ(tiff->entryWithIFDTag(kOrientation, kTIFFIFDID)->shortData1(), 6);
      EXPECT_EQ(tiff->entryWithIFDTag(0x0100, kTIFFIFDID)->data(), 4000u);
      // Four bytes stay inline, six are copied out of line.
      EXPECT_FALSE(tiff->entryWithIFDTag(0x0102, kTIFFIFDID)->hasValue());
      EXPECT_EQ(tiff->entryWithIFDTag(0x0103, kTIFFIFDID)->unsignedShortAtIndex(2), 3);

      const OrbIFDEntry* date = tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID);
      ASSERT_NE(date, nullptr);
      const std::uint64_t absolute = date->data() + tiff->tiffHeaderLocation();
      EXPECT_EQ(absolute, builder.valueOffset(ifd0.exif(), kDateTimeOriginalTag));
      EXPECT_EQ(std::string(block.begin() + static_cast<long>(absolute), block.begin() + static_cast<long>(absolute) + 19),
                "2024:01:02 03:04:05");
    }
  }
}

TEST(OrbTiffParse, SubIFDsLandInTheMapOfTheirChainIFD) {
  TiffBuilder builder;
  auto& ifd0 = builder.ifd0();
  ifd0.ascii(kMake, "Maker");
  ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05").interop().ascii(0x0001, "R98");
  ifd0.gps().bytes(0x0000, 1, {2, 2, 0, 0});
  ifd0.next().ascii(kDateTimeTag, "2001:01:01 01:01:01").exif().ascii(kDateTimeOriginalTag, "2002:02:02 02:02:02");
  auto tiff = parse(builder.build());
  ASSERT_EQ(tiff->IFDs()->size(), 2u);
  EXPECT_NE(tiff->entryWithIFDTag(0x0001, kInteroperabilityIFDID), nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(0x0000, kGPSIFDID), nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(kInteroperabilityPointerTag, kExifIFDID), nullptr);  // pointers stay
  // IFD1 and its own Exif IFD only at index 1.
  EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeTag, kTIFFIFDID), nullptr);
  ASSERT_NE(tiff->entryWithIFDTag(kDateTimeTag, kTIFFIFDID, 1), nullptr);
  EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID)->stringData(), "2024:01:02 03:04:05");
  EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID, 1)->stringData(), "2002:02:02 02:02:02");
}

TEST(OrbTiffParse, VersionEntriesStampTheirWholeIFD) {
  struct Case { std::vector<std::uint8_t> exifVersion, gpsVersion; std::uint32_t exifStamp, gpsStamp; };
  const Case cases[] = {{{'0', '2', '3', '0'}, {2, 3, 0, 0}, 230, 2300}, {{'0', '3', '0', '0'}, {2, 2, 0, 0}, 300, 2200},
                        {{'0', '2', '2', '1'}, {2, 0xFF, 0, 0}, 221, 2147483647}};  // 0xFF: a huge unsigned
  for (const auto& c : cases) {
    TiffBuilder builder(TiffBuilder::kLittle);
    auto& ifd0 = builder.ifd0();
    ifd0.ascii(kMake, "Maker");
    ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05").undefined(0x9000, c.exifVersion);
    ifd0.exif().interop().ascii(0x0001, "R98");
    ifd0.gps().bytes(0x0000, 1, c.gpsVersion).ascii(0x0001, "N");
    auto tiff = parse(builder.build());
    SCOPED_TRACE(c.exifStamp);
    EXPECT_EQ(tiff->exifVersion(), c.exifStamp);
    for (const OrbIFDEntry* e : tiff->entriesWithIFDID(kExifIFDID)) EXPECT_EQ(e->version(), c.exifStamp);
    for (const OrbIFDEntry* e : tiff->entriesWithIFDID(kGPSIFDID)) EXPECT_EQ(e->version(), c.gpsStamp);
    EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->version(), 0u);
    EXPECT_EQ(tiff->entryWithIFDTag(0x0001, kInteroperabilityIFDID)->version(), 0u);
  }
}

class OrbTiffChanges : public testing::Test {
 protected:
  void SetUp() override {
    TiffBuilder builder;
    builder.ifd0().shorts(kOrientation, {1}).ascii(kMake, "Maker").ascii(kMake, "Later");
    builder.ifd0().exif().ascii(0x9004, "2024:01:02 03:04:05").ascii(0x9003, "2024:01:02 03:04:05");
    builder.ifd0().exif().undefined(0x9000, {'0', '2', '3', '2'});
    tiff_ = parse(builder.build());
    ASSERT_NE(tiff_, nullptr);
  }
  std::vector<const OrbIFDEntry*> lookup(std::vector<std::uint16_t> tags, std::uint32_t ifdID, std::size_t index = 0) {
    return static_cast<const OrbTiff&>(*tiff_).entriesWithIFDTags(tags, ifdID, index);
  }
  std::unique_ptr<OrbTiff> tiff_;
};

TEST_F(OrbTiffChanges, LookupOrderingsAndCopies) {
  // No tags: the IFD's entries ordered by tag, nothing of other IFDs.
  EXPECT_EQ(tagsOf(lookup({}, kExifIFDID)), (std::vector<std::uint16_t>{0x9000, 0x9003, 0x9004}));
  // Tags: their order, missing ones skipped, duplicates repeated.
  EXPECT_EQ(tagsOf(lookup({0x9004, 0x1234, 0x9003, 0x9004}, kExifIFDID)),
            (std::vector<std::uint16_t>{0x9004, 0x9003, 0x9004}));
  EXPECT_TRUE(lookup({0x9004}, kExifIFDID, 1).empty());
  EXPECT_EQ(tiff_->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");  // same key: the later wins
  // A deep copy changes independently of the original.
  auto copy = tiff_->mutableCopy();
  copy->entryWithIFDTag(kMake, kTIFFIFDID)->setASCIIString("Changed");
  copy->removeEntryWithIFDTag(0x9003, kExifIFDID);
  EXPECT_EQ(tiff_->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");
  EXPECT_NE(tiff_->entryWithIFDTag(0x9003, kExifIFDID), nullptr);
  EXPECT_EQ(OrbTiff().mutableCopy()->IFDs(), nullptr);
}

TEST_F(OrbTiffChanges, SetEntryAndRemovals) {
  OrbIFDEntry entry;
  entry.setIFDID(kTIFFIFDID);
  entry.setIFDTag(kMake);
  entry.setASCIIString("Other");
  tiff_->setEntry(entry, 2);  // appends two maps
  ASSERT_EQ(tiff_->IFDs()->size(), 3u);
  EXPECT_TRUE(tiff_->entriesAtIndex(1)->empty());
  EXPECT_EQ(tiff_->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");

  EXPECT_FALSE(tiff_->removeIFDAtIndex(3));  // index equal to the count
  EXPECT_TRUE(tiff_->removeIFDAtIndex(2));
  EXPECT_TRUE(tiff_->hasExifVersionNotAllowedUTF8());  // Make may carry UTF-8
  EXPECT_TRUE(tiff_->removeEntryWithIFDTag(kMake, kTIFFIFDID));
  EXPECT_FALSE(tiff_->removeEntryWithIFDTag(kMake, kTIFFIFDID));
  EXPECT_FALSE(tiff_->hasExifVersionNotAllowedUTF8());
  EXPECT_TRUE(tiff_->removeEntryWithIFDID(kExifIFDID));
  EXPECT_FALSE(tiff_->hasEntriesWithIFDID(kExifIFDID));
  EXPECT_EQ(tagsOf(lookup({}, kTIFFIFDID)), (std::vector<std::uint16_t>{kOrientation, kExifPointerTag}));

  OrbTiff fresh;
  fresh.setEntry(entry);
  EXPECT_NE(fresh.entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
}

// ---- malformed structures ----

// The block is copied into a buffer of exactly its size, so that the
// sanitizer catches a read past its end.
std::unique_ptr<OrbTiff> parseExact(const std::vector<std::uint8_t>& block, std::uint64_t maxLocation) {
  auto exact = std::make_unique<std::uint8_t[]>(block.size());
  std::copy(block.begin(), block.end(), exact.get());
  std::uint64_t location = 0;
  return OrbTiff::exifWithPtr(orb::ByteView(exact.get(), block.size()), &location, maxLocation);
}

TEST(OrbTiffMalformed, OutOfLineValueMustEndWithinTheLimit) {
  for (bool little : {false, true}) {
    TiffBuilder builder(little);
    builder.ifd0().ascii(kMake, "Maker name").ascii(kModel, "Model name");
    const auto block = builder.build();
    const std::uint64_t modelEnd = builder.valueOffset(builder.ifd0(), kModel) + 11;
    ASSERT_EQ(modelEnd, block.size() - 1);  // 11 bytes, then the padding byte

    auto exact = parse(block, 0, modelEnd);  // ending exactly at the limit is fine
    EXPECT_NE(exact->entryWithIFDTag(kModel, kTIFFIFDID), nullptr);
    auto short1 = parse(block, 0, modelEnd - 1);  // one byte short: dropped
    EXPECT_EQ(short1->entryWithIFDTag(kModel, kTIFFIFDID), nullptr);
    EXPECT_NE(short1->entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
  }
}

TEST(OrbTiffMalformed, EntriesPointingOutsideAreDroppedOthersKept) {
  // Type, count and field: an offset past the end, at 2^32-1, a huge count, a
  // count whose byte size wraps to 8, a huge rational count, a value past the
  // block but inside the limit.
  const std::uint32_t cases[][3] = {{2, 20, 0x7FFFFFF0}, {2, 20, 0xFFFFFFFF}, {2, 0xFFFFFFF0, 8},
                                    {5, 0x20000001, 8},   {5, 0x1FFFFFFF, 8},  {2, 64, 40}};
  for (const auto& [type, count, field] : cases) {
    SCOPED_TRACE(testing::Message() << type << " x " << count << " at " << field);
    TiffBuilder builder(TiffBuilder::kLittle);
    builder.ifd0().raw(0x0132, std::uint16_t(type), count, field).ascii(kMake, "Maker");
    const auto block = builder.build();
    // A limit beyond the block must not let a read leave the block.
    auto tiff = parseExact(block, block.size() + 1000);
    ASSERT_NE(tiff, nullptr);
    EXPECT_NE(tiff->entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
    const OrbIFDEntry* bad = tiff->entryWithIFDTag(0x0132, kTIFFIFDID);
    if (bad) {
      // Only the wrapping count can be kept: its 8 bytes lie in the block.
      EXPECT_EQ(bad->byteCount(), 8u);
      EXPECT_EQ(bad->value().size(), 8u);
    }
  }
}

TEST(OrbTiffMalformed, TruncatedBlocksEndCleanly) {
  TiffBuilder builder(TiffBuilder::kLittle);
  auto& ifd0 = builder.ifd0();
  ifd0.ascii(kMake, "Maker name").shorts(0x0112, {1});
  ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05").shorts(0xA001, {1});
  ifd0.gps().bytes(0, 1, {2, 3, 0, 0});
  ifd0.next().longs(0x0201, {1234});
  const auto full = builder.build();
  // Cut at every length: no crash, no read outside, header rules respected.
  for (std::size_t size = 0; size <= full.size(); ++size) {
    std::vector<std::uint8_t> cut(full.begin(), full.begin() + static_cast<long>(size));
    auto tiff = parseExact(cut, cut.size());
    EXPECT_EQ(tiff != nullptr, size >= 8) << size;
    if (size == full.size()) { EXPECT_EQ(tiff->IFDs()->size(), 2u); }
  }
}

TEST(OrbTiffMalformed, EntryTableRunningPastTheLimitStopsAtIt) {
  TiffBuilder builder;
  builder.ifd0().shorts(0x0112, {1}).shorts(0x0128, {2}).shorts(0x0213, {1});
  const auto block = builder.build();
  const std::uint64_t tableStart = 8 + 2;
  // The limit falls inside the second entry: it is still read (the last
  // entry read may run past the limit), the third is not.
  auto tiff = parseExact(block, tableStart + 12 + 5);
  ASSERT_NE(tiff, nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(0x0128, kTIFFIFDID), nullptr);
  EXPECT_EQ(tiff->entryWithIFDTag(0x0213, kTIFFIFDID), nullptr);
  // An entry count claiming more entries than the block holds.
  for (std::uint16_t claimed : {std::uint16_t{5}, std::uint16_t{0xFFFF}}) {
    TiffBuilder claiming;
    claiming.ifd0().shorts(0x0112, {1}).claimEntryCount(claimed);
    const auto cut = claiming.build();
    EXPECT_NE(parseExact(cut, cut.size())->entryWithIFDTag(0x0112, kTIFFIFDID), nullptr) << claimed;
  }
}

TEST(OrbTiffMalformed, LoopsEnd) {
  // The chain back to IFD0 from itself, or from IFD1.
  for (const bool fromSecond : {false, true}) {
    TiffBuilder chain;
    auto& ifd0 = chain.ifd0().ascii(kMake, "Maker");
    (fromSecond ? ifd0.next().ascii(kModel, "Model") : ifd0).nextOffset(8);
    EXPECT_EQ(parse(chain.build())->IFDs()->size(), fromSecond ? 2u : 1u);
  }
  // A sub-IFD pointing at its parent is read once.
  TiffBuilder builder;
  builder.ifd0().ascii(kMake, "Maker").raw(kExifPointerTag, 4, 1, 8).raw(kGPSPointerTag, 4, 1, 8);
  auto tiff = parse(builder.build());
  ASSERT_NE(tiff, nullptr);
  ASSERT_EQ(tiff->IFDs()->size(), 1u);
  // IFD0's entries read again as Exif and GPS entries: odd, but finite.
  EXPECT_NE(tiff->entryWithIFDTag(kMake, kExifIFDID), nullptr);
  EXPECT_NE(tiff->entryWithIFDTag(kMake, kGPSIFDID), nullptr);
}

TEST(OrbTiffMalformed, NextOffsetAtOrPastTheLimitEndsTheWalk) {
  TiffBuilder builder;
  builder.ifd0().ascii(kMake, "Maker").nextOffset(0x7FFFFFFF);
  testing::internal::CaptureStderr();
  auto tiff = parse(builder.build());
  const std::string console = testing::internal::GetCapturedStderr();
  ASSERT_NE(tiff, nullptr);
  EXPECT_EQ(tiff->IFDs()->size(), 1u);
  EXPECT_NE(console.find("nextIFDLocation: (2147483647) maxLocation:("), std::string::npos) << console;
}

TEST(OrbTiffMalformed, HeaderLocationPastTheBlock) {
  const std::vector<std::uint8_t> block = {'M', 'M', 0, 42, 0, 0, 0, 8};
  for (std::uint64_t location : {std::uint64_t{7}, std::uint64_t{8}, std::uint64_t{1} << 40, ~std::uint64_t{0} - 1}) {
    EXPECT_EQ(OrbTiff::exifWithPtr(block, &location, ~std::uint64_t{0}), nullptr) << location;
  }
}

}  // namespace
