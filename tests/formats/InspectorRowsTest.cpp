#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "ImageFileTestSupport.h"
#include "core/CatalogueTestEntries.h"
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

using cattest::rationals;
using cattest::text;

OrbTiff tiffOf(std::int8_t endian, const std::vector<OrbIFDEntry>& entries) {
  OrbTiff tiff;
  tiff.setEndian(endian);
  for (const OrbIFDEntry& e : entries) tiff.setEntry(e);
  return tiff;
}

TEST(InspectorRows, JpegWithOnlyJFIFShowsItsContainerAndTheJFIFGroup) {
  const lumtest::Opened opened = lumtest::openBytes(lumtest::JpegBuilder().jfif(1, 2, 1, 300, 300).build());
  ASSERT_TRUE(opened.file) << opened.error.domain << opened.error.code;
  LumInfoDataSource source;
  source.setImageFile(opened.file.get());
  EXPECT_EQ(texts(source.IFDDataSources()),
            (std::vector<std::string>{"# File", "File|Container|JPEG", "# JFIF", "JFIF|JFIF Version|1.2",
                                      "JFIF|Density Unit|dpi", "JFIF|X Density|300", "JFIF|Y Density|300"}));
  EXPECT_TRUE(source.isHeadingRow(0));
  // Headings, other columns and rows past the last have no value.
  EXPECT_EQ(source.objectValue("Value", 0) + source.objectValue("Other", 2) + source.objectValue("Value", 99), "");
}

TEST(InspectorRows, DateRowsShowTheDatesAsOpened) {
  const std::int8_t I = kOrbLittleEndian;
  const OrbTiff tiff = tiffOf(I, {text(I, 306, kTIFFIFDID, "2024:01:01 00:00:00"),
                                  text(I, 36867, kExifIFDID, "2024:01:01 00:00:00"),
                                  text(I, 36868, kExifIFDID, "    :  :     :  :  "), text(I, 37521, kExifIFDID, "25")});
  // An edited, unsaved DateTimeOriginal; a blank DateTimeDigitized that was not kept.
  const LumInfoOriginalDates dates{"2019:05:06 07:08:09", std::nullopt, "2018:01:02 03:04:05"};
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&tiff, nullptr, dates)),
            (std::vector<std::string>{"# TIFF", "TIFF|Byte Order|Little Endian", "TIFF|Date Time|2018:01:02 03:04:05",
                                      "# Exif", "Exif|Date Time Original|2019:05:06 07:08:09",
                                      "Exif|Date Time Digitized|", "Exif|Subsecond Time Original|25"}));
}

TEST(InspectorRows, GPSValuesWithTheirReferences) {
  const std::int8_t M = kOrbBigEndian;
  const OrbTiff tiff = tiffOf(M, {text(M, 1, kGPSIFDID, "S"), rationals(M, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1}),
                                  text(M, 3, kGPSIFDID, "W"), rationals(M, 4, kGPSIFDID, {139, 1, 45, 1, 36, 1}),
                                  cattest::withBytes(M, 5, kGPSIFDID, kOrbTypeByte, 1, {1}),
                                  rationals(M, 6, kGPSIFDID, {105, 10}),
                                  rationals(M, 7, kGPSIFDID, {13, 1, 5, 1, 725, 100}), text(M, 29, kGPSIFDID, "2021:06:30")});
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&tiff, nullptr, {})),
            (std::vector<std::string>{"# GPS", "GPS|GPS Latitude|35\u00B0 30' 0.00\" S (-35.5)",
                                      "GPS|GPS Longitude|139\u00B0 45' 36.00\" W (-139.76)",
                                      "GPS|GPS Altitude Reference|Below Sea Level",
                                      "GPS|GPS Altitude|10.5 m below sea level", "GPS|GPS Date Stamp|2021:06:30",
                                      "GPS|GPS Time Stamp|13:05:07.25"}));
  // Without references the values stay positive and carry no letter.
  const OrbTiff bare = tiffOf(M, {rationals(M, 2, kGPSIFDID, {35, 1, 30, 1, 0, 1}),
                                  rationals(M, 6, kGPSIFDID, {105, 10})});
  EXPECT_EQ(texts(LumInfoDataSource::rowsFor(&bare, nullptr, {})),
            (std::vector<std::string>{"# GPS", "GPS|GPS Latitude|35\u00B0 30' 0.00\" (35.5)",
                                      "GPS|GPS Altitude|10.5 m"}));
}

// The container group leads the rows when the format is known; each part
// of the Exif's place is a word of its own for translation.
TEST(InspectorRows, ContainerGroup) {
  Localization::setLookup([](std::string_view table, std::string_view key) -> std::optional<std::string> {
    if (table == Localization::kIFDTable && key == "CMT2 box") return "Box 2";
    return std::nullopt;
  });
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"", "APP1 segment", nullptr}, {"PNG", "", "PNG"}, {"CR3", "CMT1 box, CMT2 box", "CR3, CMT1 box, Box 2"}};
  for (const auto& [container, place, shown] : cases)
    EXPECT_EQ(texts(LumInfoDataSource::containerRows(container, place)),
              (shown ? std::vector<std::string>{"# File", std::string("File|Container|") + shown}
                     : std::vector<std::string>{}));
  Localization::setLookup({});
}

TEST(InspectorRows, FollowsTheShownFile) {
  const lumtest::Opened a = lumtest::openBytes(lumtest::JpegBuilder().jfif(1, 1).build());
  const lumtest::Opened b = lumtest::openBytes(lumtest::JpegBuilder().jfif(1, 2).build());
  ASSERT_TRUE(a.file && b.file);
  LumInfoDataSource source;
  EXPECT_TRUE(source.imageFileDidChange(a.file.get()));
  EXPECT_FALSE(source.imageFileDidChange(a.file.get()));  // already shown
  EXPECT_FALSE(source.imageFileDidSave(b.file.get()));     // not the shown file
  EXPECT_TRUE(source.imageFileDidSave(a.file.get()));
  EXPECT_TRUE(source.imageFileDidChange(b.file.get()));
  EXPECT_EQ(source.objectValue("Value", 3), "1.2");
  EXPECT_TRUE(source.imageFileDidChange(nullptr));         // no file: an empty table
  EXPECT_EQ(source.numberOfRows(), 0u);
  EXPECT_FALSE(source.imageFileDidSave(nullptr));
}

}  // namespace
