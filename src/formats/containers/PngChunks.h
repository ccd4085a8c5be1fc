#pragma once
// PNG files: the TIFF block of the eXIf chunk, and the chunk CRCs.

#include <cstdint>
#include <optional>
#include <span>

#include "core/ByteView.h"
#include "formats/containers/ContainerScan.h"

namespace lum::containers {

// True when the first bytes are the PNG signature.
bool looksLikePng(orb::ByteView head);

// Walks the chunks up to IEND (or the first chunk cut off by the file's
// end); the eXIf chunk, with or without a leading "Exif\0\0", gives the
// block. Exif kept only in a text chunk ("Raw profile type exif") is hex
// text, not a TIFF block, and gives none.
ContainerScan scanPng(std::uint64_t fileSize, const RangeReader& read);

// The CRC the chunk at chunkOffset (its length field) should carry, over its
// type and data; nullopt when the chunk does not fit in the file.
std::optional<std::uint32_t> pngChunkCrc(std::uint64_t fileSize, const RangeReader& read, std::uint64_t chunkOffset);

// True when every chunk up to IEND carries the CRC of its type and data and
// the walk reaches IEND inside the file.
bool pngCrcsAreRight(std::uint64_t fileSize, const RangeReader& read);

}  // namespace lum::containers
