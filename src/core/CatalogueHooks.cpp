#include "core/CatalogueHooks.h"

#include "core/OrbIFDEntry.h"
#include "core/TagCatalogue.h"

namespace orb::catalogue {

void setUpNewEntry(OrbIFDEntry& entry) {
  const auto info = tagInfo(entry.ifdTag(), entry.ifdID());
  if (!info) return;
  switch (info->setup) {
    case DefaultCount::Leave: break;
    case DefaultCount::Count: entry.setDataCount(info->count); break;
    case DefaultCount::EmptyText: entry.setASCIIString(""); break;
  }
}

std::string entryTitle(const OrbIFDEntry& entry) {
  return titleWithTag(entry.ifdTag(), entry.ifdID(), entry.version());
}

std::optional<bool> entryIsEqualToValue(const OrbIFDEntry& entry, const OrbIFDEntry& other) {
  if (entry.ifdID() != kGPSIFDID) return std::nullopt;
  switch (entry.ifdTag()) {
    case 2: case 4: case 20: case 22: return entry.isEqualToEntryByGPSDegree(other);
    default: return std::nullopt;
  }
}

}  // namespace orb::catalogue
