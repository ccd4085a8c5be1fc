#pragma once
// The TIFF structure of a file held in memory.
//
// A parse reads the header at a given position of a block (a whole TIFF file,
// or a JPEG with the header inside its Exif segment), then the chain of IFDs
// and, from each of them, the Exif, GPS and Interoperability sub-IFDs. Each
// chain IFD becomes one map from item key (IFD id + tag) to entry; the map at
// index 0 holds IFD0 with its sub-IFDs, index 1 holds IFD1, and so on. All
// offsets are relative to the header, whose absolute position is
// tiffHeaderLocation(): an out-of-line value starts at data() +
// tiffHeaderLocation() in the block.
//
// The parse copies what it keeps, so the block need only live during it.
// Malformed input never makes it read outside the block: an IFD chain that
// comes back to an IFD already read stops there, and a read that would leave
// the block finds nothing.
//
// The Photoshop and IPTC records (tags 0x8649 and 0x83BB of IFD0) are read
// and written by free functions of the formats layer on top of
// entryWithIFDTag(), setEntry() and OrbIFDEntry::value()/setValue().

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/ByteView.h"
#include "core/IFDItemID.h"
#include "core/OrbIFDEntry.h"
#include "core/OrbLocationCoordinate.h"

// One IFD of the main chain with its sub-IFDs, by item key.
using OrbIFDMap = std::map<std::uint32_t, OrbIFDEntry>;

class OrbTiff {
 public:
  // An empty structure: header location 0, big-endian, no IFD list.
  OrbTiff() = default;

  // Parses the structure whose header starts at *location (0 when null) in
  // block; maxLocation is the limit the IFDs must respect (normally the
  // block's size). nullptr when the header is not a TIFF header.
  //
  // A walk that ends on a next-IFD offset past the limit says so on the
  // console. With consoleLines given, that line is added there instead, for
  // a caller that prints it only once it knows this parse is the one kept.
  static std::unique_ptr<OrbTiff> exifWithPtr(orb::ByteView block, const std::uint64_t* location,
                                              std::uint64_t maxLocation,
                                              std::vector<std::string>* consoleLines = nullptr);
  static std::unique_ptr<OrbTiff> exifWithPtr(std::span<const std::uint8_t> block, const std::uint64_t* location,
                                              std::uint64_t maxLocation) {
    return exifWithPtr(orb::ByteView(block), location, maxLocation);
  }

  // Deep copy: every map and entry is copied.
  OrbTiff(const OrbTiff&) = default;
  OrbTiff& operator=(const OrbTiff&) = default;
  std::unique_ptr<OrbTiff> mutableCopy() const { return std::make_unique<OrbTiff>(*this); }

  // ---- structure ----
  std::int8_t endian() const { return endian_; }
  void setEndian(std::int8_t endian) { endian_ = endian; }
  bool isBigEndian() const { return endian_ == kOrbBigEndian; }
  bool isLittleEndian() const { return endian_ == kOrbLittleEndian; }
  std::uint64_t tiffHeaderLocation() const { return tiffHeaderLocation_; }
  void setTiffHeaderLocation(std::uint64_t location) { tiffHeaderLocation_ = location; }
  // The IFD maps; nullptr when the structure was never parsed or filled.
  const std::vector<OrbIFDMap>* IFDs() const { return ifds_ ? &*ifds_ : nullptr; }
  void setIFDs(std::optional<std::vector<OrbIFDMap>> ifds) { ifds_ = std::move(ifds); }

  // ---- lookups ----
  // The first IFD map, or nullptr.
  const OrbIFDMap* entries() const { return entriesAtIndex(0); }
  const OrbIFDMap* entriesAtIndex(std::size_t index) const;
  // Every entry of the first map with this IFD id, in the map's own order.
  std::vector<const OrbIFDEntry*> entriesWithIFDID(std::uint32_t ifdID) const;
  // For each tag in order, its entry of that IFD id (missing tags skipped);
  // with no tags, every entry of that IFD id ordered by tag.
  std::vector<const OrbIFDEntry*> entriesWithIFDTags(std::span<const std::uint16_t> tags, std::uint32_t ifdID,
                                                     std::size_t index = 0) const;
  std::vector<OrbIFDEntry*> entriesWithIFDTags(std::span<const std::uint16_t> tags, std::uint32_t ifdID,
                                               std::size_t index = 0);
  const OrbIFDEntry* entryWithIFDTag(std::uint16_t tag, std::uint32_t ifdID, std::size_t index = 0) const;
  OrbIFDEntry* entryWithIFDTag(std::uint16_t tag, std::uint32_t ifdID, std::size_t index = 0);
  bool hasEntriesWithIFDID(std::uint32_t ifdID) const;

  // Version of the Exif / GPS IFD at index 0 (0 without the version entry).
  std::uint32_t exifVersion() const;
  std::uint32_t GPSVersion() const;
  // True when the first map holds a TIFF/Exif (or GPS) entry of a tag that
  // may carry UTF-8 text.
  bool hasExifVersionNotAllowedUTF8() const;
  bool hasGPSVersionNotAllowedUTF8() const;

  // ---- GPS position (OrbTiffGPS.cpp) ----
  // The image's position (destination false) or its destination, south and
  // west negative; kOrbLocationCoordinateInvalid unless the GPS IFD has both
  // values and both references.
  OrbLocationCoordinate gpsLocationCoordinate(bool destination) const;
  // The image's position; false, with the outputs untouched, when an entry
  // is missing or an output is not given.
  bool getLatitude(double* latitude, double* longitude) const;

  // ---- changes ----
  // Stores a copy of the entry under its item key at the index, adding empty
  // maps until the index exists; a nullptr entry does nothing.
  void setEntry(const OrbIFDEntry* entry, std::size_t index = 0);
  void setEntry(const OrbIFDEntry& entry, std::size_t index = 0) { setEntry(&entry, index); }
  bool removeEntryWithIFDTag(std::uint16_t tag, std::uint32_t ifdID, std::size_t index = 0);
  bool removeEntryWithIFDItemID(IFDItemID itemID) { return removeEntryWithIFDTag(itemID.ifdTag, itemID.ifdID); }
  // Removes every entry of the IFD id from the first map.
  bool removeEntryWithIFDID(std::uint32_t ifdID);
  bool removeIFDAtIndex(std::size_t index);

  // The 13 image-structure tags of TIFF (ImageWidth ... ColorMap).
  static std::span<const std::uint16_t> imageStructureTags();

 private:
  bool pSearchDataIFDByIFD(orb::ByteView block, std::uint64_t location, std::uint64_t maxLocation,
                           std::vector<std::string>* consoleLines);
  std::optional<OrbIFDMap> pGetIFDEntries(orb::ByteView block, std::uint32_t ifdID, std::uint32_t* nextIFDLocation,
                                          std::uint64_t maxLocation) const;
  OrbIFDMap* mutableEntriesAtIndex(std::size_t index);

  std::int8_t endian_ = kOrbBigEndian;
  std::optional<std::vector<OrbIFDMap>> ifds_;
  std::uint64_t tiffHeaderLocation_ = 0;
};
