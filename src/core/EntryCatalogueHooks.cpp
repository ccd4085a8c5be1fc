#include "core/EntryCatalogueHooks.h"

#include "core/CatalogueHooks.h"
#include "core/OrbIFDEntry.h"

OrbEntryCatalogueHooks& entryCatalogueHooks() {
  // The catalogue's functions are named here, so that linking the core
  // library always brings them in.
  static OrbEntryCatalogueHooks hooks{
      .typeWithIFDTag = &OrbIFDEntry::typeWithIFDTag,
      .setUpWithIFDTag = &orb::catalogue::setUpNewEntry,
      .title = &orb::catalogue::entryTitle,
      .dataObject = &orb::catalogue::entryDataObject,
      .isEqualToValue = &orb::catalogue::entryIsEqualToValue,
  };
  return hooks;
}
