#pragma once
// Titles of Photoshop image resource ids, kept as data.

#include <cstdint>
#include <string_view>

namespace ImageResourceTitles {

// The title of a resource id: the table, then the id ranges, then "Unknown".
std::string_view title(std::uint16_t irbID);

}  // namespace ImageResourceTitles
