// Runs the built lumidate-cli info as a user would, and compares what it
// shows for the real camera files with what other readers found in them.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <tuple>

#include "support/CliRun.h"
#include "support/TestData.h"

namespace {

using nlohmann::json;

// Standard error is dropped: what is printed is read as JSON.
lumtest::CliRun runInfo(const std::string& arguments) { return lumtest::runCliStdout("info " + arguments); }
std::string realFile(const std::string& name) { return lumtest::shellQuoted(*lumtest::realDataDir() / name); }

// The value of the row (group, title), or null when there is no such row.
json rowValue(const json& file, const std::string& group, const std::string& title) {
  for (const auto& r : file.at("rows"))
    if (r.at("group") == group && r.at("title") == title) return r.at("value");
  return nullptr;
}

TEST(CliInfo, RealFilesShowWhatOtherReadersFind) {
  LUMTEST_REQUIRE_REAL_DATA();
  const json kOrientationWords = {nullptr,       "1 Top-Left",  "2 Top-Right",    "3 Bottom-Right", "4 Bottom-Left",
                                  "5 Left-Top", "6 Right-Top", "7 Right-Bottom", "8 Left-Bottom"};
  // The other reader drops trailing blanks of texts; the inspector shows the file's own.
  const auto trimmed = [](const json& v) {
    return v.is_string() ? json(v.get<std::string>().substr(0, v.get<std::string>().find_last_not_of(' ') + 1)) : v;
  };
  int compared = 0;
  for (const std::string& name : lumtest::realFileNames()) {
    const json& expected = lumtest::expectedFor(name);
    const json& design = expected.at("design");
    if (design.at("tiffHeaderLocation").is_null()) continue;  // no TIFF structure: nothing to compare
    SCOPED_TRACE(name);
    const auto run = runInfo("--json " + realFile(name));
    ASSERT_EQ(run.status, 0);
    const json file = json::parse(run.out).at(0);
    EXPECT_EQ(trimmed(rowValue(file, "TIFF", "Make")), expected.at("Make"));
    EXPECT_EQ(trimmed(rowValue(file, "TIFF", "Model")), expected.at("Model"));
    const json& orientation = expected.at("Orientation");
    EXPECT_EQ(rowValue(file, "TIFF", "Orientation"),
              orientation.is_null() ? json() : kOrientationWords.at(orientation.get<int>()));
    // A GPS position closes with its signed decimal degrees: "... (-35.5)".
    for (const auto& [key, title] : {std::pair{"GPSLatitude", "GPS Latitude"}, {"GPSLongitude", "GPS Longitude"}}) {
      const json shown = rowValue(file, "GPS", title);
      std::smatch m;
      const std::string text = shown.is_string() ? shown.get<std::string>() : "";
      if (std::regex_search(text, m, std::regex(R"(\((-?[0-9.]+)\)$)")) && expected.at(key).is_number())
        EXPECT_NEAR(std::stod(m[1]), expected.at(key).get<double>(), 1e-6) << title;
      else
        EXPECT_EQ(shown, expected.at(key)) << title;
    }
    // A date that was not kept shows as an empty row (or no row).
    for (const auto& [key, group, title] : {std::tuple{"DateTime", "TIFF", "Date Time"},
                                            {"DateTimeOriginal", "Exif", "Date Time Original"},
                                            {"DateTimeDigitized", "Exif", "Date Time Digitized"}}) {
      const json shown = rowValue(file, group, title);
      EXPECT_EQ(shown == "" ? json() : shown, design.at(key)) << title;
    }
    ++compared;
  }
  EXPECT_GE(compared, 50);
}

TEST(CliInfo, JsonListsEveryFileWithItsRowsOrItsError) {
  LUMTEST_REQUIRE_REAL_DATA();
  const auto run = runInfo("--json " + realFile("flir-i7-jfif.jpg") + " " + realFile("broken-ifd0.tif") + " " +
                           realFile("none.jpg"));
  EXPECT_EQ(run.status, 1);
  const json out = json::parse(run.out);
  ASSERT_EQ(out.size(), 3u);
  // Rows as group, title and value; headings are not rows.
  const json& rows = out[0].at("rows");
  EXPECT_NE(std::find(rows.begin(), rows.end(), json{{"group", "JFIF"}, {"title", "JFIF Version"}, {"value", "1.1"}}),
            rows.end());
  EXPECT_EQ(rowValue(out[0], "File", "Container"), "JPEG, APP1 segment");
  EXPECT_EQ(out[1].at("path"), (*lumtest::realDataDir() / "broken-ifd0.tif").string());
  EXPECT_EQ(out[1].at("error").at("code"), -1);
  EXPECT_FALSE(out[1].at("error").value("reason", "").empty());
  const auto plain = runInfo(realFile("htc-desire-mm-gps.jpg"));
  EXPECT_EQ(plain.status, 0);
  EXPECT_NE(plain.out.find("\n  GPS\n"), std::string::npos) << plain.out;
  EXPECT_NE(plain.out.find("Big Endian"), std::string::npos);
  EXPECT_EQ(runInfo("").status, 2);
}

}  // namespace
