#include "SmallPhotos.h"

#include <cctype>
#include <chrono>
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
    writeAll(paths.emplace_back(folder / name), smallDatedJpeg(i));
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
  using namespace std::chrono;
  if (offsets[0] != 0 || offsets[1] != 0) throw std::invalid_argument("shiftedBytes: only days and times");
  const seconds by = days(offsets[2]) + hours(offsets[3]) + minutes(offsets[4]) + seconds(offsets[5]);
  std::vector<std::uint8_t> out = bytes;
  for (std::size_t at = 0; at < out.size(); ++at) {
    if (!isDateTextAt(out, at)) continue;
    int y = 0, mo = 0, d = 0, h = 0, mi = 0, sec = 0;
    std::sscanf(reinterpret_cast<const char*>(&out[at]), "%d:%d:%d %d:%d:%d", &y, &mo, &d, &h, &mi, &sec);
    const sys_seconds t = sys_days(year(y) / mo / d) + hours(h) + minutes(mi) + seconds(sec) + by;
    const year_month_day ymd(floor<days>(t));
    const hh_mm_ss<seconds> time(t - floor<days>(t));
    char text[24];
    std::snprintf(text, sizeof text, "%04d:%02u:%02u %02d:%02d:%02d", int(ymd.year()), unsigned(ymd.month()),
                  unsigned(ymd.day()), int(time.hours().count()), int(time.minutes().count()),
                  int(time.seconds().count()));
    std::copy(text, text + 19, out.begin() + static_cast<std::ptrdiff_t>(at));
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
