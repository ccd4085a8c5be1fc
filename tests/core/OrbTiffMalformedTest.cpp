// Malformed and hostile structures: the parse ends, keeps what it could
// read, and never reads outside the block (the sanitizer run checks that).

#include <gtest/gtest.h>

#include "core/OrbTiff.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;

constexpr std::uint16_t kMake = 0x010F;
constexpr std::uint16_t kModel = 0x0110;

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
