#include "formats/OrbImageResourceBlock.h"

#include "formats/ImageResourceDescriptions.h"
#include "formats/ImageResourceTitles.h"

OrbImageResourceBlock::OrbImageResourceBlock(std::uint32_t signature, std::uint16_t irbID,
                                             std::optional<std::string> name,
                                             std::optional<std::vector<std::uint8_t>> dataValue)
    : dataValue_(std::move(dataValue)), signature_(signature), irbID_(irbID) {
  setName(std::move(name));
}

void OrbImageResourceBlock::setName(std::optional<std::string> name) {
  // An empty name is no name. Assigned through emplace/reset rather than by
  // moving the optional: GCC 12 at -O3 takes that move for a read of
  // uninitialised memory (-Wmaybe-uninitialized) and -Werror stops the build.
  if (name && !name->empty())
    name_.emplace(std::move(*name));
  else
    name_.reset();
}

std::string OrbImageResourceBlock::titleWithID(std::uint16_t irbID) {
  return std::string(ImageResourceTitles::title(irbID));
}

std::string OrbImageResourceBlock::stringValue() const {
  static const std::vector<std::uint8_t> kNoData;
  return ImageResourceDescriptions::describe(irbID_, name_, dataValue_ ? *dataValue_ : kNoData);
}

std::vector<std::uint8_t> OrbImageResourceBlock::data() const {
  std::vector<std::uint8_t> out;
  auto put = [&out](std::uint32_t value, int bytes) {
    for (int shift = (bytes - 1) * 8; shift >= 0; shift -= 8) out.push_back(static_cast<std::uint8_t>(value >> shift));
  };
  put(signature_, 4);
  put(irbID_, 2);

  // Length byte, name, zero padding to an even size. The size is computed in
  // 8 bits, so a name of 254 bytes or more wraps; readers of these blocks
  // rely on exactly this layout, so it is kept.
  const auto n = static_cast<std::uint8_t>(name_ ? name_->size() : 0);
  const std::size_t fieldSize = static_cast<std::uint8_t>((n & 0xFE) + 2);
  std::vector<std::uint8_t> field(fieldSize, 0);
  if (fieldSize > 0) {
    field[0] = n;
    if (name_)
      for (std::size_t i = 0; i < name_->size() && i + 1 < fieldSize; ++i)
        field[i + 1] = static_cast<std::uint8_t>((*name_)[i]);
  }
  out.insert(out.end(), field.begin(), field.end());

  const std::size_t size = dataValue_ ? dataValue_->size() : 0;
  put(static_cast<std::uint32_t>(size), 4);
  if (size == 0) return out;
  out.insert(out.end(), dataValue_->begin(), dataValue_->end());
  if (size % 2 == 1) out.push_back(0);
  return out;
}

bool OrbImageResourceBlock::isEqualToIRB(const OrbImageResourceBlock& other) const {
  return irbID_ == other.irbID_ && name_ == other.name_ && dataValue_ == other.dataValue_;
}

int OrbImageResourceBlock::compare(const OrbImageResourceBlock& other) const {
  if (irbID_ == other.irbID_) return 0;
  return irbID_ < other.irbID_ ? -1 : 1;
}
