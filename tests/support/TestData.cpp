#include "support/TestData.h"

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

}  // namespace lumtest
