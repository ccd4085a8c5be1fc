// Parsing TIFF structures, lookups and changes; malformed and hostile
// structures: the parse ends, keeps what it could read, and never reads
// outside the block (the sanitizer run checks that).

#include <gtest/gtest.h>

#include "core/OrbTiff.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;
using Tags = std::vector<std::uint16_t>;

constexpr std::uint16_t kMake = 0x010F, kModel = 0x0110, kOrientation = 0x0112;

std::unique_ptr<OrbTiff> parse(const std::vector<std::uint8_t>& block, std::uint64_t location = 0,
                               std::optional<std::uint64_t> maxLocation = std::nullopt) {
  return OrbTiff::exifWithPtr(block, &location, maxLocation.value_or(block.size()));
}

// The block is copied into a buffer of exactly its size, so that the
// sanitizer catches a read past its end.
std::unique_ptr<OrbTiff> parseExact(const std::vector<std::uint8_t>& block, std::uint64_t maxLocation) {
  auto exact = std::make_unique<std::uint8_t[]>(block.size());
  std::copy(block.begin(), block.end(), exact.get());
  std::uint64_t location = 0;
  return OrbTiff::exifWithPtr(orb::ByteView(exact.get(), block.size()), &location, maxLocation);
}

Tags tagsOf(const std::vector<const OrbIFDEntry*>& entries) {
  Tags out;
  for (const auto* e : entries) out.push_back(e->ifdTag());
  return out;
}

TEST(OrbTiffHeader, AcceptsOnlyTheTwoByteOrdersWithTheirMagic) {
  const std::pair<std::vector<std::uint8_t>, bool> cases[] = {
      {{'I', 'I', 0x2A, 0, 8, 0, 0, 0, 0, 0}, true},  {{'M', 'M', 0, 0x2A, 0, 0, 0, 8, 0, 0}, true},
      {{'I', 'I', 0, 0x2A, 8, 0, 0, 0, 0, 0}, false}, {{'I', 'M', 0x2A, 0, 8, 0, 0, 0, 0, 0}, false},
      {{'M', 'M', 0, 0x2A, 0}, false}};
  for (const auto& [bytes, parses] : cases) {
    auto tiff = parse(bytes);
    ASSERT_EQ(tiff != nullptr, parses) << bytes[0] << bytes[1] << int(bytes[2]);
    if (tiff) { EXPECT_EQ(tiff->isLittleEndian(), bytes[0] == 'I'); }
  }
  TiffBuilder noIFD;
  auto empty = parse(noIFD.noIFD().build());
  EXPECT_EQ(empty->entries(), nullptr);
  EXPECT_TRUE(empty->IFDs()->empty());
  const std::vector<std::uint8_t> block = {'M', 'M', 0, 42, 0, 0, 0, 8};
  for (std::uint64_t location : {std::uint64_t{7}, std::uint64_t{1} << 40, ~std::uint64_t{0} - 1})
    EXPECT_EQ(OrbTiff::exifWithPtr(block, &location, ~std::uint64_t{0}), nullptr) << location;
}

// Both byte orders, header at 0 and deeper in the block; the value offset
// plus the header location finds the value's bytes. Sub-IFDs land in the map
// of their chain IFD; versions stamp their whole IFD.
TEST(OrbTiffParse, ByteOrdersHeaderPositionsAndSubIFDs) {
  for (bool little : {TiffBuilder::kBig, TiffBuilder::kLittle}) {
    for (std::uint64_t location : {0u, 4097u}) {
      SCOPED_TRACE(testing::Message() << (little ? "II" : "MM") << " at " << location);
      TiffBuilder builder(little);
      auto& ifd0 = builder.ifd0();
      ifd0.shorts(kOrientation, {6}).longs(0x0100, {4000}).shorts(0x0102, {8, 8}).shorts(0x0103, {1, 2, 3});
      ifd0.exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05").undefined(0x9000, {'0', '3', '0', '0'});
      ifd0.exif().interop().ascii(0x0001, "R98");
      ifd0.gps().bytes(0x0000, 1, {2, 0xFF, 0, 0});  // 0xFF: a huge unsigned
      ifd0.next().ascii(kDateTimeTag, "2001:01:01 01:01:01").exif().ascii(kDateTimeOriginalTag, "2002:02:02 02:02:02");
      const auto block = builder.build(location);
      auto tiff = parse(block, location);
      ASSERT_NE(tiff, nullptr);
      EXPECT_EQ(tiff->tiffHeaderLocation(), location);
      EXPECT_EQ(tiff->entryWithIFDTag(kOrientation, kTIFFIFDID)->shortData1(), 6);
      EXPECT_EQ(tiff->entryWithIFDTag(0x0100, kTIFFIFDID)->data(), 4000u);
      EXPECT_FALSE(tiff->entryWithIFDTag(0x0102, kTIFFIFDID)->hasValue());  // four bytes stay inline
      EXPECT_EQ(tiff->entryWithIFDTag(0x0103, kTIFFIFDID)->unsignedShortAtIndex(2), 3);
      const std::uint64_t absolute =
          tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID)->data() + tiff->tiffHeaderLocation();
      EXPECT_EQ(std::string(block.begin() + long(absolute), block.begin() + long(absolute) + 19), "2024:01:02 03:04:05");

      ASSERT_EQ(tiff->IFDs()->size(), 2u);
      EXPECT_NE(tiff->entryWithIFDTag(kInteroperabilityPointerTag, kExifIFDID), nullptr);  // pointers stay
      EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeTag, kTIFFIFDID), nullptr);
      EXPECT_EQ(tiff->entryWithIFDTag(kDateTimeOriginalTag, kExifIFDID, 1)->stringData(), "2002:02:02 02:02:02");
      EXPECT_EQ(tiff->exifVersion(), 300u);
      for (const OrbIFDEntry* e : tiff->entriesWithIFDID(kExifIFDID)) EXPECT_EQ(e->version(), 300u);
      EXPECT_EQ(tiff->entryWithIFDTag(0x0000, kGPSIFDID)->version(), 2147483647u);
      EXPECT_EQ(tiff->entryWithIFDTag(kOrientation, kTIFFIFDID)->version(), 0u);
      EXPECT_EQ(tiff->entryWithIFDTag(0x0001, kInteroperabilityIFDID)->version(), 0u);
    }
  }
}

TEST(OrbTiffChanges, LookupsCopiesAndRemovals) {
  TiffBuilder builder;
  builder.ifd0().shorts(kOrientation, {1}).ascii(kMake, "Maker").ascii(kMake, "Later");
  builder.ifd0().exif().ascii(0x9004, "2024:01:02 03:04:05").ascii(0x9003, "2024:01:02 03:04:05");
  builder.ifd0().exif().undefined(0x9000, {'0', '2', '3', '2'});
  auto tiff = parse(builder.build());
  const auto lookup = [&](Tags tags, std::uint32_t ifdID, std::size_t index = 0) {
    return tagsOf(static_cast<const OrbTiff&>(*tiff).entriesWithIFDTags(tags, ifdID, index));
  };
  // No tags: the IFD's entries ordered by tag; tags: their order, missing ones skipped, duplicates repeated.
  EXPECT_EQ(lookup({}, kExifIFDID), (Tags{0x9000, 0x9003, 0x9004}));
  EXPECT_EQ(lookup({0x9004, 0x1234, 0x9003, 0x9004}, kExifIFDID), (Tags{0x9004, 0x9003, 0x9004}));
  EXPECT_TRUE(lookup({0x9004}, kExifIFDID, 1).empty());
  EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");  // same key: the later wins
  // A deep copy changes independently of the original.
  auto copy = tiff->mutableCopy();
  copy->entryWithIFDTag(kMake, kTIFFIFDID)->setASCIIString("Changed");
  copy->removeEntryWithIFDTag(0x9003, kExifIFDID);
  EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");
  EXPECT_NE(tiff->entryWithIFDTag(0x9003, kExifIFDID), nullptr);
  EXPECT_EQ(OrbTiff().mutableCopy()->IFDs(), nullptr);

  OrbIFDEntry entry;
  entry.setIFDID(kTIFFIFDID);
  entry.setIFDTag(kMake);
  entry.setASCIIString("Other");
  tiff->setEntry(entry, 2);  // appends two maps
  ASSERT_EQ(tiff->IFDs()->size(), 3u);
  EXPECT_TRUE(tiff->entriesAtIndex(1)->empty());
  EXPECT_FALSE(tiff->removeIFDAtIndex(3));  // index equal to the count
  EXPECT_TRUE(tiff->removeIFDAtIndex(2));
  EXPECT_TRUE(tiff->hasExifVersionNotAllowedUTF8());  // Make may carry UTF-8
  EXPECT_TRUE(tiff->removeEntryWithIFDTag(kMake, kTIFFIFDID));
  EXPECT_FALSE(tiff->removeEntryWithIFDTag(kMake, kTIFFIFDID));
  EXPECT_FALSE(tiff->hasExifVersionNotAllowedUTF8());
  EXPECT_TRUE(tiff->removeEntryWithIFDID(kExifIFDID));
  EXPECT_FALSE(tiff->hasEntriesWithIFDID(kExifIFDID));
  EXPECT_EQ(lookup({}, kTIFFIFDID), (Tags{kOrientation, kExifPointerTag}));
  OrbTiff fresh;
  fresh.setEntry(entry);
  EXPECT_NE(fresh.entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
}

TEST(OrbTiffMalformed, ValuesMustEndWithinTheLimit) {
  TiffBuilder builder;
  builder.ifd0().ascii(kMake, "Maker name").ascii(kModel, "Model name");
  const auto block = builder.build();
  // Header 8, table 2 + 2 * 12 + 4, Make 11 + 1 padding, Model 11 + 1 padding.
  const std::uint64_t modelEnd = 8 + 30 + 12 + 11;
  ASSERT_EQ(block.size(), modelEnd + 1);
  EXPECT_NE(parse(block, 0, modelEnd)->entryWithIFDTag(kModel, kTIFFIFDID), nullptr);  // ending at the limit
  auto short1 = parse(block, 0, modelEnd - 1);  // one byte short: dropped, the rest kept
  EXPECT_EQ(short1->entryWithIFDTag(kModel, kTIFFIFDID), nullptr);
  EXPECT_NE(short1->entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
  // Type, count and field: an offset past the end, at 2^32-1, a huge count, a
  // count whose byte size wraps to 8, a value past the block but inside the limit.
  const std::uint32_t cases[][3] = {{2, 20, 0x7FFFFFF0}, {2, 20, 0xFFFFFFFF}, {2, 0xFFFFFFF0, 8},
                                    {5, 0x20000001, 8}, {2, 64, 40}};
  for (const auto& [type, count, field] : cases) {
    SCOPED_TRACE(testing::Message() << type << " x " << count << " at " << field);
    TiffBuilder hostile(TiffBuilder::kLittle);
    hostile.ifd0().raw(0x0132, std::uint16_t(type), count, field).ascii(kMake, "Maker");
    const auto bytes = hostile.build();
    auto tiff = parseExact(bytes, bytes.size() + 1000);  // a limit beyond the block must not let a read leave it
    EXPECT_NE(tiff->entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
    // Only the wrapping count can be kept: its 8 bytes lie in the block.
    if (const OrbIFDEntry* bad = tiff->entryWithIFDTag(0x0132, kTIFFIFDID)) { EXPECT_EQ(bad->value().size(), 8u); }
  }
}

TEST(OrbTiffMalformed, EntryTablesRunningPastTheLimit) {
  TiffBuilder builder(TiffBuilder::kLittle);
  builder.ifd0().ascii(kMake, "Maker name").shorts(0x0112, {1}).shorts(0x0128, {2});
  const auto full = builder.build();
  // The limit inside the second entry: it is still read (the last entry read
  // may run past the limit), the third is not.
  auto tiff = parseExact(full, 8 + 2 + 12 + 5);
  EXPECT_NE(tiff->entryWithIFDTag(0x0112, kTIFFIFDID), nullptr);
  EXPECT_EQ(tiff->entryWithIFDTag(0x0128, kTIFFIFDID), nullptr);
  // An entry count claiming more entries than the block holds.
  TiffBuilder claiming;
  claiming.ifd0().shorts(0x0112, {1}).claimEntryCount(0xFFFF);
  const auto cut = claiming.build();
  EXPECT_NE(parseExact(cut, cut.size())->entryWithIFDTag(0x0112, kTIFFIFDID), nullptr);
}

TEST(OrbTiffMalformed, LoopsAndFarChainsEnd) {
  // The chain back to IFD0 from itself, or from IFD1.
  for (const bool fromSecond : {false, true}) {
    TiffBuilder chain;
    auto& ifd0 = chain.ifd0().ascii(kMake, "Maker");
    (fromSecond ? ifd0.next().ascii(kModel, "Model") : ifd0).nextOffset(8);
    EXPECT_EQ(parse(chain.build())->IFDs()->size(), fromSecond ? 2u : 1u);
  }
  // Sub-IFDs pointing at their parent are read once: IFD0's entries read
  // again as Exif and GPS entries; odd, but finite.
  TiffBuilder builder;
  builder.ifd0().ascii(kMake, "Maker").raw(kExifPointerTag, 4, 1, 8).raw(kGPSPointerTag, 4, 1, 8);
  auto tiff = parse(builder.build());
  ASSERT_EQ(tiff->IFDs()->size(), 1u);
  EXPECT_NE(tiff->entryWithIFDTag(kMake, kGPSIFDID), nullptr);
  // A next IFD past the limit ends the walk and says so.
  TiffBuilder far;
  far.ifd0().ascii(kMake, "Maker").nextOffset(0x7FFFFFFF);
  testing::internal::CaptureStderr();
  EXPECT_EQ(parse(far.build())->IFDs()->size(), 1u);
  const std::string console = testing::internal::GetCapturedStderr();
  EXPECT_NE(console.find("nextIFDLocation: (2147483647) maxLocation:("), std::string::npos) << console;
}

}  // namespace
