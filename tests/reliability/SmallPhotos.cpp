#include "SmallPhotos.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include "DatedPhotos.h"
#include "documents/DateRewrite.h"
#include "formats/LumImageFile.h"
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
  paths.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    char name[32];
    std::snprintf(name, sizeof name, "img-%05d.jpg", i);
    paths.push_back(folder / name);
    writeAll(paths.back(), smallDatedJpeg(i));
  }
  return paths;
}

std::vector<std::uint8_t> shiftedBytes(const std::vector<std::uint8_t>& bytes, const DateTextRules::Offsets& offsets) {
  const orb::ByteView view(bytes.data(), bytes.size());
  LumImageFile image;
  if (!image.searchImageDataAndMakeExifObject(view, nullptr)) return bytes;
  image.setImageData(lum::FileData::fromBytes(bytes));
  std::vector<InPlaceWriter::BytePatch> patches;
  for (const LumDateField field : {LumDateField::DateTimeOriginal, LumDateField::DateTimeDigitized, LumDateField::DateTime}) {
    const auto offset = image.dateValueOffset(field);
    const auto shifted = DateTextRules::shiftedDateTimeString(image.originalString(field), offsets);
    if (offset && shifted) patches.push_back({*offset, *shifted});
  }
  return DateRewrite::applied(view, patches);
}

int countFromEnvironment(const char* name, int fallback) {
  const char* text = std::getenv(name);
  if (!text || !*text) return fallback;
  char* end = nullptr;
  const long value = std::strtol(text, &end, 10);
  return (*end == '\0' && value > 0 && value < 10'000'000) ? static_cast<int>(value) : fallback;
}

}  // namespace reltest
