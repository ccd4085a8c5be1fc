// The real files of other photo formats through lumidate-cli: `dates --json`
// gives the dates exiftool reads (or a clear refusal), and a shift by one
// hour changes nothing but the date texts, their copies and a PNG's one CRC,
// after which exiftool reads the new dates.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <set>

#include "PhotoFiles.h"
#include "formats/ByteViewReader.h"
#include "formats/containers/PngChunks.h"
#include "support/CliRun.h"
#include "support/TestData.h"

using namespace doctest_support;
using lumtest::runCli;
using lumtest::shellQuoted;
using nlohmann::json;

namespace {

struct DateName { const char* ours; const char* exiftool; };
constexpr DateName kDates[] = {
    {"DateTimeOriginal", "DateTimeOriginal"}, {"DateTimeDigitized", "CreateDate"}, {"DateTime", "ModifyDate"}};

struct Sample { json record; std::vector<std::uint8_t> bytes; };

std::string nameOf(const Sample& s) { return s.record.at("file"); }
bool refused(const Sample& s) {
  const std::string format = s.record.at("format"), name = nameOf(s);
  return format.find("(video)") != std::string::npos || name.find("header-only") != std::string::npos;
}

// The date as the program should read it: exiftool's text where the file
// keeps the date in an Exif entry (its own or a copy), none where exiftool
// found it elsewhere (a PNG's hex text chunk).
std::optional<std::string> expectedDate(const Sample& s, const DateName& d) {
  const json& offsets = s.record.at("date_offsets");
  const json& value = s.record.at("exiftool").at(d.exiftool);
  bool inEntry = !offsets.at(d.exiftool).is_null();
  for (const json& copy : offsets.at("secondary_entries")) inEntry |= copy.at("name") == d.exiftool;
  if (!inEntry || value.is_null()) return std::nullopt;
  return value.get<std::string>();
}

// The bytes a shift may write: 19 at each date entry and copy.
std::set<std::size_t> datePositions(const Sample& s) {
  std::set<std::size_t> at;
  const json& offsets = s.record.at("date_offsets");
  std::vector<std::size_t> starts;
  for (const DateName& d : kDates)
    if (offsets.at(d.exiftool).is_array()) starts.push_back(offsets.at(d.exiftool).at(0).get<std::size_t>());
  for (const json& copy : offsets.at("secondary_entries")) starts.push_back(copy.at("value_offset").get<std::size_t>());
  for (const std::size_t start : starts)
    for (std::size_t i = 0; i < 19; ++i) at.insert(start + i);
  return at;
}

const json* entryFor(const json& list, const std::string& name, const char* pathKey) {
  for (const json& e : list)
    if (std::filesystem::path(e.value(pathKey, "")).filename() == name) return &e;
  return nullptr;
}

bool pngCrcsRight(const std::vector<std::uint8_t>& file) {
  return lum::containers::pngCrcsAreRight(file.size(), lum::readerOver(orb::ByteView(file.data(), file.size())));
}

class FormatsShift : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::filesystem::path dir = LUMIDATE_FORMATS_TESTDATA;
    std::ifstream in(dir / "expected.json");
    if (!in) GTEST_SKIP() << "format test files not found in " << dir << "; conformance test skipped";
    for (const json& record : json::parse(in)) {
      samples.push_back({record, lumtest::readFile(dir / record.at("file").get<std::string>())});
      writeBytes(folder / nameOf(samples.back()), samples.back().bytes);
      ::chmod((folder / nameOf(samples.back())).c_str(), 0644);
    }
  }
  TempFolder folder;
  std::vector<Sample> samples;
};

TEST_F(FormatsShift, DatesAreReadAsExiftoolReadsThem) {
  // Named one by one: a folder's videos are passed over, a named one is refused.
  const auto run = lumtest::runCliStdout("dates --json " + shellQuoted(folder.path().string()) + "/*");
  const json listed = json::parse(run.out);
  for (const Sample& s : samples) {
    SCOPED_TRACE(nameOf(s));
    const json* entry = entryFor(listed, nameOf(s), "path");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->contains("error"), refused(s)) << entry->dump();
    if (refused(s)) {
      EXPECT_FALSE(entry->at("error").value("reason", "").empty());
      continue;
    }
    const std::string format = s.record.at("format");
    EXPECT_EQ(entry->value("container", json()), format.substr(0, format.find(' ')));
    for (const DateName& d : kDates) {
      const auto want = expectedDate(s, d);
      const json shown = entry->value(d.ours, json());
      EXPECT_EQ(shown.is_string() ? std::optional(shown.get<std::string>()) : std::nullopt, want) << d.ours;
    }
  }
}

TEST_F(FormatsShift, ShiftWritesOnlyDatesAndExiftoolReadsThem) {
  const lumtest::CliRun run = runCli("shift --hours 1 " + shellQuoted(folder.path().string()));
  EXPECT_NE(run.out.find("zero-crc.png: not saved (The file's checksums were already wrong"), std::string::npos)
      << run.out;
  const bool exiftool = std::system("exiftool -ver >/dev/null 2>&1") == 0;
  const json read = exiftool ? json::parse(lumtest::runShell("exiftool -j -EXIF:DateTimeOriginal -EXIF:CreateDate -EXIF:ModifyDate " +
                                                             shellQuoted(folder.path().string()) + " 2>/dev/null").out)
                             : json::array();
  int shifted = 0;
  for (const Sample& s : samples) {
    SCOPED_TRACE(nameOf(s));
    const auto now = lumtest::readFile(folder / nameOf(s));
    ASSERT_EQ(now.size(), s.bytes.size());
    const std::set<std::size_t> allowed = datePositions(s);
    std::size_t others = 0;
    for (std::size_t at = 0; at < now.size(); ++at) others += now[at] != s.bytes[at] && !allowed.count(at);
    const bool png = s.record.at("format").get<std::string>().starts_with("PNG");
    EXPECT_LE(others, png ? 4u : 0u) << "bytes changed outside the dates";
    if (png) {
      EXPECT_EQ(pngCrcsRight(now), pngCrcsRight(s.bytes));
    }
    const json* after = entryFor(read, nameOf(s), "SourceFile");
    if (!exiftool || !after || now == s.bytes) continue;
    for (const DateName& d : kDates)
      if (const auto before = expectedDate(s, d); before && after->contains(d.exiftool)) {
        EXPECT_EQ(after->at(d.exiftool), lumtest::civilShifted(*before, 3600)) << d.exiftool;
        ++shifted;
      }
  }
  if (!exiftool) GTEST_SKIP() << "exiftool not installed: the shifted dates were not read back";
  EXPECT_GT(shifted, 40);
}

}  // namespace
