#pragma once
// Fixed facts about IPTC IIM datasets, kept as data: the title of each
// record:dataset, the allowed byte counts, and the object attribute names.

#include <cstdint>
#include <limits>
#include <string_view>

namespace IIMDataSetTables {

// "Unknown" in both byte-count lookups: all bits set.
inline constexpr std::uint64_t kUnknownByteCount = std::numeric_limits<std::uint64_t>::max();

// The English title ("IIM Object Name"), or empty text for an unlisted dataset.
std::string_view title(std::uint8_t record, std::uint8_t dataSetNumber);

// Allowed data length range; kUnknownByteCount from both for unlisted datasets.
std::uint64_t minimumByteCount(std::uint8_t record, std::uint8_t dataSetNumber);
std::uint64_t maximumByteCount(std::uint8_t record, std::uint8_t dataSetNumber);

// Object attribute name n (1 to 22) in English, or empty text outside that range.
std::string_view objectAttributeName(unsigned n);

}  // namespace IIMDataSetTables
