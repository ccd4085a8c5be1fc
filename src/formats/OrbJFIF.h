#pragma once
// The JFIF APP0 segment of a JPEG file held as fields: shown as text, read
// and written by the keys of the image file's JFIF dictionary, and written
// out whole, marker included.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct OrbJFIFVersion {
  std::int8_t high = 0;  // major
  std::int8_t low = 0;   // minor
  friend bool operator==(const OrbJFIFVersion&, const OrbJFIFVersion&) = default;
};

class OrbJFIF {
 public:
  static constexpr std::string_view kDensityUnitKey = "Density Unit";
  static constexpr std::string_view kXDensityKey = "X Density";
  static constexpr std::string_view kYDensityKey = "Y Density";
  static constexpr std::string_view kThumbnailWidthKey = "Thumbnail Width";
  static constexpr std::string_view kThumbnailHeightKey = "Thumbnail Height";
  // The words of the density units 0 (and any unknown unit), 1 and 2; the
  // inspector shows them translated.
  static constexpr std::array<std::string_view, 3> kDensityUnitWords{"No Units", "Dots per inch", "Dots per cm"};
  // The segment without thumbnail, marker included.
  static constexpr std::uint16_t kFixedSize = 18;

  // Size 18, version 0.0, everything else 0, no thumbnail.
  OrbJFIF() = default;
  static OrbJFIF jfif() { return OrbJFIF(); }

  std::uint16_t size() const { return size_; }
  void setSize(std::uint16_t size) { size_ = size; }
  OrbJFIFVersion version() const { return version_; }
  void setVersion(OrbJFIFVersion version) { version_ = version; }
  std::int8_t unit() const { return unit_; }
  void setUnit(std::int8_t unit) { unit_ = unit; }
  std::uint16_t XDensity() const { return xDensity_; }
  void setXDensity(std::uint16_t density) { xDensity_ = density; }
  std::uint16_t YDensity() const { return yDensity_; }
  void setYDensity(std::uint16_t density) { yDensity_ = density; }
  std::uint8_t thumbnailWidth() const { return thumbnailWidth_; }
  void setThumbnailWidth(std::uint8_t width) { thumbnailWidth_ = width; }
  std::uint8_t thumbnailHeight() const { return thumbnailHeight_; }
  void setThumbnailHeight(std::uint8_t height) { thumbnailHeight_ = height; }

  // The thumbnail pixels, or nullopt.
  const std::optional<std::vector<std::uint8_t>>& thumbnail() const { return thumbnail_; }
  // Copies the first `count` (taken as 16 bits) bytes of `bytes`; a count of
  // 0 leaves no thumbnail. size() and the thumbnail sizes are the caller's to
  // keep consistent.
  void setThumbnail(std::span<const std::uint8_t> bytes, std::size_t count);

  // "1.01", "1.02", "1.10": the minor number with at least two digits.
  std::string stringJFIFVersion() const;
  // "Dots per inch", "Dots per cm" or "No Units".
  std::string stringJFIFUnit() const;
  std::int8_t numberJFIFUnit() const { return unit_; }
  std::string stringJFIFDensityX() const { return std::to_string(xDensity_); }
  std::string stringJFIFDensityY() const { return std::to_string(yDensity_); }

  // Sets the field of a key from the low bits of `value`; other keys
  // (including "JFIF Version") are ignored.
  void setValue(std::int64_t value, std::string_view key);
  // The field of a key as a number, or nullopt for any other key.
  std::optional<std::int64_t> numberForKey(std::string_view key) const;

  // Writes the segment (size() bytes, big-endian) at the start of `buffer`.
  // Writes nothing when the buffer is smaller than size() or size() is below
  // 18; thumbnail bytes missing from thumbnail() are written as zeros.
  void getByte(std::span<std::uint8_t> buffer) const;

 private:
  std::optional<std::vector<std::uint8_t>> thumbnail_;
  std::int8_t unit_ = 0;
  std::uint8_t thumbnailWidth_ = 0;
  std::uint8_t thumbnailHeight_ = 0;
  std::uint16_t size_ = kFixedSize;
  OrbJFIFVersion version_;
  std::uint16_t xDensity_ = 0;
  std::uint16_t yDensity_ = 0;
};
