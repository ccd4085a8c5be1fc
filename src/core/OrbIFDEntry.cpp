#include "core/OrbIFDEntry.h"

#include <algorithm>
#include <bit>
#include <cstdio>

#include "core/ByteHelpers.h"
#include "core/ByteView.h"
#include "core/EntryCatalogueHooks.h"
#include "core/TextNumber.h"

namespace {

// Beyond this size a swap does not invent a zero-filled value for an entry
// that holds none: a made-up count must not allocate gigabytes.
constexpr std::uint32_t kMaxInventedBlock = 16u << 20;

void copyField(std::uint8_t* field, std::size_t width, std::span<const std::uint8_t> bytes) {
  const std::size_t n = std::min(width, bytes.size());
  std::copy_n(bytes.begin(), n, field);
  std::fill(field + n, field + width, std::uint8_t{0});
}

}  // namespace

// ---- construction ----

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::initWithEndian(std::int8_t endian, std::uint16_t ifdTag,
                                                         std::uint32_t ifdID) {
  // 0x10000 .. 0x50000 map to 0 .. 4; anything with low bits set, or outside
  // the range, rotates to a large number.
  if (std::rotl(ifdID - kTIFFIFDID, 16) > 4) return nullptr;
  auto entry = std::make_unique<OrbIFDEntry>();
  entry->setEndian(endian);
  entry->pSetUpForIFDTag(ifdTag, ifdID);
  return entry;
}

void OrbIFDEntry::pSetUpForIFDTag(std::uint16_t tag, std::uint32_t ifdID) {
  const OrbEntryCatalogueHooks& hooks = entryCatalogueHooks();
  setIFDID(ifdID);
  setIFDTag(tag);
  setType(hooks.typeWithIFDTag ? hooks.typeWithIFDTag(tag, ifdID) : 0);
  const bool realIFD = ifdID == kTIFFIFDID || ifdID == kExifIFDID || ifdID == kInteroperabilityIFDID ||
                       ifdID == kGPSIFDID;
  if (realIFD && hooks.setUpWithIFDTag) hooks.setUpWithIFDTag(*this);
}

OrbIFDEntry::OrbIFDEntry(const OrbIFDEntry& other)
    : raw_(other.raw_), endian_(other.endian_), ifdID_(other.ifdID_), version_(other.version_) {
  if (other.hasValue()) {
    const std::size_t n = std::min<std::size_t>(other.byteCount(), other.value_.size());
    setValue(std::span(other.value_).first(n));
  }
}

OrbIFDEntry& OrbIFDEntry::operator=(const OrbIFDEntry& other) {
  if (this != &other) {
    OrbIFDEntry copy(other);
    *this = std::move(copy);
  }
  return *this;
}

// ---- raw fields ----

void OrbIFDEntry::setTagPtr(std::span<const std::uint8_t> bytes) { copyField(raw_.data(), 2, bytes); }
void OrbIFDEntry::setTypePtr(std::span<const std::uint8_t> bytes) { copyField(raw_.data() + 2, 2, bytes); }
void OrbIFDEntry::setDataCountPtr(std::span<const std::uint8_t> bytes) { copyField(raw_.data() + 4, 4, bytes); }
void OrbIFDEntry::setDataPtr(std::span<const std::uint8_t> bytes) { copyField(raw_.data() + 8, 4, bytes); }

void OrbIFDEntry::setEntry(std::span<const std::uint8_t> raw12, std::uint32_t ifdID) {
  setIFDID(ifdID);
  copyField(raw_.data(), 12, raw12);
}

std::uint16_t OrbIFDEntry::read16(std::size_t offset) const {
  const auto v = static_cast<std::uint16_t>((raw_[offset] << 8) | raw_[offset + 1]);
  return isLittleEndian() ? ByteHelpers::swap16(v) : v;
}

std::uint32_t OrbIFDEntry::read32(std::size_t offset) const {
  const std::uint32_t v = (std::uint32_t{raw_[offset]} << 24) | (std::uint32_t{raw_[offset + 1]} << 16) |
                          (std::uint32_t{raw_[offset + 2]} << 8) | raw_[offset + 3];
  return isLittleEndian() ? ByteHelpers::swap32(v) : v;
}

void OrbIFDEntry::write16(std::size_t offset, std::uint16_t value) {
  std::uint64_t pos = offset;
  ByteHelpers::writeUInt16BE(raw_, &pos, isLittleEndian() ? ByteHelpers::swap16(value) : value);
}

void OrbIFDEntry::write32(std::size_t offset, std::uint32_t value) {
  std::uint64_t pos = offset;
  ByteHelpers::writeUInt32BE(raw_, &pos, isLittleEndian() ? ByteHelpers::swap32(value) : value);
}

std::uint16_t OrbIFDEntry::ifdTag() const { return read16(0); }
std::uint16_t OrbIFDEntry::type() const { return read16(2); }
std::uint32_t OrbIFDEntry::dataCount() const { return read32(4); }
std::uint32_t OrbIFDEntry::data() const { return read32(8); }
void OrbIFDEntry::setIFDTag(std::uint16_t tag) { write16(0, tag); }
void OrbIFDEntry::setType(std::uint16_t type) { write16(2, type); }
void OrbIFDEntry::setDataCount(std::uint32_t count) { write32(4, count); }
void OrbIFDEntry::setData(std::uint32_t data) { write32(8, data); }
std::uint16_t OrbIFDEntry::shortData1() const { return read16(8); }
std::uint16_t OrbIFDEntry::shortData2() const { return read16(10); }
void OrbIFDEntry::setDataShort1(std::uint16_t value) { write16(8, value); }
void OrbIFDEntry::setDataShort2(std::uint16_t value) { write16(10, value); }

// ---- value ----

std::uint32_t OrbIFDEntry::bytesByType(std::uint16_t type) {
  switch (type) {
    case kOrbTypeShort:
    case kOrbTypeSShort: return 2;
    case kOrbTypeLong:
    case kOrbTypeSLong:
    case kOrbTypeFloat: return 4;
    case kOrbTypeRational:
    case kOrbTypeSRational:
    case kOrbTypeDouble: return 8;
    default: return 1;  // BYTE, ASCII, SBYTE, UNDEFINED, UTF-8 and unknown types
  }
}

std::uint32_t OrbIFDEntry::byteCount() const { return bytesByType(type()) * dataCount(); }

bool OrbIFDEntry::isDateTimeEntry() const {
  const std::uint16_t tag = ifdTag();
  return (ifdID_ == kTIFFIFDID && tag == kDateTimeTag) ||
         (ifdID_ == kExifIFDID && (tag == kDateTimeOriginalTag || tag == kDateTimeDigitizedTag));
}

void OrbIFDEntry::setValue(std::span<const std::uint8_t> bytes) {
  std::size_t n = bytes.size();
  const bool dateTime = isDateTimeEntry();
  // A date is 19 characters and a zero: never keep more, and make sure the
  // text ends, whatever the file held.
  if (dateTime && n >= 21) {
    n = 20;
    setDataCount(20);
  }
  // Built aside first: the bytes may be part of the current copy.
  std::vector<std::uint8_t> copy(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(n));
  if (dateTime && n == 20) copy[19] = 0;
  value_ = std::move(copy);
}

std::span<const std::uint8_t> OrbIFDEntry::valueBytes() const {
  const std::uint32_t count = byteCount();
  if (count <= 4) return std::span<const std::uint8_t>(raw_).subspan(8, count);
  return std::span<const std::uint8_t>(value_).first(std::min<std::size_t>(count, value_.size()));
}

std::uint16_t OrbIFDEntry::unsignedShortAtIndex(std::uint32_t index) const {
  if (value_.empty() || index >= byteCount() / 2) return 0;
  const auto v = orb::ByteView(value_).u16(std::uint64_t{index} * 2, isLittleEndian() ? orb::ByteOrder::Little
                                                                                        : orb::ByteOrder::Big);
  return v.value_or(0);
}

std::uint32_t OrbIFDEntry::unsignedIntAtIndex(std::uint32_t index) const {
  if (value_.empty() || index >= byteCount() / 4) return 0;
  const auto v = orb::ByteView(value_).u32(std::uint64_t{index} * 4, isLittleEndian() ? orb::ByteOrder::Little
                                                                                        : orb::ByteOrder::Big);
  return v.value_or(0);
}

std::uint32_t OrbIFDEntry::exifVersion() const {
  if (ifdTag() != 0x9000 || ifdID_ != kExifIFDID) return 0;
  // The four characters, as printed with %c: a zero byte ends the text.
  std::string text;
  for (std::size_t i = 8; i < 12 && raw_[i] != 0; ++i) text.push_back(static_cast<char>(raw_[i]));
  return static_cast<std::uint32_t>(TextNumber::intValue(text));
}

std::uint32_t OrbIFDEntry::GPSVersion() const {
  if (ifdTag() != 0 || ifdID_ != kGPSIFDID) return 0;
  char text[64];
  std::snprintf(text, sizeof text, "%u%u%u%u", unsigned{raw_[8]}, unsigned{raw_[9]}, unsigned{raw_[10]},
                unsigned{raw_[11]});
  return static_cast<std::uint32_t>(TextNumber::intValue(text));
}

// ---- byte order ----

OrbIFDEntry OrbIFDEntry::swapedEntry() const {
  OrbIFDEntry entry(*this);
  entry.pSwap();
  return entry;
}

namespace {

void reverseUnits(std::vector<std::uint8_t>& block, std::size_t begin, std::size_t end, std::size_t unit) {
  for (std::size_t i = begin; i + unit <= end; i += unit)
    std::reverse(block.begin() + static_cast<std::ptrdiff_t>(i), block.begin() + static_cast<std::ptrdiff_t>(i + unit));
}

}  // namespace

void OrbIFDEntry::pSwap() {
  const std::uint16_t fieldType = type();
  const std::uint16_t tag = ifdTag();
  const std::uint32_t count = byteCount();
  std::reverse(raw_.begin(), raw_.begin() + 2);
  std::reverse(raw_.begin() + 2, raw_.begin() + 4);
  std::reverse(raw_.begin() + 4, raw_.begin() + 8);
  if (count > 4) {
    std::reverse(raw_.begin() + 8, raw_.end());
    // The new value holds byteCount bytes; what the old copy lacks stays zero.
    std::size_t size = count;
    if (size > value_.size() && size > kMaxInventedBlock) size = value_.size();
    std::vector<std::uint8_t> block(size, 0);
    std::copy_n(value_.begin(), std::min(size, value_.size()), block.begin());
    switch (fieldType) {
      case kOrbTypeLong: case kOrbTypeRational: case kOrbTypeSLong: case kOrbTypeSRational: case kOrbTypeFloat:
        reverseUnits(block, 0, block.size(), 4);
        break;
      case kOrbTypeShort: case kOrbTypeSShort:
        reverseUnits(block, 0, block.size(), 2);
        break;
      case kOrbTypeDouble:
        reverseUnits(block, 0, block.size(), 8);
        break;
      default:
        // SourceExposureTimesOfCompositeImage: seven RATIONALs, two SHORTs at
        // bytes 56-59, then RATIONALs again.
        if (ifdID_ == kExifIFDID && tag == 0xA462) {
          reverseUnits(block, 0, std::min<std::size_t>(56, block.size()), 4);
          reverseUnits(block, 56, std::min<std::size_t>(60, block.size()), 2);
          reverseUnits(block, 60, block.size(), 4);
        }
        break;
    }
    endian_ = endian_ == kOrbBigEndian ? kOrbLittleEndian : kOrbBigEndian;
    setValue(block);
    return;
  }
  switch (fieldType) {
    case kOrbTypeLong: case kOrbTypeSLong: case kOrbTypeFloat:
      std::reverse(raw_.begin() + 8, raw_.end());
      break;
    case kOrbTypeShort: case kOrbTypeSShort:
      std::reverse(raw_.begin() + 8, raw_.begin() + 10);
      std::reverse(raw_.begin() + 10, raw_.end());
      break;
    default:
      break;
  }
  endian_ = endian_ == kOrbBigEndian ? kOrbLittleEndian : kOrbBigEndian;
}

// ---- UTF-8 allowance ----

std::uint32_t OrbIFDEntry::versionAllowedUTF8(std::uint32_t ifdID) {
  switch (ifdID) {
    case kTIFFIFDID:
    case kExifIFDID: return 300;
    case kGPSIFDID: return 2400;
    default: return 0;
  }
}

bool OrbIFDEntry::allowedUTF8WithItemID(IFDItemID itemID) {
  const std::uint16_t tag = itemID.ifdTag;
  switch (itemID.ifdID) {
    case kTIFFIFDID:
      return tag == 270 || tag == 271 || tag == 272 || tag == 305 || tag == 315 || tag == 33432;
    case kExifIFDID:
      // 0xA431, 0xA432 and 0xA435 hold numbers or codes, not free text.
      return tag == 0xA430 || tag == 0xA433 || tag == 0xA434 || (tag >= 0xA436 && tag <= 0xA43C);
    case kGPSIFDID:
      return tag == 27 || tag == 28;
    default:
      return false;
  }
}

// ---- comparison ----

bool OrbIFDEntry::isEqualToEntry(const OrbIFDEntry& other) const {
  if (endian_ != other.endian_ || ifdID_ != other.ifdID_ || ifdTag() != other.ifdTag() || type() != other.type() ||
      dataCount() != other.dataCount() || byteCount() != other.byteCount())
    return false;
  const std::uint32_t count = byteCount();
  if (count <= 4) return data() == other.data();
  if (hasValue() != other.hasValue()) return false;
  if (!hasValue()) return true;
  return std::ranges::equal(valueBytes(), other.valueBytes());
}

namespace {

constexpr std::uint16_t kRationalExifTags[] = {
    33434, 33437, 37122, 37377, 37378, 37379, 37380, 37381, 37382, 37386, 37888,
    37889, 37890, 37891, 37892, 37893, 41483, 41486, 41487, 41493, 41988, 42240,
};

bool isOneOf(std::uint16_t tag, std::span<const std::uint16_t> tags) {
  return std::ranges::find(tags, tag) != tags.end();
}

std::uint32_t dimension(const OrbIFDEntry& e) { return e.type() == kOrbTypeShort ? e.shortData1() : e.data(); }

double rational(const OrbIFDEntry& e) {
  return static_cast<double>(e.unsignedIntAtIndex(0)) / static_cast<double>(e.unsignedIntAtIndex(1));
}

bool textEqual(const OrbIFDEntry& a, const OrbIFDEntry& b) {
  const OrbDataObject mine = a.dataObject();
  if (mine.isNone()) return true;
  return mine == b.dataObject();
}

}  // namespace

bool OrbIFDEntry::isEqualToValue(const OrbIFDEntry& other) const {
  if (const auto hook = entryCatalogueHooks().isEqualToValue) {
    if (const auto answer = hook(*this, other)) return *answer;
  }
  const std::uint16_t tag = ifdTag();
  static constexpr std::uint16_t kTIFFDimensions[] = {256, 257};
  static constexpr std::uint16_t kExifDimensions[] = {40962, 40963};
  static constexpr std::uint16_t kGPSTexts[] = {27, 28};
  switch (ifdID_) {
    case kTIFFIFDID:
      if (isOneOf(tag, kTIFFDimensions)) return dimension(*this) == dimension(other);
      break;
    case kExifIFDID:
      if (isOneOf(tag, kExifDimensions)) return dimension(*this) == dimension(other);
      // Both halves read unsigned, even for the signed rationals: 1/2 equals
      // 2/4, and 0/0 (not a number) equals nothing.
      if (isOneOf(tag, kRationalExifTags)) return rational(*this) == rational(other);
      if (tag == 37510) return textEqual(*this, other);
      if (tag == 42034) return stringData() == other.stringData();
      break;
    case kGPSIFDID:
      if (isOneOf(tag, kGPSTexts)) return textEqual(*this, other);
      break;
    default:
      break;
  }
  return isEqualToEntry(other);
}
