#include "support/TestData.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace lumtest {

std::optional<std::filesystem::path> realDataDir() {
  const char* env = std::getenv("LUMIDATE_TESTDATA");
  const std::filesystem::path dir = env && *env ? env : LUMIDATE_TESTDATA;
  std::error_code ec;
  if (!std::filesystem::is_regular_file(dir / "expected.json", ec)) return std::nullopt;
  return dir;
}

const nlohmann::json& expectedJson() {
  static const nlohmann::json json = [] {
    const auto dir = realDataDir();
    if (!dir) return nlohmann::json::object();
    std::ifstream in(*dir / "expected.json");
    return nlohmann::json::parse(in);
  }();
  return json;
}

const nlohmann::json& expectedFor(const std::string& fileName) {
  return expectedJson().at("files").at(fileName);
}

std::vector<std::string> realFileNames() {
  std::vector<std::string> names;
  const auto& json = expectedJson();
  if (!json.contains("files")) return names;
  for (const auto& [name, record] : json.at("files").items()) names.push_back(name);
  return names;  // nlohmann's object keeps its keys sorted
}

std::vector<std::uint8_t> readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeFile(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

std::string civilShifted(const std::string& text, std::int64_t seconds) {
  using namespace std::chrono;
  const auto field = [&text](std::size_t at, std::size_t length) { return std::stoi(text.substr(at, length)); };
  const sys_seconds t = sys_days(year(field(0, 4)) / field(5, 2) / field(8, 2)) + hours(field(11, 2)) +
                        minutes(field(14, 2)) + std::chrono::seconds(field(17, 2) + seconds);
  const year_month_day ymd(floor<days>(t));
  const hh_mm_ss<std::chrono::seconds> hms(t - floor<days>(t));
  char out[80];
  std::snprintf(out, sizeof out, "%04d:%02u:%02u %02ld:%02ld:%02ld", int(ymd.year()), unsigned(ymd.month()),
                unsigned(ymd.day()), long(hms.hours().count()), long(hms.minutes().count()), long(hms.seconds().count()));
  return out;
}

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "lumtest-XXXXXX").string();
  if (::mkdtemp(pattern.data())) path_ = pattern;
}

TempFolder::~TempFolder() {
  if (path_.empty()) return;
  std::error_code ignored;
  ::chmod(path_.c_str(), 0700);
  for (auto it = std::filesystem::recursive_directory_iterator(path_, ignored);
       it != std::filesystem::recursive_directory_iterator(); it.increment(ignored))
    if (it->is_directory(ignored) && !it->is_symlink(ignored)) ::chmod(it->path().c_str(), 0700);
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace lumtest
