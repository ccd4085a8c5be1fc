#pragma once
// The folder of real camera files and its expected.json.
//
// The conformance tests run only when the folder is there (CI has it). When it
// is missing they are skipped with a message that says so, never passed
// silently. LUMIDATE_TESTDATA in the environment overrides the built-in path.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace lumtest {

// The folder, or nullopt when it (or its expected.json) is absent.
std::optional<std::filesystem::path> realDataDir();

// expected.json parsed; an empty object when the folder is absent.
const nlohmann::json& expectedJson();

// The file's record from expected.json ("files" -> name).
const nlohmann::json& expectedFor(const std::string& fileName);

// Names of every file listed in expected.json, sorted.
std::vector<std::string> realFileNames();

// Reads a whole file into memory, or writes one (for tests only).
std::vector<std::uint8_t> readFile(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes);

// A date text ("yyyy:MM:dd HH:mm:ss", or any text with its fields at those
// places) moved by whole seconds with the standard civil calendar: an
// expectation worked out independently of the program's own date code.
std::string civilShifted(const std::string& text, std::int64_t seconds);

// A private scratch folder removed with everything in it at the end of the
// test; write permission is given back first so that a read-only child does
// not stop the removal.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace lumtest

// Skips the current test when the real files are absent, saying why.
#define LUMTEST_REQUIRE_REAL_DATA()                                                          \
  do {                                                                                       \
    if (!::lumtest::realDataDir())                                                           \
      GTEST_SKIP() << "real camera files not found (set LUMIDATE_TESTDATA); conformance test skipped"; \
  } while (0)
