#pragma once
// Bytes of a photo file read into memory (the whole file, or its first bytes)
// together with the identity the file had when they were read.
//
// Nothing is ever left mapped: a mapping kills the process with SIGBUS when
// another program cuts the file short, and the kernel caps the mappings of a
// process far below the size of a photographer's folder. An opened file keeps
// only its identity; whatever reads it later reads it again with
// readIfUnchanged(), which refuses a file that is no longer the one opened.
//
// The bytes are shared and immutable: several readers may hold them at once
// from any thread.

#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/ByteView.h"

struct stat;

namespace lum {

// Size, modification time and the file itself (device and inode): what tells
// whether the file on disk is still the one that was opened, also when
// another file of the same size and time was moved into its place.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t mtimeSeconds = 0;
  std::int64_t mtimeNanoseconds = 0;
  std::uint64_t device = 0;
  std::uint64_t inode = 0;

  friend bool operator==(const FileStamp&, const FileStamp&) = default;

  // The file's current stamp, or nullopt when it cannot be read.
  static std::optional<FileStamp> of(const std::filesystem::path& path);
  static FileStamp ofStat(const struct stat& st);
};

// Why a read failed, in the three parts the console line reports.
struct ReadFailure {
  std::string reason;
  std::string description;
  std::string recoverySuggestion;
};

// The reason given when a file is no longer the one that was opened.
inline constexpr const char* kChangedSinceOpenedReason =
    "The file was changed by another program since it was opened.";

class FileData {
 public:
  static constexpr std::size_t kWholeFile = std::numeric_limits<std::size_t>::max();

  // Reads at most the first `length` bytes of the file (all of a shorter
  // one; kWholeFile for all of any). The stamp gives the whole file's size,
  // taken from the descriptor the bytes were read through, so both describe
  // the same file. Nullptr on failure, with *failure filled when given.
  static std::shared_ptr<const FileData> readHead(const std::filesystem::path& path, std::size_t length,
                                                  ReadFailure* failure = nullptr);
  static std::shared_ptr<const FileData> readFile(const std::filesystem::path& path,
                                                  ReadFailure* failure = nullptr) {
    return readHead(path, kWholeFile, failure);
  }

  // The same, only while the file at path is still the one stamped `opened`;
  // otherwise nullptr with kChangedSinceOpenedReason. The check is made on
  // the descriptor that is then read, so no other file can slip in between.
  static std::shared_ptr<const FileData> readIfUnchanged(const std::filesystem::path& path, const FileStamp& opened,
                                                         std::size_t length, ReadFailure* failure = nullptr);

  // At most `length` bytes from offset of the file open as fd, only while
  // it is still the one stamped `opened` (checked before and after the
  // read); nullptr otherwise. holdsWholeFile() is then meaningless: the
  // bytes are a piece from the middle.
  static std::shared_ptr<const FileData> readRangeIfUnchanged(int fd, const FileStamp& opened, std::uint64_t offset,
                                                              std::size_t length);

  // Holds a copy of bytes already in memory.
  static std::shared_ptr<const FileData> fromBytes(std::vector<std::uint8_t> bytes,
                                                   std::optional<FileStamp> stamp = std::nullopt);

  // Only the factories above can make one (the key is private), yet
  // std::make_shared can call the constructor.
  struct Key {
   private:
    Key() = default;
    friend class FileData;
  };
  explicit FileData(Key) {}
  FileData(const FileData&) = delete;
  FileData& operator=(const FileData&) = delete;

  orb::ByteView bytes() const { return {data_, size_}; }
  std::uint64_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  // False for the head of a longer file.
  bool holdsWholeFile() const { return !stamp_ || stamp_->size == size_; }

  // The file's stamp when the bytes were read; nullopt for bytes that did
  // not come from a file.
  const std::optional<FileStamp>& stampAsOpened() const { return stamp_; }

 private:
  static std::shared_ptr<const FileData> read(const std::filesystem::path& path, const FileStamp* opened,
                                              std::size_t length, ReadFailure* failure);

  const std::uint8_t* data_ = nullptr;
  std::size_t size_ = 0;
  std::unique_ptr<std::uint8_t[]> buffer_;  // bytes read from the file, not zero-filled first
  std::vector<std::uint8_t> owned_;         // bytes handed in (fromBytes)
  std::optional<FileStamp> stamp_;
};

}  // namespace lum
