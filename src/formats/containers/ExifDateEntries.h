#pragma once
// The date entries of the TIFF blocks a container scan found, and the one
// text each of the three dates shows with every place it is written.
//
// A file may state a date more than once: IFD1 repeats IFD0's DateTime, a
// NEF keeps DateTimeOriginal in IFD0 as well as in its Exif IFD, a RW2's
// preview JPEG carries a whole Exif of its own. The first block's own entry
// (IFD0 DateTime, Exif IFD DateTimeOriginal and DateTimeDigitized) is the
// date; the other entries of the same date that state the same text are its
// copies, written with it so that no reader sees the old time. A date the
// main entries lack is taken from the first copy that has it (a RW2 keeps
// DateTime only in its preview).
//
// Only the directories that hold dates are read (IFD0, IFD1 and the Exif
// IFD), each once, every read through the reader and bounded by its block
// and the file, so a hostile file cannot make the walk loop or read outside.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/containers/ContainerTypes.h"

namespace lum {

// The three dates, in the order DateTimeOriginal, DateTimeDigitized, DateTime.
inline constexpr std::size_t kDateCount = 3;

struct DatePlaces {
  std::optional<std::string> text;            // as stored, up to its first NUL
  std::optional<std::uint64_t> offset;        // file offset of the value, when out of line
  std::vector<std::uint64_t> copies;          // file offsets of the same text elsewhere
};

struct ContainerDates {
  std::array<DatePlaces, kDateCount> dates;
  // SubSecTimeOriginal, SubSecTimeDigitized, SubSecTime of the Exif IFD.
  std::array<std::optional<std::string>, kDateCount> subSeconds;
};

ContainerDates containerDates(std::uint64_t fileSize, const RangeReader& read, const std::vector<TiffBlock>& blocks);

}  // namespace lum
