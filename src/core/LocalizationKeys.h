#pragma once
// Words the engine looks up by a literal key rather than through one of its
// catalogue tables. They are kept here, as data, so the translation key tool
// lists them together with the tag, coded-word and record tables.

#include <array>
#include <string_view>

namespace Localization::keys {

// Table "IFD".
inline constexpr std::string_view kUnknown = "Unknown";
inline constexpr std::string_view kLittleEndian = "Little Endian";
inline constexpr std::string_view kBigEndian = "Big Endian";
// Exif 0x8827 from version 230 on (the tag table holds the older title).
inline constexpr std::string_view kPhotographicSensitivity = "Photographic Sensitivity";
// Appended to a GPS altitude after its number.
inline constexpr std::string_view kAboveSeaLevel = "above sea level";
inline constexpr std::string_view kBelowSeaLevel = "below sea level";
// The words of the GPS altitude reference.
inline constexpr std::string_view kAboveSeaLevelReference = "Above Sea Level";
inline constexpr std::string_view kBelowSeaLevelReference = "Below Sea Level";

// The inspector's first group: the photo format and where its Exif sits.
inline constexpr std::string_view kFile = "File";
inline constexpr std::string_view kContainer = "Container";

inline constexpr std::array kIFDWords{kUnknown, kLittleEndian, kBigEndian, kPhotographicSensitivity,
                                      kAboveSeaLevel, kBelowSeaLevel, kAboveSeaLevelReference,
                                      kBelowSeaLevelReference, kFile, kContainer};

// The places of a file's Exif as the container scan names them.
inline constexpr std::array<std::string_view, 9> kExifPlaces{
    "APP1 segment", "embedded JPEG's APP1 segment", "embedded preview JPEG's APP1 segment", "Exif item", "CMT1 box",
    "CMT2 box", "eXIf chunk", "EXIF chunk", "TIFF structure"};

// Table "IPTC".
inline constexpr std::string_view kIPTCInformationInterchangeModel = "IPTC Information Interchange Model";

inline constexpr std::array kIPTCWords{kIPTCInformationInterchangeModel};

}  // namespace Localization::keys
