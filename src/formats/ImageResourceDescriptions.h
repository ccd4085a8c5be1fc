#pragma once
// One-line descriptions of Photoshop image resource data, decoded from the
// published layouts of the resources that have one (big-endian fields).

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace ImageResourceDescriptions {

// The description of a block's data; a resource without a known layout, or
// with data too short for it, is described by its name and size.
std::string describe(std::uint16_t irbID, const std::optional<std::string>& name, std::span<const std::uint8_t> data);

// "Name: <name>, Data size: <n> bytes" ("1 byte" for one); without a name
// the text starts at the ", ".
std::string nameAndSize(const std::optional<std::string>& name, std::size_t size);

}  // namespace ImageResourceDescriptions
