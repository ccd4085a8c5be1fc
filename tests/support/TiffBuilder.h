#pragma once
// Writes TIFF structures for tests, in either byte order, with the header at
// any position of the block.
//
//   lumtest::TiffBuilder tiff(lumtest::TiffBuilder::kLittle);
//   auto& ifd0 = tiff.ifd0();
//   ifd0.ascii(0x010F, "Maker").shorts(0x0112, {1});
//   auto& exif = ifd0.exif();                 // adds the 0x8769 pointer entry
//   exif.ascii(0x9003, "2024:01:02 03:04:05");
//   exif.interop().ascii(0x0001, "R98");       // 0xA005 in the Exif IFD
//   ifd0.gps().bytes(0x0000, 1, {2, 3, 0, 0}); // 0x8825 pointer entry
//   ifd0.next().shorts(0x0103, {6});           // IFD1
//   std::vector<uint8_t> block = tiff.build(12);  // header at position 12
//
// Layout: the header (8 bytes), then each IFD's table followed by its
// out-of-line values (each starting on an even offset), IFD0 first, then its
// Exif IFD, the Interoperability IFD, the GPS IFD, then IFD1 and so on.
// Entries are written in the order they were added. Bytes before the header
// are filled with 0xEE.
//
// Values are given as numbers and written in the builder's byte order; bytes()
// takes them as they are. The knobs for malformed output:
//   raw(tag, type, count, field)   an entry with exactly this count and 4-byte
//                                  field (byte order applied) and no value
//                                  written: wrong offsets, huge counts
//   IFD::nextOffset(n)             the next-IFD offset written (loops)
//   IFD::claimEntryCount(n)        the entry count written in the table
//   the returned vector            cut it (resize) to truncate
// A pointer to a sub-IFD is an ordinary entry; to point it elsewhere, use
// raw() with the pointer tag instead of exif() / gps() / interop().

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace lumtest {

class TiffBuilder {
 public:
  static constexpr bool kBig = false;
  static constexpr bool kLittle = true;

  class IFD {
   public:
    // Entries by type; count is the number of values (ASCII: characters + 1).
    IFD& ascii(std::uint16_t tag, std::string_view text);  // adds the zero byte
    IFD& shorts(std::uint16_t tag, std::vector<std::uint16_t> values);
    IFD& undefined(std::uint16_t tag, std::vector<std::uint8_t> bytes);
    // Any type, value bytes given as they are to be written.
    IFD& bytes(std::uint16_t tag, std::uint16_t type, std::vector<std::uint8_t> value,
               std::optional<std::uint32_t> count = std::nullopt);
    // Exactly this entry; nothing is written out of line.
    IFD& raw(std::uint16_t tag, std::uint16_t type, std::uint32_t count, std::uint32_t field);

    // Sub-IFDs (created on first call, with their pointer entry added here).
    IFD& exif();     // tag 0x8769
    IFD& gps();      // tag 0x8825
    IFD& interop();  // tag 0xA005 (on the Exif IFD)
    // The next IFD of the chain (created on first call).
    IFD& next();

    IFD& nextOffset(std::uint32_t offset) { nextOffsetOverride_ = offset; return *this; }
    IFD& claimEntryCount(std::uint16_t count) { countOverride_ = count; return *this; }

   private:
    friend class TiffBuilder;
    struct Entry {
      std::uint16_t tag = 0;
      std::uint16_t type = 0;
      std::uint32_t count = 0;
      std::vector<std::uint8_t> value;     // written inline or out of line
      std::optional<std::uint32_t> field;  // raw(): the field as given
      IFD* pointee = nullptr;              // pointer entry: the sub-IFD's offset
      std::uint32_t valueOffset = 0;       // after layout
    };
    explicit IFD(bool little) : little_(little) {}
    IFD& add(Entry entry);
    IFD& subIFD(std::unique_ptr<IFD>& slot, std::uint16_t pointerTag);
    void put16(std::vector<std::uint8_t>& out, std::uint16_t v) const;
    void put32(std::vector<std::uint8_t>& out, std::uint32_t v) const;

    bool little_;
    std::vector<Entry> entries_;
    std::unique_ptr<IFD> exif_, gps_, interop_, next_;
    std::optional<std::uint32_t> nextOffsetOverride_;
    std::optional<std::uint16_t> countOverride_;
    std::uint32_t offset_ = 0;
  };

  explicit TiffBuilder(bool littleEndian = kBig) : little_(littleEndian), ifd0_(new IFD(littleEndian)) {}

  IFD& ifd0() { return *ifd0_; }
  // A header whose IFD0 offset is 0 and no IFD at all.
  TiffBuilder& noIFD() { noIFD_ = true; return *this; }

  // The block: headerLocation filler bytes, then the structure.
  std::vector<std::uint8_t> build(std::uint64_t headerLocation = 0);

 private:
  std::uint32_t layout(IFD& ifd, std::uint32_t cursor);
  void write(const IFD& ifd, std::vector<std::uint8_t>& out) const;

  bool little_;
  std::unique_ptr<IFD> ifd0_;
  bool noIFD_ = false;
  std::uint64_t headerLocation_ = 0;
};

}  // namespace lumtest
