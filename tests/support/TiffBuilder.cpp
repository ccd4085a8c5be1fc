#include "support/TiffBuilder.h"

#include <algorithm>

namespace lumtest {

namespace {

std::uint32_t typeSize(std::uint16_t type) {
  switch (type) {
    case 3: case 8: return 2;
    case 4: case 9: case 11: return 4;
    case 5: case 10: case 12: return 8;
    default: return 1;
  }
}

}  // namespace

void TiffBuilder::IFD::put16(std::vector<std::uint8_t>& out, std::uint16_t v) const {
  for (int i = 0; i < 2; ++i) out.push_back(static_cast<std::uint8_t>(v >> (little_ ? 8 * i : 8 * (1 - i))));
}

void TiffBuilder::IFD::put32(std::vector<std::uint8_t>& out, std::uint32_t v) const {
  for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>(v >> (little_ ? 8 * i : 8 * (3 - i))));
}

TiffBuilder::IFD& TiffBuilder::IFD::add(Entry entry) { return entries_.push_back(std::move(entry)), *this; }

TiffBuilder::IFD& TiffBuilder::IFD::ascii(std::uint16_t tag, std::string_view text) {
  std::vector<std::uint8_t> value(text.begin(), text.end());
  value.push_back(0);
  return bytes(tag, 2, std::move(value));
}

TiffBuilder::IFD& TiffBuilder::IFD::shorts(std::uint16_t tag, std::vector<std::uint16_t> values) {
  std::vector<std::uint8_t> value;
  for (auto v : values) put16(value, v);
  return bytes(tag, 3, std::move(value));
}

TiffBuilder::IFD& TiffBuilder::IFD::undefined(std::uint16_t tag, std::vector<std::uint8_t> v) { return bytes(tag, 7, v); }

TiffBuilder::IFD& TiffBuilder::IFD::bytes(std::uint16_t tag, std::uint16_t type, std::vector<std::uint8_t> value,
                                          std::optional<std::uint32_t> count) {
  const std::uint32_t n = count.value_or(static_cast<std::uint32_t>(value.size() / typeSize(type)));
  return add({tag, type, n, std::move(value), std::nullopt, nullptr, 0});
}

TiffBuilder::IFD& TiffBuilder::IFD::raw(std::uint16_t tag, std::uint16_t type, std::uint32_t count,
                                        std::uint32_t field) {
  return add({tag, type, count, {}, field, nullptr, 0});
}

TiffBuilder::IFD& TiffBuilder::IFD::subIFD(std::unique_ptr<IFD>& slot, std::uint16_t pointerTag) {
  if (!slot) {
    slot.reset(new IFD(little_));
    add({pointerTag, 4, 1, {}, std::nullopt, slot.get(), 0});
  }
  return *slot;
}

TiffBuilder::IFD& TiffBuilder::IFD::exif() { return subIFD(exif_, 0x8769); }
TiffBuilder::IFD& TiffBuilder::IFD::gps() { return subIFD(gps_, 0x8825); }
TiffBuilder::IFD& TiffBuilder::IFD::interop() { return subIFD(interop_, 0xA005); }

TiffBuilder::IFD& TiffBuilder::IFD::next() {
  if (!next_) next_.reset(new IFD(little_));
  return *next_;
}

// Gives the IFD, its values and its sub-IFDs their offsets; answers the first
// free offset after them.
std::uint32_t TiffBuilder::layout(IFD& ifd, std::uint32_t cursor) {
  ifd.offset_ = cursor;
  cursor += 2 + 12 * static_cast<std::uint32_t>(ifd.entries_.size()) + 4;
  for (auto& e : ifd.entries_) {
    if (e.field || e.pointee || e.value.size() <= 4) continue;
    e.valueOffset = cursor;
    cursor += static_cast<std::uint32_t>(e.value.size());
    cursor += cursor & 1;
  }
  for (IFD* sub : {ifd.exif_.get(), ifd.interop_.get(), ifd.gps_.get()})
    if (sub) cursor = layout(*sub, cursor);
  if (ifd.next_) cursor = layout(*ifd.next_, cursor);
  return cursor;
}

void TiffBuilder::write(const IFD& ifd, std::vector<std::uint8_t>& out) const {
  const std::uint64_t base = headerLocation_;
  if (out.size() < base + ifd.offset_) out.resize(base + ifd.offset_, 0);
  std::vector<std::uint8_t> table;
  ifd.put16(table, ifd.countOverride_.value_or(static_cast<std::uint16_t>(ifd.entries_.size())));
  for (const auto& e : ifd.entries_) {
    ifd.put16(table, e.tag);
    ifd.put16(table, e.type);
    ifd.put32(table, e.count);
    if (e.field || e.pointee || e.value.size() > 4) {
      ifd.put32(table, e.field ? *e.field : e.pointee ? e.pointee->offset_ : e.valueOffset);
    } else {
      for (std::size_t i = 0; i < 4; ++i) table.push_back(i < e.value.size() ? e.value[i] : 0);
    }
  }
  const std::uint32_t next = ifd.nextOffsetOverride_.value_or(ifd.next_ ? ifd.next_->offset_ : 0);
  ifd.put32(table, next);
  std::copy(table.begin(), table.end(), out.begin() + static_cast<std::ptrdiff_t>(base + ifd.offset_));
  for (const auto& e : ifd.entries_) {
    if (e.field || e.pointee || e.value.size() <= 4) continue;
    if (out.size() < base + e.valueOffset + e.value.size()) out.resize(base + e.valueOffset + e.value.size(), 0);
    std::copy(e.value.begin(), e.value.end(), out.begin() + static_cast<std::ptrdiff_t>(base + e.valueOffset));
  }
  for (const IFD* sub : {ifd.exif_.get(), ifd.interop_.get(), ifd.gps_.get(), ifd.next_.get()})
    if (sub) write(*sub, out);
}

std::vector<std::uint8_t> TiffBuilder::build(std::uint64_t headerLocation) {
  headerLocation_ = headerLocation;
  const std::uint32_t end = noIFD_ ? 8 : layout(*ifd0_, 8);
  std::vector<std::uint8_t> out(headerLocation, 0xEE);
  out.resize(headerLocation + end, 0);
  std::vector<std::uint8_t> header = little_ ? std::vector<std::uint8_t>{'I', 'I'} : std::vector<std::uint8_t>{'M', 'M'};
  ifd0_->put16(header, 42);
  ifd0_->put32(header, noIFD_ ? 0 : ifd0_->offset_);
  std::copy(header.begin(), header.end(), out.begin() + static_cast<std::ptrdiff_t>(headerLocation));
  if (!noIFD_) write(*ifd0_, out);
  return out;
}

}  // namespace lumtest
