#pragma once
// One entry of a TIFF, Exif, GPS or Interoperability IFD.
//
// The entry keeps its 12 bytes exactly as they stand in the file (tag, type,
// count, value-or-offset), in the file's byte order, and converts on every
// access; so a date entry's value offset is always the file's own. When the
// value is longer than 4 bytes it lies out of line, data() is its offset from
// the TIFF header, and the entry owns a private copy of the bytes (value()).
//
// Records built on an entry's value (Photoshop resources in tag 0x8649, IPTC
// in tag 0x83BB) are read and written by free functions of the formats layer
// through value(), setValue() and setDataCount(); this layer knows nothing of
// them.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ByteView.h"
#include "core/IFDItemID.h"
#include "core/LumError.h"
#include "core/OrbDataObject.h"

// Byte order of an entry or structure: 0 = big-endian "MM", 1 = little-endian "II".
inline constexpr std::int8_t kOrbBigEndian = 0;
inline constexpr std::int8_t kOrbLittleEndian = 1;

// TIFF field types.
enum : std::uint16_t {
  kOrbTypeByte = 1,
  kOrbTypeASCII = 2,
  kOrbTypeShort = 3,
  kOrbTypeLong = 4,
  kOrbTypeRational = 5,
  kOrbTypeSByte = 6,
  kOrbTypeUndefined = 7,
  kOrbTypeSShort = 8,
  kOrbTypeSLong = 9,
  kOrbTypeSRational = 10,
  kOrbTypeFloat = 11,
  kOrbTypeDouble = 12,
  kOrbTypeUTF8 = 129,
};

// Character codes of UNDEFINED text (the 8-byte prefix of a UserComment).
enum : std::uint32_t {
  kOrbStringEncodingTypeNone = 0,
  kOrbStringEncodingTypeASCII = 1,
  kOrbStringEncodingTypeUnicode = 2,
  kOrbStringEncodingTypeJIS = 3,
  kOrbStringEncodingTypeUndefined = 4,
};

// Text encodings, numbered as the platform numbers them.
enum : std::uint32_t {
  kOrbEncodingNone = 0,
  kOrbEncodingASCII = 1,
  kOrbEncodingUTF8 = 4,
  kOrbEncodingShiftJIS = 8,
  kOrbEncodingUTF16 = 10,
  kOrbEncodingISO2022JP = 21,
};

class OrbIFDEntry {
 public:
  // An empty entry: all raw fields 0, no value, big-endian, IFD id 0, version 0.
  OrbIFDEntry() = default;
  static std::unique_ptr<OrbIFDEntry> IFDEntry() { return std::make_unique<OrbIFDEntry>(); }

  // A new entry for a tag of one of the IFD ids 0x10000 to 0x50000, typed and
  // given default content by the tag catalogue; nullptr for any other IFD id.
  static std::unique_ptr<OrbIFDEntry> initWithEndian(std::int8_t endian, std::uint16_t ifdTag, std::uint32_t ifdID);

  // Copies keep the raw fields, the value (at most byteCount() bytes of it),
  // byte order, IFD id and version.
  OrbIFDEntry(const OrbIFDEntry& other);
  OrbIFDEntry& operator=(const OrbIFDEntry& other);
  OrbIFDEntry(OrbIFDEntry&&) noexcept = default;
  OrbIFDEntry& operator=(OrbIFDEntry&&) noexcept = default;
  std::unique_ptr<OrbIFDEntry> copy() const { return std::make_unique<OrbIFDEntry>(*this); }

  // The same entry as it would stand in a file of the opposite byte order.
  OrbIFDEntry swapedEntry() const;

  // ---- raw fields ----
  // The 12 raw bytes: 0-1 tag, 2-3 type, 4-7 count, 8-11 value or offset.
  std::span<const std::uint8_t, 12> rawEntry() const { return raw_; }
  std::span<const std::uint8_t, 2> tagPtr() const { return std::span<const std::uint8_t, 12>(raw_).subspan<0, 2>(); }
  std::span<const std::uint8_t, 2> typePtr() const { return std::span<const std::uint8_t, 12>(raw_).subspan<2, 2>(); }
  std::span<const std::uint8_t, 4> dataCountPtr() const { return std::span<const std::uint8_t, 12>(raw_).subspan<4, 4>(); }
  std::span<const std::uint8_t, 4> dataPtr() const { return std::span<const std::uint8_t, 12>(raw_).subspan<8, 4>(); }
  // Copy raw bytes into one field; a source shorter than the field (or empty)
  // fills the rest with zeros.
  void setTagPtr(std::span<const std::uint8_t> bytes);
  void setTypePtr(std::span<const std::uint8_t> bytes);
  void setDataCountPtr(std::span<const std::uint8_t> bytes);
  void setDataPtr(std::span<const std::uint8_t> bytes);
  // Sets the IFD id and copies all 12 raw bytes (zeros for missing ones).
  void setEntry(std::span<const std::uint8_t> raw12, std::uint32_t ifdID);

  // ---- numeric view of the raw fields (byte order applied) ----
  std::uint16_t ifdTag() const;
  std::uint16_t type() const;
  std::uint32_t dataCount() const;
  std::uint32_t data() const;
  void setIFDTag(std::uint16_t tag);
  void setType(std::uint16_t type);
  void setDataCount(std::uint32_t count);
  void setData(std::uint32_t data);
  // The first / second 16-bit number of the data field.
  std::uint16_t shortData1() const;
  std::uint16_t shortData2() const;
  void setDataShort1(std::uint16_t value);
  void setDataShort2(std::uint16_t value);

  std::int8_t endian() const { return endian_; }
  void setEndian(std::int8_t endian) { endian_ = endian; }
  bool isBigEndian() const { return endian_ == kOrbBigEndian; }
  bool isLittleEndian() const { return endian_ == kOrbLittleEndian; }
  std::uint32_t ifdID() const { return ifdID_; }
  void setIFDID(std::uint32_t ifdID) { ifdID_ = ifdID; }
  std::uint32_t version() const { return version_; }
  void setVersion(std::uint32_t version) { version_ = version; }
  IFDItemID itemID() const { return {ifdID_, ifdTag()}; }
  std::uint32_t itemKey() const { return ::itemKey(ifdID_, ifdTag()); }

  // ---- value ----
  // Byte size of one value of a type (1 for unknown types).
  static std::uint32_t bytesByType(std::uint16_t type);
  // Size of the value: bytesByType(type) * dataCount, in 32-bit arithmetic
  // (a huge count wraps). Up to 4 bytes the value is inline in data().
  std::uint32_t byteCount() const;
  // The out-of-line copy; empty when there is none.
  std::span<const std::uint8_t> value() const { return value_; }
  bool hasValue() const { return !value_.empty(); }
  // Replaces the out-of-line copy (empty bytes remove it) and applies the
  // date-time clamp; the count is not changed except by the clamp.
  void setValue(std::span<const std::uint8_t> bytes);
  // The bytes the value is made of: the inline field's first byteCount()
  // bytes, or the out-of-line copy (bounded by what is held).
  std::span<const std::uint8_t> valueBytes() const;

  // The index-th 16/32-bit number of the out-of-line copy in the entry's byte
  // order; 0 when there is no copy or the index is past byteCount(). The
  // inline field is never read here.
  std::uint16_t unsignedShortAtIndex(std::uint32_t index) const;
  std::uint32_t unsignedIntAtIndex(std::uint32_t index) const;

  // ExifVersion (Exif tag 0x9000): "0230" gives 230; 0 for any other entry.
  std::uint32_t exifVersion() const;
  // GPSVersionID (GPS tag 0): bytes 2,3,0,0 give 2300; 0 for any other entry.
  std::uint32_t GPSVersion() const;

  // True for DateTime in IFD0 and DateTimeOriginal/Digitized in the Exif IFD.
  bool isDateTimeEntry() const;

  // ---- display ----
  // The value as a display object, chosen by type (catalogue first).
  OrbDataObject dataObject() const;
  // dataObject() as text; empty OffsetTime texts become "Unknown".
  std::string stringData() const;
  // dataObject() with texts passed through the "IFD" strings table.
  OrbDataObject localizedDataObject() const;
  // The entry's English title from the catalogue ("(0x%X)" without one).
  std::string title() const;
  // "<title> Type:<type> Count:<count> data:<0x..|Pointer 0x..> IFDID: (0x..) IFDTag: (0x..)"
  std::string description() const;

  // The per-type display objects.
  OrbDataObject objectUnsignedByte() const;
  OrbDataObject objectAscii() const;
  OrbDataObject objectUnsignedShort() const;
  OrbDataObject objectUnsignedLong() const;
  OrbDataObject objectUnsignedRational() const;
  OrbDataObject objectSignedByte() const;
  OrbDataObject objectUndefined() const;
  OrbDataObject objectSignedShort() const;
  OrbDataObject objectSignedLong() const;
  OrbDataObject objectSignedRational() const;
  OrbDataObject objectSingleFloat() const;
  OrbDataObject objectDouble() const;
  OrbDataObject objectUTF8() const;

  // ---- text setters ----
  // ASCII text (type 2) with its terminating zero; inline when it fits.
  // Text ASCII cannot carry gives an empty value with count 0.
  void setASCIIString(std::string_view utf8Text);
  // The same with UTF-8 bytes and type 129.
  void setUTF8String(std::string_view utf8Text);
  // The character-code form of UNDEFINED text (type 7) for the encoding
  // types 1 (ASCII), 2 (UNICODE) and 3 (JIS).
  void setString(std::string_view utf8Text, std::uint32_t encodingType);
  // The text encoding for a character-code type under a version (the IFD id
  // argument is not used: the entry's own IFD id decides).
  std::uint32_t stringEncodingWithType(std::uint32_t encodingType, std::uint32_t version, std::uint32_t ifdID) const;
  // The character-code type of an UNDEFINED entry's value prefix; 0 for none.
  static std::uint32_t stringEncodingTypeWithUndefinedTypeEntry(const OrbIFDEntry* entry);
  // Byte-swaps the UTF-16 payload of a UNICODE UserComment / GPS text entry;
  // true when a byte moved.
  bool reverseUnicodeString();
  // The 8-byte prefix of a character-code type (empty span for none).
  static std::span<const std::uint8_t> prefixForEncodingType(std::uint32_t encodingType);

  // ---- UTF-8 allowance ----
  // The version from which UTF-8 text is allowed in an IFD (0 when never).
  static std::uint32_t versionAllowedUTF8(std::uint32_t ifdID);
  // True for the text tags that may hold UTF-8.
  static bool allowedUTF8WithItemID(IFDItemID itemID);

  // ---- tag catalogue (OrbIFDEntryCatalogue.cpp) ----
  // The English title; "(0x%X)" for untitled tags and unknown IFD ids.
  static std::string titleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version);
  static std::string localizedTitleWithTag(std::uint16_t tag, std::uint32_t ifdID, std::uint32_t version);
  // The title of a tag under this entry's version.
  std::string titleWithTag(std::uint16_t tag, std::uint32_t ifdID) const;
  static std::uint16_t typeWithIFDTag(std::uint16_t tag, std::uint32_t ifdID);
  static std::uint32_t availableVersionWithIFDTag(std::uint16_t tag, std::uint32_t ifdID);
  // Whether the tag (and, for LightSource, its value) may stand in a file of the version.
  static bool isCompatibleWithVersion(std::uint32_t version, std::uint16_t tag, std::uint32_t ifdID,
                                      std::optional<std::int64_t> dataValue);
  bool isCompatibleWithVersion(std::uint32_t version) const;
  static bool isCorrectTag(std::uint16_t tag, std::uint32_t ifdID);
  // nullopt stands for a value that is not a text at all (no error then).
  static bool isLegalExifImageUniqueID(std::optional<std::string_view> text, LumError* error);

  // ---- ready-made entries (OrbIFDEntryMaking.cpp) ----
  // DateTime holding the current local time.
  static std::unique_ptr<OrbIFDEntry> entryIFDDateTime(std::int8_t endian);
  // GPSTimeStamp of an instant (seconds since 1970 UTC) in a zone given as its
  // offset from UTC in seconds (UTC when none).
  static std::unique_ptr<OrbIFDEntry> timeStampEntry(std::int8_t endian, std::int64_t theDate,
                                                     std::optional<std::int32_t> timeZoneOffset);
  static std::unique_ptr<OrbIFDEntry> defaultExifVersionEntry(std::int8_t endian);
  static std::unique_ptr<OrbIFDEntry> defaultGPSVersionEntry(std::int8_t endian);
  static std::unique_ptr<OrbIFDEntry> latestInteroperabilityVersionEntry(std::int8_t endian);
  static std::unique_ptr<OrbIFDEntry> InteroperabilityIndexR98Entry(std::int8_t endian);
  static std::unique_ptr<OrbIFDEntry> IFDExifPointerEntry(std::int8_t endian);
  static std::unique_ptr<OrbIFDEntry> IFDGPSPointerEntry(std::int8_t endian);
  static std::unique_ptr<OrbIFDEntry> IFDInteroperabilityPointerEntry(std::int8_t endian);

  // ---- GPS values (OrbIFDEntryGPS.cpp) ----
  // Whole degrees and their fraction of a GPS position entry (2, 4, 20, 22);
  // the outputs are left untouched for other entries and for angles beyond
  // 90 (latitudes) or 180 (longitudes) degrees. The reference is not applied.
  void getGPSDegree(std::uint32_t* degrees, double* decimal) const;
  // Decimal degrees of a GPS position entry, no limit; 0 for other entries.
  double GPSDegree() const;
  // Seconds since midnight of a GPSTimeStamp entry with three rationals; 0 otherwise.
  double GPSTimeStamp() const;
  // Hour and minute as "00", second as "00.00" of GPSTimeStamp().
  void GPSGetTimeStampHour(std::string* hour, std::string* minute, std::string* second) const;
  // Writes a GPSAltitudeRef value (0 to 3) into the data field; others are ignored.
  void setGPSAltitudeRef(std::uint8_t value);
  // Positions equal to ten decimals of a degree; isEqualToEntry() for other entries.
  bool isEqualToEntryByGPSDegree(const OrbIFDEntry& other) const;

  // ---- comparison ----
  // Same byte order, IFD id, tag, type, count and value bytes.
  bool isEqualToEntry(const OrbIFDEntry& other) const;
  // Same meaning: numbers, rationals and texts compared by value for the tags
  // where bytes may differ for one meaning; isEqualToEntry() otherwise.
  bool isEqualToValue(const OrbIFDEntry& other) const;

  // ---- archiving ----
  // A keyed archive with "_endian", "_ifdID", "ifdTag", "type", "dataCount",
  // "data", "value" (only when present) and "_version".
  std::vector<std::uint8_t> archivedData() const;
  // The entry of an archive, or nullptr when the archive is malformed.
  static std::unique_ptr<OrbIFDEntry> entryWithArchivedData(std::span<const std::uint8_t> archive);
  // Clipboard type of an archived entry.
  static constexpr std::string_view kPasteboardType = "org.lumidate.pasteboard.OrbIFDEntry";
  // The clipboard types an entry is written as and read from (just the one).
  static std::span<const std::string_view> writableTypes();
  // The entry of clipboard data of kPasteboardType; nullptr for other types
  // or data that is not an entry's archive.
  static std::unique_ptr<OrbIFDEntry> initWithPasteboardPropertyList(std::span<const std::uint8_t> data,
                                                                     std::string_view type);

 private:
  void pSetUpForIFDTag(std::uint16_t tag, std::uint32_t ifdID);
  void pSwap();
  void setTextValue(std::string_view bytes, std::uint16_t type);
  std::uint16_t read16(std::size_t offset) const;
  std::uint32_t read32(std::size_t offset) const;
  void write16(std::size_t offset, std::uint16_t value);
  void write32(std::size_t offset, std::uint32_t value);

  std::array<std::uint8_t, 12> raw_{};
  std::vector<std::uint8_t> value_;
  std::int8_t endian_ = kOrbBigEndian;
  std::uint32_t ifdID_ = 0;
  std::uint32_t version_ = 0;
};
