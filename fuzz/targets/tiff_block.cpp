// The TIFF structure of a block: header, IFD chain and sub-IFDs.
//
// Must hold: every out-of-line value kept is a copy of bytes that lie inside
// the block at the entry's offset from the header (a date's 20th byte is
// always made a zero), never more than the entry claims; every entry can be
// shown as text; a copy holds the same entries. The date scan answers what
// the parse holds for the six entries it reads and for the chain's end.
#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "FuzzCheck.h"
#include "core/ByteView.h"
#include "core/ExifDateScan.h"
#include "core/OrbTiff.h"

namespace {

void checkEntry(const OrbIFDEntry& entry, orb::ByteView block, std::uint64_t header) {
  if (entry.hasValue()) {
    const std::uint64_t at = header + entry.data();
    FUZZ_CHECK(entry.value().size() <= entry.byteCount());
    const auto inBlock = block.bytes(at, entry.value().size());
    FUZZ_CHECK(inBlock.has_value());
    // A date keeps 19 characters and always ends with a zero of its own.
    const std::size_t compared = entry.isDateTimeEntry() ? std::min<std::size_t>(19, inBlock->size()) : inBlock->size();
    FUZZ_CHECK(std::equal(inBlock->begin(), inBlock->begin() + static_cast<std::ptrdiff_t>(compared),
                          entry.value().begin()));
  }
  FUZZ_CHECK(entry.valueBytes().size() <= std::max<std::size_t>(entry.byteCount(), 4));
  (void)entry.stringData();
  (void)entry.description();
}

void checkDateScan(const OrbTiff* tiff, orb::ByteView block, std::uint64_t header, bool chainPastLimit) {
  static constexpr struct { ExifDateScan::Field field; std::uint16_t tag; std::uint32_t ifdID; } kEntries[] = {
      {ExifDateScan::kDateTimeOriginal, 0x9003, kExifIFDID},   {ExifDateScan::kDateTimeDigitized, 0x9004, kExifIFDID},
      {ExifDateScan::kDateTime, 0x0132, kTIFFIFDID},           {ExifDateScan::kSubSecTimeOriginal, 0x9291, kExifIFDID},
      {ExifDateScan::kSubSecTimeDigitized, 0x9292, kExifIFDID}, {ExifDateScan::kSubSecTime, 0x9290, kExifIFDID}};
  const ExifDateScan::Dates dates = ExifDateScan::scan(block, header, block.size());
  FUZZ_CHECK(dates.isTiff == (tiff != nullptr));
  if (!dates.chainUnresolved) FUZZ_CHECK(dates.nextIFDPastLimit.has_value() == chainPastLimit);
  for (const auto& e : kEntries) {
    const OrbIFDEntry* entry = tiff ? tiff->entryWithIFDTag(e.tag, e.ifdID) : nullptr;
    const ExifDateScan::Value& value = dates[e.field];
    FUZZ_CHECK((value.kind == ExifDateScan::Value::Kind::Absent) == (entry == nullptr));
    if (!entry) continue;
    FUZZ_CHECK(value.valueOffset == (entry->byteCount() > 4 ? std::optional(entry->data()) : std::nullopt));
    if (value.kind == ExifDateScan::Value::Kind::Text) FUZZ_CHECK(entry->dataObject().text() == value.text);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  // A whole TIFF file has its header at 0; for anything else the first byte
  // says where the header starts in the rest, as inside an APP1 segment.
  const bool wholeFile = (data[0] == 'I' && data[1] == 'I') || (data[0] == 'M' && data[1] == 'M');
  const std::uint64_t location = wholeFile ? 0 : data[0] % 16;
  const orb::ByteView block = wholeFile ? orb::ByteView(data, size) : orb::ByteView(data + 1, size - 1);
  std::vector<std::string> consoleLines;
  const auto tiff = OrbTiff::exifWithPtr(block, &location, block.size(), &consoleLines);
  checkDateScan(tiff.get(), block, location, !consoleLines.empty());
  if (!tiff) return 0;
  FUZZ_CHECK(tiff->tiffHeaderLocation() == location);
  const auto* ifds = tiff->IFDs();
  if (!ifds) return 0;
  for (const OrbIFDMap& map : *ifds)
    for (const auto& [key, entry] : map) {
      FUZZ_CHECK(key == entry.itemKey());
      checkEntry(entry, block, location);
    }
  const auto copy = tiff->mutableCopy();
  FUZZ_CHECK(copy->IFDs() && copy->IFDs()->size() == ifds->size());
  (void)tiff->exifVersion();
  (void)tiff->hasExifVersionNotAllowedUTF8();
  return 0;
}
