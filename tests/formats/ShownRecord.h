#pragma once
// What the file model shows for an opened file, in the shape of the records
// in the real files' expected.json: kept dates, sub-second texts, date value
// offsets, JFIF fields and segment ranges.

#include <optional>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "core/OrbTiff.h"
#include "formats/LumImageFile.h"

namespace lumtest {

using json = nlohmann::json;

inline json textOrNull(const std::optional<std::string>& s) { return s ? json(*s) : json(nullptr); }

inline json rangeOrNull(const std::optional<LumRange>& r) {
  return r ? json::array({r->location, r->length}) : json(nullptr);
}

inline json jfifOrNull(const LumImageFile& f) {
  if (!f.JFIF()) return nullptr;
  json j = json::object();
  for (const auto& [key, value] : *f.JFIF()) j[key] = value;
  return j;
}

inline json dateOffsets(const LumImageFile& f) {
  json j = json::object();
  const std::pair<const char*, LumDateField> fields[] = {{"DateTimeOriginal", LumDateField::DateTimeOriginal},
                                                        {"DateTimeDigitized", LumDateField::DateTimeDigitized},
                                                        {"DateTime", LumDateField::DateTime}};
  for (const auto& [name, field] : fields)
    if (const auto offset = f.dateValueOffset(field)) j[name] = *offset;
  return j;
}

// What the model shows for a file, in the shape of an expected record.
inline json shown(const LumImageFile& f) {
  return {
      {"tiffHeaderLocation", f.tiff() ? json(f.tiff()->tiffHeaderLocation()) : json(nullptr)},
      {"DateTimeOriginal", textOrNull(f.originalDateTimeOriginalString())},
      {"DateTimeDigitized", textOrNull(f.originalDateTimeDigitizedString())},
      {"DateTime", textOrNull(f.originalDateTimeString())},
      {"SubSecTimeOriginal", textOrNull(f.originalSubSecDateTimeOriginalString())},
      {"SubSecTimeDigitized", textOrNull(f.originalSubSecDateTimeDigitizedString())},
      {"SubSecTime", textOrNull(f.originalSubSecDateTimeString())}, {"editable", f.isEdit()},
      {"date_offsets", dateOffsets(f)}, {"jfif", jfifOrNull(f)},
      {"JFIFSegmentRange", rangeOrNull(f.JFIFSegmentRange())},
      {"exifSegmentRange", rangeOrNull(f.exifSegmentRange())},
  };
}

}  // namespace lumtest
