// Runs the built lumidate-cli info as a user would, and compares what it
// shows for the real camera files with what other readers found in them.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <map>
#include <regex>
#include <string>
#include <sys/wait.h>

#include <nlohmann/json.hpp>

#include "support/TestData.h"

namespace {

struct CliRun {
  int status;
  std::string out;
};

CliRun runCli(const std::string& arguments, bool withStderr = false) {
  const std::string command = std::string(LUMIDATE_CLI) + " " + arguments + (withStderr ? " 2>&1" : " 2>/dev/null");
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return {-1, ""};
  std::string out;
  std::array<char, 4096> buffer;
  while (std::size_t n = std::fread(buffer.data(), 1, buffer.size(), pipe)) out.append(buffer.data(), n);
  const int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out};
}

std::string quoted(const std::string& path) { return "'" + path + "'"; }

// (group, title) -> value of one file's rows.
using Rows = std::map<std::pair<std::string, std::string>, std::string>;

Rows rowsOf(const nlohmann::json& file) {
  Rows rows;
  for (const auto& r : file.at("rows")) rows[{r.at("group"), r.at("title")}] = r.at("value");
  return rows;
}

std::optional<std::string> rowValue(const Rows& rows, const char* group, const char* title) {
  const auto it = rows.find({group, title});
  return it == rows.end() ? std::nullopt : std::optional(it->second);
}

// The other reader drops trailing blanks of texts; the inspector shows the file's own.
std::string trimmed(std::string s) {
  while (!s.empty() && s.back() == ' ') s.pop_back();
  return s;
}

// The signed decimal degrees that close a GPS position value: "... (-35.5)".
std::optional<double> decimalDegrees(const std::string& value) {
  std::smatch m;
  if (!std::regex_search(value, m, std::regex(R"(\((-?[0-9.]+)\)$)"))) return std::nullopt;
  return std::stod(m[1]);
}

void compareText(const Rows& rows, const char* title, const nlohmann::json& expected) {
  const auto value = rowValue(rows, "TIFF", title);
  if (expected.is_null()) {
    EXPECT_FALSE(value) << title;
  } else {
    ASSERT_TRUE(value) << title;
    EXPECT_EQ(trimmed(*value), expected.get<std::string>()) << title;
  }
}

void compareOrientation(const Rows& rows, const nlohmann::json& expected) {
  static const char* const kWords[] = {"",           "1 Top-Left",  "2 Top-Right",    "3 Bottom-Right", "4 Bottom-Left",
                                       "5 Left-Top", "6 Right-Top", "7 Right-Bottom", "8 Left-Bottom"};
  const auto value = rowValue(rows, "TIFF", "Orientation");
  if (expected.is_null()) {
    EXPECT_FALSE(value);
    return;
  }
  const int code = expected.get<int>();
  ASSERT_TRUE(value && code >= 1 && code <= 8) << code;
  EXPECT_EQ(*value, kWords[code]);
}

void comparePosition(const Rows& rows, const char* title, const nlohmann::json& expected) {
  const auto value = rowValue(rows, "GPS", title);
  if (expected.is_null()) {
    EXPECT_FALSE(value) << title << ": " << value.value_or("");
    return;
  }
  ASSERT_TRUE(value) << title;
  const auto degrees = decimalDegrees(*value);
  ASSERT_TRUE(degrees) << *value;
  EXPECT_NEAR(*degrees, expected.get<double>(), 1e-6) << *value;
}

void compareDate(const Rows& rows, const char* group, const char* title, const nlohmann::json& expected) {
  const auto value = rowValue(rows, group, title);
  if (expected.is_null()) {
    EXPECT_EQ(value.value_or(""), "") << title;  // no row, or a date that was not kept
  } else {
    EXPECT_EQ(value.value_or("(no row)"), expected.get<std::string>()) << title;
  }
}

TEST(CliInfo, RealFilesShowWhatOtherReadersFind) {
  LUMTEST_REQUIRE_REAL_DATA();
  int compared = 0;
  for (const std::string& name : lumtest::realFileNames()) {
    const nlohmann::json& expected = lumtest::expectedFor(name);
    const nlohmann::json& design = expected.at("design");
    if (design.at("tiffHeaderLocation").is_null()) continue;  // no TIFF structure: nothing to compare
    SCOPED_TRACE(name);
    const CliRun run = runCli("info --json " + quoted((*lumtest::realDataDir() / name).string()));
    ASSERT_EQ(run.status, 0);
    const nlohmann::json out = nlohmann::json::parse(run.out);
    ASSERT_EQ(out.size(), 1u);
    const Rows rows = rowsOf(out[0]);
    compareText(rows, "Make", expected.at("Make"));
    compareText(rows, "Model", expected.at("Model"));
    compareOrientation(rows, expected.at("Orientation"));
    comparePosition(rows, "GPS Latitude", expected.at("GPSLatitude"));
    comparePosition(rows, "GPS Longitude", expected.at("GPSLongitude"));
    compareDate(rows, "TIFF", "Date Time", design.at("DateTime"));
    compareDate(rows, "Exif", "Date Time Original", design.at("DateTimeOriginal"));
    compareDate(rows, "Exif", "Date Time Digitized", design.at("DateTimeDigitized"));
    ++compared;
  }
  EXPECT_GE(compared, 50);
}

TEST(CliInfo, JsonListsEveryFileWithItsRowsOrItsError) {
  LUMTEST_REQUIRE_REAL_DATA();
  const auto dir = *lumtest::realDataDir();
  const CliRun run = runCli("info --json " + quoted((dir / "flir-i7-jfif.jpg").string()) + " " +
                         quoted((dir / "broken-ifd0.tif").string()) + " " + quoted((dir / "no-such-file.jpg").string()));
  EXPECT_EQ(run.status, 1);
  const nlohmann::json out = nlohmann::json::parse(run.out);
  ASSERT_EQ(out.size(), 3u);
  const nlohmann::json& rows = out[0].at("rows");
  ASSERT_GE(rows.size(), 3u);
  // JFIF first, then TIFF led by its byte order; headings are not rows.
  EXPECT_EQ(rows[0], (nlohmann::json{{"group", "JFIF"}, {"title", "JFIF Version"}, {"value", "1.1"}}));
  bool sawTIFF = false;
  for (const auto& r : rows) {
    EXPECT_NE(r.at("title"), r.at("group"));
    if (!sawTIFF && r.at("group") == "TIFF") {
      EXPECT_EQ(r, (nlohmann::json{{"group", "TIFF"}, {"title", "Byte Order"}, {"value", "Little Endian"}}));
      sawTIFF = true;
    }
  }
  EXPECT_TRUE(sawTIFF);
  EXPECT_EQ(out[1].at("error"), (nlohmann::json{{"domain", "LumErrorDomain"}, {"code", -1}}));
  EXPECT_EQ(out[2].at("error").at("domain"), "LumErrorDomain");
  EXPECT_FALSE(out[1].contains("rows"));
}

TEST(CliInfo, PlainOutputAndUsage) {
  LUMTEST_REQUIRE_REAL_DATA();
  const CliRun plain = runCli("info " + quoted((*lumtest::realDataDir() / "htc-desire-mm-gps.jpg").string()));
  EXPECT_EQ(plain.status, 0);
  EXPECT_NE(plain.out.find("\n  GPS\n"), std::string::npos) << plain.out;
  EXPECT_NE(plain.out.find("Big Endian"), std::string::npos);
  EXPECT_NE(plain.out.find("above sea level"), std::string::npos);
  EXPECT_EQ(runCli("info").status, 2);
  EXPECT_EQ(runCli("info --bogus x.jpg").status, 2);
  const CliRun help = runCli("info --help");
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("--json"), std::string::npos);
}

}  // namespace
