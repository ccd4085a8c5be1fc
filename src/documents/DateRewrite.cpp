#include "documents/DateRewrite.h"

#include <algorithm>
#include <cstdio>

#include "datetime/DateAdditions.h"
#include "datetime/TimeZone.h"
#include "formats/LumImageFile.h"

namespace DateRewrite {
namespace {

bool isAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::vector<InPlaceWriter::BytePatch> patchesForTexts(const DateLocations& where, const DateTargets::Texts& texts) {
  std::vector<InPlaceWriter::BytePatch> patches;
  const bool anyEntry = std::any_of(where.valueOffsets.begin(), where.valueOffsets.end(),
                                    [](const auto& offset) { return offset.has_value(); });
  if (!anyEntry) return patches;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    const std::optional<std::string>& text = texts[t.index];
    const std::optional<std::uint64_t>& offset = where.valueOffsets[t.index];
    // An item has a text only for a date its file has; the entry check is
    // kept anyway so that a broken invariant cannot write at a guessed place.
    if (!text || !offset || text->size() < kDateLength || !isAscii(*text)) continue;
    patches.push_back({where.tiffHeaderLocation + *offset, text->substr(0, kDateLength), std::nullopt});
    for (const std::uint64_t copy : where.copies[t.index]) patches.push_back({copy, text->substr(0, kDateLength), std::nullopt});
  }
  if (!patches.empty() && where.checksum) patches.push_back({where.checksum->at, {}, where.checksum});
  return patches;
}

DateLocations locationsOf(const LumImageFile& file) {
  static constexpr LumDateField kFields[DateTargets::kCount] = {
      LumDateField::DateTimeOriginal, LumDateField::DateTimeDigitized, LumDateField::DateTime};
  DateLocations where;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    where.valueOffsets[t.index] = file.dateValueOffset(kFields[t.index]);
    where.copies[t.index] = file.dateCopies(kFields[t.index]);
  }
  where.checksum = file.exifChecksum();
  return where;
}

std::string utcDescription(const Instant& date) {
  long y = 0, m = 0, d = 0, h = 0, mi = 0, s = 0;
  const TimeZone utc = TimeZone::gmt();
  DateAdditions::getYear(date, &y, &m, &d, nullptr, &h, &mi, &s, &utc, nullptr);
  char text[64];
  std::snprintf(text, sizeof text, "%04ld-%02ld-%02ld %02ld:%02ld:%02ld +0000", y, m, d, h, mi, s);
  return text;
}

std::vector<InPlaceWriter::BytePatch> patchesForPickerDates(const DateLocations& where, const PickerDates& dates) {
  DateTargets::Texts texts;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    if (!dates[t.index]) continue;
    const std::string d = utcDescription(*dates[t.index]);
    // Picked by position: year 0-3, month 5-6, day 8-9, hour 11-12,
    // minute 14-15, second 17-18.
    texts[t.index] = d.substr(0, 4) + ":" + d.substr(5, 2) + ":" + d.substr(8, 2) + " " + d.substr(11, 2) + ":" +
                     d.substr(14, 2) + ":" + d.substr(17, 2);
  }
  return patchesForTexts(where, texts);
}

std::vector<std::uint8_t> pMakeNewDateWithData(orb::ByteView data, const LumImageFile& file, const PickerDates& dates) {
  return applied(data, patchesForPickerDates(locationsOf(file), dates));
}

std::vector<std::uint8_t> applied(orb::ByteView data, const std::vector<InPlaceWriter::BytePatch>& patches) {
  std::vector<std::uint8_t> copy(data.data(), data.data() + data.size());
  for (const InPlaceWriter::BytePatch& p : patches) {
    if (p.checksum || !data.contains(p.position, p.bytes.size())) continue;
    std::copy(p.bytes.begin(), p.bytes.end(), copy.begin() + static_cast<std::ptrdiff_t>(p.position));
  }
  return copy;
}

}  // namespace DateRewrite
