// Parsing TIFF structures, lookups and changes; malformed and hostile
// structures: the parse ends, keeps what it could read, and never reads
// outside the block (the sanitizer run checks that).

#include <gtest/gtest.h>

#include "core/OrbTiff.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;
using Tags = std::vector<std::uint16_t>;

constexpr std::uint16_t kMake = 0x010F, kOrientation = 0x0112;

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
  const std::vector<std::uint8_t> block = {'M', 'M', 0, 42, 0, 0, 0, 8};
  for (std::uint64_t location : {std::uint64_t{7}, std::uint64_t{1} << 40, ~std::uint64_t{0} - 1})
    EXPECT_EQ(OrbTiff::exifWithPtr(block, &location, ~std::uint64_t{0}), nullptr) << location;
}

// Where the header is and what the chain IFD holds come from the real-file
// suites and the date scan's comparison; here what those do not see: versions
// stamp their whole IFD, and a bad GPS version reads as a huge number.
TEST(OrbTiffParse, VersionsStampTheirIFD) {
  TiffBuilder builder(TiffBuilder::kLittle);
  builder.ifd0().shorts(kOrientation, {6}).exif().ascii(kDateTimeOriginalTag, "2024:01:02 03:04:05")
      .undefined(0x9000, {'0', '3', '0', '0'}).interop().ascii(0x0001, "R98");
  builder.ifd0().gps().bytes(0x0000, 1, {2, 0xFF, 0, 0});
  auto tiff = parse(builder.build(4097), 4097);
  EXPECT_EQ(tiff->exifVersion(), 300u);
  for (const OrbIFDEntry* e : tiff->entriesWithIFDID(kExifIFDID)) EXPECT_EQ(e->version(), 300u);
  EXPECT_EQ(tiff->entryWithIFDTag(0x0000, kGPSIFDID)->version(), 2147483647u);
  EXPECT_EQ(tiff->entryWithIFDTag(kOrientation, kTIFFIFDID)->version(), 0u);
  EXPECT_EQ(tiff->entryWithIFDTag(0x0001, kInteroperabilityIFDID)->version(), 0u);
}

TEST(OrbTiffChanges, LookupsCopiesAndRemovals) {
  TiffBuilder builder;
  builder.ifd0().shorts(kOrientation, {1}).ascii(kMake, "Maker").ascii(kMake, "Later");
  builder.ifd0().exif().ascii(0x9004, "2024:01:02 03:04:05").ascii(0x9003, "2024:01:02 03:04:05");
  builder.ifd0().exif().undefined(0x9000, {'0', '2', '3', '2'});
  auto tiff = parse(builder.build());
  const auto lookup = [&](Tags tags, std::uint32_t ifdID) {
    Tags out;
    for (const auto* e : static_cast<const OrbTiff&>(*tiff).entriesWithIFDTags(tags, ifdID, 0)) out.push_back(e->ifdTag());
    return out;
  };
  // No tags: the IFD's entries ordered by tag; tags: their order, missing ones skipped, duplicates repeated.
  EXPECT_EQ(lookup({}, kExifIFDID), (Tags{0x9000, 0x9003, 0x9004}));
  EXPECT_EQ(lookup({0x9004, 0x1234, 0x9003, 0x9004}, kExifIFDID), (Tags{0x9004, 0x9003, 0x9004}));
  EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");  // same key: the later wins
  // A deep copy changes independently of the original.
  auto copy = tiff->mutableCopy();
  copy->entryWithIFDTag(kMake, kTIFFIFDID)->setASCIIString("Changed");
  copy->removeEntryWithIFDTag(0x9003, kExifIFDID);
  EXPECT_EQ(tiff->entryWithIFDTag(kMake, kTIFFIFDID)->stringData(), "Later");
  EXPECT_NE(tiff->entryWithIFDTag(0x9003, kExifIFDID), nullptr);
  EXPECT_EQ(OrbTiff().mutableCopy()->IFDs(), nullptr);

  OrbIFDEntry entry = *OrbIFDEntry::initWithEndian(kOrbBigEndian, kMake, kTIFFIFDID);
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

// Cut blocks, values and chains past the limit, loops and entry counts that
// claim too much are compared with the date scan at every cut length; here a
// count whose byte size wraps: if kept, only its 8 bytes, which lie in the block.
TEST(OrbTiffMalformed, WrappedByteCountKeepsItsBytes) {
  TiffBuilder hostile(TiffBuilder::kLittle);
  hostile.ifd0().raw(0x0132, kOrbTypeRational, 0x20000001, 8).ascii(kMake, "Maker");
  const auto bytes = hostile.build();
  auto tiff = parseExact(bytes, bytes.size() + 1000);  // a limit beyond the block must not let a read leave it
  EXPECT_NE(tiff->entryWithIFDTag(kMake, kTIFFIFDID), nullptr);
  if (const OrbIFDEntry* bad = tiff->entryWithIFDTag(0x0132, kTIFFIFDID)) { EXPECT_EQ(bad->value().size(), 8u); }
  // The limit inside the second entry: it is still read, the third is not.
  TiffBuilder builder(TiffBuilder::kLittle);
  builder.ifd0().ascii(kMake, "Maker name").shorts(0x0112, {1}).shorts(0x0128, {2});
  auto cut = parseExact(builder.build(), 8 + 2 + 12 + 5);
  EXPECT_NE(cut->entryWithIFDTag(0x0112, kTIFFIFDID), nullptr);
  EXPECT_EQ(cut->entryWithIFDTag(0x0128, kTIFFIFDID), nullptr);
}

}  // namespace
