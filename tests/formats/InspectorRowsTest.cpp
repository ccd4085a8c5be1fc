#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ImageFileTestSupport.h"
#include "core/Localization.h"
#include "core/OrbTiff.h"
#include "formats/inspector/LumInfoDataSource.h"

namespace {

using Kind = LumInfoRowKind;

// One row as "group|title|value", headings as "# heading".
std::vector<std::string> texts(const std::vector<LumInfoRow>& rows) {
  std::vector<std::string> out;
  for (const LumInfoRow& r : rows)
    out.push_back(r.kind == Kind::Heading ? "# " + r.tagName : r.group + "|" + r.tagName + "|" + r.value);
  return out;
}

OrbIFDEntry textEntry(std::int8_t endian, std::uint16_t tag, std::uint32_t ifd, std::string_view text) {
  auto e = OrbIFDEntry::initWithEndian(endian, tag, ifd);
  e->setASCIIString(text);
  return *e;
}

OrbIFDEntry shortEntry(std::int8_t endian, std::uint16_t tag, std::uint32_t ifd, std::uint16_t value) {
  auto e = OrbIFDEntry::initWithEndian(endian, tag, ifd);
  e->setType(kOrbTypeShort);
  e->setDataCount(1);
  e->setDataShort1(value);
  return *e;
}

OrbIFDEntry rationalEntry(std::int8_t endian, std::uint16_t tag, std::uint32_t ifd,
                          std::initializer_list<std::uint32_t> numbers) {
  auto e = OrbIFDEntry::initWithEndian(endian, tag, ifd);
  e->setType(kOrbTypeRational);
  e->setDataCount(static_cast<std::uint32_t>(numbers.size() / 2));
  std::vector<std::uint8_t> bytes;
  for (const std::uint32_t n : numbers)
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<std::uint8_t>(n >> (endian == kOrbBigEndian ? 24 - 8 * i : 8 * i)));
  e->setValue(bytes);
  return *e;
}

OrbIFDEntry byteEntry(std::int8_t endian, std::uint16_t tag, std::uint32_t ifd, std::uint8_t value) {
  auto e = OrbIFDEntry::initWithEndian(endian, tag, ifd);
  e->setType(kOrbTypeByte);
  e->setDataCount(1);
  const std::uint8_t bytes[] = {value, 0, 0, 0};
  e->setDataPtr(bytes);
  return *e;
}

OrbTiff tiffOf(std::int8_t endian, const std::vector<OrbIFDEntry>& entries) {
  OrbTiff tiff;
  tiff.setEndian(endian);
  for (const OrbIFDEntry& e : entries) tiff.setEntry(e);
  return tiff;
}

TEST(InspectorRows, JpegWithOnlyJFIFShowsOnlyTheJFIFGroup) {
  const lumtest::Opened opened = lumtest::openBytes(lumtest::JpegBuilder().jfif(1, 2, 1, 300, 300).build());
  ASSERT_TRUE(opened.file) << opened.error.domain << opened.error.code;
  LumInfoDataSource source;
  source.setImageFile(opened.file.get());
  EXPECT_EQ(texts(source.IFDDataSources()),
            (std::vector<std::string>{"# JFIF", "JFIF|JFIF Version|1.2", "JFIF|Density Unit|dpi",
                                      "JFIF|X Density|300", "JFIF|Y Density|300"}));
  EXPECT_TRUE(source.isHeadingRow(0));
  EXPECT_FALSE(source.isHeadingRow(1));
  EXPECT_EQ(source.objectValue("TagName", 0), "JFIF");
  EXPECT_EQ(source.objectValue("Value", 0), "");
  EXPECT_EQ(source.objectValue("Value", 2), "dpi");
  EXPECT_EQ(source.objectValue("Other", 2), "");
  EXPECT_EQ(source.objectValue("Value", 99), "");
}

TEST(InspectorRows, BigEndianTiffStartsWithItsByteOrderAndKeepsDisplayOrder) {
  const std::int8_t M = kOrbBigEndian;
  const OrbTiff tiff = tiffOf(M, {
      shortEntry(M, 274, kTIFFIFDID, 6),
      textEntry(M, 272, kTIFFIFDID, "Model Z"),
      textEntry(M, 271, kTIFFIFDID, "Maker"),
      textEntry(M, 306, kTIFFIFDID, "2001:02:03 04:05:06"),
      shortEntry(M, 0x0100, kTIFFIFDID, 640),
      shortEntry(M, 273, kTIFFIFDID, 8),  // StripOffsets: not listed
  });
  const auto rows = LumInfoDataSource::rowsFor(&tiff, nullptr, {{}, {}, "2001:02:03 04:05:06"});
  EXPECT_EQ(texts(rows), (std::vector<std::string>{"# TIFF", "TIFF|Byte Order|Big Endian",
                                                   "TIFF|Date Time|2001:02:03 04:05:06", "TIFF|Make|Maker",
                                                   "TIFF|Model|Model Z", "TIFF|Orientation|6 Right-Top",
                                                   "TIFF|Image Width|640"}));
  ASSERT_TRUE(rows[1].entry);
  EXPECT_EQ(rows[1].entry->ifdTag(), 0);
  EXPECT_TRUE(rows[1].entry->isBigEndian());
  EXPECT_EQ(LumInfoDataSource::byteOrderEntry(kOrbLittleEndian).stringData(), "Little Endian");
  EXPECT_EQ(LumInfoDataSource::byteOrderEntry(kOrbLittleEndian).dataCount(), 14u);
  EXPECT_EQ(&LumInfoDataSource::byteOrderEntry(kOrbBigEndian), &LumInfoDataSource::byteOrderEntry(kOrbBigEndian));
}

TEST(InspectorRows, GroupsWithoutListedTagsHaveNoHeading) {
  const std::int8_t I = kOrbLittleEndian;
  // The Exif IFD holds only tags the inspector does not list; GPS only its references.
  const OrbTiff tiff = tiffOf(I, {
      textEntry(I, 271, kTIFFIFDID, "Maker"),
      shortEntry(I, 0x8769, kTIFFIFDID, 0),
      textEntry(I, 0xA434, kExifIFDID, "Lens"),
      shortEntry(I, 0x1234, kExifIFDID, 1),
      textEntry(I, 1, kGPSIFDID, "N"),
      textEntry(I, 1, kInteroperabilityIFDID, "R98"),
  });
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&tiff, nullptr, {})),
            (std::vector<std::string>{"# TIFF", "TIFF|Byte Order|Little Endian", "TIFF|Make|Maker",
                                      "# Interoperability", "Interoperability|Interoperability Index|R98"}));
  EXPECT_TRUE(LumInfoDataSource::rowsFor(nullptr, nullptr, {}).empty());
  const OrbTiff empty;
  EXPECT_TRUE(LumInfoDataSource::rowsFor(&empty, nullptr, {}).empty());
}

TEST(InspectorRows, DateRowsShowTheDatesAsOpened) {
  const std::int8_t I = kOrbLittleEndian;
  const OrbTiff tiff = tiffOf(I, {
      textEntry(I, 306, kTIFFIFDID, "2024:01:01 00:00:00"),
      textEntry(I, 36867, kExifIFDID, "2024:01:01 00:00:00"),
      textEntry(I, 36868, kExifIFDID, "    :  :     :  :  "),
      textEntry(I, 37521, kExifIFDID, "25"),
  });
  // An edited, unsaved DateTimeOriginal; a blank DateTimeDigitized that was not kept.
  const LumInfoOriginalDates dates{"2019:05:06 07:08:09", std::nullopt, "2018:01:02 03:04:05"};
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&tiff, nullptr, dates)),
            (std::vector<std::string>{"# TIFF", "TIFF|Byte Order|Little Endian", "TIFF|Date Time|2018:01:02 03:04:05",
                                      "# Exif", "Exif|Date Time Original|2019:05:06 07:08:09",
                                      "Exif|Date Time Digitized|", "Exif|Subsecond Time Original|25"}));
}

TEST(InspectorRows, GPSValuesWithTheirReferences) {
  const std::int8_t M = kOrbBigEndian;
  const OrbTiff tiff = tiffOf(M, {
      textEntry(M, 1, kGPSIFDID, "S"),
      rationalEntry(M, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1}),
      textEntry(M, 3, kGPSIFDID, "W"),
      rationalEntry(M, 4, kGPSIFDID, {139, 1, 45, 1, 36, 1}),
      byteEntry(M, 5, kGPSIFDID, 1),
      rationalEntry(M, 6, kGPSIFDID, {105, 10}),
      rationalEntry(M, 7, kGPSIFDID, {13, 1, 5, 1, 725, 100}),
      textEntry(M, 29, kGPSIFDID, "2021:06:30"),
  });
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&tiff, nullptr, {})),
            (std::vector<std::string>{"# GPS", "GPS|GPS Latitude|35\u00B0 30' 0.00\" S (-35.5)",
                                      "GPS|GPS Longitude|139\u00B0 45' 36.00\" W (-139.76)",
                                      "GPS|GPS Altitude Reference|Below Sea Level",
                                      "GPS|GPS Altitude|10.5 m below sea level", "GPS|GPS Date Stamp|2021:06:30",
                                      "GPS|GPS Time Stamp|13:05:07.25"}));
  // Without references the values stay positive and carry no letter.
  const OrbTiff bare = tiffOf(M, {rationalEntry(M, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1}),
                                  rationalEntry(M, 6, kGPSIFDID, {105, 10})});
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&bare, nullptr, {})),
            (std::vector<std::string>{"# GPS", "GPS|GPS Latitude|35\u00B0 30' 0.00\" (35.5)",
                                      "GPS|GPS Altitude|10.5 m"}));
}

TEST(InspectorRows, TitlesKeysAndWordsAreLocalized) {
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    if (table != "IFD") return std::nullopt;
    if (key == "Make") return std::string("Hersteller");
    if (key == "Density Unit") return std::string("Dichteeinheit");
    if (key == "dpi") return std::string("dpi (Zoll)");
    if (key == "Big Endian") return std::string("Motorola");
    if (key == "6 Right-Top") return std::string("6 Rechts oben");
    return std::nullopt;
  });
  const std::int8_t M = kOrbBigEndian;
  const OrbTiff tiff = tiffOf(M, {textEntry(M, 271, kTIFFIFDID, "dpi"), shortEntry(M, 274, kTIFFIFDID, 6)});
  const LumImageFile::JFIFDictionary jfif{{"Density Unit", "dpi"}};
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&tiff, &jfif, {})),
            (std::vector<std::string>{"# JFIF", "JFIF|Dichteeinheit|dpi (Zoll)", "# TIFF", "TIFF|Byte Order|Motorola",
                                      "TIFF|Hersteller|dpi",  // an ASCII value is the file's own text
                                      "TIFF|Orientation|6 Rechts oben"}));
  Localization::setLookup({});
}

TEST(InspectorRows, FollowsTheShownFile) {
  const lumtest::Opened a = lumtest::openBytes(lumtest::JpegBuilder().jfif(1, 1).build());
  const lumtest::Opened b = lumtest::openBytes(lumtest::JpegBuilder().jfif(1, 2).build());
  ASSERT_TRUE(a.file && b.file);
  LumInfoDataSource source;
  EXPECT_TRUE(source.imageFileDidChange(a.file.get()));
  EXPECT_FALSE(source.imageFileDidChange(a.file.get()));  // already shown
  EXPECT_EQ(source.objectValue("Value", 1), "1.1");
  EXPECT_FALSE(source.imageFileDidSave(b.file.get()));     // not the shown file
  EXPECT_TRUE(source.imageFileDidSave(a.file.get()));
  EXPECT_TRUE(source.imageFileDidChange(b.file.get()));
  EXPECT_EQ(source.objectValue("Value", 1), "1.2");
  EXPECT_TRUE(source.imageFileDidChange(nullptr));         // no file: an empty table
  EXPECT_EQ(source.numberOfRows(), 0u);
  EXPECT_FALSE(source.imageFileDidSave(nullptr));
}

TEST(InspectorRows, TagListsAreTheDisplayLists) {
  EXPECT_EQ(LumInfoDataSource::_displayIFDTags_TIFF().size(), 27u);
  EXPECT_EQ(LumInfoDataSource::_displayIFDTags_Exif().size(), 47u);
  EXPECT_EQ(LumInfoDataSource::_displayIFDTags_Interoperability().size(), 5u);
  EXPECT_EQ(LumInfoDataSource::_displayIFDTags_GPS().size(), 8u);
  for (const auto list : {LumInfoDataSource::_displayIFDTags_TIFF(), LumInfoDataSource::_displayIFDTags_Exif()})
    for (const std::uint16_t tag : list) {
      EXPECT_NE(tag, 34665);  // pointer tags are never rows
      EXPECT_NE(tag, 34853);
    }
}

}  // namespace
