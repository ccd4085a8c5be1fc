#include "DatedPhotos.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "support/TestData.h"

namespace reltest {

namespace {

std::vector<DatedPhoto> loadDatedPhotos() {
  std::vector<DatedPhoto> photos;
  const auto dir = lumtest::realDataDir();
  if (!dir) return photos;
  static constexpr const char* kDateKeys[] = {"DateTimeOriginal", "DateTimeDigitized", "DateTime"};
  for (const std::string& name : lumtest::realFileNames()) {
    const nlohmann::json& dates = lumtest::expectedFor(name).value("dates", nlohmann::json::object());
    DatedPhoto photo{name, lumtest::readFile(*dir / name), {}, {}};
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
