// The Photoshop and IPTC records of a TIFF structure's IFD0.

#include <gtest/gtest.h>

#include <vector>

#include "formats/TiffRecords.h"
#include "RecordBytes.h"

namespace {

using namespace recordtest;

const Bytes kIPTC{0x1C, 2, 5, 0, 4, 'T', 'e', 's', 't', 0x1C, 2, 25, 0, 3, 'a', 'b', 'c', 0};
// A 1005 block and a 1028 block holding kIPTC, in id order, so that they
// serialise back to the same bytes.
const Bytes kBlocks = block(1005, "", Bytes(16, 0)) + block(1028, "", kIPTC);

// A big-endian TIFF whose IFD0 holds tag 33723 (UNDEFINED) and tag 34377
// (BYTE), with both values out of line after the IFD.
Bytes tiffWithRecords(std::uint32_t photoshopCount) {
  const std::uint32_t iptcAt = 8 + 2 + 2 * 12 + 4;
  const auto photoshopAt = static_cast<std::uint32_t>(iptcAt + kIPTC.size());
  return Bytes{'M', 'M', 0, 42} + be32(8) + be16(2) + be16(0x83BB) + be16(7) + be32(static_cast<std::uint32_t>(kIPTC.size())) +
         be32(iptcAt) + be16(0x8649) + be16(1) + be32(photoshopCount) + be32(photoshopAt) + be32(0) + kIPTC + kBlocks;
}

std::unique_ptr<OrbTiff> parse(const Bytes& file) { return OrbTiff::exifWithPtr(orb::ByteView(file), nullptr, file.size()); }

TEST(TiffRecords, ReadsBothRecordsOfIFD0) {
  const Bytes file = tiffWithRecords(static_cast<std::uint32_t>(kBlocks.size()));
  const auto tiff = parse(file);
  ASSERT_TRUE(tiff);
  const auto photoshop = photoshopFF(*tiff);
  ASSERT_TRUE(photoshop);
  ASSERT_EQ(photoshop->IRBs().size(), 2u);
  EXPECT_EQ(photoshop->data(), kBlocks);
  const auto iim = iptcIIM(*tiff);
  ASSERT_TRUE(iim);
  ASSERT_EQ(iim->dataSets().size(), 2u);
  EXPECT_EQ(iim->dataSets()[1]->stringValue(), "abc");
}

TEST(TiffRecords, MissingEntriesGiveNothing) {
  const Bytes file = Bytes{'M', 'M', 0, 42} + be32(8) + be16(0) + be32(0);
  const auto tiff = parse(file);
  ASSERT_TRUE(tiff);
  EXPECT_FALSE(photoshopFF(*tiff));
  EXPECT_EQ(iptcIIM(*tiff), nullptr);
}

TEST(TiffRecords, SetPhotoshopWritesCountAndBytesOrRemovesTheEntry) {
  const auto tiff = parse(tiffWithRecords(static_cast<std::uint32_t>(kBlocks.size())));
  ASSERT_TRUE(tiff);
  OrbPhotoshopFF changed = *photoshopFF(*tiff);
  changed.rmoveIRBWithID(1005);
  setPhotoshopFF(*tiff, &changed);
  const OrbIFDEntry* entry = tiff->entryWithIFDTag(0x8649, kTIFFIFDID);
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->dataCount(), changed.data().size());
  EXPECT_EQ(photoshopFF(*tiff)->data(), changed.data());

  setPhotoshopFF(*tiff, nullptr);
  EXPECT_EQ(tiff->entryWithIFDTag(0x8649, kTIFFIFDID), nullptr);
  EXPECT_FALSE(photoshopFF(*tiff));

  // An empty record removes too; a record on a structure without the entry
  // makes it.
  setPhotoshopFF(*tiff, &changed);
  ASSERT_TRUE(photoshopFF(*tiff));
  EXPECT_EQ(photoshopFF(*tiff)->IRBs().size(), 1u);
  const OrbPhotoshopFF empty;
  setPhotoshopFF(*tiff, &empty);
  EXPECT_FALSE(photoshopFF(*tiff));
}

}  // namespace
