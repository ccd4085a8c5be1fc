// Text values of an entry: ASCII and UTF-8 texts, and the character-code
// form of UNDEFINED text (8-byte prefix naming the code, then the bytes).

#include <algorithm>
#include <array>

#include "core/OrbIFDEntry.h"
#include "core/TextEncoding.h"

namespace {

using Prefix = std::array<std::uint8_t, 8>;
constexpr Prefix kASCIIPrefix = {'A', 'S', 'C', 'I', 'I', 0, 0, 0};
constexpr Prefix kJISPrefix = {'J', 'I', 'S', 0, 0, 0, 0, 0};
constexpr Prefix kUnicodePrefix = {'U', 'N', 'I', 'C', 'O', 'D', 'E', 0};
constexpr Prefix kUndefinedPrefix = {0, 0, 0, 0, 0, 0, 0, 0};

// The version that governs the entry's text when it has none of its own.
std::uint32_t effectiveVersion(const OrbIFDEntry& entry) {
  if (entry.version() != 0) return entry.version();
  return entry.ifdID() == kExifIFDID ? 232 : 2300;
}

}  // namespace

std::span<const std::uint8_t> OrbIFDEntry::prefixForEncodingType(std::uint32_t encodingType) {
  switch (encodingType) {
    case kOrbStringEncodingTypeASCII: return kASCIIPrefix;
    case kOrbStringEncodingTypeUnicode: return kUnicodePrefix;
    case kOrbStringEncodingTypeJIS: return kJISPrefix;
    case kOrbStringEncodingTypeUndefined: return kUndefinedPrefix;
    default: return {};
  }
}

void OrbIFDEntry::setTextValue(std::string_view bytes, std::uint16_t textType) {
  setData(0);
  std::uint32_t count = 0;
  if (!bytes.empty()) {
    std::vector<std::uint8_t> text(bytes.begin(), bytes.end());
    text.push_back(0);
    count = static_cast<std::uint32_t>(text.size());
    if (count > 4) {
      setValue(text);
    } else {
      // Fits the data field, left-justified. An older out-of-line copy is
      // deliberately left alone.
      setDataPtr(text);
    }
  } else {
    value_.clear();
  }
  setType(textType);
  setDataCount(count);
}

void OrbIFDEntry::setASCIIString(std::string_view utf8Text) {
  setTextValue(TextEncoding::isASCII(utf8Text) ? utf8Text : std::string_view{}, kOrbTypeASCII);
}

void OrbIFDEntry::setUTF8String(std::string_view utf8Text) {
  setTextValue(TextEncoding::isValidUTF8(utf8Text) ? utf8Text : std::string_view{}, kOrbTypeUTF8);
}

std::uint32_t OrbIFDEntry::stringEncodingWithType(std::uint32_t encodingType, std::uint32_t version,
                                                  std::uint32_t /*ifdID*/) const {
  const std::uint32_t allowed = versionAllowedUTF8(ifdID_);
  switch (encodingType) {
    case kOrbStringEncodingTypeASCII: return kOrbEncodingASCII;
    case kOrbStringEncodingTypeJIS: return allowed > version ? kOrbEncodingShiftJIS : kOrbEncodingISO2022JP;
    case kOrbStringEncodingTypeUnicode: return allowed > version ? kOrbEncodingUTF16 : kOrbEncodingUTF8;
    default: return kOrbEncodingNone;
  }
}

void OrbIFDEntry::setString(std::string_view utf8Text, std::uint32_t encodingType) {
  const std::uint32_t version = effectiveVersion(*this);
  const std::uint32_t allowed = versionAllowedUTF8(ifdID_);
  const std::uint32_t encoding = stringEncodingWithType(encodingType, version, ifdID_);
  const bool modern = version >= allowed;

  std::optional<std::string> converted;
  if (modern && (encodingType == kOrbStringEncodingTypeUnicode || encodingType == kOrbStringEncodingTypeJIS)) {
    converted = TextEncoding::encode(
        utf8Text, encodingType == kOrbStringEncodingTypeUnicode ? kOrbEncodingUTF8 : kOrbEncodingISO2022JP);
    if (!converted) converted = TextEncoding::encode(utf8Text, encoding);
  } else {
    converted = TextEncoding::encode(utf8Text, encoding);
  }

  std::vector<std::uint8_t> block;
  bool unicodeForm = false;
  std::string payload;
  if (utf8Text.empty() || (converted && !converted->empty())) {
    payload = utf8Text.empty() ? std::string() : *converted;
    if (encodingType == kOrbStringEncodingTypeASCII || encodingType == kOrbStringEncodingTypeJIS) {
      const auto prefix = prefixForEncodingType(encodingType);
      block.assign(prefix.begin(), prefix.end());
      block.insert(block.end(), payload.begin(), payload.end());
    } else if (encodingType == kOrbStringEncodingTypeUnicode) {
      unicodeForm = true;
    }
    // Any other code: no value at all, while the count still says 8 + length.
  } else {
    // The text cannot be carried as asked: fall back to the UNICODE form.
    payload = TextEncoding::encode(utf8Text, modern ? kOrbEncodingUTF8 : kOrbEncodingUTF16).value_or(std::string());
    unicodeForm = true;
  }
  if (unicodeForm) {
    // UTF-16 comes out big-endian already, the order the UNICODE form keeps.
    block.assign(kUnicodePrefix.begin(), kUnicodePrefix.end());
    block.insert(block.end(), payload.begin(), payload.end());
  }
  const auto total = static_cast<std::uint32_t>(payload.size() + 8);
  setType(kOrbTypeUndefined);
  setDataCount(total);
  setValue(block);
}

std::uint32_t OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(const OrbIFDEntry* entry) {
  if (!entry || entry->type() != kOrbTypeUndefined || entry->byteCount() < 8 || entry->value_.size() < 8) return 0;
  const auto head = std::span(entry->value_).first<8>();
  // Checked in this order; the all-zero prefix last.
  for (std::uint32_t code : {kOrbStringEncodingTypeASCII, kOrbStringEncodingTypeJIS, kOrbStringEncodingTypeUnicode,
                             kOrbStringEncodingTypeUndefined}) {
    if (std::ranges::equal(head, prefixForEncodingType(code))) return code;
  }
  return 0;
}

bool OrbIFDEntry::reverseUnicodeString() {
  const std::uint16_t tag = ifdTag();
  const bool textTag = (ifdID_ == kExifIFDID && tag == 37510) || (ifdID_ == kGPSIFDID && (tag == 27 || tag == 28));
  if (!textTag || value_.size() < 8 || !std::equal(kUnicodePrefix.begin(), kUnicodePrefix.end(), value_.begin()))
    return false;
  std::vector<std::uint8_t> block = value_;
  bool moved = false;
  for (std::size_t i = 8; i + 2 <= block.size(); i += 2) {
    std::swap(block[i], block[i + 1]);
    moved = true;
  }
  if (moved) setValue(block);
  return moved;
}
