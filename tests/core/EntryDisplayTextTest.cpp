#include <gtest/gtest.h>

#include "CatalogueTestEntries.h"
#include "core/ExifDateText.h"

using namespace cattest;

namespace {

using Bytes = std::vector<std::uint8_t>;
constexpr std::int8_t B = kOrbBigEndian, L = kOrbLittleEndian;
Bytes bytesOf(std::span<const std::uint8_t> s) { return Bytes(s.begin(), s.end()); }

TEST(EntryDisplay, ReadableTexts) {
  const std::pair<OrbIFDEntry, const char*> cases[] = {
      {shorts(L, 530, kTIFFIFDID, 2, 1), "YCbCr 4:2:2"}, {shorts(L, 0x0100, kTIFFIFDID, 640), "640"},
      {rationals(B, 0x829A, kExifIFDID, {3, 1000}), "1/333.3 s"}, {rationals(B, 0x829A, kExifIFDID, {13, 10}), "1.3 s"},
      {rationals(B, 0x829A, kExifIFDID, {1, 0}), "1/0"}, {rationals(L, 0x829D, kExifIFDID, {28, 10}), "f/2.8"},
      {shorts(L, 0xA405, kExifIFDID, 50), "50 mm"}, {rationals(B, 0x9206, kExifIFDID, {0xFFFFFFFF, 1}), "Infinity"},
      {rationals(B, 0xA432, kExifIFDID, {24, 1, 70, 1, 28, 10, 4, 1}), "24-70mm F2.8-4"},
      {rationals(L, 0xA432, kExifIFDID, {50, 1, 50, 1, 18, 10, 0, 0}), "50mm F1.8-?"},
      {withBytes(B, 0x9214, kExifIFDID, kOrbTypeShort, 4, {0, 10, 0, 20, 0, 5, 0, 6}),
       "Center Coordinates (10, 20), Area Size 5 x 6"},
      {withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'}), "2.31"},
      {withBytes(B, 0x9101, kExifIFDID, kOrbTypeUndefined, 4, {1, 2, 3, 0}), "YCbCr"},
      {withBytes(B, 0xA300, kExifIFDID, kOrbTypeUndefined, 1, {3}), "DSC"},
      {withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 3, 0, 0}), "2.3.0.0"},
      {rationals(B, 4, kGPSIFDID, {139, 1, 59, 1, 59999, 1000}), "140\u00B0 0' 0.00\""}};
  for (const auto& [entry, shown] : cases) EXPECT_EQ(entry.stringData(), shown) << entry.title();
}

TEST(EntryDisplay, TitlesAndVersionRulesOfAnEntry) {
  OrbIFDEntry iso = shorts(B, 0x8827, kExifIFDID, 100, {}, 221);
  EXPECT_EQ(iso.title(), "ISO Speed Ratings");
  iso.setVersion(230);
  EXPECT_EQ(iso.title(), "Photographic Sensitivity");
  OrbIFDEntry utf8Light = shorts(B, 37384, kExifIFDID, 1);
  utf8Light.setType(kOrbTypeUTF8);
  const OrbIFDEntry exif231 = withBytes(B, 0x9000, kExifIFDID, kOrbTypeUndefined, 4, {'0', '2', '3', '1'});
  const OrbIFDEntry gps22 = withBytes(B, 0, kGPSIFDID, kOrbTypeByte, 4, {2, 2, 0, 0});
  const std::tuple<OrbIFDEntry, std::uint32_t, bool> cases[] = {
      {shorts(B, 37384, kExifIFDID, 16), 221, false}, {utf8Light, 232, false}, {utf8Light, 300, true}, {exif231, 232, false}, {exif231, 231, true},
      {gps22, 2300, false}, {gps22, 2200, true}, {text(B, 42036, kExifIFDID, "Lens"), 221, false}};
  for (const auto& [entry, version, compatible] : cases)
    EXPECT_EQ(entry.isCompatibleWithVersion(version), compatible) << entry.title() << " " << version;
}

TEST(EntryMaking, NewEntriesGetTheirCataloguedContent) {
  const std::tuple<std::uint16_t, std::uint32_t, std::uint16_t, std::uint32_t> cases[] = {
      {29, kGPSIFDID, kOrbTypeASCII, 11}, {36864, kExifIFDID, kOrbTypeUndefined, 4}, {306, kTIFFIFDID, kOrbTypeASCII, 0},
      {297, kTIFFIFDID, kOrbTypeShort, 2}, {0xA20D, kExifIFDID, 0, 0}, {271, 0x50000, 0, 0}};  // unknown: untyped
  for (const auto& [tag, ifd, type, count] : cases) {
    const auto e = OrbIFDEntry::initWithEndian(L, tag, ifd);
    EXPECT_EQ(std::tuple(e->type(), e->dataCount(), e->hasValue()), std::tuple(type, count, false)) << tag;
  }
  using Maker = std::unique_ptr<OrbIFDEntry> (*)(std::int8_t);
  const std::tuple<Maker, std::uint16_t, std::uint32_t, std::uint16_t, Bytes, std::uint32_t> made[] = {
      {&OrbIFDEntry::defaultExifVersionEntry, 36864, kExifIFDID, kOrbTypeUndefined, {'0', '2', '3', '2'}, 232},
      {&OrbIFDEntry::defaultGPSVersionEntry, 0, kGPSIFDID, kOrbTypeByte, {2, 3, 0, 0}, 2300},
      {&OrbIFDEntry::latestInteroperabilityVersionEntry, 2, kInteroperabilityIFDID, kOrbTypeUndefined,
       {'0', '1', '0', '0'}, 0},
      {&OrbIFDEntry::InteroperabilityIndexR98Entry, 1, kInteroperabilityIFDID, kOrbTypeASCII, {'R', '9', '8', 0}, 0},
      {&OrbIFDEntry::IFDExifPointerEntry, 34665, kTIFFIFDID, kOrbTypeLong, {0, 0, 0, 0}, 0},
      {&OrbIFDEntry::IFDInteroperabilityPointerEntry, 40965, kExifIFDID, kOrbTypeLong, {0, 0, 0, 0}, 0}};
  for (const std::int8_t endian : {B, L})
    for (const auto& [make, tag, ifd, type, data, version] : made) {
      const auto e = make(endian);
      EXPECT_EQ(e->itemID(), (IFDItemID{ifd, tag}));
      EXPECT_EQ(std::tuple(e->type(), e->dataCount(), bytesOf(e->dataPtr()), e->version()),
                std::tuple(type, type == kOrbTypeLong ? 1u : 4u, data, version)) << tag;
    }
}

TEST(EntryMaking, TimeStampAndDateTexts) {
  constexpr std::int64_t k20210630_235958 = 1625097598;
  const auto little = OrbIFDEntry::timeStampEntry(L, k20210630_235958, std::nullopt);
  EXPECT_EQ(little->dataCount(), 3u);
  EXPECT_EQ(bytesOf(little->value()),
            (Bytes{0x17, 0, 0, 0, 1, 0, 0, 0, 0x3B, 0, 0, 0, 1, 0, 0, 0, 0xA8, 0x16, 0, 0, 0x64, 0, 0, 0}));
  // Two hours east of UTC it is already 01:59:58.
  EXPECT_EQ(OrbIFDEntry::timeStampEntry(B, k20210630_235958, 7200)->stringData(), "01:59:58.00");
  const auto now = OrbIFDEntry::entryIFDDateTime(L);
  EXPECT_EQ(now->dataCount(), 20u);
  ASSERT_EQ(now->value().size(), 20u);
  EXPECT_EQ(now->value()[4], ':');
  EXPECT_EQ(orb::exifDateText(1625097598, -86400), "2021:06:29 23:59:58");
  EXPECT_EQ(orb::exifDateText(-62135596801, {}), "0000:12:31 23:59:59");  // 1 BC
}

}  // namespace
