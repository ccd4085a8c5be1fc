// The single-file document on the real camera files: a shift saved in place
// changes only the 19 bytes of each kept date, at the positions the files'
// own structure gives, with the text the document holds.
#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "datetime/DateAdditions.h"
#include "documents/LumSingleFileDoc.h"
#include "support/TestData.h"

using namespace doctest_support;

namespace {

const char* const kKeys[DateTargets::kCount] = {"DateTimeOriginal", "DateTimeDigitized", "DateTime"};

TEST(SingleFileDocRealFiles, ShiftAndSaveWritesOnlyTheDateTexts) {
  LUMTEST_REQUIRE_REAL_DATA();
  ensureApplication();
  TempFolder folder;
  int saved = 0;
  for (const std::string& name : lumtest::realFileNames()) {
    const nlohmann::json& design = lumtest::expectedFor(name)["design"];
    if (!design.value("opens", false) || !design.value("editable", false) || !design["ambiguous"].empty()) continue;
    const std::filesystem::path path = folder / name;
    writeBytes(path, lumtest::readFile(*lumtest::realDataDir() / name));  // a writable copy
    const std::vector<std::uint8_t> before = readBytes(path);

    LumSingleFileDoc doc;
    ASSERT_TRUE(doc.readFromURL(path, "JPEG", nullptr)) << name;
    // Dates before year 1 cannot be shifted within the range; such files
    // are left out.
    if (!doc.changeDateWithYears(0, 0, 1, 0, 0, 1, true, DateTargets::kAllMask)) continue;
    ASSERT_TRUE(doc.saveFileAll(false, false, false))
        << name << ": " << doc.lastSaveOutcome().alert->informativeText.toStdString();
    ++saved;

    std::vector<std::uint8_t> expected = before;
    for (const DateTargets::Target& t : DateTargets::kTargets) {
      // A date of all zeros is passed over by a shift and keeps its bytes.
      if (design[kKeys[t.index]].is_null() || design[kKeys[t.index]] == "0000:00:00 00:00:00") continue;
      const std::size_t at = design["date_offsets"][kKeys[t.index]].get<std::size_t>();
      const std::string text = DateAdditions::tiffDateString(*doc.currentDates()[t.index]);
      std::copy(text.begin(), text.end(), expected.begin() + static_cast<std::ptrdiff_t>(at));
    }
    EXPECT_EQ(readBytes(path), expected) << name;
    EXPECT_FALSE(doc.hasEditedFile()) << name;
  }
  EXPECT_GT(saved, 0);
}

}  // namespace
