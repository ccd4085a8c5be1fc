#pragma once
// The Photoshop image resource blocks of one buffer (a JPEG APP13 segment
// after "Photoshop 3.0", or a TIFF tag 34377 value), kept sorted by id.

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/ByteView.h"
#include "formats/OrbImageResourceBlock.h"

class OrbIPTCIIM;

class OrbPhotoshopFF {
 public:
  static constexpr std::uint16_t kIPTCIIMID = 1028;
  static constexpr std::uint16_t kRGBThumbnailID = 1036;
  static constexpr std::uint16_t kBGRThumbnailID = 1033;

  OrbPhotoshopFF() = default;
  // A copy holds copies of every block and chooses its thumbnail block anew.
  OrbPhotoshopFF(const OrbPhotoshopFF& other) : irbs_(other.irbs_) { setUpThumbnail(); }
  OrbPhotoshopFF& operator=(const OrbPhotoshopFF& other) {
    if (this != &other) {
      irbs_ = other.irbs_;
      setUpThumbnail();
    }
    return *this;
  }
  OrbPhotoshopFF(OrbPhotoshopFF&&) noexcept = default;
  OrbPhotoshopFF& operator=(OrbPhotoshopFF&&) noexcept = default;

  // From bytes starting at an FF ED marker (as many as are available):
  // nullopt unless the marker and the "Photoshop 3.0" identifier are there.
  static std::optional<OrbPhotoshopFF> photoshopFFWithAPP13SegmentPtr(orb::ByteView segment);
  // The blocks of `blocks`. A block that does not fit ends the walk; the
  // blocks before it are kept. Blocks with id 0 are dropped.
  static OrbPhotoshopFF photoshopFFWithIRBPtr(orb::ByteView blocks);

  // Makes a block and adds it (id 0 is refused silently), then sorts by id.
  void addImageResourceBlockWithSignature(std::uint32_t signature, std::uint16_t irbID,
                                          std::optional<std::string> name,
                                          std::optional<std::vector<std::uint8_t>> dataValue);
  void addIRB(OrbImageResourceBlock block);
  // The first block with the id, or null.
  const OrbImageResourceBlock* imageResourceBlockWithIRBID(std::uint16_t irbID) const;
  // Removes the first block with the id (the name keeps its historic spelling).
  void rmoveIRBWithID(std::uint16_t irbID);
  // Puts the block in place of the first one with its id; nothing if none.
  void replaceIRB(OrbImageResourceBlock block);

  // Every block serialised, in list order; the two are the same.
  std::vector<std::uint8_t> data() const { return dataOfIRBs(); }
  std::vector<std::uint8_t> dataOfIRBs() const;

  // The thumbnail block's data after its 28-byte header; nullopt without one.
  std::optional<std::vector<std::uint8_t>> thumbnailData() const;
  // Keeps the thumbnail block's 28-byte header and puts `bytes` after it.
  void setThumbnailData(std::span<const std::uint8_t> bytes);
  // Chooses the thumbnail block: id 1036, else 1033, else none.
  void setUpThumbnail();

  // The IPTC datasets of a block with id 1028; null for any other block.
  static std::unique_ptr<OrbIPTCIIM> iptcIIMFromIRB(const OrbImageResourceBlock& block);
  // The IPTC datasets of this list's block 1028, or null.
  std::unique_ptr<OrbIPTCIIM> iptcIIM() const;

  const std::vector<OrbImageResourceBlock>& IRBs() const { return irbs_; }
  void setIRBs(std::vector<OrbImageResourceBlock> irbs);
  // The thumbnail block, or null.
  const OrbImageResourceBlock* thumbIRB() const;
  // Makes the block at `position` of IRBs() the thumbnail block (none when
  // out of range).
  void setThumbIRB(std::optional<std::size_t> position);

 private:
  void sortByID();

  std::vector<OrbImageResourceBlock> irbs_;
  // Position of the thumbnail block in irbs_; follows it through sorting.
  std::optional<std::size_t> thumb_;
};
