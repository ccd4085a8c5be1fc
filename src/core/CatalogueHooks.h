#pragma once
// The catalogue's side of the hooks through which OrbIFDEntry learns titles,
// expected types, default content, display objects and value comparisons
// (see EntryCatalogueHooks.h).

#include <cstdint>
#include <optional>
#include <string>

#include "core/OrbDataObject.h"

class OrbIFDEntry;

namespace orb::catalogue {

// Gives a new entry the default count (or empty text) of its tag.
void setUpNewEntry(OrbIFDEntry& entry);
// The entry's title under its own version.
std::string entryTitle(const OrbIFDEntry& entry);
// Words of coded values, GPS times and readable texts of known tags; nullopt
// when the entry is shown by its type alone.
std::optional<OrbDataObject> entryDataObject(const OrbIFDEntry& entry);
// GPS positions compare by their degrees; nullopt for every other entry.
std::optional<bool> entryIsEqualToValue(const OrbIFDEntry& entry, const OrbIFDEntry& other);

}  // namespace orb::catalogue
