#pragma once
// ISO base media files (HEIC, HEIF, HIF, AVIF, CR3, and MP4/MOV videos):
// the brand, and the TIFF blocks of their Exif. The box walk is bounded by
// each parent's size and the file's size, and never visits a box twice.

#include <optional>
#include <string>
#include <vector>

#include "core/ByteView.h"
#include "formats/containers/ContainerTypes.h"

namespace lum::isobmff {

struct Result {
  std::string name;     // "HEIC", "HEIF", "AVIF", "CR3", "MP4", "MOV"
  bool isVideo = false;  // MP4 and MOV: recognised and refused, never misread
  std::vector<TiffBlock> blocks;        // HEIF family: the Exif item; CR3: CMT1 (IFD0) then CMT2 (Exif IFD)
  std::optional<std::string> problem;  // why no block was found, for the error text
};

// True when the first bytes are an ISO base media file ("ftyp" box first).
bool looksLikeIsoBmff(orb::ByteView head);

// Walks the file's boxes through read; fileSize bounds every box.
Result locateExif(std::uint64_t fileSize, const RangeReader& read);

}  // namespace lum::isobmff
