#pragma once
// Words for coded SHORT values (Orientation, Flash, MeteringMode, ...).

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace orb::codedwords {

// True when SHORT entries of the tag show words instead of numbers.
bool isCoded(std::uint32_t ifdID, std::uint16_t tag);

// The English word for the entry's values (the first one decides, except
// for YCbCrSubSampling, which names its pair), or nullopt when the tag is
// not coded or there is no value. `exifVersion` matters for LightSource only.
std::optional<std::string> wordFor(std::uint32_t ifdID, std::uint16_t tag, std::span<const std::uint16_t> values,
                                   std::uint32_t exifVersion);

}  // namespace orb::codedwords
