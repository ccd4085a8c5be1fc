#include "formats/TiffRecords.h"

#include "core/IFDItemID.h"

std::optional<OrbPhotoshopFF> photoshopFF(const OrbTiff& tiff) {
  const OrbIFDEntry* entry = tiff.entryWithIFDTag(TiffRecords::kPhotoshopTag, kTIFFIFDID);
  if (!entry) return std::nullopt;
  // valueBytes() is bounded by what the entry holds, so a count larger than
  // the stored value cannot take the walk outside it.
  return OrbPhotoshopFF::photoshopFFWithIRBPtr(orb::ByteView(entry->valueBytes()));
}

void setPhotoshopFF(OrbTiff& tiff, const OrbPhotoshopFF* photoshop) {
  const auto bytes = photoshop ? photoshop->dataOfIRBs() : std::vector<std::uint8_t>{};
  if (bytes.empty()) {
    tiff.removeEntryWithIFDTag(TiffRecords::kPhotoshopTag, kTIFFIFDID);
    return;
  }
  if (!tiff.entryWithIFDTag(TiffRecords::kPhotoshopTag, kTIFFIFDID)) {
    const auto made = OrbIFDEntry::initWithEndian(tiff.endian(), TiffRecords::kPhotoshopTag, kTIFFIFDID);
    if (!made) return;
    tiff.setEntry(*made);
  }
  OrbIFDEntry* entry = tiff.entryWithIFDTag(TiffRecords::kPhotoshopTag, kTIFFIFDID);
  if (!entry) return;
  entry->setValue(bytes);
  entry->setDataCount(static_cast<std::uint32_t>(bytes.size()));
}

std::unique_ptr<OrbIPTCIIM> iptcIIM(const OrbTiff& tiff) {
  const OrbIFDEntry* entry = tiff.entryWithIFDTag(TiffRecords::kIPTCTag, kTIFFIFDID);
  return entry ? iptcIIM(*entry) : nullptr;
}

std::unique_ptr<OrbIPTCIIM> iptcIIM(const OrbIFDEntry& entry) {
  return OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView(entry.valueBytes()));
}
