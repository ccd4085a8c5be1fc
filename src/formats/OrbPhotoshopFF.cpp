#include "formats/OrbPhotoshopFF.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "formats/OrbIPTCIIM.h"

namespace {

constexpr std::uint16_t kAPP13Marker = 0xFFED;
constexpr std::string_view kPhotoshopIdentifier{"Photoshop 3.0\0", 14};
constexpr std::uint64_t kBlocksStart = 18;
// The thumbnail resource starts with a fixed header before the JPEG bytes.
constexpr std::size_t kThumbnailHeaderSize = 28;

}  // namespace

std::optional<OrbPhotoshopFF> OrbPhotoshopFF::photoshopFFWithAPP13SegmentPtr(orb::ByteView segment) {
  const auto marker = segment.u16(0);
  const auto length = segment.u16(2);
  if (!marker || !length || *marker != kAPP13Marker) return std::nullopt;
  const auto identifier = segment.bytes(4, kPhotoshopIdentifier.size());
  if (!identifier || !std::ranges::equal(*identifier, kPhotoshopIdentifier,
                                         [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }))
    return std::nullopt;
  // The segment length counts its own two bytes and the 14-byte identifier;
  // the difference is taken in 16 bits as the segment format stores it.
  const std::uint64_t declared = static_cast<std::uint16_t>(*length - 16);
  const std::uint64_t available = segment.size() - kBlocksStart;
  return photoshopFFWithIRBPtr(*segment.sub(kBlocksStart, std::min(declared, available)));
}

OrbPhotoshopFF OrbPhotoshopFF::photoshopFFWithIRBPtr(orb::ByteView blocks) {
  OrbPhotoshopFF list;
  const std::uint64_t size = blocks.size();
  std::uint64_t p = 0;
  while (p < size) {
    const std::uint64_t start = p;
    const auto signature = blocks.u32(p);
    const auto id = blocks.u16(p + 4);
    const auto nameLength = blocks.u8(p + 6);
    if (!signature || !id || !nameLength) break;
    p += 7;
    std::optional<std::string> name;
    if (*nameLength > 0) {
      const auto bytes = blocks.bytes(p, *nameLength);
      if (!bytes) break;
      name.emplace(bytes->begin(), bytes->end());
      // Length byte and name together take an even number of bytes.
      p += *nameLength + (*nameLength % 2 == 0 ? 1 : 0);
    } else {
      p += 1;
    }
    const auto dataSize = blocks.u32(p);
    if (!dataSize) break;
    p += 4;
    const auto data = blocks.bytes(p, *dataSize);
    if (!data) break;
    list.addImageResourceBlockWithSignature(*signature, *id, std::move(name),
                                            std::vector<std::uint8_t>(data->begin(), data->end()));
    p += *dataSize;
    if ((p - start) % 2 == 1) p += 1;  // pad byte after odd data
  }
  list.setUpThumbnail();
  return list;
}

void OrbPhotoshopFF::addImageResourceBlockWithSignature(std::uint32_t signature, std::uint16_t irbID,
                                                        std::optional<std::string> name,
                                                        std::optional<std::vector<std::uint8_t>> dataValue) {
  if (irbID == 0) return;
  addIRB(OrbImageResourceBlock(signature, irbID, std::move(name), std::move(dataValue)));
}

void OrbPhotoshopFF::addIRB(OrbImageResourceBlock block) {
  irbs_.push_back(std::move(block));
  sortByID();
}

const OrbImageResourceBlock* OrbPhotoshopFF::imageResourceBlockWithIRBID(std::uint16_t irbID) const {
  const auto it = std::ranges::find(irbs_, irbID, &OrbImageResourceBlock::irbID);
  return it == irbs_.end() ? nullptr : &*it;
}

void OrbPhotoshopFF::rmoveIRBWithID(std::uint16_t irbID) {
  const auto it = std::ranges::find(irbs_, irbID, &OrbImageResourceBlock::irbID);
  if (it == irbs_.end()) return;
  const auto position = static_cast<std::size_t>(it - irbs_.begin());
  irbs_.erase(it);
  if (thumb_ == position) thumb_.reset();
  else if (thumb_ && *thumb_ > position) --*thumb_;
}

void OrbPhotoshopFF::replaceIRB(OrbImageResourceBlock block) {
  const auto it = std::ranges::find(irbs_, block.irbID(), &OrbImageResourceBlock::irbID);
  if (it != irbs_.end()) *it = std::move(block);
}

std::vector<std::uint8_t> OrbPhotoshopFF::dataOfIRBs() const {
  std::vector<std::uint8_t> out;
  for (const auto& block : irbs_) {
    const auto bytes = block.data();
    out.insert(out.end(), bytes.begin(), bytes.end());
  }
  return out;
}

std::optional<std::vector<std::uint8_t>> OrbPhotoshopFF::thumbnailData() const {
  const OrbImageResourceBlock* block = thumbIRB();
  if (!block) return std::nullopt;
  const auto& data = block->dataValue();
  if (!data || data->size() < kThumbnailHeaderSize) return std::vector<std::uint8_t>{};
  return std::vector<std::uint8_t>(data->begin() + kThumbnailHeaderSize, data->end());
}

void OrbPhotoshopFF::setThumbnailData(std::span<const std::uint8_t> bytes) {
  if (!thumb_ || bytes.empty()) return;
  OrbImageResourceBlock& block = irbs_[*thumb_];
  std::vector<std::uint8_t> data(kThumbnailHeaderSize, 0);
  if (const auto& old = block.dataValue())
    std::copy_n(old->begin(), std::min(old->size(), kThumbnailHeaderSize), data.begin());
  data.insert(data.end(), bytes.begin(), bytes.end());
  block.setDataValue(std::move(data));
}

void OrbPhotoshopFF::setUpThumbnail() {
  thumb_.reset();
  for (std::uint16_t id : {kRGBThumbnailID, kBGRThumbnailID}) {
    const auto it = std::ranges::find(irbs_, id, &OrbImageResourceBlock::irbID);
    if (it != irbs_.end()) {
      thumb_ = static_cast<std::size_t>(it - irbs_.begin());
      return;
    }
  }
}

std::unique_ptr<OrbIPTCIIM> OrbPhotoshopFF::iptcIIMFromIRB(const OrbImageResourceBlock& block) {
  if (block.irbID() != kIPTCIIMID) return nullptr;
  const auto& data = block.dataValue();
  return OrbIPTCIIM::iptcIIMWithBytes(data ? orb::ByteView(*data) : orb::ByteView());
}

std::unique_ptr<OrbIPTCIIM> OrbPhotoshopFF::iptcIIM() const {
  const OrbImageResourceBlock* block = imageResourceBlockWithIRBID(kIPTCIIMID);
  return block ? iptcIIMFromIRB(*block) : nullptr;
}

void OrbPhotoshopFF::setIRBs(std::vector<OrbImageResourceBlock> irbs) {
  irbs_ = std::move(irbs);
  thumb_.reset();
}

const OrbImageResourceBlock* OrbPhotoshopFF::thumbIRB() const { return thumb_ ? &irbs_[*thumb_] : nullptr; }

void OrbPhotoshopFF::setThumbIRB(std::optional<std::size_t> position) {
  thumb_ = position && *position < irbs_.size() ? position : std::nullopt;
}

void OrbPhotoshopFF::sortByID() {
  // Stable, so blocks with equal ids keep the order they were added in; the
  // thumbnail position moves with its block.
  std::vector<std::size_t> order(irbs_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, [this](std::size_t a, std::size_t b) { return irbs_[a].compare(irbs_[b]) < 0; });
  std::vector<OrbImageResourceBlock> sorted;
  sorted.reserve(irbs_.size());
  std::optional<std::size_t> thumb;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (thumb_ == order[i]) thumb = i;
    sorted.push_back(std::move(irbs_[order[i]]));
  }
  irbs_ = std::move(sorted);
  thumb_ = thumb;
}
