#pragma once
// Where each changed date text goes in a file, as byte patches of 19 bytes.
//
// A date is written at its entry's value offset plus the TIFF header's
// position in the file; only the 19 characters "yyyy:MM:dd HH:mm:ss" are
// written, never the terminating NUL or any other byte.

#include <cstdint>
#include <vector>

#include "core/ByteView.h"
#include "datetime/Instant.h"
#include "documents/DateTargets.h"
#include "documents/InPlaceWriter.h"

class LumImageFile;

namespace DateRewrite {

inline constexpr std::size_t kDateLength = 19;

// The value offsets (the entries' data words) of the three dates, nullopt
// where the file has no such entry, and the TIFF header's file position.
struct DateLocations {
  std::uint64_t tiffHeaderLocation = 0;
  std::array<std::optional<std::uint64_t>, DateTargets::kCount> valueOffsets{};
  // Other entries stating the same date (IFD1, a preview's Exif): each gets
  // the new text too. Absolute file positions.
  std::array<std::vector<std::uint64_t>, DateTargets::kCount> copies{};
  // A checksum over the dates' bytes (a PNG chunk's CRC), written anew with them.
  std::optional<lum::ChecksumRange> checksum;
};

// The patches for the item texts: a text that is absent, shorter than 19
// characters or not ASCII is skipped; a longer text gives its first 19,
// written at the date's entry and at each of its copies, followed by the
// checksum patch when there is one. Nothing at all when the file has none
// of the three entries.
std::vector<InPlaceWriter::BytePatch> patchesForTexts(const DateLocations& where, const DateTargets::Texts& texts);

// Where the file's three date entries keep their values (absolute file
// positions; the TIFF header's position is already added in).
DateLocations locationsOf(const LumImageFile& file);

// The single-file document's dates: one value per date picker, none where the
// picker is disabled (the file has no such date). Each value is written as
// its UTC reading, taken by position from the description form
// "yyyy-MM-dd HH:mm:ss +0000".
using PickerDates = std::array<std::optional<Instant>, DateTargets::kCount>;
std::vector<InPlaceWriter::BytePatch> patchesForPickerDates(const DateLocations& where, const PickerDates& dates);

// The description form of an instant read in UTC: "2024-01-02 03:04:05 +0000".
std::string utcDescription(const Instant& date);

// The bytes of the single-file document's file with its picker dates
// written in (a copy; the bytes themselves when the file has none of the
// three entries).
std::vector<std::uint8_t> pMakeNewDateWithData(orb::ByteView data, const LumImageFile& file, const PickerDates& dates);

// A copy of data with the patches applied; patches outside data are left out
// (the writer refuses them; this copy serves comparisons and previews).
std::vector<std::uint8_t> applied(orb::ByteView data, const std::vector<InPlaceWriter::BytePatch>& patches);

}  // namespace DateRewrite
