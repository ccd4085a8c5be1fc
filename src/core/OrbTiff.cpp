#include "core/OrbTiff.h"

#include <algorithm>
#include <cstdio>
#include <set>

#include "core/ByteHelpers.h"
#include "core/ConsoleLog.h"
#include "core/TextNumber.h"

namespace {

constexpr std::uint16_t kExifVersionTag = 0x9000;
constexpr std::uint16_t kGPSVersionTag = 0x0000;

}  // namespace

// ---- parsing ----

std::unique_ptr<OrbTiff> OrbTiff::exifWithPtr(orb::ByteView block, const std::uint64_t* location,
                                              std::uint64_t maxLocation, std::vector<std::string>* consoleLines) {
  const std::uint64_t header = location ? *location : 0;
  auto tiff = std::make_unique<OrbTiff>();
  std::vector<std::string> lines;
  const bool parsed = tiff->pSearchDataIFDByIFD(block, header, maxLocation, consoleLines ? consoleLines : &lines);
  orb::logLines(lines);
  if (!parsed) return nullptr;
  return tiff;
}

bool OrbTiff::pSearchDataIFDByIFD(orb::ByteView block, std::uint64_t location, std::uint64_t maxLocation,
                                  std::vector<std::string>* consoleLines) {
  tiffHeaderLocation_ = location;
  std::uint64_t pos = location;
  std::uint16_t mark = 0;
  if (!ByteHelpers::readUInt16BE(block, &pos, &mark)) return false;
  if (mark == 0x4949) endian_ = kOrbLittleEndian;
  else if (mark == 0x4D4D) endian_ = kOrbBigEndian;
  else return false;

  std::uint16_t magic = 0;
  if (!ByteHelpers::readUInt16BE(block, &pos, &magic)) return false;
  if (magic != (isLittleEndian() ? 0x2A00 : 0x002A)) return false;

  std::uint32_t next = 0;
  if (!ByteHelpers::readUInt32BE(block, &pos, &next)) return false;
  if (isLittleEndian()) next = ByteHelpers::swap32(next);

  ifds_.emplace();
  if (next == 0) return true;

  // IFDs of the chain already read: a chain that comes back to one of them
  // would otherwise be walked forever.
  std::set<std::uint32_t> visited;
  for (;;) {
    if (!visited.insert(next).second) return true;
    std::optional<OrbIFDMap> map = pGetIFDEntries(block, kTIFFIFDID, &next, maxLocation);
    if (map) {
      // Sub-IFDs; their next-IFD offsets mean nothing and are dropped.
      if (auto it = map->find(itemKey(kTIFFIFDID, kExifPointerTag)); it != map->end()) {
        std::uint32_t exifOffset = it->second.data();
        if (auto exif = pGetIFDEntries(block, kExifIFDID, &exifOffset, maxLocation); exif && !exif->empty()) {
          std::optional<OrbIFDMap> interop;
          if (auto p = exif->find(itemKey(kExifIFDID, kInteroperabilityPointerTag)); p != exif->end()) {
            std::uint32_t interopOffset = p->second.data();
            interop = pGetIFDEntries(block, kInteroperabilityIFDID, &interopOffset, maxLocation);
          }
          for (auto& [key, entry] : *exif) map->insert_or_assign(key, std::move(entry));
          if (interop)
            for (auto& [key, entry] : *interop) map->insert_or_assign(key, std::move(entry));
        }
      }
      if (auto it = map->find(itemKey(kTIFFIFDID, kGPSPointerTag)); it != map->end()) {
        std::uint32_t gpsOffset = it->second.data();
        if (auto gps = pGetIFDEntries(block, kGPSIFDID, &gpsOffset, maxLocation))
          for (auto& [key, entry] : *gps) map->insert_or_assign(key, std::move(entry));
      }
    }
    if (!map) return true;
    ifds_->push_back(std::move(*map));
    // The next offset is relative to the header while the limit is absolute;
    // the comparison keeps them that way on purpose.
    if (next >= maxLocation) {
      consoleLines->push_back("nextIFDLocation: (" + std::to_string(next) + ") maxLocation:(" +
                              std::to_string(maxLocation) + ")");
      return true;
    }
    if (next == 0) return true;
  }
}

std::optional<OrbIFDMap> OrbTiff::pGetIFDEntries(orb::ByteView block, std::uint32_t ifdID,
                                                 std::uint32_t* nextIFDLocation, std::uint64_t maxLocation) const {
  if (!nextIFDLocation || tiffHeaderLocation_ + *nextIFDLocation >= maxLocation) return std::nullopt;
  std::uint64_t pos = tiffHeaderLocation_ + *nextIFDLocation;
  std::uint16_t count = 0;
  // A table that starts past the block holds nothing.
  if (!ByteHelpers::readUInt16BE(block, &pos, &count)) return std::nullopt;
  if (isLittleEndian()) count = ByteHelpers::swap16(count);

  OrbIFDMap map;
  std::uint32_t version = 0;
  for (std::uint16_t i = 0; i < count; ++i) {
    // Entries are read while the next one starts below the limit; the last
    // may run past it, but never past the block.
    const auto raw = block.bytes(pos, 12);
    if (!raw) break;
    OrbIFDEntry entry;
    entry.setEndian(endian_);
    entry.setEntry(*raw, ifdID);
    pos += 12;
    const std::uint16_t tag = entry.ifdTag();
    const std::uint32_t byteCount = entry.byteCount();
    bool keep = true;
    if (byteCount >= 5) {
      const std::uint64_t start = tiffHeaderLocation_ + entry.data();
      const auto value = block.bytes(start, byteCount);
      // Ending exactly at the limit is fine; past it, or past the block, the
      // entry is dropped.
      keep = start + byteCount <= maxLocation && value.has_value();
      if (keep) entry.setValue(*value);
    }
    if (keep) {
      if (ifdID == kExifIFDID && tag == kExifVersionTag) {
        version = entry.exifVersion();
      } else if (tag == kGPSVersionTag && ifdID == kGPSIFDID) {
        // Each byte printed as a signed number read as unsigned, as the
        // version has always been read here.
        const auto bytes = entry.dataPtr();
        char text[64];
        std::snprintf(text, sizeof text, "%u%u%u%u", static_cast<unsigned>(static_cast<std::int8_t>(bytes[0])),
                      static_cast<unsigned>(static_cast<std::int8_t>(bytes[1])),
                      static_cast<unsigned>(static_cast<std::int8_t>(bytes[2])),
                      static_cast<unsigned>(static_cast<std::int8_t>(bytes[3])));
        version = static_cast<std::uint32_t>(TextNumber::intValue(text));
      }
      map.insert_or_assign(entry.itemKey(), std::move(entry));
    }
    if (pos >= maxLocation) break;
  }
  if (version != 0)
    for (auto& [key, entry] : map) entry.setVersion(version);

  // A next-IFD offset that would leave the block reads as 0: the chain ends.
  std::uint32_t next = 0;
  if (ByteHelpers::readUInt32BE(block, &pos, &next) && isLittleEndian()) next = ByteHelpers::swap32(next);
  *nextIFDLocation = next;
  return map;
}

// ---- lookups ----

const OrbIFDMap* OrbTiff::entriesAtIndex(std::size_t index) const {
  if (!ifds_ || index >= ifds_->size()) return nullptr;
  return &(*ifds_)[index];
}

OrbIFDMap* OrbTiff::mutableEntriesAtIndex(std::size_t index) {
  if (!ifds_ || index >= ifds_->size()) return nullptr;
  return &(*ifds_)[index];
}

std::vector<const OrbIFDEntry*> OrbTiff::entriesWithIFDID(std::uint32_t ifdID) const {
  std::vector<const OrbIFDEntry*> result;
  if (const OrbIFDMap* map = entries())
    for (const auto& [key, entry] : *map)
      if (ifdIDOfItemKey(key) == ifdID) result.push_back(&entry);
  return result;
}

std::vector<OrbIFDEntry*> OrbTiff::entriesWithIFDTags(std::span<const std::uint16_t> tags, std::uint32_t ifdID,
                                                      std::size_t index) {
  std::vector<OrbIFDEntry*> result;
  OrbIFDMap* map = mutableEntriesAtIndex(index);
  if (!map) return result;
  if (!tags.empty()) {
    for (std::uint16_t tag : tags)
      if (auto it = map->find(itemKey(ifdID, tag)); it != map->end()) result.push_back(&it->second);
    return result;
  }
  // Keys are kept in ascending order, so the entries come ordered by tag.
  for (auto& [key, entry] : *map)
    if ((key ^ ifdID) < 0x10000) result.push_back(&entry);
  return result;
}

std::vector<const OrbIFDEntry*> OrbTiff::entriesWithIFDTags(std::span<const std::uint16_t> tags, std::uint32_t ifdID,
                                                            std::size_t index) const {
  const auto found = const_cast<OrbTiff*>(this)->entriesWithIFDTags(tags, ifdID, index);
  return {found.begin(), found.end()};
}

OrbIFDEntry* OrbTiff::entryWithIFDTag(std::uint16_t tag, std::uint32_t ifdID, std::size_t index) {
  OrbIFDMap* map = mutableEntriesAtIndex(index);
  if (!map) return nullptr;
  auto it = map->find(itemKey(ifdID, tag));
  return it == map->end() ? nullptr : &it->second;
}

const OrbIFDEntry* OrbTiff::entryWithIFDTag(std::uint16_t tag, std::uint32_t ifdID, std::size_t index) const {
  return const_cast<OrbTiff*>(this)->entryWithIFDTag(tag, ifdID, index);
}

bool OrbTiff::hasEntriesWithIFDID(std::uint32_t ifdID) const { return !entriesWithIFDTags({}, ifdID).empty(); }

std::uint32_t OrbTiff::exifVersion() const {
  const OrbIFDEntry* entry = entryWithIFDTag(kExifVersionTag, kExifIFDID);
  return entry ? entry->exifVersion() : 0;
}

std::uint32_t OrbTiff::GPSVersion() const {
  const OrbIFDEntry* entry = entryWithIFDTag(kGPSVersionTag, kGPSIFDID);
  return entry ? entry->GPSVersion() : 0;
}

bool OrbTiff::hasExifVersionNotAllowedUTF8() const {
  const OrbIFDMap* map = entries();
  if (!map) return false;
  return std::ranges::any_of(*map, [](const auto& item) {
    const std::uint32_t ifdID = ifdIDOfItemKey(item.first);
    return (ifdID == kTIFFIFDID || ifdID == kExifIFDID) && OrbIFDEntry::allowedUTF8WithItemID(item.second.itemID());
  });
}

bool OrbTiff::hasGPSVersionNotAllowedUTF8() const {
  const OrbIFDMap* map = entries();
  if (!map) return false;
  return std::ranges::any_of(*map, [](const auto& item) {
    return ifdIDOfItemKey(item.first) == kGPSIFDID && OrbIFDEntry::allowedUTF8WithItemID(item.second.itemID());
  });
}

// ---- changes ----

void OrbTiff::setEntry(const OrbIFDEntry* entry, std::size_t index) {
  if (!entry) return;
  if (!ifds_) ifds_.emplace();
  while (ifds_->size() <= index) ifds_->emplace_back();
  (*ifds_)[index].insert_or_assign(entry->itemKey(), *entry);
}

bool OrbTiff::removeEntryWithIFDTag(std::uint16_t tag, std::uint32_t ifdID, std::size_t index) {
  OrbIFDMap* map = mutableEntriesAtIndex(index);
  return map && map->erase(itemKey(ifdID, tag)) > 0;
}

bool OrbTiff::removeEntryWithIFDID(std::uint32_t ifdID) {
  OrbIFDMap* map = mutableEntriesAtIndex(0);
  if (!map) return false;
  return std::erase_if(*map, [ifdID](const auto& item) { return ifdIDOfItemKey(item.first) == ifdID; }) > 0;
}

bool OrbTiff::removeIFDAtIndex(std::size_t index) {
  if (!ifds_ || index >= ifds_->size()) return false;
  ifds_->erase(ifds_->begin() + static_cast<std::ptrdiff_t>(index));
  return true;
}

std::span<const std::uint16_t> OrbTiff::imageStructureTags() {
  static constexpr std::uint16_t kTags[] = {256, 257, 258, 259, 262, 273, 277, 278, 279, 282, 283, 296, 320};
  return kTags;
}
