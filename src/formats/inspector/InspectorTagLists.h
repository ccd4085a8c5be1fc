#pragma once
// The tags the inspector shows per group, in display order (not by tag
// number: Make and Model follow DateTime). A group shows only the entries
// the file has. The IFD pointer tags and the GPS reference letters are not
// listed: the references are shown with their values.

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/IFDItemID.h"

namespace inspector {

inline constexpr std::array<std::uint16_t, 27> kTIFFTags{
    0, 269, 270, 285, 315, 33432, 258, 259, 262, 306, 271, 272, 274, 319,
    296, 282, 283, 256, 257, 301, 305, 316, 318, 529, 530, 531, 532};

inline constexpr std::array<std::uint16_t, 47> kExifTags{
    37378, 37379, 40961, 37122, 41992, 41985, 36867, 36868, 41988, 36864, 37380, 41986,
    34850, 33434, 37385, 40960, 33437, 37386, 41989, 42016, 41991, 42240, 41488, 41486,
    41487, 34855, 37384, 37381, 37383, 40962, 40963, 37382, 41993, 41728, 41729, 41990,
    41495, 41730, 41994, 37377, 41996, 37520, 37521, 37522, 37510, 41987, 37121};

inline constexpr std::array<std::uint16_t, 5> kInteroperabilityTags{1, 2, 4096, 4097, 4098};

inline constexpr std::array<std::uint16_t, 8> kGPSTags{0, 2, 4, 5, 6, 8, 29, 7};

// JFIF fields in display order.
inline constexpr std::array<std::string_view, 6> kJFIFKeys{
    "JFIF Version", "Density Unit", "X Density", "Y Density", "Thumbnail Width", "Thumbnail Height"};

struct Group {
  std::string_view heading;
  std::uint32_t ifdID;
  std::span<const std::uint16_t> tags;
};

inline constexpr std::array<Group, 4> kGroups{{
    {"TIFF", kTIFFIFDID, kTIFFTags},
    {"Exif", kExifIFDID, kExifTags},
    {"Interoperability", kInteroperabilityIFDID, kInteroperabilityTags},
    {"GPS", kGPSIFDID, kGPSTags},
}};

}  // namespace inspector
