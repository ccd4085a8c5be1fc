#pragma once
// IFD ids, the (IFD id, tag) pair that names an entry, and the rational pair.
//
// An IFD id has its low 16 bits zero, so an entry's item key (IFD id + tag)
// is also IFD id | tag, and (key & 0xFFFF0000) gives the IFD id back.

#include <cstdint>

// IFD0, IFD1 and every further IFD of the main chain (told apart by index).
inline constexpr std::uint32_t kTIFFIFDID = 0x10000;
// The Exif IFD, reached through tag 0x8769 of a chain IFD.
inline constexpr std::uint32_t kExifIFDID = 0x20000;
// The Interoperability IFD, reached through tag 0xA005 of the Exif IFD.
inline constexpr std::uint32_t kInteroperabilityIFDID = 0x30000;
// The GPS IFD, reached through tag 0x8825 of a chain IFD.
inline constexpr std::uint32_t kGPSIFDID = 0x40000;
// Accepted by the entry constructor, never carried by a parsed IFD.
inline constexpr std::uint32_t kExtraIFDID = 0x50000;

// Pointer tags that lead from one IFD to its sub-IFD.
inline constexpr std::uint16_t kExifPointerTag = 0x8769;
inline constexpr std::uint16_t kGPSPointerTag = 0x8825;
inline constexpr std::uint16_t kInteroperabilityPointerTag = 0xA005;

// The three date-time entries.
inline constexpr std::uint16_t kDateTimeTag = 0x0132;           // IFD0
inline constexpr std::uint16_t kDateTimeOriginalTag = 0x9003;   // Exif
inline constexpr std::uint16_t kDateTimeDigitizedTag = 0x9004;  // Exif

constexpr std::uint32_t itemKey(std::uint32_t ifdID, std::uint16_t tag) { return ifdID + tag; }
constexpr std::uint32_t ifdIDOfItemKey(std::uint32_t key) { return key & 0xFFFF0000u; }

struct IFDItemID {
  std::uint32_t ifdID = 0;
  std::uint16_t ifdTag = 0;

  constexpr std::uint32_t itemKey() const { return ::itemKey(ifdID, ifdTag); }
  friend constexpr bool operator==(const IFDItemID&, const IFDItemID&) = default;
};

struct OrbRational {
  std::uint32_t numerator = 0;
  std::uint32_t denominator = 0;

  friend constexpr bool operator==(const OrbRational&, const OrbRational&) = default;
};
