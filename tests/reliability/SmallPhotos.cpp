#include "SmallPhotos.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "DatedPhotos.h"
#include "support/JpegBuilder.h"

namespace reltest {

std::vector<std::uint8_t> smallDatedJpeg(int index) {
  // Dates spread over the years and seconds so that no two files are alike.
  char date[32];
  std::snprintf(date, sizeof date, "%04d:%02d:%02d %02d:%02d:%02d", 1990 + index % 30, 1 + index % 12,
                1 + index % 28, index % 24, index % 60, (index / 60) % 60);
  const std::string text = std::string(date) + '\0';
  static const std::vector<std::uint8_t> body = lumtest::jpegBody(lumtest::encodeJpeg(8, 8));
  return lumtest::JpegBuilder()
      .jfif(1, 1)
      .exif(lumtest::exifTiff({{0x0132, text}}, {{0x9003, text}, {0x9004, text}}, index % 2 == 0))
      .raw(body)
      .build(false);
}

std::vector<std::filesystem::path> writeSmallPhotos(const std::filesystem::path& folder, int count) {
  std::vector<std::filesystem::path> paths;
  for (int i = 0; i < count; ++i) {
    char name[32];
    std::snprintf(name, sizeof name, "img-%05d.jpg", i);
    lumtest::writeFile(paths.emplace_back(folder / name), smallDatedJpeg(i));
  }
  return paths;
}

namespace {

// "yyyy:MM:dd HH:mm:ss" followed by its zero byte, as a writer stores a date.
bool isDateTextAt(const std::vector<std::uint8_t>& bytes, std::size_t at) {
  static constexpr char kShape[] = "dddd:dd:dd dd:dd:dd";
  if (at + 20 > bytes.size() || bytes[at + 19] != 0) return false;
  for (std::size_t i = 0; i < 19; ++i)
    if (kShape[i] == 'd' ? !std::isdigit(bytes[at + i]) : bytes[at + i] != kShape[i]) return false;
  return true;
}

}  // namespace

// Worked out with the standard civil calendar, not with the program's own
// date code: the expectation must not share the code it checks.
std::vector<std::uint8_t> shiftedBytes(const std::vector<std::uint8_t>& bytes, const DateTextRules::Offsets& offsets) {
  if (offsets[0] != 0 || offsets[1] != 0) throw std::invalid_argument("shiftedBytes: only days and times");
  const std::int64_t by = ((offsets[2] * 24 + offsets[3]) * 60 + offsets[4]) * 60 + offsets[5];
  std::vector<std::uint8_t> out = bytes;
  for (std::size_t at = 0; at < out.size(); ++at) {
    if (!isDateTextAt(out, at)) continue;
    const auto from = out.begin() + static_cast<std::ptrdiff_t>(at);
    const std::string text = lumtest::civilShifted(std::string(from, from + 19), by);
    std::copy(text.begin(), text.end(), from);
    at += 19;
  }
  return out;
}

int countFromEnvironment(const char* name, int fallback) {
  const char* text = std::getenv(name);
  if (!text || !*text) return fallback;
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  return (*end == '\0' && value > 0 && value < 10'000'000) ? static_cast<int>(value) : fallback;
}

}  // namespace reltest
