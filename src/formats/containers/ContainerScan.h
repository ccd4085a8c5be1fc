#pragma once
// Which photo container a file is, told from its bytes, and where its
// TIFF/Exif blocks sit, so that the existing TIFF parser can read them.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/containers/ContainerTypes.h"

namespace lum {

// The refusal of MP4 and QuickTime videos.
inline constexpr const char* kVideoRefusal = "videos are not edited yet";

struct ContainerScan {
  // As a user says it: "JPEG", "TIFF", "DNG", "CR2", "NEF", "ARW", ...,
  // "TIFF RAW", "ORF", "RW2", "RAF", "HEIC", "AVIF", "CR3", "PNG", "WebP",
  // "MP4", "MOV"; empty when the bytes are of no format known here.
  std::string name;
  std::vector<TiffBlock> blocks;  // in file order of importance: the main block first
  // Set when the file is not edited, saying why (a video, a cut-off stub,
  // an unknown format).
  std::optional<std::string> refusal;
};

// Reads the file through read; fileSize bounds every walk.
ContainerScan scanContainer(std::uint64_t fileSize, const RangeReader& read);

}  // namespace lum
