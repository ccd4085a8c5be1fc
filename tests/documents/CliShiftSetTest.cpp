// lumidate-cli shift and set on small generated photos.
#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "support/CliRun.h"

using namespace doctest_support;
using lumtest::CliRun;
using lumtest::runCli;
using lumtest::runCopyOfCli;
using lumtest::shellQuoted;

namespace {

const std::string kA = "2020:01:31 10:00:00";

struct CliFixture : ::testing::Test {
  TempFolder folder;
  std::filesystem::path a = writePhoto(folder, "a.jpg", {kA, kA, kA});
  std::filesystem::path b = writePhoto(folder, "b.jpg", {"0001:06:01 00:00:00", std::nullopt, kA});
  std::filesystem::path c = writePhoto(folder, "sub/c.jpg", {kA, std::nullopt, std::nullopt});

  static DateTargets::Texts datesOf(const std::filesystem::path& path) {
    const auto item = openItem(path);
    return item ? item->dateTexts() : DateTargets::Texts{};
  }
  std::string q(const std::filesystem::path& p) const { return shellQuoted(p.string()); }
};

// Usage errors, and a batch in which one date would leave years 1 to 9999
// (b.jpg's), are refused whole.
TEST_F(CliFixture, RefusalsAndADryRunChangeNothing) {
  const auto before = readBytes(a), beforeB = readBytes(b);
  for (const std::string& args :
       {"shift " + q(a), "shift --years -1 " + q(a), "shift --years 10000 " + q(a), "shift --days 3652059 " + q(a),
        "shift --hours 1.5 " + q(a), "shift --hours 1 --only original,taken " + q(a), std::string("shift --hours 1"),
        "set " + q(a), "set --to '2023:02:29 10:00:00' " + q(a), "set --to '2023-02-28 10:00:00' " + q(a),
        "set --to '0000:01:01 00:00:00' " + q(a), "shift --backward --years 1 " + q(folder.path())}) {
    const CliRun r = runCli(args);
    EXPECT_EQ(r.status, 2) << args << "\n" << r.out;
  }
  const CliRun r = runCli("set --to '2000:02:29 12:34:56' --dry-run " + q(a));
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("DateTimeOriginal   2020:01:31 10:00:00 -> 2000:02:29 12:34:56"), std::string::npos) << r.out;
  EXPECT_TRUE(readBytes(a) == before && readBytes(b) == beforeB);
}

// --only and --backward reach the document as the dates and the direction
// named; every other date keeps its bytes. (How the texts cameras write are
// shifted, set or passed over is the document suite's and the real files'.)
TEST_F(CliFixture, OnlyTheNamedDatesAreChanged) {
  const std::string set = "2000:02:29 12:34:56", shifted = "2020:01:31 11:00:00";
  const struct { std::string args; PhotoDates expected; } runs[] = {
      {"shift --hours 1 --only original", {shifted, kA, kA}},
      {"set --to '" + set + "' --only edited", {shifted, kA, set}},
      {"shift --backward --days 1 --only digitized,edited", {shifted, "2020:01:30 10:00:00", "2000:02:28 12:34:56"}},
  };
  for (const auto& run : runs) {
    const CliRun r = runCli(run.args + " " + q(a));
    ASSERT_EQ(r.status, 0) << run.args << "\n" << r.out;
    EXPECT_EQ(readBytes(a), photoBytes(run.expected)) << run.args;
  }
}

TEST_F(CliFixture, AFileThatCannotBeSavedGivesExitOneAndTheOthersAreSaved) {
  ::chmod(a.c_str(), 0444);
  const CliRun r = runCli("set --to '2000:02:29 12:34:56' " + q(folder.path()));
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.out.find(a.string() + ": not saved (The file is read-only.)"), std::string::npos) << r.out;
  EXPECT_EQ(datesOf(c)[0], "2000:02:29 12:34:56");
  EXPECT_EQ(datesOf(a)[0], kA);
}

// The program alone, without its commands part beside it, still lists
// dates, and for anything else says which part is missing.
TEST_F(CliFixture, WithoutItsCommandsPartTheProgramListsDatesAndEditsNothing) {
  TempFolder bin;
  const std::filesystem::path alone = bin.path() / "lumidate-cli";
  std::filesystem::copy_file(LUMIDATE_CLI, alone);
  const auto before = readBytes(a);
  const CliRun dates = runCopyOfCli(alone.string(), "dates " + q(a));
  EXPECT_EQ(dates.status, 0) << dates.out;
  EXPECT_NE(dates.out.find(kA), std::string::npos) << dates.out;
  for (const std::string args : {"shift --hours 1 ", "set --to '2000:02:29 12:34:56' ", "dates --help "}) {
    const CliRun r = runCopyOfCli(alone.string(), args + q(a));
    EXPECT_EQ(r.status, 1) << r.out;
    EXPECT_NE(r.out.find("cannot load its commands (lumidate-cli-commands.so is not installed"), std::string::npos)
        << r.out;
  }
  EXPECT_EQ(readBytes(a), before);
}

}  // namespace
