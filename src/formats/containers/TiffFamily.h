#pragma once
// Files that are TIFF structures from their first byte: TIFF, DNG and the
// TIFF-based camera RAW files (CR2, NEF, ARW, ...), and ORF and RW2, whose
// headers carry their own magic numbers instead of 42.

#include <cstdint>
#include <optional>
#include <string>

#include "core/ByteView.h"
#include "formats/containers/ContainerScan.h"

namespace lum::containers {

// The format the first 8 bytes announce: "TIFF" (for every header with the
// standard magic), "ORF" or "RW2"; nullopt for anything else.
std::optional<std::string> tiffFamilyHeader(orb::ByteView head);

// The whole file as one block, named from its first directory; refused when
// the file ends before that directory does.
ContainerScan scanTiffFamily(std::uint64_t fileSize, const RangeReader& read, const std::string& headerName);

}  // namespace lum::containers
