#pragma once
// Whether the date scan answers what the full TIFF parse answers for the six
// entries it reads, their value offsets and the end of the IFD chain.

#include <cstdio>
#include <string>
#include <vector>

#include "core/ExifDateScan.h"
#include "core/OrbTiff.h"

namespace lumtest {

// Parses the block both ways; empty when they agree, else what differs.
inline std::string dateScanDisagreement(orb::ByteView block, std::uint64_t header, std::uint64_t maxLocation) {
  using Kind = ExifDateScan::Value::Kind;
  static constexpr struct { ExifDateScan::Field field; std::uint16_t tag; std::uint32_t ifdID; } kEntries[] = {
      {ExifDateScan::kDateTimeOriginal, 0x9003, kExifIFDID},   {ExifDateScan::kDateTimeDigitized, 0x9004, kExifIFDID},
      {ExifDateScan::kDateTime, 0x0132, kTIFFIFDID},           {ExifDateScan::kSubSecTimeOriginal, 0x9291, kExifIFDID},
      {ExifDateScan::kSubSecTimeDigitized, 0x9292, kExifIFDID}, {ExifDateScan::kSubSecTime, 0x9290, kExifIFDID}};
  std::vector<std::string> lines;
  const auto tiff = OrbTiff::exifWithPtr(block, &header, maxLocation, &lines);
  const ExifDateScan::Dates dates = ExifDateScan::scan(block, header, maxLocation);
  std::string differences;
  if (dates.isTiff != (tiff != nullptr)) differences += "header; ";
  for (const auto& e : kEntries) {
    const OrbIFDEntry* entry = tiff ? tiff->entryWithIFDTag(e.tag, e.ifdID) : nullptr;
    const ExifDateScan::Value& v = dates[e.field];
    bool same = v.kind == Kind::Absent && !v.valueOffset;
    if (entry) {
      const OrbDataObject object = entry->dataObject();
      const auto offset = entry->byteCount() > 4 ? std::optional(entry->data()) : std::nullopt;
      same = v.valueOffset == offset && (v.kind == Kind::Other || (v.kind == Kind::Text && object.isText() &&
                                                                   object.text() == v.text));
    }
    char tag[16];
    std::snprintf(tag, sizeof tag, "0x%04X; ", e.tag);
    if (!same) differences += tag;
  }
  const std::size_t wantedLines = dates.nextIFDPastLimit ? 1 : 0;
  if (!dates.chainUnresolved &&
      (lines.size() != wantedLines ||
       (wantedLines && lines[0].find("(" + std::to_string(*dates.nextIFDPastLimit) + ")") == std::string::npos)))
    differences += "chain end; ";
  return differences;
}

}  // namespace lumtest
