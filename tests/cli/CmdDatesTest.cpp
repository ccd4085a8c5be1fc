// lumidate-cli dates, run as a program: folder expansion and order, exit
// statuses; and what the program's parts load and log.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <nlohmann/json.hpp>

#include "support/CliRun.h"
#include "support/JpegBuilder.h"
#include "support/TestData.h"

namespace fs = std::filesystem;
using nlohmann::json;
using lumtest::shellQuoted;

namespace {

lumtest::CliRun runDates(const std::string& arguments) { return lumtest::runCliStdout("dates " + arguments); }

class CmdDatesFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(root_ / "sub");
    const auto tiff = lumtest::exifTiff({}, {{0x9003, std::string("2024:05:06 07:08:09\0", 20)}, {0x9291, " 42"}});
    lumtest::writeFile(root_ / "img10.jpg", lumtest::JpegBuilder().exif(tiff).build());
    lumtest::writeFile(root_ / "img9.JPG", lumtest::JpegBuilder().jfif(1, 1).build());
    lumtest::writeFile(root_ / "sub/img1.jpeg", lumtest::JpegBuilder().exif(tiff).build());
    lumtest::writeFile(root_ / "notes.txt", {'h', 'i'});
    lumtest::writeFile(root_ / "clip.MOV", {0, 0, 0, 16, 'f', 't', 'y', 'p', 'q', 't', ' ', ' ', 0, 0, 0, 0});
  }
  const lumtest::TempFolder folder_;
  const fs::path& root_ = folder_.path();
};

// Photos only, each once however often named, in file-manager order (each
// file's dates are checked against its record by the real-file suite); then
// one line per file with the dates in one column: a file without a date shows
// a dash there, and a path with accented letters is padded by its characters,
// not its bytes.
TEST_F(CmdDatesFolder, ListsPhotosOnceInFileManagerOrderAlignedWhenPlain) {
  const auto run = runDates("--json " + shellQuoted(root_) + " " + shellQuoted(root_) + " " +
                            shellQuoted(root_ / "img10.jpg"));
  EXPECT_EQ(run.status, 0);
  const json array = json::parse(run.out);
  ASSERT_EQ(array.size(), 3u);
  const char* order[] = {"img9.JPG", "img10.jpg", "sub/img1.jpeg"};
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(array[i].at("path"), (root_ / order[i]).string());
  EXPECT_EQ(array[0].at("editable"), false);
  EXPECT_EQ(array[1].at("SubSecTimeOriginal"), " 42");  // blanks kept
  EXPECT_EQ(array[1].at("container"), "JPEG");
  // The folder's video is passed over; named on its own, it is refused.
  const auto video = runDates("--json " + shellQuoted(root_ / "clip.MOV"));
  EXPECT_EQ(json::parse(video.out).at(0).at("error").at("reason"), "videos are not edited yet");

  fs::copy_file(root_ / "img10.jpg", root_ / "caf\u00e9-\u00e9t\u00e9.jpg");
  const auto plain = runDates(shellQuoted(root_));
  EXPECT_EQ(plain.status, 0);
  std::vector<std::string> lines;  // café-été, img9, img10, sub/img1
  for (std::size_t from = 0, to; (to = plain.out.find('\n', from)) != std::string::npos; from = to + 1)
    lines.push_back(plain.out.substr(from, to - from));
  ASSERT_EQ(lines.size(), 4u) << plain.out;
  const auto column = [](const std::string& line) {
    const std::string prefix = line.substr(0, line.find("2024:05:06"));
    return std::count_if(prefix.begin(), prefix.end(), [](char c) { return (c & 0xC0) != 0x80; });
  };
  for (const std::size_t i : {2, 3}) EXPECT_EQ(column(lines[i]), column(lines[0])) << lines[i];
  EXPECT_NE(lines[0].find("2024:05:06"), lines[2].find("2024:05:06"));  // the bytes differ
  EXPECT_EQ(lines[1].substr(lines[2].find("2024:05:06"), 2), "- ");
}

// The engine's notes on damaged files belong to the application's log; the
// tool prints them only when asked, from each of its three parts.
TEST_F(CmdDatesFolder, EngineNotesOnlyWithVerbose) {
  auto tiff = lumtest::exifTiff({}, {{0x9003, std::string("2024:05:06 07:08:09\0", 20)}});
  tiff[22] = tiff[23] = tiff[24] = tiff[25] = 0x7F;  // IFD0's next IFD far past the end
  lumtest::writeFile(root_ / "damaged.jpg", lumtest::JpegBuilder().exif(tiff).build());
  const std::string photo = " " + shellQuoted(root_ / "damaged.jpg");
  for (const std::string command : {"dates", "dates --json", "info", "shift --dry-run --hours 1"}) {
    EXPECT_EQ(lumtest::runCli(command + photo).out.find("nextIFDLocation:"), std::string::npos) << command;
    const auto verbose = lumtest::runCli(command + " --verbose" + photo);
    EXPECT_EQ(verbose.status, 0) << command;
    EXPECT_NE(verbose.out.find("nextIFDLocation: (2139062143)"), std::string::npos) << command << verbose.out;
  }
}

// Qt Gui comes in with the documents layer, for shift and set alone.
TEST(CliParts, OnlyTheEditingCommandsLoadQtGui) {
  const std::pair<const char*, bool> cases[] = {
      {"--version", false}, {"--help", false}, {"days 2024:01:01 2024:01:02", false}, {"info /nonexistent.jpg", false},
      {"shift --hours 1 /nonexistent.jpg", true}};
  for (const auto& [arguments, gui] : cases) {
    const auto run = lumtest::runCli(arguments, "LD_DEBUG=libs");
    EXPECT_NE(run.out.find("libQt6Core.so"), std::string::npos) << arguments;
    EXPECT_EQ(run.out.find("libQt6Gui.so") != std::string::npos, gui) << arguments;
  }
}

TEST(CmdDatesUsage, StatusTwoOnUsageErrorsAndOneForUnreadablePaths) {
  EXPECT_EQ(runDates("").status, 2);
  EXPECT_EQ(runDates("--no-such-option x.jpg").status, 2);
  const auto missing = runDates("--json /nonexistent/lumidate.jpg");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(json::parse(missing.out).at(0).at("error").at("code"), -2);
}

}  // namespace
