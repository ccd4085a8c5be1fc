#pragma once
// Pieces of one file read where they lie (pread), for a reader that needs a
// few of them from a large file: a camera RAW's preview and directories,
// not the sensor data that makes up most of it.
//
// The file is checked on its open descriptor against the stamp it had when
// it was opened, as FileData::readIfUnchanged does, and again by
// unchanged() after the reading, so no other file can slip in between.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

#include "formats/FileData.h"
#include "formats/containers/ContainerTypes.h"

namespace lum {

class FileRanges {
 public:
  // Opens path only while it is the file stamped `expected` (any regular
  // file when none is given); nullopt otherwise or when it cannot be opened.
  static std::optional<FileRanges> open(const std::filesystem::path& path, const std::optional<FileStamp>& expected);

  FileRanges(FileRanges&& other) noexcept : fd_(other.fd_), stamp_(other.stamp_) { other.fd_ = -1; }
  FileRanges& operator=(FileRanges&&) = delete;
  FileRanges(const FileRanges&) = delete;
  ~FileRanges();

  std::uint64_t size() const { return stamp_.size; }
  // Bytes [offset, offset + length), fewer at the file's end; nullopt when
  // the read fails. The reader must not outlive this object.
  RangeReader reader() const;
  // True while the file is still the one opened (not written to or cut).
  bool unchanged() const;

 private:
  FileRanges(int fd, const FileStamp& stamp) : fd_(fd), stamp_(stamp) {}

  int fd_ = -1;
  FileStamp stamp_;
};

}  // namespace lum
