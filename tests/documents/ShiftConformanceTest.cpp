// Every editable real camera file shifted by +1:02:03 with lumidate-cli and
// back again; exiftool reads the shifted dates in between.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <set>

#include "PhotoFiles.h"
#include "support/CliRun.h"
#include "support/TestData.h"

using namespace doctest_support;
using lumtest::CliRun;
using lumtest::runCli;
using lumtest::shellQuoted;
using nlohmann::json;

namespace {

constexpr std::array<const char*, 3> kDates{"DateTimeOriginal", "DateTimeDigitized", "DateTime"};
const std::string kZeroDate = "0000:00:00 00:00:00";
// exiftool's names for the three dates, with their groups.
constexpr std::array<const char*, 3> kExiftoolNames{"ExifIFD:DateTimeOriginal", "ExifIFD:CreateDate", "IFD0:ModifyDate"};

// The fields of a date text read by position (so "2004-07-13T21:23:44" too).
std::array<int, 6> fieldsOf(const std::string& text) {
  std::array<int, 6> f{std::stoi(text.substr(0, 4))};
  for (std::size_t i = 1; i < 6; ++i) f[i] = std::stoi(text.substr(2 + 3 * i, 2));
  return f;
}

// "yyyy:MM:dd HH:mm:ss" of a real calendar date.
bool isCanonical(const std::string& text) {
  if (text.size() != 19 || text.substr(4, 1) + text[7] + text[10] + text[13] + text[16] != ":: ::") return false;
  const auto f = fieldsOf(text);
  const std::chrono::year_month_day ymd{std::chrono::year(f[0]), std::chrono::month(unsigned(f[1])), std::chrono::day(unsigned(f[2]))};
  return f[0] >= 1 && ymd.ok() && f[3] < 24 && f[4] < 60 && f[5] < 60;
}

struct RealFile { std::string name; json design; std::vector<std::uint8_t> bytes; };

// The positions a date write may touch: 19 bytes at each kept date's offset.
std::set<std::size_t> datePositions(const json& design, bool onlyNonCanonical) {
  std::set<std::size_t> at;
  for (const char* name : kDates) {
    if (design[name].is_null() || !design["date_offsets"].contains(name)) continue;
    if (onlyNonCanonical && isCanonical(design[name].get<std::string>())) continue;
    const std::size_t offset = design["date_offsets"][name].get<std::size_t>();
    for (std::size_t i = 0; i < 19; ++i) at.insert(offset + i);
  }
  return at;
}

json exiftoolDates(const std::filesystem::path& folder) {
  return json::parse(lumtest::runShell("exiftool -j -a -G1 -DateTimeOriginal -CreateDate -ModifyDate -ext jpg -ext tif "
                                       "-ext jpeg -ext tiff " + shellQuoted(folder.string()) + " 2>/dev/null").out,
                     nullptr, false);
}

TEST(ShiftConformance, RealFilesShiftForwardAndBack) {
  LUMTEST_REQUIRE_REAL_DATA();
  if (std::system("exiftool -ver >/dev/null 2>&1") != 0) GTEST_SKIP() << "exiftool not installed";
  TempFolder folder;
  std::vector<RealFile> files;
  for (const std::string& name : lumtest::realFileNames()) {
    const json& design = lumtest::expectedFor(name)["design"];
    if (!design.value("editable", false)) continue;
    files.push_back({name, design, lumtest::readFile(*lumtest::realDataDir() / name)});
    writeBytes(folder / name, files.back().bytes);
    ::chmod((folder / name).c_str(), 0644);
  }
  ASSERT_FALSE(files.empty());

  // 1. Forward: only the 19 bytes of kept dates change, and a date of all
  //    zeros (a camera's unknown date) keeps even those without holding the
  //    batch back; exiftool reads the shifted dates.
  CliRun r = runCli("shift --hours 1 --minutes 2 --seconds 3 " + shellQuoted(folder.path().string()), "TZ=America/New_York");
  ASSERT_EQ(r.status, 0) << r.out;
  const json read = exiftoolDates(folder.path());
  int comparedDates = 0, zeroDates = 0;
  for (const RealFile& f : files) {
    SCOPED_TRACE(f.name);
    const auto now = lumtest::readFile(folder / f.name);
    ASSERT_EQ(now.size(), f.bytes.size());
    const std::set<std::size_t> allowed = datePositions(f.design, false);
    for (std::size_t at = 0; at < now.size(); ++at)
      EXPECT_TRUE(now[at] == f.bytes[at] || allowed.count(at)) << "byte " << at;
    for (const char* date : kDates) {
      if (f.design[date] != kZeroDate) continue;
      const auto at = now.begin() + f.design["date_offsets"][date].get<std::ptrdiff_t>();
      EXPECT_EQ(std::string(at, at + 19), kZeroDate) << date;
      ++zeroDates;
    }
    const json& expected = lumtest::expectedFor(f.name);
    const auto entry = std::find_if(read.begin(), read.end(), [&](const json& e) {
      return std::filesystem::path(e.value("SourceFile", "")).filename() == f.name;
    });
    ASSERT_NE(entry, read.end());
    for (std::size_t i = 0; i < kDates.size(); ++i) {
      const json& kept = f.design[kDates[i]];
      const json& before = expected["dates"][kDates[i]];
      // Compared where exiftool read the same date as the program before the
      // shift (an ISO text is read differently by the two).
      if (kept.is_null() || before.is_null() || !before["value"].is_string() || !isCanonical(kept.get<std::string>()) ||
          !before["value"].get<std::string>().starts_with(kept.get<std::string>()))
        continue;
      ASSERT_TRUE(entry->contains(kExiftoolNames[i])) << kExiftoolNames[i];
      const std::string shifted = lumtest::civilShifted(kept.get<std::string>(), 3723);
      EXPECT_TRUE((*entry)[kExiftoolNames[i]].get<std::string>().starts_with(shifted))
          << kDates[i] << ": " << (*entry)[kExiftoolNames[i]];
      ++comparedDates;
    }
  }
  EXPECT_GT(comparedDates, 100);
  EXPECT_GT(zeroDates, 0);

  // 2. Back again: identical files, except that a date not in the canonical
  //    form (an ISO text) comes back canonical in its own 19 bytes.
  r = runCli("shift --backward --hours 1 --minutes 2 --seconds 3 " + shellQuoted(folder.path().string()),
             "TZ=Asia/Kolkata");
  ASSERT_EQ(r.status, 0) << r.out;
  int canonicalFiles = 0;
  for (const RealFile& f : files) {
    SCOPED_TRACE(f.name);
    const auto now = lumtest::readFile(folder / f.name);
    ASSERT_EQ(now.size(), f.bytes.size());
    const std::set<std::size_t> rewritten = datePositions(f.design, true);
    canonicalFiles += rewritten.empty();
    for (std::size_t at = 0; at < now.size(); ++at)
      EXPECT_TRUE(now[at] == f.bytes[at] || rewritten.count(at)) << "byte " << at;
    for (const char* date : kDates) {
      if (f.design[date].is_null() || isCanonical(f.design[date].get<std::string>())) continue;
      const auto at = now.begin() + f.design["date_offsets"][date].get<std::ptrdiff_t>();
      EXPECT_EQ(std::string(at, at + 19),
                f.design[date] == kZeroDate ? kZeroDate : lumtest::civilShifted(f.design[date].get<std::string>(), 0));
    }
  }
  EXPECT_GT(canonicalFiles, 40);
}

}  // namespace
