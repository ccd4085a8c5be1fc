#pragma once
// Text encodings of the metadata records (IPTC datasets, resource names).
//
// Conversions go through iconv and always produce or take UTF-8 text.
// Mac OS Roman maps every byte to a character, so decoding it never fails;
// UTF-8 input is validated and rejected when malformed.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orb {

// The numbers follow the platform string-encoding constants the records were
// first written against, so a stored "encoding 0" keeps its meaning: none
// given, which the records read as Mac OS Roman.
enum class RecordEncoding : unsigned { Unspecified = 0, UTF8 = 4, MacOSRoman = 30 };

// The bytes as UTF-8 text, or nullopt when they are not valid in the encoding.
std::optional<std::string> decodeText(std::span<const std::uint8_t> bytes, RecordEncoding encoding);

// UTF-8 text as bytes of the encoding, or nullopt when a character has no
// representation there (or the text is not valid UTF-8).
std::optional<std::vector<std::uint8_t>> encodeText(std::string_view utf8, RecordEncoding encoding);

}  // namespace orb
