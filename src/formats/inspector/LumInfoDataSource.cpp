#include "formats/inspector/LumInfoDataSource.h"

#include <algorithm>
#include <iterator>

#include "core/Localization.h"
#include "core/LocalizationKeys.h"
#include "core/OrbTiff.h"
#include "formats/inspector/InspectorTagLists.h"

namespace {

std::string localized(std::string_view key) {
  return Localization::localizedString(Localization::kIFDTable, key);
}

std::unique_ptr<OrbIFDEntry> makeByteOrderEntry(std::int8_t endian) {
  auto entry = OrbIFDEntry::initWithEndian(endian, 0, kTIFFIFDID);
  using namespace Localization::keys;
  entry->setASCIIString(endian == kOrbLittleEndian ? kLittleEndian : kBigEndian);
  return entry;
}

// The file's date as opened for the three date entries, nullopt otherwise.
std::optional<std::optional<std::string>> originalDateFor(const OrbIFDEntry& e, const LumInfoOriginalDates& dates) {
  if (e.ifdID() == kTIFFIFDID && e.ifdTag() == kDateTimeTag) return dates.dateTime;
  if (e.ifdID() == kExifIFDID && e.ifdTag() == kDateTimeOriginalTag) return dates.dateTimeOriginal;
  if (e.ifdID() == kExifIFDID && e.ifdTag() == kDateTimeDigitizedTag) return dates.dateTimeDigitized;
  return std::nullopt;
}

LumInfoRow entryRow(std::string_view group, const OrbIFDEntry& e, const OrbTiff& tiff,
                    const LumInfoOriginalDates& dates) {
  LumInfoRow row{LumInfoRowKind::Entry, std::string(group), localized(e.title()), {}, e};
  if (e.ifdID() == kGPSIFDID)
    row.value = LumInfoDataSource::pGPSObjectValueForTableColumn(LumInfoDataSource::kValueColumn, e, tiff);
  else if (const auto original = originalDateFor(e, dates))
    row.value = original->value_or("");
  else
    row.value = e.localizedDataObject().stringValue();
  return row;
}

void appendJFIF(std::vector<LumInfoRow>& rows, const LumImageFile::JFIFDictionary& jfif) {
  const auto valueOf = [&](std::string_view key) -> const std::string* {
    for (const auto& [k, v] : jfif)
      if (k == key) return &v;
    return nullptr;
  };
  if (std::none_of(inspector::kJFIFKeys.begin(), inspector::kJFIFKeys.end(), valueOf)) return;
  rows.push_back({LumInfoRowKind::Heading, "JFIF", "JFIF", {}, std::nullopt});
  for (const std::string_view key : inspector::kJFIFKeys)
    if (const std::string* value = valueOf(key))
      rows.push_back({LumInfoRowKind::JFIFKey, "JFIF", localized(key), localized(*value), std::nullopt});
}

// The place of the Exif with each of its comma-separated parts localized.
std::string localizedPlace(std::string_view place) {
  std::string out;
  while (!place.empty()) {
    const std::size_t comma = place.find(", ");
    if (!out.empty()) out += ", ";
    out += localized(place.substr(0, comma));
    place = comma == std::string_view::npos ? std::string_view{} : place.substr(comma + 2);
  }
  return out;
}

}  // namespace

std::vector<LumInfoRow> LumInfoDataSource::containerRows(std::string_view container, std::string_view exifPlace) {
  if (container.empty()) return {};
  using namespace Localization::keys;
  const std::string group = localized(kFile);
  std::string value(container);
  if (!exifPlace.empty()) value += ", " + localizedPlace(exifPlace);
  return {{LumInfoRowKind::Heading, group, group, {}, std::nullopt},
          {LumInfoRowKind::Container, group, localized(kContainer), std::move(value), std::nullopt}};
}

std::vector<LumInfoRow> LumInfoDataSource::rowsFor(const OrbTiff* tiff, const LumImageFile::JFIFDictionary* jfif,
                                                   const LumInfoOriginalDates& dates) {
  std::vector<LumInfoRow> rows;
  if (jfif) appendJFIF(rows, *jfif);
  if (!tiff) return rows;
  for (const inspector::Group& g : inspector::kGroups) {
    const auto entries = tiff->entriesWithIFDTags(g.tags, g.ifdID);
    if (entries.empty()) continue;
    const std::string group(g.heading);
    rows.push_back({LumInfoRowKind::Heading, group, group, {}, std::nullopt});
    if (g.ifdID == kTIFFIFDID) {
      const OrbIFDEntry& order = byteOrderEntry(tiff->endian());
      rows.push_back({LumInfoRowKind::Entry, group, localized(order.title()),
                      order.localizedDataObject().stringValue(), order});
    }
    for (const OrbIFDEntry* e : entries) rows.push_back(entryRow(group, *e, *tiff, dates));
  }
  return rows;
}

void LumInfoDataSource::setImageFile(const LumImageFile* file) {
  imageFile_ = file;
  pMakeIFDDataSources();
}

void LumInfoDataSource::pMakeIFDDataSources() {
  if (!imageFile_) {
    rows_.clear();
    return;
  }
  const LumInfoOriginalDates dates{imageFile_->originalDateTimeOriginalString(),
                                   imageFile_->originalDateTimeDigitizedString(),
                                   imageFile_->originalDateTimeString()};
  const auto& jfif = imageFile_->JFIF();
  const bool read = readsLargeStructures_ || !imageFile_->structureLiesBeyondHead() || !imageFile_->tiffPending();
  rows_ = containerRows(imageFile_->containerName(), imageFile_->exifPlace());
  std::vector<LumInfoRow> metadata = rowsFor(read ? imageFile_->tiff().get() : nullptr, jfif ? &*jfif : nullptr, dates);
  rows_.insert(rows_.end(), std::make_move_iterator(metadata.begin()), std::make_move_iterator(metadata.end()));
}

std::string LumInfoDataSource::objectValue(std::string_view columnIdentifier, std::size_t row) const {
  if (row >= rows_.size()) return {};
  if (columnIdentifier == kTagNameColumn) return rows_[row].tagName;
  if (columnIdentifier == kValueColumn) return rows_[row].value;
  return {};
}

bool LumInfoDataSource::isHeadingRow(std::size_t row) const {
  return row < rows_.size() && rows_[row].kind == LumInfoRowKind::Heading;
}

bool LumInfoDataSource::imageFileDidChange(const LumImageFile* file) {
  if (file == imageFile_) return false;
  setImageFile(file);
  return true;
}

bool LumInfoDataSource::imageFileDidSave(const LumImageFile* file) {
  if (!file || file != imageFile_) return false;
  pMakeIFDDataSources();
  return true;
}

std::span<const std::uint16_t> LumInfoDataSource::_displayIFDTags_TIFF() { return inspector::kTIFFTags; }
std::span<const std::uint16_t> LumInfoDataSource::_displayIFDTags_Exif() { return inspector::kExifTags; }
std::span<const std::uint16_t> LumInfoDataSource::_displayIFDTags_Interoperability() {
  return inspector::kInteroperabilityTags;
}
std::span<const std::uint16_t> LumInfoDataSource::_displayIFDTags_GPS() { return inspector::kGPSTags; }

const OrbIFDEntry& LumInfoDataSource::byteOrderEntry(std::int8_t endian) {
  // Made once for the whole application, the first time they are needed.
  static const std::unique_ptr<OrbIFDEntry> little = makeByteOrderEntry(kOrbLittleEndian);
  static const std::unique_ptr<OrbIFDEntry> big = makeByteOrderEntry(kOrbBigEndian);
  return endian == kOrbLittleEndian ? *little : *big;
}
