#pragma once
// What the program knows about each tag: title, expected type, the count a
// new entry gets, the version that introduced it, and where it may stand.
// OrbIFDEntry's class operations of the same names answer through these.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/LumError.h"
#include "core/TagInfo.h"

namespace orb::catalogue {

// The table of an IFD id (empty for any other id).
std::span<const TagInfo> tableForIFD(std::uint32_t ifdID);

// The catalogue row of a tag, or nullopt for an untitled tag or unknown IFD.
std::optional<TagInfo> tagInfo(std::uint16_t tag, std::uint32_t ifdID);

// The English title; "(0x%X)" of the tag for untitled tags and unknown IFDs.
// Exif 0x8827 is "Photographic Sensitivity" from version 230 on.
std::string titleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version);
// The title through the "IFD" string table.
std::string localizedTitleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version);

// The expected field type; 0 when the catalogue expects none.
std::uint16_t typeWithIFDTag(std::uint16_t tag, std::uint32_t ifdID);

// The version that introduced the tag; 0 for the TIFF and Interoperability IFDs.
std::uint32_t availableVersionWithIFDTag(std::uint16_t tag, std::uint32_t ifdID);

// Whether the tag may stand in a file of `version`. `lightSource` is the
// value of a LightSource entry when the caller has one.
bool isCompatibleWithVersion(std::uint32_t version, std::uint16_t tag, std::uint32_t ifdID,
                             std::optional<std::int64_t> lightSource = std::nullopt);

// False for a TIFF tag found in the Exif IFD or an Exif tag found in a TIFF
// IFD; an unknown tag is correct anywhere.
bool isCorrectTag(std::uint16_t tag, std::uint32_t ifdID);

// An Exif ImageUniqueID is exactly 32 hexadecimal digits. `text` is nullopt
// when the caller's value is not a text at all: false with no error then.
bool isLegalExifImageUniqueID(std::optional<std::string_view> text, LumError* error);

}  // namespace orb::catalogue
