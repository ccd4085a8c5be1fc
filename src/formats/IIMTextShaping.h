#pragma once
// How the decoded text of an IPTC dataset is shown: dates as yyyy-MM-dd,
// times with colons, coded values as their words.

#include <cstdint>
#include <string>

namespace IIMTextShaping {

// The presented form of `text`, the decoded data of dataset record:dataSetNumber.
// Text that does not have the dataset's expected shape is answered unchanged.
std::string shape(std::uint8_t record, std::uint8_t dataSetNumber, const std::string& text);

}  // namespace IIMTextShaping
