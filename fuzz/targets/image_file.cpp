// The scan of a whole photo file: classification, JPEG marker walk, JFIF
// fields, decoder header check, TIFF structure and the original dates.
//
// Must hold: every segment range and date offset found lies inside the file;
// a kept date is 19 characters, and where it has an offset the 19 bytes
// there are that date (a save writes exactly there); a date change touches
// only those bytes.
#include <cstdint>
#include <string>
#include <vector>

#include "FuzzCheck.h"
#include "core/ByteView.h"
#include "documents/DateRewrite.h"
#include "formats/FileData.h"
#include "formats/LumImageFile.h"

namespace {

constexpr LumDateField kFields[] = {LumDateField::DateTimeOriginal, LumDateField::DateTimeDigitized,
                                    LumDateField::DateTime};

void checkRange(const std::optional<LumRange>& range, orb::ByteView file) {
  // A segment's length field may claim more than the file holds; only its
  // start must be inside.
  if (range) FUZZ_CHECK(range->location < file.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const orb::ByteView file(data, size);
  LumImageFile image;
  LumError error;
  if (!image.searchImageDataAndMakeExifObject(file, &error)) return 0;
  // The original date texts are taken when the bytes are handed over.
  image.setImageData(lum::FileData::fromBytes(std::vector<std::uint8_t>(data, data + size)));
  checkRange(image.JFIFSegmentRange(), file);
  checkRange(image.exifSegmentRange(), file);
  for (const auto& [key, value] : image.JFIF().value_or(LumImageFile::JFIFDictionary{})) FUZZ_CHECK(!key.empty());

  std::vector<InPlaceWriter::BytePatch> patches;
  for (const LumDateField field : kFields) {
    const auto& text = image.originalString(field);
    if (text) FUZZ_CHECK(text->size() == DateRewrite::kDateLength);
    const auto offset = image.dateValueOffset(field);
    if (!offset) continue;
    const auto at = file.bytes(*offset, DateRewrite::kDateLength);
    if (!at) continue;  // the writer refuses a date beyond the end
    if (text) FUZZ_CHECK(std::string(at->begin(), at->end()) == *text);
    patches.push_back({*offset, "2031:12:30 23:58:57"});
  }
  const std::vector<std::uint8_t> changed = DateRewrite::applied(file, patches);
  FUZZ_CHECK(changed.size() == size);
  for (std::size_t i = 0; i < size; ++i) {
    if (changed[i] == data[i]) continue;
    bool insideADate = false;
    for (const auto& p : patches) insideADate |= i >= p.position && i < p.position + p.bytes.size();
    FUZZ_CHECK(insideADate);
  }
  return 0;
}
