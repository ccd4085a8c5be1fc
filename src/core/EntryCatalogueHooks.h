#pragma once
// Where the tag catalogue plugs into OrbIFDEntry.
//
// OrbIFDEntry parses, compares and converts entries without knowing any tag's
// title, expected type, default count, coded words or GPS meaning. Those live
// in the catalogue files, which fill in the table returned by
// entryCatalogueHooks() (its initial contents are in EntryCatalogueHooks.cpp:
// that initializer is the one place to name the catalogue's functions). A
// null hook means "no catalogue knowledge" and the entry falls back to the
// rule stated next to it. Tests may swap hooks and must restore them.

#include <cstdint>
#include <optional>
#include <string>

#include "core/OrbDataObject.h"

class OrbIFDEntry;

struct OrbEntryCatalogueHooks {
  // The type a tag is expected to have in an IFD. Fallback: 0.
  std::uint16_t (*typeWithIFDTag)(std::uint16_t tag, std::uint32_t ifdID) = nullptr;

  // Gives a new entry its default content (count, empty text...) after its
  // IFD id, tag and type are set; only called for the four real IFD ids.
  // Fallback: nothing.
  void (*setUpWithIFDTag)(OrbIFDEntry& entry) = nullptr;

  // The English title of the entry. Fallback: "(0x%X)" with the tag.
  std::string (*title)(const OrbIFDEntry& entry) = nullptr;

  // A tag-specific display object (coded words of SHORT values, GPS time
  // stamps...). Consulted first by dataObject(); nullopt means "use the
  // per-type object".
  std::optional<OrbDataObject> (*dataObject)(const OrbIFDEntry& entry) = nullptr;

  // A tag-specific value comparison (GPS degrees). Consulted first by
  // isEqualToValue(); nullopt means "use the built-in rules".
  std::optional<bool> (*isEqualToValue)(const OrbIFDEntry& entry, const OrbIFDEntry& other) = nullptr;
};

// The process-wide table.
OrbEntryCatalogueHooks& entryCatalogueHooks();
