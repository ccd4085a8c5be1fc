// lumidate-cli dates, run as a program: JSON over the real files against
// their expected records, folder expansion and order, exit statuses.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/wait.h>

#include "support/JpegBuilder.h"
#include "support/TestData.h"

namespace fs = std::filesystem;
using nlohmann::json;

namespace {

struct CliRun {
  int status = -1;
  std::string out;
};

// Runs the tool with the arguments (each quoted), keeping stdout only.
CliRun runCli(const std::vector<std::string>& args) {
  std::string command = "'" LUMIDATE_CLI "' dates";
  for (const std::string& a : args) command += " '" + a + "'";
  command += " 2>/dev/null";
  CliRun run;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return run;
  std::array<char, 4096> buffer{};
  for (std::size_t n; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) run.out.append(buffer.data(), n);
  const int raw = pclose(pipe);
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return run;
}

TEST(CmdDates, JsonOverTheRealFilesMatchesTheExpectedRecords) {
  LUMTEST_REQUIRE_REAL_DATA();
  const fs::path dir = *lumtest::realDataDir();
  // The folder twice and one of its files again: each file is listed once.
  const CliRun run = runCli({"--json", dir.string(), dir.string(), (dir / "canon-ixus-2001.jpg").string()});
  EXPECT_EQ(run.status, 1);  // some real files do not open
  const json array = json::parse(run.out);
  ASSERT_TRUE(array.is_array());
  const auto names = lumtest::realFileNames();
  ASSERT_EQ(array.size(), names.size());
  for (const json& element : array) {
    const std::string name = fs::path(element.at("path").get<std::string>()).filename().string();
    SCOPED_TRACE(name);
    const json& expected = lumtest::expectedFor(name).at("design");
    if (!expected.at("opens").get<bool>()) {
      EXPECT_EQ(element.at("error"), (json{{"domain", "LumErrorDomain"}, {"code", expected.at("error_code")}}));
      EXPECT_EQ(element.size(), 2u);
      continue;
    }
    for (const char* key : {"DateTimeOriginal", "DateTimeDigitized", "DateTime", "SubSecTimeOriginal",
                            "SubSecTimeDigitized", "SubSecTime", "editable"})
      EXPECT_EQ(element.at(key), expected.at(key)) << key;
    EXPECT_EQ(element.size(), 8u);
  }
}

class CmdDatesFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    root_ = fs::temp_directory_path() / ("lum-cli-dates-" + std::to_string(::getpid()));
    fs::remove_all(root_);
    fs::create_directories(root_ / "sub");
    const auto tiff = lumtest::exifTiff({}, {{0x9003, std::string("2024:05:06 07:08:09\0", 20)}, {0x9291, " 42"}});
    write("img10.jpg", lumtest::JpegBuilder().exif(tiff).build());
    write("img9.JPG", lumtest::JpegBuilder().jfif(1, 1).build());
    write("sub/img1.jpeg", lumtest::JpegBuilder().exif(tiff).build());
    write("notes.txt", {'h', 'i'});
    write("picture.png", {0x89, 'P', 'N', 'G'});
  }
  void TearDown() override { fs::remove_all(root_); }
  void write(const char* name, const lumtest::Bytes& bytes) {
    std::ofstream(root_ / name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }
  fs::path root_;
};

TEST_F(CmdDatesFolder, ListsPhotosInFileManagerOrder) {
  const CliRun run = runCli({"--json", root_.string()});
  EXPECT_EQ(run.status, 0);
  const json array = json::parse(run.out);
  ASSERT_EQ(array.size(), 3u);
  EXPECT_EQ(array[0].at("path"), (root_ / "img9.JPG").string());
  EXPECT_EQ(array[1].at("path"), (root_ / "img10.jpg").string());
  EXPECT_EQ(array[2].at("path"), (root_ / "sub/img1.jpeg").string());
  EXPECT_EQ(array[0].at("editable"), false);
  EXPECT_EQ(array[0].at("DateTimeOriginal"), nullptr);
  EXPECT_EQ(array[1].at("DateTimeOriginal"), "2024:05:06 07:08:09");
  EXPECT_EQ(array[1].at("SubSecTimeOriginal"), " 42");
  EXPECT_EQ(array[1].at("editable"), true);
}

TEST_F(CmdDatesFolder, PlainOutputIsOneAlignedLinePerFile) {
  const CliRun run = runCli({root_.string()});
  EXPECT_EQ(run.status, 0);
  std::vector<std::string> lines;
  for (std::size_t from = 0, to; (to = run.out.find('\n', from)) != std::string::npos; from = to + 1)
    lines.push_back(run.out.substr(from, to - from));
  ASSERT_EQ(lines.size(), 3u);
  const auto dateColumn = lines[1].find("2024:05:06 07:08:09");
  ASSERT_NE(dateColumn, std::string::npos);
  EXPECT_EQ(lines[2].find("2024:05:06 07:08:09"), dateColumn);
  EXPECT_EQ(lines[0].substr(dateColumn, 2), "- ");  // no date: a dash in the same column
}

TEST(CmdDatesUsage, StatusTwoOnUsageErrorsAndOneForUnreadablePaths) {
  EXPECT_EQ(runCli({}).status, 2);
  EXPECT_EQ(runCli({"--no-such-option", "x.jpg"}).status, 2);
  const CliRun missing = runCli({"--json", "/nonexistent/lumidate.jpg"});
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(json::parse(missing.out).at(0).at("error").at("code"), -2);
}

}  // namespace
