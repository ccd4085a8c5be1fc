#pragma once
// The three dates of a TIFF structure and their sub-second texts, read
// straight from the bytes without building the structure.
//
// Listing the dates of thousands of files only needs six entries of IFD0 and
// its Exif IFD, so this walks those two tables in place and keeps no entry:
// the answer is a fixed-size value whose texts are views into the block
// (valid while the block lives), and nothing is allocated.
//
// It answers exactly what OrbTiff::exifWithPtr() followed by
// entryWithIFDTag(tag, ifdID) answers for these entries: the same tables
// read, the same entries dropped (an out-of-line value past the limit or the
// block), the last of two entries with one tag kept, a date cut to 19
// characters, and the same next-IFD offset reported when the chain leaves
// the limit. Where the structure's display rules go beyond plain text (a
// value of another type than ASCII or UTF-8, or bytes that are not ASCII)
// the field says so with Kind::Other, and a caller that needs the text then
// parses the full structure.
//
// Every read goes through orb::ByteView; a view that notes its refusals
// sees each one, so a scan over a file's head can prove it wanted nothing
// past the head.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "core/ByteView.h"

namespace ExifDateScan {

// The six entries read, by their index in Dates::fields.
enum Field : std::size_t {
  kDateTimeOriginal,     // Exif 0x9003
  kDateTimeDigitized,    // Exif 0x9004
  kDateTime,             // IFD0 0x0132
  kSubSecTimeOriginal,   // Exif 0x9291
  kSubSecTimeDigitized,  // Exif 0x9292
  kSubSecTime,           // Exif 0x9290
  kFieldCount
};

struct Value {
  enum class Kind : std::uint8_t {
    Absent,  // no such entry (or its value lay outside the limit)
    Text,    // ASCII or UTF-8 type with ASCII bytes: `text` is what the entry shows
    Other,   // present, but shown by rules this scan does not apply
  };
  Kind kind = Kind::Absent;
  // The bytes up to the first zero; for the three dates at most the first
  // 19, as a date entry keeps no more. Empty unless kind is Text.
  std::string_view text;
  // The value's offset from the TIFF header when it lies out of line (more
  // than 4 bytes): where a new date text is written.
  std::optional<std::uint32_t> valueOffset;
};

struct Dates {
  // False when the header is not a TIFF header (no structure at all).
  bool isTiff = false;
  std::array<Value, kFieldCount> fields{};
  // A next-IFD offset of the chain at or past maxLocation: the structure's
  // parse reports it as "nextIFDLocation: (N) maxLocation:(M)".
  std::optional<std::uint32_t> nextIFDPastLimit;
  // The chain was longer than this scan follows (kMaxChain IFDs) without
  // ending or coming back; nextIFDPastLimit is then not known.
  bool chainUnresolved = false;

  const Value& operator[](Field field) const { return fields[field]; }
  // True when every field and the chain's end are known without the full parse.
  bool complete() const;
};

// IFDs of the main chain followed to find where it ends; multi-page TIFF
// files with more are left to the full parse.
inline constexpr std::size_t kMaxChain = 32;

// Reads the structure whose header starts at headerLocation in block;
// maxLocation bounds the IFDs as it bounds OrbTiff::exifWithPtr() (normally
// the size of the whole file, of which block may be only the head).
Dates scan(orb::ByteView block, std::uint64_t headerLocation, std::uint64_t maxLocation);

}  // namespace ExifDateScan
