#pragma once
// The Photoshop and IPTC records carried by a TIFF structure: tag 34377
// (0x8649, image resource blocks) and tag 33723 (0x83BB, IPTC datasets) of
// IFD0. They live here rather than on OrbTiff / OrbIFDEntry because the core
// layer knows nothing of the records.

#include <cstdint>
#include <memory>
#include <optional>

#include "core/OrbIFDEntry.h"
#include "core/OrbTiff.h"
#include "formats/OrbIPTCIIM.h"
#include "formats/OrbPhotoshopFF.h"

namespace TiffRecords {

inline constexpr std::uint16_t kPhotoshopTag = 0x8649;
inline constexpr std::uint16_t kIPTCTag = 0x83BB;

}  // namespace TiffRecords

// The resource blocks of IFD0's tag 34377, or nullopt without that entry.
std::optional<OrbPhotoshopFF> photoshopFF(const OrbTiff& tiff);

// With a record whose blocks serialise to some bytes: IFD0's tag 34377
// (made when missing) takes those bytes and their length as its count.
// Without a record, or with one that has no blocks, the entry is removed.
void setPhotoshopFF(OrbTiff& tiff, const OrbPhotoshopFF* photoshop);

// The datasets of IFD0's tag 33723, or null without that entry.
std::unique_ptr<OrbIPTCIIM> iptcIIM(const OrbTiff& tiff);

// The datasets walked from an entry's value bytes.
std::unique_ptr<OrbIPTCIIM> iptcIIM(const OrbIFDEntry& entry);
