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

// A CRC-32 that guards bytes of the file: a PNG chunk's over its type and
// data, stored big-endian right after them.
struct ChecksumRange {
  std::uint64_t start = 0;   // first byte covered
  std::uint64_t length = 0;  // bytes covered
  std::uint64_t at = 0;      // where the 4-byte CRC is stored
};

// What a block is to the file's dates.
enum class BlockRole : std::uint8_t {
  Main,            // IFD0 first, its Exif IFD through the Exif pointer
  ExifIFDFirst,    // the first directory is itself the Exif IFD (a CR3's CMT2)
  EmbeddedPreview  // the Exif of a preview JPEG inside the file: copies of the dates
};

// One TIFF structure inside a file.
struct TiffBlock {
  std::uint64_t offset = 0;  // file offset of the TIFF header (byte-order mark)
  std::uint64_t length = 0;  // bytes from there that belong to the block
  std::string where;         // for the inspector and errors: "eXIf chunk", "CMT1 box", ...
  BlockRole role = BlockRole::Main;
  std::optional<ChecksumRange> checksum = std::nullopt;  // a CRC that must follow any change inside the block
};

// Reads length bytes at offset of the file being scanned; fewer at its end,
// nullopt when the read fails. Implementations check the range first.
using RangeReader = std::function<std::optional<std::vector<std::uint8_t>>(std::uint64_t offset, std::uint64_t length)>;

}  // namespace lum
