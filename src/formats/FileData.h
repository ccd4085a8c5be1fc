#pragma once
// The bytes of one opened photo file: a read-only memory mapping held for
// as long as anyone keeps the object, or an owned copy (a small file read
// briefly, or bytes handed in).
//
// The bytes are shared and immutable: several readers may hold them at once
// from any thread.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/ByteView.h"

struct stat;

namespace lum {

// Size and modification time of a file, used to tell whether the file on disk
// is still the one that was opened.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t mtimeSeconds = 0;
  std::int64_t mtimeNanoseconds = 0;
  // Which file the path named: another file moved into its place (same size,
  // modification time copied) is still told apart.
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

class FileData {
 public:
  // Maps the whole file read-only, together with a copy of its first
  // `headLength` bytes read through the same descriptor, so that both show
  // the same file. Parsing the copy spares the page faults that the first
  // touch of each fresh mapping costs (most of the time to open a file that
  // is already in memory); the mapping is what a document keeps as the
  // file's bytes. For an empty file both are empty, without a failure; a
  // file that cannot be opened or mapped gives two nulls and fills *failure
  // when given.
  struct MappedWithHead {
    std::shared_ptr<const FileData> whole;
    std::shared_ptr<const FileData> head;
  };
  static MappedWithHead mapFileWithHead(const std::filesystem::path& path, std::size_t headLength,
                                        ReadFailure* failure = nullptr);

  // Whether the process may keep one more mapping. The kernel allows a
  // process a fixed number of mappings (vm.max_map_count, 65,530 by
  // default), and every thread stack, large allocation and library needs
  // one too: past that, the program cannot even allocate memory. Kept
  // mappings are held to kMappingBudget, or half the kernel's limit when
  // that is lower, so a document of any size leaves room for the rest.
  static constexpr std::size_t kMappingBudget = 32768;
  static bool mayKeepAnotherMapping();

  // The same after the program wrote into the file in place, reusing the
  // mapping it was opened with instead of mapping it once more: a write
  // through the file lands in the very pages a shared mapping shows. The
  // reused mapping carries the file's new stamp. When `opened` is not a
  // mapping, or the path now names another file or one of another size, the
  // file is mapped afresh.
  static MappedWithHead mapFileWithHeadAfterWrite(const std::filesystem::path& path, std::size_t headLength,
                                                  std::shared_ptr<const FileData> opened,
                                                  ReadFailure* failure = nullptr);

  // The whole file for bytes that are looked at once and let go at once
  // (listing the dates of a folder): a file up to kBriefReadUpTo is read
  // into memory, a longer one mapped. Unmapping interrupts every other core running this process to
  // flush its address caches, which costs more than copying a small file;
  // a mapping is still cheaper for anything kept, as it holds no memory of
  // its own.
  static constexpr std::size_t kBriefReadUpTo = 512 * 1024;
  static std::shared_ptr<const FileData> briefFile(const std::filesystem::path& path, ReadFailure* failure = nullptr);

  // Reads at most the first `length` bytes of the file (all of a shorter
  // one). The stamp still gives the whole file's size. For a listing that
  // proves what it reads lies in the head, and reads the rest only when not.
  static std::shared_ptr<const FileData> readHead(const std::filesystem::path& path, std::size_t length,
                                                  ReadFailure* failure = nullptr);

  // Reads the whole file into memory. For work that runs long after the file
  // was opened (thumbnails, the viewer): another program may have cut the
  // file short since, and touching a mapping past the file's new end would
  // kill the process, whereas a copy read now is always whole.
  static std::shared_ptr<const FileData> readFile(const std::filesystem::path& path, ReadFailure* failure = nullptr);

  // Holds a copy of bytes already in memory (the bytes written by a save).
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
  ~FileData();
  FileData(const FileData&) = delete;
  FileData& operator=(const FileData&) = delete;

  orb::ByteView bytes() const { return {data_, size_}; }
  std::uint64_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  // False for the head of a longer file (readHead).
  bool holdsWholeFile() const { return !stamp_ || stamp_->size == size_; }
  // True when the bytes are shown by a mapping of the file.
  bool isMapped() const { return mapping_ || shared_; }

  // Size and modification time of the file when it was mapped (the mapped
  // object's own stat, so it describes exactly these bytes); nullopt for
  // bytes that did not come from a file.
  const std::optional<FileStamp>& stampAsOpened() const { return stamp_; }

 private:
  static MappedWithHead openWithHead(const std::filesystem::path& path, std::size_t headLength,
                                     std::shared_ptr<const FileData> reusable, ReadFailure* failure);
  static std::shared_ptr<const FileData> restamped(std::shared_ptr<const FileData> mapping, const FileStamp& stamp);
  static std::shared_ptr<const FileData> mapOpenFile(int fd, const struct stat& st, const std::filesystem::path& path,
                                                     ReadFailure* failure);
  static std::shared_ptr<const FileData> readOpenFile(int fd, const struct stat& st, std::size_t length,
                                                      const std::filesystem::path& path, ReadFailure* failure);

  const std::uint8_t* data_ = nullptr;
  std::size_t size_ = 0;
  void* mapping_ = nullptr;  // non-null when data_ is an mmap of size_ bytes
  std::vector<std::uint8_t> owned_;          // bytes handed in (fromBytes)
  std::unique_ptr<std::uint8_t[]> buffer_;  // bytes read from the file
  std::shared_ptr<const FileData> shared_;  // the mapping these bytes are shown from
  std::optional<FileStamp> stamp_;
};

}  // namespace lum
