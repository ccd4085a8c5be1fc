// Photoshop image resource blocks: the APP13 checks, the block walk and its
// stop rules, sorting, changes, serialisation, thumbnail and titles.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/OrbIPTCIIM.h"
#include "formats/OrbPhotoshopFF.h"
#include "formats/TiffRecords.h"
#include "RecordBytes.h"

namespace {

using namespace recordtest;

Bytes app13(const Bytes& blocks) {
  return Bytes{0xFF, 0xED} + be16(static_cast<std::uint32_t>(blocks.size() + 16)) + text("Photoshop 3.0") + Bytes{0} + blocks;
}

OrbPhotoshopFF walk(const Bytes& bytes) { return OrbPhotoshopFF::photoshopFFWithIRBPtr(orb::ByteView(bytes)); }

std::vector<std::uint16_t> ids(const OrbPhotoshopFF& ff) {
  std::vector<std::uint16_t> out;
  for (const auto& b : ff.IRBs()) out.push_back(b.irbID());
  return out;
}

TEST(PhotoshopAPP13, ChecksMarkerAndIdentifierAndHonoursBothLengths) {
  const auto read = [](const Bytes& b, std::size_t n = 0) {
    return OrbPhotoshopFF::photoshopFFWithAPP13SegmentPtr(orb::ByteView(b.data(), n ? n : b.size()));
  };
  const Bytes odd = block(0x0404, "", {1, 2, 3, 4, 5});  // odd data: a pad byte follows
  const auto one = read(app13(odd));
  ASSERT_TRUE(one);
  EXPECT_EQ(one->IRBs()[0].name(), std::nullopt);  // an empty name is no name
  EXPECT_EQ(one->data(), odd);
  const Bytes segment = app13(block(1028, "", {1, 2}) + block(1005, "", Bytes(16, 0)));
  Bytes wrongMarker = segment, wrongId = segment, shortLength = segment;
  wrongMarker[1] = 0xEC;
  wrongId[17] = ' ';  // the identifier's NUL
  shortLength[3] = 16 + 14;  // the declared length ends the blocks before the second one
  EXPECT_FALSE(read(wrongMarker) || read(wrongId) || read(segment, 10));
  EXPECT_EQ(ids(*read(shortLength)), (std::vector<std::uint16_t>{1028}));
  EXPECT_EQ(ids(*read(segment, 18 + 14 + 10)), (std::vector<std::uint16_t>{1028}));  // fewer bytes than declared
}

TEST(PhotoshopWalk, StopRulesKeepBlocksBeforeTheBrokenOne) {
  const Bytes good = block(1005, "", Bytes(16, 1));
  struct Case { const char* what; Bytes bytes; std::size_t kept; };
  const Case cases[] = {
      {"empty", {}, 0},
      {"data size past the end", good + Bytes{'8', 'B', 'I', 'M', 4, 4, 0, 0} + be32(100) + Bytes{1, 2}, 1},
      {"name past the end", good + Bytes{'8', 'B', 'I', 'M', 4, 4, 9, 'a', 'b'}, 1},
      {"header cut short", good + Bytes{'8', 'B', 'I'}, 1},
      {"size field cut short", good + Bytes{'8', 'B', 'I', 'M', 4, 4, 0, 0, 0, 0}, 1},
      {"id 0 dropped, walk goes on", block(0, "", {1}) + good, 1},
      {"any signature accepted", Bytes{'A', 'B', 'C', 'D', 3, 0xED, 0, 0} + be32(0) + good, 2},
  };
  for (const Case& c : cases) EXPECT_EQ(walk(c.bytes).IRBs().size(), c.kept) << c.what;
}

TEST(PhotoshopList, ThumbnailPrefers1036AndFollowsSorting) {
  const Bytes header(28, 7);
  OrbPhotoshopFF ff = walk(block(1033, "", header + Bytes{1}) + block(1036, "", header + Bytes{2, 3}));
  ASSERT_TRUE(ff.thumbIRB());
  EXPECT_EQ(ff.thumbnailData(), (Bytes{2, 3}));  // 1036's, after its 28-byte header

  ff.addImageResourceBlockWithSignature(0x3842494D, 1000, std::nullopt, Bytes{1});
  ff.addImageResourceBlockWithSignature(0x3842494D, 0, std::nullopt, Bytes{1});  // refused
  EXPECT_EQ(ids(ff), (std::vector<std::uint16_t>{1000, 1033, 1036}));
  EXPECT_EQ(ff.thumbIRB()->irbID(), 1036);

  ff.setThumbnailData(Bytes{4, 5, 6});
  EXPECT_EQ(*ff.imageResourceBlockWithIRBID(1036)->dataValue(), (header + Bytes{4, 5, 6}));
  EXPECT_EQ(*ff.imageResourceBlockWithIRBID(1033)->dataValue(), (header + Bytes{1}));

  ff.setThumbIRB(0);
  EXPECT_EQ(OrbPhotoshopFF(ff).thumbIRB()->irbID(), 1036);  // a copy chooses again
  ff.setUpThumbnail();
  ff.rmoveIRBWithID(1036);
  EXPECT_EQ(ff.thumbIRB(), nullptr);
  ff.setUpThumbnail();
  EXPECT_EQ(ff.thumbIRB()->irbID(), 1033);
  EXPECT_FALSE(walk(block(1005, "", Bytes(16, 0))).thumbnailData());
}

TEST(PhotoshopList, ReplaceRemoveAndIPTCFromBlock1028) {
  const Bytes iptc{0x1C, 2, 5, 0, 4, 'T', 'e', 's', 't'};
  OrbPhotoshopFF ff = walk(block(1005, "", Bytes(16, 0)) + block(1028, "", iptc) + block(1028, "", {2}));
  ASSERT_TRUE(ff.iptcIIM());
  EXPECT_EQ(ff.iptcIIM()->dataSets()[0]->stringValue(), "Test");
  EXPECT_EQ(OrbPhotoshopFF::iptcIIMFromIRB(*ff.imageResourceBlockWithIRBID(1005)), nullptr);
  ff.replaceIRB(OrbImageResourceBlock(0, 1028, "new", Bytes{3}));  // the first of the id only
  EXPECT_EQ(ff.IRBs()[1].name(), "new");
  EXPECT_EQ(*ff.IRBs()[2].dataValue(), Bytes{2});
  ff.replaceIRB(OrbImageResourceBlock(0, 2000, std::nullopt, Bytes{3}));  // no such id
  ff.rmoveIRBWithID(1028);
  ASSERT_EQ(ff.IRBs().size(), 2u);
  EXPECT_EQ(*ff.IRBs()[1].dataValue(), Bytes{2});
}

TEST(PhotoshopTitles, TableThenRangesThenUnknown) {
  const std::pair<std::uint16_t, const char*> cases[] = {{1004, "Unknown"}, {1059, "Exif"}, {2998, "Path Info"},
      {2999, "Name of Clipping Path"}, {3000, "Unknown"}, {4999, "Plug-In resources"}, {5000, "Unknown"}};
  for (const auto& [id, title] : cases) EXPECT_EQ(OrbImageResourceBlock::titleWithID(id), title) << id;
}

TEST(PhotoshopDescriptions, DecodedLayoutsAndTheNameAndSizeFallback) {
  const Bytes resolution = be32(72 << 16) + Bytes{0, 1, 0, 1} + be32(0x00488000) + Bytes{0, 2, 0, 9};
  const Bytes pixelAspect = be32(1) + Bytes{0x3F, 0xF0, 0, 0, 0, 0, 0, 0};
  struct Case { std::uint16_t id; std::optional<std::string> name; Bytes data; std::string text; };
  const Case cases[] = {
      {1005, {}, resolution, "72ppi x 72.5ppc, Display width as inches, height as 9"},
      {1011, {}, {1, 0, 1, 0, 0, 0, 1, 0}, "Labels:YES, Crop Marks:NO, Color Bars:YES, Registration Marks:NO, "
                                           "Negative:NO, Flip:NO, Interpolate:YES, Caption:NO"},
      {1010, {}, {0, 2, 0, 1, 0, 2, 0, 3, 0, 4}, "CMYK <1, 2, 3, 4>"},
      {1028, {}, {1, 2}, "IPTC Information Interchange Model"}, {1050, {}, be32(7), "[Version: 7]"},
      {1032, {}, be32(1) + be32(0x0A0B0C0D) + be32(0x00000240) + be32(2),
       "[Version: 1]  [Grid Cycle: 0xABCD 0x00240]  [Guide Count: 2]"},
      {1050, {}, be32(6) + be32(1) + be32(2) + be32(3) + be32(4) + be32(4) + Bytes{0, 'a', 0x00, 0xE9, 0xD8, 0x3D, 0xDE, 0x00} + be32(5),
       "[Version: 6] [Top: 1 Left: 2 Bottom: 3 Right: 4] [a\xC3\xA9\xF0\x9F\x98\x80] [Slices Count: 5]"},
      {1057, {}, be32(1) + Bytes{1} + be32(1) + Bytes{0, 'W'} + be32(2) + Bytes{0, 'R', 0, 'd'} + be32(1),
       "[Version: 1] [Has Real Merged Data: YES] [Writer: W] [Reader: Rd] [File Version: 1]"},
      {1041, {}, {1}, "Intentionally Untagged"}, {1064, {}, pixelAspect, "[Version: 1] [Aspect Ratio: 1.0]"},
      {1061, {}, {0x0A, 0xFF, 0x00}, "0AFF00"}, {1069, {}, Bytes{0, 2} + be32(5), ", Data size: 6 bytes"},
      {1069, {}, Bytes{0, 2} + be32(5) + be32(6), "ID Count 2: ID 5, 6"},
      {10000, {}, Bytes{0, 1, 1, 0} + be32(3) + Bytes{0, 2}, "[Version: 1] [Center Crop Marks: YES] [Bleed Width: 3, Scale 2]"},
      {1036, "thumb", Bytes(40, 0), "Name: thumb, Data size: 40 bytes"}, {1039, {}, {7}, ", Data size: 1 byte"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(OrbImageResourceBlock(0, c.id, c.name, c.data).stringValue(), c.text) << c.id;
}

// ---- the records of a TIFF structure's IFD0 ----

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

TEST(TiffRecords, ReadSetAndRemoveTheRecordsOfIFD0) {
  const Bytes file = tiffWithRecords(static_cast<std::uint32_t>(kBlocks.size()));
  const auto tiff = parse(file);
  ASSERT_TRUE(tiff && photoshopFF(*tiff) && iptcIIM(*tiff));
  EXPECT_EQ(photoshopFF(*tiff)->data(), kBlocks);
  OrbPhotoshopFF changed = *photoshopFF(*tiff);
  changed.rmoveIRBWithID(1005);
  setPhotoshopFF(*tiff, &changed);
  ASSERT_TRUE(tiff->entryWithIFDTag(0x8649, kTIFFIFDID));
  EXPECT_EQ(tiff->entryWithIFDTag(0x8649, kTIFFIFDID)->dataCount(), changed.data().size());
  EXPECT_EQ(photoshopFF(*tiff)->data(), changed.data());
  setPhotoshopFF(*tiff, nullptr);
  EXPECT_EQ(tiff->entryWithIFDTag(0x8649, kTIFFIFDID), nullptr);
  setPhotoshopFF(*tiff, &changed);  // made again where there is no entry
  ASSERT_TRUE(photoshopFF(*tiff));
  const OrbPhotoshopFF empty;  // an empty record removes too
  setPhotoshopFF(*tiff, &empty);
  EXPECT_FALSE(photoshopFF(*tiff));
}

}  // namespace
