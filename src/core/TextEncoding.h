#pragma once
// Text conversions between UTF-8 and the encodings entries use (iconv).
//
// Encodings are named by their platform numbers (kOrbEncoding... in
// OrbIFDEntry.h): 1 ASCII, 4 UTF-8, 8 Shift JIS, 10 UTF-16, 21 ISO-2022-JP.
// UTF-16 is written big-endian without a byte-order mark.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace TextEncoding {

// The text in the encoding; nullopt when the encoding is unknown or cannot
// carry a character of the text.
std::optional<std::string> encode(std::string_view utf8, std::uint32_t encoding);

// The bytes decoded to UTF-8; nullopt when they are not valid in the encoding.
std::optional<std::string> decode(std::span<const std::uint8_t> bytes, std::uint32_t encoding);

// UTF-16 in a given byte order (true: big-endian) decoded to UTF-8.
std::optional<std::string> decodeUTF16(std::span<const std::uint8_t> bytes, bool bigEndian);

bool isValidUTF8(std::string_view text);
bool isASCII(std::string_view text);

// Bytes shown as text: UTF-8 when they are valid UTF-8, else each byte as
// its Latin-1 character.
std::string readableText(std::span<const std::uint8_t> bytes);

}  // namespace TextEncoding
