// The JPEG marker walk and the JFIF APP0 fields of LumImageFile.
//
// Only marker and length fields are touched, never segment bodies, so the
// walk is fast on large files. Every read is bounded: a field that would lie
// past the end of the bytes ends the walk as "nothing found".
#include <cstdio>

#include "formats/LumImageFile.h"

namespace {

constexpr std::uint16_t kAPP0 = 0xFFE0;
constexpr std::uint16_t kAPP1 = 0xFFE1;
constexpr std::uint16_t kSOS = 0xFFDA;
constexpr std::uint32_t kExif = 0x45786966;  // "Exif"
constexpr std::uint32_t kJFIF = 0x4A464946;  // "JFIF"

std::string format(const char* pattern, int a, int b = 0) {
  char text[32];
  std::snprintf(text, sizeof text, pattern, a, b);
  return text;
}

const char* densityUnitText(std::uint8_t unit) {
  switch (unit) {
    case 1: return "dpi";
    case 2: return "dpc";
    default: return "No Units";
  }
}

}  // namespace

bool LumImageFile::pSearchJPEG(orb::ByteView bytes, std::uint64_t* location, std::uint64_t fileSize) {
  if (!location) return false;
  std::uint64_t& loc = *location;
  auto marker = bytes.u16(loc);
  if (!marker) return false;
  loc += 2;
  // Only an APP0 right after SOI is looked at; a later one is skipped like
  // any other segment.
  if (*marker == kAPP0) {
    pSearchJFIF(bytes, &loc, fileSize);
    marker = bytes.u16(loc);
    if (!marker) return false;
    loc += 2;
  }
  // Every segment up to the first APP1 is skipped by its length. The walk
  // ends at the start of scan: what follows is entropy-coded image data, so
  // a file without Exif is not read to its end to learn that it has none.
  while (*marker != kAPP1) {
    if (*marker == kSOS) return false;
    const std::uint64_t lengthField = loc;
    const auto length = bytes.u16(lengthField);
    if (!length) return false;
    loc = lengthField + *length;
    if (loc >= fileSize) return false;
    marker = bytes.u16(loc);
    if (!marker) return false;
    loc += 2;
    if (loc >= fileSize) return false;
  }
  // Only the first APP1 is tried: one of another kind (XMP, say) means the
  // file is taken as having no Exif.
  const auto length = bytes.u16(loc);
  if (!length) return false;
  exifSegmentRange_ = LumRange{loc - 2, std::uint64_t{*length} + 2};
  loc += 2;
  const auto identifier = bytes.u32(loc);
  if (!identifier || *identifier != kExif) return false;
  loc += 4 + 2;  // the two bytes after "Exif" are not checked
  tiffHeaderLocation_ = loc;
  return true;
}

void LumImageFile::pSearchJFIF(orb::ByteView bytes, std::uint64_t* location, std::uint64_t /*fileSize*/) {
  if (!location) return;
  std::uint64_t& loc = *location;
  jfif_.reset();
  const std::uint64_t segmentStart = loc - 2;
  const auto length = bytes.u16(loc);
  if (!length) {
    loc = bytes.size();  // nothing more to walk
    return;
  }
  const LumRange range{segmentStart, std::uint64_t{*length} + 2};
  jfifSegmentRange_ = range;
  const std::uint64_t segmentEnd = range.location + range.length;
  loc += 2;
  const auto identifier = bytes.u32(loc);
  if (!identifier || *identifier != kJFIF) {
    loc = segmentEnd;  // a JFXX or other APP0 is skipped whole
    return;
  }
  loc += 4;  // on the NUL that ends the identifier
  const auto major = bytes.u8(loc + 1);
  const auto minor = bytes.u8(loc + 2);
  const auto unit = bytes.u8(loc + 3);
  const auto xDensity = bytes.u16(loc + 4);
  const auto yDensity = bytes.u16(loc + 6);
  const auto thumbWidth = bytes.u8(loc + 8);
  const auto thumbHeight = bytes.u8(loc + 9);
  if (!major || !minor || !unit || !xDensity || !yDensity || !thumbWidth || !thumbHeight) {
    loc = segmentEnd;  // a cut APP0 gives no JFIF
    return;
  }
  JFIFDictionary fields;
  // "%.d" prints nothing for a minor version of 0 and no leading zero
  // otherwise: 1.00 shows as "1." and 1.01 as "1.1". Kept as it always was.
  fields.emplace_back("JFIF Version",
                      format("%d.%.d", static_cast<std::int8_t>(*major), static_cast<std::int8_t>(*minor)));
  fields.emplace_back("Density Unit", densityUnitText(*unit));
  fields.emplace_back("X Density", std::to_string(*xDensity));
  fields.emplace_back("Y Density", std::to_string(*yDensity));
  // Sizes are compared as signed bytes, so 128 and more are left out.
  if (static_cast<std::int8_t>(*thumbWidth) > 0) fields.emplace_back("Thumbnail Width", std::to_string(*thumbWidth));
  if (static_cast<std::int8_t>(*thumbHeight) > 0) fields.emplace_back("Thumbnail Height", std::to_string(*thumbHeight));
  jfif_ = std::move(fields);
  // The walk goes on right after the thumbnail sizes, not at the segment's
  // end: for an APP0 carrying thumbnail pixels it lands inside them.
  loc += 10;
}
