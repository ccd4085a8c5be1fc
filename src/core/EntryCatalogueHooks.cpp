#include "core/EntryCatalogueHooks.h"

OrbEntryCatalogueHooks& entryCatalogueHooks() {
  // The catalogue's functions are named here, so that linking the core
  // library always brings them in.
  static OrbEntryCatalogueHooks hooks{};
  return hooks;
}
