#pragma once
// What a container scan answers: where the TIFF/Exif blocks of a photo file
// sit, found from the file's bytes and never from its name, so that the
// existing TIFF parser can read them and a save can patch their date texts
// in place at file offsets.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lum {

// One TIFF structure inside a file.
struct TiffBlock {
  std::uint64_t offset = 0;  // file offset of the TIFF header (byte-order mark)
  std::uint64_t length = 0;  // bytes from there that belong to the block
  std::string where;         // for the inspector and errors: "eXIf chunk", "CMT1 box", ...
};

// Reads length bytes at offset of the file being scanned; fewer at its end,
// nullopt when the read fails. Implementations check the range first.
using RangeReader = std::function<std::optional<std::vector<std::uint8_t>>(std::uint64_t offset, std::uint64_t length)>;

}  // namespace lum
