#include "formats/OrbJFIF.h"

#include <algorithm>

void OrbJFIF::setThumbnail(std::span<const std::uint8_t> bytes, std::size_t count) {
  thumbnail_.reset();
  const std::size_t n = std::min<std::size_t>(static_cast<std::uint16_t>(count), bytes.size());
  if (n == 0) return;
  thumbnail_.emplace(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(n));
}

std::string OrbJFIF::stringJFIFVersion() const {
  const int low = version_.low;
  return std::to_string(version_.high) + "." + (low < 10 ? "0" : "") + std::to_string(low);
}

std::string OrbJFIF::stringJFIFUnit() const {
  const std::size_t index = unit_ == 1 || unit_ == 2 ? static_cast<std::size_t>(unit_) : 0;
  return std::string(kDensityUnitWords[index]);
}

void OrbJFIF::setValue(std::int64_t value, std::string_view key) {
  if (key == kDensityUnitKey) unit_ = static_cast<std::int8_t>(value);
  else if (key == kXDensityKey) xDensity_ = static_cast<std::uint16_t>(value);
  else if (key == kYDensityKey) yDensity_ = static_cast<std::uint16_t>(value);
  else if (key == kThumbnailWidthKey) thumbnailWidth_ = static_cast<std::uint8_t>(value);
  else if (key == kThumbnailHeightKey) thumbnailHeight_ = static_cast<std::uint8_t>(value);
}

std::optional<std::int64_t> OrbJFIF::numberForKey(std::string_view key) const {
  if (key == kDensityUnitKey) return unit_;
  if (key == kXDensityKey) return xDensity_;
  if (key == kYDensityKey) return yDensity_;
  if (key == kThumbnailWidthKey) return thumbnailWidth_;
  if (key == kThumbnailHeightKey) return thumbnailHeight_;
  return std::nullopt;
}

void OrbJFIF::getByte(std::span<std::uint8_t> buffer) const {
  if (size_ < kFixedSize || buffer.size() < size_) return;
  auto put16 = [&buffer](std::size_t at, std::uint16_t value) {
    buffer[at] = static_cast<std::uint8_t>(value >> 8);
    buffer[at + 1] = static_cast<std::uint8_t>(value);
  };
  put16(0, 0xFFE0);
  put16(2, static_cast<std::uint16_t>(size_ - 2));
  constexpr std::uint8_t kIdentifier[] = {'J', 'F', 'I', 'F', 0};
  std::ranges::copy(kIdentifier, buffer.begin() + 4);
  buffer[9] = static_cast<std::uint8_t>(version_.high);
  buffer[10] = static_cast<std::uint8_t>(version_.low);
  buffer[11] = static_cast<std::uint8_t>(unit_);
  put16(12, xDensity_);
  put16(14, yDensity_);
  buffer[16] = thumbnailWidth_;
  buffer[17] = thumbnailHeight_;

  const std::size_t pixels = size_ - kFixedSize;
  const std::size_t available = thumbnail_ ? std::min(pixels, thumbnail_->size()) : 0;
  auto out = buffer.begin() + kFixedSize;
  if (available > 0) out = std::copy_n(thumbnail_->begin(), available, out);
  std::fill_n(out, pixels - available, std::uint8_t{0});
}
