#pragma once
// Writes changed date texts straight into an existing photo file.
//
// A photo is irreplaceable, so the writer is deliberately narrow: it checks
// that the file on disk is still the one that was opened (same size, same
// modification time), refuses any position outside the file, writes one
// run of bytes for each group of nearby changes (the unchanged bytes between
// two changes are read from the file and written back as they were), and
// flushes the file to disk, on its own or together with a batch of files
// (BatchFlush.h). It never truncates, never creates and never replaces the
// file, so an interrupted save cannot leave a shortened photo.

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>

#include "formats/FileData.h"
#include "formats/containers/ContainerTypes.h"

namespace InPlaceWriter {

// What identifies a file as the one that was opened: size, modification
// time and the file itself (device and inode).
using FileIdentity = lum::FileStamp;

// The identity of the file at path now, or nullopt when it cannot be read
// (missing, not a regular file).
std::optional<FileIdentity> identityOfFile(const std::filesystem::path& path);

// Bytes to put at an absolute position of the file. A checksum patch
// instead writes, at checksum->at, the big-endian CRC-32 of the checksum's
// range as the other patches leave it; the CRC stored there must be right
// before the save, or nothing is written: a file whose checksum was already
// wrong is not quietly repaired.
struct BytePatch {
  std::uint64_t position = 0;
  std::string bytes;
  std::optional<lum::ChecksumRange> checksum = std::nullopt;
};

// The system call that writes; tests replace it to make a write fail part way.
// Same contract as pwrite(2): bytes written, or -1 with errno set.
using WriteFunction = std::function<ssize_t(int fd, const void* buffer, std::size_t count, off_t offset)>;

struct WriteResult {
  bool ok = false;
  std::string reason;  // empty on success
  // On success, the file's stamp once the write reached the disk.
  std::optional<FileIdentity> stamp;
};

// Reasons given to the user.
inline constexpr const char* kChangedOnDiskReason = "The file was changed by another program since it was opened.";
inline constexpr const char* kMissingReason = "The file no longer exists.";
inline constexpr const char* kReadOnlyReason = "The file is read-only.";
inline constexpr const char* kBeyondEndReason = "A date lies beyond the end of the file; the file was not changed.";
inline constexpr const char* kChecksumWrongReason =
    "The file's checksums were already wrong before this save; the file was not changed.";

// Writes the patches into the file at path, provided it still has the
// identity `opened`, and flushes the file. With no patches nothing is written
// and the answer is ok.
WriteResult writePatches(const std::filesystem::path& path, const FileIdentity& opened,
                         std::span<const BytePatch> patches, const WriteFunction& write = {});

// An open descriptor, closed when the object goes.
class OpenFile {
 public:
  OpenFile() = default;
  explicit OpenFile(const std::filesystem::path& path);
  ~OpenFile() { close(); }
  OpenFile(OpenFile&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
  OpenFile& operator=(OpenFile&& other) noexcept;
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  int fd() const { return fd_; }
  bool isOpen() const { return fd_ >= 0; }
  void close();

 private:
  int fd_ = -1;
};

// A write whose bytes are in the file but not yet known to be on the disk.
// When the write succeeded and changed bytes, `file` stays open for the flush
// (a flush through that descriptor reports the errors of that write).
struct UnflushedWrite {
  WriteResult result;
  OpenFile file;
};

// writePatches without the flush; the caller flushes `file` (flushTogether)
// before it reports the file saved. A failed write is still undone and
// flushed here.
UnflushedWrite writeWithoutFlush(const std::filesystem::path& path, const FileIdentity& opened,
                                 std::span<const BytePatch> patches, const WriteFunction& write = {});

}  // namespace InPlaceWriter
