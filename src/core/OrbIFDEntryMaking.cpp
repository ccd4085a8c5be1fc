// Ready-made OrbIFDEntry objects: date and time stamp, version and pointer
// entries. Each goes through initWithEndian(), so its type and default count
// come from the catalogue.

#include <array>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "core/ExifDateText.h"
#include "core/FixedNumberFormat.h"
#include "core/OrbIFDEntry.h"

namespace {

// Reads characters [pos, pos + 2) of the date text as a number (0 when absent).
std::string twoChars(const std::string& text, std::size_t pos) { return pos < text.size() ? text.substr(pos, 2) : ""; }

void appendNumber(std::vector<std::uint8_t>& bytes, std::uint32_t n, std::int8_t endian) {
  const std::array<std::uint8_t, 4> big{static_cast<std::uint8_t>(n >> 24), static_cast<std::uint8_t>(n >> 16),
                                        static_cast<std::uint8_t>(n >> 8), static_cast<std::uint8_t>(n)};
  if (endian == kOrbLittleEndian)
    bytes.insert(bytes.end(), big.rbegin(), big.rend());
  else
    bytes.insert(bytes.end(), big.begin(), big.end());
}

std::unique_ptr<OrbIFDEntry> withInlineBytes(std::int8_t endian, std::uint16_t tag, std::uint32_t ifdID,
                                            std::array<std::uint8_t, 4> bytes, std::uint32_t version) {
  auto entry = OrbIFDEntry::initWithEndian(endian, tag, ifdID);
  if (!entry) return entry;
  entry->setDataPtr(bytes);
  entry->setVersion(version);
  return entry;
}

}  // namespace

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::entryIFDDateTime(std::int8_t endian) {
  auto entry = initWithEndian(endian, kDateTimeTag, kTIFFIFDID);
  if (entry) entry->setASCIIString(orb::exifDateTextNowLocal());
  return entry;
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::timeStampEntry(std::int8_t endian, std::int64_t theDate,
                                                         std::optional<std::int32_t> timeZoneOffset) {
  auto entry = initWithEndian(endian, 7, kGPSIFDID);
  if (!entry) return entry;
  const std::string text = orb::exifDateText(theDate, timeZoneOffset);
  const auto hours = static_cast<std::uint32_t>(std::strtoul(twoChars(text, 11).c_str(), nullptr, 10));
  const auto minutes = static_cast<std::uint32_t>(std::strtoul(twoChars(text, 14).c_str(), nullptr, 10));
  // Only whole seconds are in the text, so the hundredths are always 0.
  const float seconds = orb::leadingFloat(twoChars(text, 17));
  const auto hundredths = static_cast<std::uint32_t>(orb::truncatedUInt64(seconds * 100.0f));
  std::vector<std::uint8_t> value;
  for (const std::uint32_t n : {hours, 1u, minutes, 1u, hundredths, 100u}) appendNumber(value, n, endian);
  entry->setValue(value);
  return entry;
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::defaultExifVersionEntry(std::int8_t endian) {
  constexpr std::uint32_t kVersion = 232;
  char digits[16];
  std::snprintf(digits, sizeof digits, "%04u", kVersion);
  std::array<std::uint8_t, 4> bytes{'0', '0', '0', '0'};
  if (std::string_view(digits).size() == 4)
    for (std::size_t i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(digits[i]);
  return withInlineBytes(endian, 0x9000, kExifIFDID, bytes, kVersion);
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::defaultGPSVersionEntry(std::int8_t endian) {
  // 2300 is GPS version 2.3.0.0: one byte per digit.
  return withInlineBytes(endian, 0, kGPSIFDID, {2, 3, 0, 0}, 2300);
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::latestInteroperabilityVersionEntry(std::int8_t endian) {
  return withInlineBytes(endian, 2, kInteroperabilityIFDID, {'0', '1', '0', '0'}, 0);
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::InteroperabilityIndexR98Entry(std::int8_t endian) {
  auto entry = initWithEndian(endian, 1, kInteroperabilityIFDID);
  if (entry) entry->setASCIIString("R98");
  return entry;
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::IFDExifPointerEntry(std::int8_t endian) {
  return initWithEndian(endian, kExifPointerTag, kTIFFIFDID);
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::IFDGPSPointerEntry(std::int8_t endian) {
  return initWithEndian(endian, kGPSPointerTag, kTIFFIFDID);
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::IFDInteroperabilityPointerEntry(std::int8_t endian) {
  return initWithEndian(endian, kInteroperabilityPointerTag, kExifIFDID);
}
