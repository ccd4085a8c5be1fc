#pragma once
// The TIFF block of a JPEG's Exif APP1 segment, for JPEG files and for the
// JPEG embedded in other files (RAF).

#include <cstdint>
#include <optional>
#include <string>

#include "formats/containers/ContainerTypes.h"

namespace lum::containers {

// Walks the segments of the JPEG at [start, start + length) of the file up
// to its image data; the first APP1 that starts with "Exif\0\0" and holds a
// TIFF header gives the block. `where` names it for messages.
std::optional<TiffBlock> locateJpegExif(std::uint64_t fileSize, const RangeReader& read, std::uint64_t start,
                                        std::uint64_t length, const std::string& where);

}  // namespace lum::containers
