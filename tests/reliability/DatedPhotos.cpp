#include "DatedPhotos.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "support/TestData.h"

namespace reltest {

ScratchFolder::ScratchFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "lumrel-XXXXXX").string();
  if (::mkdtemp(pattern.data())) path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
  if (path_.empty()) return;
  std::error_code ignored;
  // Give back write permission everywhere first (tests make folders read-only).
  ::chmod(path_.c_str(), 0700);
  for (auto it = std::filesystem::recursive_directory_iterator(path_, ignored); it != std::filesystem::recursive_directory_iterator();
       it.increment(ignored))
    if (it->is_directory(ignored) && !it->is_symlink(ignored)) ::chmod(it->path().c_str(), 0700);
  std::filesystem::remove_all(path_, ignored);
}

std::vector<std::uint8_t> readAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeAll(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

namespace {

std::vector<DatedPhoto> loadDatedPhotos() {
  std::vector<DatedPhoto> photos;
  const auto dir = lumtest::realDataDir();
  if (!dir) return photos;
  static constexpr const char* kDateKeys[] = {"DateTimeOriginal", "DateTimeDigitized", "DateTime"};
  for (const std::string& name : lumtest::realFileNames()) {
    const nlohmann::json& dates = lumtest::expectedFor(name).value("dates", nlohmann::json::object());
    DatedPhoto photo{name, readAll(*dir / name), {}, {}};
    for (const char* key : kDateKeys) {
      const auto it = dates.find(key);
      if (it == dates.end() || !it->is_object() || !(*it)["offset"].is_number_unsigned()) continue;
      const auto offset = (*it)["offset"].get<std::uint64_t>();
      if (offset + kNewDate.size() <= photo.bytes.size()) photo.patches.push_back({offset, kNewDate});
    }
    if (photo.patches.empty()) continue;
    // The intended bytes by plain copying, not through the code under test.
    photo.intended = photo.bytes;
    for (const auto& patch : photo.patches)
      std::copy(patch.bytes.begin(), patch.bytes.end(), photo.intended.begin() + std::ptrdiff_t(patch.position));
    photos.push_back(std::move(photo));
  }
  return photos;
}

}  // namespace

const std::vector<DatedPhoto>& datedPhotos() {
  static const std::vector<DatedPhoto> photos = loadDatedPhotos();
  return photos;
}

std::vector<const DatedPhoto*> photosForFaults() {
  std::vector<const DatedPhoto*> chosen;
  for (const DatedPhoto& photo : datedPhotos()) chosen.push_back(&photo);
  // Every photo when LUMIDATE_RELIABILITY_FULL is set to anything but "0".
  const char* full = std::getenv("LUMIDATE_RELIABILITY_FULL");
  if (full && *full && std::string(full) != "0") return chosen;
  std::stable_sort(chosen.begin(), chosen.end(),
                   [](const DatedPhoto* a, const DatedPhoto* b) { return a->bytes.size() < b->bytes.size(); });
  if (chosen.size() > 8) chosen.resize(8);
  return chosen;
}

void reportFigure(const std::string& name, double value) {
  std::printf("[ figure   ] %s: %.10g\n", name.c_str(), value);
  std::fflush(stdout);
}

std::string stateOf(const std::vector<std::uint8_t>& now, const DatedPhoto& photo) {
  if (now == photo.bytes) return "as opened";
  if (now == photo.intended) return "as intended";
  if (now.size() != photo.bytes.size()) return "MIXED (size " + std::to_string(now.size()) + ")";
  std::size_t differ = 0;
  for (std::size_t i = 0; i < now.size(); ++i) differ += now[i] != photo.bytes[i] && now[i] != photo.intended[i];
  return "MIXED (" + std::to_string(differ) + " bytes differ from both)";
}

}  // namespace reltest
