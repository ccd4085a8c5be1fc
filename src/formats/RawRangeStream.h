#pragma once
// A file as libraw reads it through a RangeReader, in blocks fetched as it
// asks for them, so that a RAW's preview is read without its sensor data.

#include <libraw/libraw.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>
#include <vector>

#include "formats/containers/ContainerTypes.h"

namespace ImageDecoder {

// The file as libraw reads it through a RangeReader, in blocks of kBlock
// bytes fetched as it asks for them; longer reads (a preview) go straight
// through. libraw reads a RAW's directories and preview a few bytes at a
// time, and never the sensor data for a preview.
class RawRangeStream : public LibRaw_abstract_datastream {
 public:
  RawRangeStream(const lum::RangeReader& read, std::uint64_t size) : read_(read), size_(size) {}

  int valid() override { return 1; }
  int read(void* into, std::size_t size, std::size_t count) override {
    if (size == 0 || count == 0 || position_ >= size_) return 0;
    const std::uint64_t room = size_ - position_;
    const std::uint64_t wanted = count > room / size ? room : std::uint64_t{count} * size;
    const std::uint64_t got = copy(static_cast<std::uint8_t*>(into), wanted);
    position_ += got;
    return static_cast<int>(got / size);
  }
  int seek(INT64 offset, int whence) override {
    const INT64 base = whence == SEEK_CUR ? static_cast<INT64>(position_) : whence == SEEK_END ? size() : 0;
    if (base + offset < 0) return -1;
    position_ = std::min<std::uint64_t>(static_cast<std::uint64_t>(base + offset), size_);
    return 0;
  }
  INT64 tell() override { return static_cast<INT64>(position_); }
  INT64 size() override { return static_cast<INT64>(size_); }
  int get_char() override {
    std::uint8_t c = 0;
    return read(&c, 1, 1) == 1 ? c : -1;
  }
  char* gets(char* text, int room) override {
    if (room < 1 || position_ >= size_) return nullptr;
    int used = 0;
    for (int c = 0; used < room - 1 && (c = get_char()) >= 0;) {
      text[used++] = static_cast<char>(c);
      if (c == '\n') break;
    }
    text[used] = '\0';
    return text;
  }
  // One number written as text: the characters up to the next white space.
  int scanf_one(const char* format, void* value) override {
    char text[32] = {};
    int c = get_char();
    while (c == ' ' || c == '\t' || c == '\n' || c == '\r') c = get_char();
    for (std::size_t used = 0; c >= 0 && c != ' ' && c != '\t' && c != '\n' && c != '\r'; c = get_char())
      if (used < sizeof text - 1) text[used++] = static_cast<char>(c);
    return std::sscanf(text, format, value);
  }
  int eof() override { return position_ >= size_; }
  void* make_jas_stream() override { return nullptr; }

 private:
  static constexpr std::uint64_t kBlock = 64 * 1024;

  std::uint64_t copy(std::uint8_t* into, std::uint64_t wanted) {
    if (wanted >= kBlock) {
      const auto bytes = read_(position_, wanted);
      if (!bytes) return 0;
      const std::uint64_t got = std::min<std::uint64_t>(bytes->size(), wanted);
      std::memcpy(into, bytes->data(), got);
      return got;
    }
    std::uint64_t done = 0;
    while (done < wanted) {
      const std::uint64_t at = position_ + done;
      const std::uint64_t start = at / kBlock * kBlock;
      if (!block_ || blockStart_ != start) {
        block_ = read_(start, kBlock);
        blockStart_ = start;
      }
      if (!block_ || block_->size() <= at - start) break;
      const std::uint64_t n = std::min<std::uint64_t>(wanted - done, block_->size() - (at - start));
      std::memcpy(into + done, block_->data() + (at - start), n);
      done += n;
    }
    return done;
  }

  const lum::RangeReader& read_;
  std::uint64_t size_;
  std::uint64_t position_ = 0;
  std::optional<std::vector<std::uint8_t>> block_;
  std::uint64_t blockStart_ = 0;
};

}  // namespace ImageDecoder
