#pragma once
// WebP files (RIFF "WEBP"): the TIFF block of the EXIF chunk of an extended
// file, with or without a leading "Exif\0\0".

#include <cstdint>

#include "core/ByteView.h"
#include "formats/containers/ContainerScan.h"

namespace lum::containers {

// True when the first 12 bytes are "RIFF", a size and "WEBP".
bool looksLikeWebp(orb::ByteView head);

// Walks the chunks inside the RIFF size and the file's size.
ContainerScan scanWebp(std::uint64_t fileSize, const RangeReader& read);

}  // namespace lum::containers
