#include "formats/FileRangeReader.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

namespace lum {
namespace {

// A read past the head takes at least this much: the next directories and
// values usually follow the first one asked for.
constexpr std::uint64_t kPieceLength = 64 * 1024;
// Pieces kept besides the head; a hostile file asking for ever new places
// gets them read each time instead of held.
constexpr std::size_t kMaxPieces = 8;

}  // namespace

FileRangeReader::FileRangeReader(std::filesystem::path path, std::shared_ptr<const FileData> head)
    : path_(std::move(path)), stamp_(head->stampAsOpened().value_or(FileStamp{head->size()})) {
  pieces_.emplace_back(0, std::move(head));
}

FileRangeReader::~FileRangeReader() {
  if (fd_ >= 0) ::close(fd_);
}

RangeReader FileRangeReader::reader() {
  return [this](std::uint64_t offset, std::uint64_t length) { return read(offset, length); };
}

std::optional<std::vector<std::uint8_t>> FileRangeReader::read(std::uint64_t offset, std::uint64_t length) {
  if (offset > fileSize()) return std::nullopt;
  const std::uint64_t end = offset + std::min(length, fileSize() - offset);
  const auto covering = std::find_if(pieces_.begin(), pieces_.end(), [&](const auto& piece) {
    return piece.first <= offset && end <= piece.first + piece.second->size();
  });
  std::shared_ptr<const FileData> piece;
  std::uint64_t pieceOffset = offset;
  if (covering != pieces_.end()) {
    pieceOffset = covering->first;
    piece = covering->second;
  } else {
    const std::uint64_t wanted = std::max(end - offset, kPieceLength);
    if (fd_ < 0) fd_ = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd_ >= 0) piece = FileData::readRangeIfUnchanged(fd_, stamp_, offset, static_cast<std::size_t>(wanted));
    if (!piece) {
      failed_ = true;
      return std::nullopt;
    }
    if (pieces_.size() > kMaxPieces) pieces_.erase(pieces_.begin() + 1);
    pieces_.emplace_back(offset, piece);
  }
  const orb::ByteView bytes = piece->bytes();
  const std::uint64_t from = offset - pieceOffset;
  const std::uint64_t count = std::min(end - offset, bytes.size() - std::min(from, bytes.size()));
  const auto* begin = bytes.data() + from;
  return std::vector<std::uint8_t>(begin, begin + count);
}

}  // namespace lum
