// lumidate-cli days, shift and set, run as a program. Registered once per
// test zone: every text here is the same whatever the machine's zone.
#include <gtest/gtest.h>

#include <filesystem>

#include <nlohmann/json.hpp>

#include "support/CliRun.h"
#include "support/JpegBuilder.h"
#include "support/TestData.h"

namespace fs = std::filesystem;
using lumtest::runCli;
using lumtest::shellQuoted;

namespace {

// The expected text is the whole output when it ends a line, else a part of it.
// The night is 23.5 hours of wall clock in New York, which sets its clocks back.
TEST(CliDays, WholeDaysInEitherOrderAndRefusals) {
  const struct { const char* arguments; int status; const char* output; } cases[] = {
      {"2024:03:01 2024-02-28", 0, "2 days\n"}, {"'2019:11:02 12:00:00' '2019:11:03 11:30:00'", 0, "0 days\n"},
      {"2024:02:28 yesterday", 2, "cannot read the date 'yesterday'"},
      {"2024:02:28 2024:02:29 2024:03:01", 2, "give exactly two dates"}, {"--help", 0, "DATE1"}};
  for (const auto& c : cases) {
    const lumtest::CliRun run = runCli(std::string("days ") + c.arguments);
    EXPECT_EQ(run.status, c.status) << c.arguments;
    const bool whole = std::string(c.output).ends_with("\n");
    EXPECT_TRUE(whole ? run.out == c.output : run.out.find(c.output) != std::string::npos)
        << c.arguments << ": " << run.out;
  }
}

// Wall-clock times that do not exist or occur twice in some zone (New York,
// Chatham, Lord Howe) move exactly as written, like any other time.
TEST(CliShiftSet, WallClockTimesMoveAsWrittenInEveryZone) {
  const struct { const char* command; const char* before; const char* after; } cases[] = {
      {"shift --hours 1", "2019:03:10 02:30:00", "2019:03:10 03:30:00"},
      {"shift --hours 1", "2019:11:03 01:30:00", "2019:11:03 02:30:00"},
      {"shift --minutes 30", "2019:09:29 02:45:00", "2019:09:29 03:15:00"},
      {"shift --backward --days 1", "2019:03:11 02:30:00", "2019:03:10 02:30:00"},
      {"set --to '2019:03:10 02:30:00'", "2001:01:01 00:00:00", "2019:03:10 02:30:00"}};
  const lumtest::TempFolder folder;
  const fs::path photo = folder / "photo.jpg";
  for (const auto& c : cases) {
    const std::string date = std::string(c.before) + '\0';
    lumtest::writeFile(photo, lumtest::JpegBuilder().exif(lumtest::exifTiff({{0x0132, date}}, {{0x9003, date}})).build());
    SCOPED_TRACE(std::string(c.command) + " of " + c.before);
    EXPECT_EQ(runCli(std::string(c.command) + " " + shellQuoted(photo)).status, 0);
    const auto json = nlohmann::json::parse(lumtest::runCliStdout("dates --json " + shellQuoted(photo)).out).at(0);
    EXPECT_EQ(json.at("DateTimeOriginal"), c.after);
    EXPECT_EQ(json.at("DateTime"), c.after);
  }
}

}  // namespace
