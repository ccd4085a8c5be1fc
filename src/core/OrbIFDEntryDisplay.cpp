// How an entry's value is shown: one display object per field type, and the
// texts built from it.

#include <bit>
#include <cstdio>
#include <cstring>

#include "core/ByteView.h"
#include "core/EntryCatalogueHooks.h"
#include "core/Localization.h"
#include "core/LocalizationKeys.h"
#include "core/OrbIFDEntry.h"
#include "core/TextEncoding.h"

namespace {

// Longest UNDEFINED value shown byte by byte; longer binary values are
// shown by their size.
constexpr std::size_t kMaxHexBytes = 16;

// One value of a numeric type, read from the value bytes in the entry's order.
template <typename Reader>
OrbDataObject numbers(const OrbIFDEntry& entry, std::uint32_t unit, Reader read) {
  const auto bytes = entry.valueBytes();
  const orb::ByteView view(bytes);
  const orb::ByteOrder order = entry.isLittleEndian() ? orb::ByteOrder::Little : orb::ByteOrder::Big;
  const std::size_t count = bytes.size() / unit;
  if (count == 0) return {};
  if (count == 1) return read(view, 0, order);
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    if (i) text += ", ";
    text += read(view, i * unit, order).stringValue();
  }
  return OrbDataObject(std::move(text));
}

OrbDataObject rationalObject(std::uint32_t numerator, std::uint32_t denominator, bool isSigned) {
  if (denominator == 0) {
    const std::string n = isSigned ? std::to_string(static_cast<std::int32_t>(numerator)) : std::to_string(numerator);
    return OrbDataObject(n + "/0");
  }
  if (isSigned)
    return OrbDataObject(static_cast<double>(static_cast<std::int32_t>(numerator)) /
                         static_cast<double>(static_cast<std::int32_t>(denominator)));
  return OrbDataObject(static_cast<double>(numerator) / static_cast<double>(denominator));
}

// Text bytes up to the first zero byte.
std::span<const std::uint8_t> untilZero(std::span<const std::uint8_t> bytes) {
  const auto* end = static_cast<const std::uint8_t*>(std::memchr(bytes.data(), 0, bytes.size()));
  return end ? bytes.first(static_cast<std::size_t>(end - bytes.data())) : bytes;
}

std::span<const std::uint8_t> withoutTrailingZeros(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty() && bytes.back() == 0) bytes = bytes.first(bytes.size() - 1);
  return bytes;
}

bool isPrintableASCII(std::span<const std::uint8_t> bytes) {
  for (std::uint8_t b : bytes)
    if (b < 0x20 || b > 0x7E) return false;
  return true;
}

std::string hexText(std::span<const std::uint8_t> bytes) {
  std::string text;
  char buffer[4];
  for (std::uint8_t b : bytes) {
    std::snprintf(buffer, sizeof buffer, text.empty() ? "%02X" : " %02X", b);
    text += buffer;
  }
  return text;
}

// How plausible the units are as text in one byte order: units of the Latin
// range and well-formed surrogate pairs count.
std::size_t utf16Score(std::span<const std::uint8_t> bytes, bool bigEndian) {
  const auto unit = [&](std::size_t i) {
    return bigEndian ? static_cast<std::uint16_t>(bytes[i] << 8 | bytes[i + 1])
                     : static_cast<std::uint16_t>(bytes[i + 1] << 8 | bytes[i]);
  };
  std::size_t score = 0;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const std::uint16_t u = unit(i);
    if (u < 0x100) ++score;
    if (u >= 0xD800 && u < 0xDC00 && i + 3 < bytes.size() && unit(i + 2) >= 0xDC00 && unit(i + 2) < 0xE000) {
      ++score;
      i += 2;
    }
  }
  return score;
}

// UTF-16 without a byte-order mark may come in either order (the UNICODE
// form is written big-endian here, cameras write their file's order): the
// more plausible order wins, big-endian on a tie.
std::optional<std::string> decodeUTF16Guessing(std::span<const std::uint8_t> bytes) {
  if (bytes.size() >= 2 && bytes[0] == 0xFE && bytes[1] == 0xFF) return TextEncoding::decodeUTF16(bytes.subspan(2), true);
  if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE) return TextEncoding::decodeUTF16(bytes.subspan(2), false);
  bytes = bytes.first(bytes.size() & ~std::size_t{1});
  const bool bigEndian = utf16Score(bytes, true) >= utf16Score(bytes, false);
  if (auto text = TextEncoding::decodeUTF16(bytes, bigEndian)) return text;
  return TextEncoding::decodeUTF16(bytes, !bigEndian);
}

bool isOffsetTimeTag(const OrbIFDEntry& e) {
  return e.ifdID() == kExifIFDID && (e.ifdTag() == 0x9010 || e.ifdTag() == 0x9011 || e.ifdTag() == 0x9012);
}

bool isBlankOffsetTime(const std::string& text) { return text.empty() || text == "   :  " || text == "      "; }

}  // namespace

OrbDataObject OrbIFDEntry::objectUnsignedByte() const {
  return numbers(*this, 1, [](orb::ByteView v, std::size_t at, orb::ByteOrder) {
    return OrbDataObject(std::uint64_t{v.u8(at).value_or(0)});
  });
}

OrbDataObject OrbIFDEntry::objectSignedByte() const {
  return numbers(*this, 1, [](orb::ByteView v, std::size_t at, orb::ByteOrder) {
    return OrbDataObject(std::int64_t{static_cast<std::int8_t>(v.u8(at).value_or(0))});
  });
}

OrbDataObject OrbIFDEntry::objectUnsignedShort() const {
  return numbers(*this, 2, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return OrbDataObject(std::uint64_t{v.u16(at, o).value_or(0)});
  });
}

OrbDataObject OrbIFDEntry::objectSignedShort() const {
  return numbers(*this, 2, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return OrbDataObject(std::int64_t{static_cast<std::int16_t>(v.u16(at, o).value_or(0))});
  });
}

OrbDataObject OrbIFDEntry::objectUnsignedLong() const {
  return numbers(*this, 4, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return OrbDataObject(std::uint64_t{v.u32(at, o).value_or(0)});
  });
}

OrbDataObject OrbIFDEntry::objectSignedLong() const {
  return numbers(*this, 4, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return OrbDataObject(std::int64_t{static_cast<std::int32_t>(v.u32(at, o).value_or(0))});
  });
}

OrbDataObject OrbIFDEntry::objectUnsignedRational() const {
  return numbers(*this, 8, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return rationalObject(v.u32(at, o).value_or(0), v.u32(at + 4, o).value_or(0), false);
  });
}

OrbDataObject OrbIFDEntry::objectSignedRational() const {
  return numbers(*this, 8, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return rationalObject(v.u32(at, o).value_or(0), v.u32(at + 4, o).value_or(0), true);
  });
}

OrbDataObject OrbIFDEntry::objectSingleFloat() const {
  return numbers(*this, 4, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return OrbDataObject(static_cast<double>(std::bit_cast<float>(v.u32(at, o).value_or(0))));
  });
}

OrbDataObject OrbIFDEntry::objectDouble() const {
  return numbers(*this, 8, [](orb::ByteView v, std::size_t at, orb::ByteOrder o) {
    return OrbDataObject(std::bit_cast<double>(v.u64(at, o).value_or(0)));
  });
}

OrbDataObject OrbIFDEntry::objectAscii() const {
  if (byteCount() > 4 && !hasValue()) return {};
  return OrbDataObject(TextEncoding::readableText(untilZero(valueBytes())));
}

OrbDataObject OrbIFDEntry::objectUTF8() const { return objectAscii(); }

OrbDataObject OrbIFDEntry::objectUndefined() const {
  if (byteCount() > 4 && !hasValue()) return {};
  const std::uint32_t code = stringEncodingTypeWithUndefinedTypeEntry(this);
  if (code == kOrbStringEncodingTypeNone) {
    const auto bytes = valueBytes();
    const auto text = withoutTrailingZeros(bytes);
    if (!text.empty() && isPrintableASCII(text)) return OrbDataObject(TextEncoding::readableText(text));
    if (bytes.size() <= kMaxHexBytes) return OrbDataObject(hexText(bytes));
    return OrbDataObject("(" + std::to_string(bytes.size()) + " bytes)");
  }
  // Zero bytes at the end are padding; for UTF-16 only whole zero units are.
  auto payload = valueBytes().subspan(8);
  if (code == kOrbStringEncodingTypeUnicode) {
    while (payload.size() >= 2 && payload[payload.size() - 1] == 0 && payload[payload.size() - 2] == 0)
      payload = payload.first(payload.size() - 2);
  } else {
    payload = withoutTrailingZeros(payload);
  }
  const std::uint32_t version = version_ ? version_ : (ifdID_ == kExifIFDID ? 232 : 2300);
  const std::uint32_t encoding = stringEncodingWithType(code, version, ifdID_);
  std::optional<std::string> text;
  if (code == kOrbStringEncodingTypeUnicode) {
    // Writers differ: the form allows UTF-8 in newer versions, and older
    // cameras wrote UTF-16 in either byte order.
    if (encoding == kOrbEncodingUTF8) text = TextEncoding::decode(payload, kOrbEncodingUTF8);
    if (!text) text = decodeUTF16Guessing(payload);
  } else if (code == kOrbStringEncodingTypeJIS) {
    text = TextEncoding::decode(payload, encoding);
    if (!text) text = TextEncoding::decode(payload, encoding == kOrbEncodingShiftJIS ? kOrbEncodingISO2022JP
                                                                                    : kOrbEncodingShiftJIS);
  }
  if (!text) text = TextEncoding::readableText(untilZero(payload));
  return OrbDataObject(std::move(*text));
}

OrbDataObject OrbIFDEntry::dataObject() const {
  if (const auto hook = entryCatalogueHooks().dataObject) {
    if (auto object = hook(*this)) return std::move(*object);
  }
  switch (type()) {
    case kOrbTypeByte: return objectUnsignedByte();
    case kOrbTypeASCII: return objectAscii();
    case kOrbTypeShort: return objectUnsignedShort();
    case kOrbTypeLong: return objectUnsignedLong();
    case kOrbTypeRational: return objectUnsignedRational();
    case kOrbTypeSByte: return objectSignedByte();
    case kOrbTypeUndefined: return objectUndefined();
    case kOrbTypeSShort: return objectSignedShort();
    case kOrbTypeSLong: return objectSignedLong();
    case kOrbTypeSRational: return objectSignedRational();
    case kOrbTypeFloat: return objectSingleFloat();
    case kOrbTypeDouble: return objectDouble();
    case kOrbTypeUTF8: return objectUTF8();
    default: return OrbDataObject(std::string());
  }
}

std::string OrbIFDEntry::stringData() const {
  std::string text = dataObject().stringValue();
  if (isOffsetTimeTag(*this) && isBlankOffsetTime(text))
    return Localization::localizedString(Localization::kIFDTable, Localization::keys::kUnknown);
  return text;
}

OrbDataObject OrbIFDEntry::localizedDataObject() const {
  OrbDataObject object = dataObject();
  const bool byteOrderEntry = ifdTag() == 0 && ifdID_ == kTIFFIFDID;
  if (object.isText() && (byteOrderEntry || type() != kOrbTypeASCII))
    return OrbDataObject(Localization::localizedString(Localization::kIFDTable, object.text()));
  if (isOffsetTimeTag(*this) && object.isText() && isBlankOffsetTime(object.text()))
    return OrbDataObject(Localization::localizedString(Localization::kIFDTable, Localization::keys::kUnknown));
  return object;
}

std::string OrbIFDEntry::title() const {
  if (const auto hook = entryCatalogueHooks().title) return hook(*this);
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "(0x%X)", unsigned{ifdTag()});
  return buffer;
}

std::string OrbIFDEntry::description() const {
  char data[32];
  std::snprintf(data, sizeof data, byteCount() < 5 ? "0x%X" : "Pointer 0x%X", this->data());
  char rest[128];
  std::snprintf(rest, sizeof rest, " Type:%u Count:%u data:%s IFDID: (0x%X) IFDTag: (0x%X)", unsigned{type()},
                dataCount(), data, ifdID_, unsigned{ifdTag()});
  return title() + rest;
}
