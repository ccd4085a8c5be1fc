#pragma once
// Bounded, read-only access to a block of bytes.
//
// Every byte the engine reads from a file goes through this class. Each
// accessor checks offset and width against the block's size before it reads
// (in 64-bit arithmetic that cannot overflow), and answers std::nullopt when
// the read would leave the block. Numbers are stored big-endian ("MM") or
// little-endian ("II"); the caller says which.
//
// A view may also note its refusals: every read that it, or a view cut from
// it, refuses sets a flag the caller owns. A scan run over the head of a file
// uses this to prove that it never wanted a byte past the head, so that its
// result is the one the whole file would give.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace orb {

enum class ByteOrder : std::uint8_t { Big, Little };

class ByteView {
 public:
  constexpr ByteView() = default;
  constexpr ByteView(const std::uint8_t* data, std::size_t size) : data_(data), size_(data ? size : 0) {}
  constexpr explicit ByteView(std::span<const std::uint8_t> bytes) : ByteView(bytes.data(), bytes.size()) {}
  // A view that sets *refused whenever it refuses a read.
  constexpr ByteView(const std::uint8_t* data, std::size_t size, bool* refused) : ByteView(data, size) {
    refused_ = refused;
  }

  constexpr std::size_t size() const { return size_; }
  constexpr bool empty() const { return size_ == 0; }
  constexpr const std::uint8_t* data() const { return data_; }

  // True when [offset, offset + length) lies inside the block.
  constexpr bool contains(std::uint64_t offset, std::uint64_t length) const {
    if (offset <= size_ && length <= size_ - offset) return true;
    if (refused_) *refused_ = true;
    return false;
  }

  constexpr std::optional<std::uint8_t> u8(std::uint64_t offset) const {
    if (!contains(offset, 1)) return std::nullopt;
    return data_[offset];
  }
  constexpr std::optional<std::uint16_t> u16(std::uint64_t offset, ByteOrder order = ByteOrder::Big) const {
    return number<std::uint16_t, 2>(offset, order);
  }
  constexpr std::optional<std::uint32_t> u32(std::uint64_t offset, ByteOrder order = ByteOrder::Big) const {
    return number<std::uint32_t, 4>(offset, order);
  }
  constexpr std::optional<std::uint64_t> u64(std::uint64_t offset, ByteOrder order = ByteOrder::Big) const {
    return number<std::uint64_t, 8>(offset, order);
  }

  // The bytes [offset, offset + length), or nullopt when they leave the block.
  constexpr std::optional<std::span<const std::uint8_t>> bytes(std::uint64_t offset, std::uint64_t length) const {
    if (!contains(offset, length)) return std::nullopt;
    return std::span<const std::uint8_t>(data_ + offset, static_cast<std::size_t>(length));
  }
  constexpr std::optional<ByteView> sub(std::uint64_t offset, std::uint64_t length) const {
    if (!contains(offset, length)) return std::nullopt;
    return ByteView(data_ + offset, static_cast<std::size_t>(length), refused_);
  }
  // Everything from offset to the end (empty when offset is at or past it).
  // Where the end lies is itself a fact about the block, so a noting view
  // counts every tail as a refusal.
  constexpr ByteView tail(std::uint64_t offset) const {
    if (refused_) *refused_ = true;
    if (offset >= size_) return {};
    return ByteView(data_ + offset, static_cast<std::size_t>(size_ - offset), refused_);
  }

 private:
  template <typename T, int N>
  constexpr std::optional<T> number(std::uint64_t offset, ByteOrder order) const {
    if (!contains(offset, N)) return std::nullopt;
    T value = 0;
    for (int i = 0; i < N; ++i) {
      const int index = order == ByteOrder::Big ? i : N - 1 - i;
      value = static_cast<T>((value << 8) | data_[offset + static_cast<std::uint64_t>(index)]);
    }
    return value;
  }

  const std::uint8_t* data_ = nullptr;
  std::size_t size_ = 0;
  bool* refused_ = nullptr;  // set on every refusal when given
};

}  // namespace orb
