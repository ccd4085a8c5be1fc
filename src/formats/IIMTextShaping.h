#pragma once
// How the decoded text of an IPTC dataset is shown: dates as yyyy-MM-dd,
// times with colons, coded values as their words.

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace IIMTextShaping {

// The presented form of `text`, the decoded data of dataset record:dataSetNumber.
// Text that does not have the dataset's expected shape is answered unchanged.
std::string shape(std::uint8_t record, std::uint8_t dataSetNumber, const std::string& text);

// The presented form of a dataset whose data is binary rather than text
// (newsphoto excursion tolerance, bits per component); nullopt for others.
std::optional<std::string> shapeBinary(std::uint8_t record, std::uint8_t dataSetNumber,
                                       std::span<const std::uint8_t> data);

}  // namespace IIMTextShaping
