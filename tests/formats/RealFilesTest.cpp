// Every real camera file opens (or fails) exactly as its expected record in
// expected.json says: error code, TIFF header, kept dates, sub-second texts,
// date value offsets, JFIF fields and segment ranges.
#include <gtest/gtest.h>

#include <set>

#include "formats/ImageFileTestSupport.h"
#include "formats/ShownRecord.h"
#include "support/TestData.h"

namespace {

using nlohmann::json;
using lumtest::shown;

TEST(RealFiles, EveryFileAgreesWithItsExpectedRecord) {
  LUMTEST_REQUIRE_REAL_DATA();
  const auto names = lumtest::realFileNames();
  ASSERT_FALSE(names.empty());
  for (const std::string& name : names) {
    // A listing reads the dates without the TIFF structure whenever that
    // gives the same texts; both ways must agree with the record.
    for (const auto holding : {LumImageFile::Holding::Kept, LumImageFile::Holding::DatesOnly}) {
      SCOPED_TRACE(name + (holding == LumImageFile::Holding::Kept ? ", kept" : ", dates only"));
      const json& expected = lumtest::expectedFor(name).at("design");
      LumError error;
      const auto file = LumImageFile::imageFileWithURL(*lumtest::realDataDir() / name, &error, holding);
      if (!expected.at("opens").get<bool>()) {
        EXPECT_EQ(file, nullptr);
        EXPECT_EQ(error.domain, "LumErrorDomain");
        EXPECT_EQ(json(error.code), expected.at("error_code"));
        continue;
      }
      ASSERT_TRUE(file) << error.code << " " << error.reason;
      const json got = shown(*file);
      std::set<std::string> skipped;
      for (const auto& field : expected.at("ambiguous")) skipped.insert(field.is_string() ? field.get<std::string>() : "");
      // A listing holds no TIFF structure, only the texts it prints. A
      // document finds its dates where the structure it reads later has them.
      if (holding == LumImageFile::Holding::DatesOnly) skipped.insert({"tiffHeaderLocation", "date_offsets"});
      for (const auto& [key, value] : got.items()) EXPECT_TRUE(skipped.count(key) || value == expected.at(key)) << key << ": " << value;
      if (holding == LumImageFile::Holding::DatesOnly) continue;
      // The thumbnail fits the table's box.
      lumtest::PathOwner owner(*lumtest::realDataDir() / name);
      file->setOwnerDocument(&owner);
      file->makeThumbnail();
      const auto thumb = file->thumbnail();
      ASSERT_TRUE(thumb && thumb->isConsistent());
      EXPECT_TRUE(thumb->width <= 150 && thumb->height <= 150) << thumb->width << "x" << thumb->height;
    }
  }
}

// Cut copies of every real file: the scan must treat a short file as having
// nothing there (or refuse it), never read past its end. Run under the
// sanitizers this catches any unbounded read.
TEST(RealFiles, CutFilesOpenOrFailCleanly) {
  LUMTEST_REQUIRE_REAL_DATA();
  for (const std::string& name : lumtest::realFileNames()) {
    SCOPED_TRACE(name);
    const auto bytes = lumtest::readFile(*lumtest::realDataDir() / name);
    std::vector<std::size_t> cuts = {1, 2, 3, 4, bytes.size() / 2, bytes.size() - 1};
    for (std::size_t n = 5; n < std::min<std::size_t>(bytes.size(), 1000); n += 53) cuts.push_back(n);
    for (const std::size_t n : cuts) {
      if (n > bytes.size()) continue;
      const auto [file, error] = lumtest::openBytes(lumtest::Bytes(bytes.begin(), bytes.begin() + std::ptrdiff_t(n)));
      if (!file) {
        EXPECT_TRUE(error.code == -1 || error.code == -2) << n;
        continue;
      }
      // A kept date always lies inside the bytes.
      for (const LumDateField field : {LumDateField::DateTimeOriginal, LumDateField::DateTimeDigitized,
                                       LumDateField::DateTime}) {
        const auto offset = file->dateValueOffset(field);
        if (file->originalString(field) && offset) {
          EXPECT_LE(*offset + 19, n) << n;
        }
      }
    }
  }
}

}  // namespace
