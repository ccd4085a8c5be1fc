// The real TIFF files: where the three dates are written, as each file's
// design record says.

#include <gtest/gtest.h>

#include <map>

#include "core/OrbTiff.h"
#include "support/TestData.h"

namespace {

struct DateEntry {
  const char* name;
  std::uint16_t tag;
  std::uint32_t ifdID;
};
constexpr DateEntry kDates[] = {
    {"DateTimeOriginal", kDateTimeOriginalTag, kExifIFDID},
    {"DateTimeDigitized", kDateTimeDigitizedTag, kExifIFDID},
    {"DateTime", kDateTimeTag, kTIFFIFDID},
};

TEST(TiffConformance, DateOffsetsOfTheRealTiffFiles) {
  LUMTEST_REQUIRE_REAL_DATA();
  int checked = 0;
  for (const std::string& name : lumtest::realFileNames()) {
    const auto& record = lumtest::expectedFor(name);
    const std::string format = record.at("format");
    if (format != "TIFF" && format != "BigTIFF") continue;
    const auto& design = record.at("design");
    // Whether the file opens is the image decoder's verdict, not the parser's.
    if (!design.at("opens").get<bool>()) continue;
    SCOPED_TRACE(name);

    const auto bytes = lumtest::readFile(*lumtest::realDataDir() / name);
    std::uint64_t location = 0;
    const auto tiff = OrbTiff::exifWithPtr(bytes, &location, bytes.size());
    if (design.at("tiffHeaderLocation").is_null()) {
      EXPECT_EQ(tiff, nullptr);
      continue;
    }
    ASSERT_NE(tiff, nullptr);
    EXPECT_EQ(tiff->tiffHeaderLocation(), design.at("tiffHeaderLocation").get<std::uint64_t>());

    std::map<std::string, std::uint64_t> found, expected;
    for (const auto& d : kDates)
      if (const OrbIFDEntry* entry = tiff->entryWithIFDTag(d.tag, d.ifdID))
        found[d.name] = entry->data() + tiff->tiffHeaderLocation();
    for (const auto& [key, offset] : design.at("date_offsets").items()) expected[key] = offset.get<std::uint64_t>();
    EXPECT_EQ(found, expected);
    ++checked;
  }
  EXPECT_GE(checked, 6);
}

}  // namespace
