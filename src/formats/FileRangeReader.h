#pragma once
// Pieces of one opened file for the container scan, served from the head
// already read wherever they lie inside it, otherwise read once more, only
// while the file is still the one opened. A scan of a HEIC or a RAW thus
// costs one read of the file's head and, when its Exif lies further on, a
// second one there, whatever the number of boxes and directories it walks.

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "formats/FileData.h"
#include "formats/containers/ContainerTypes.h"

namespace lum {

class FileRangeReader {
 public:
  // head: the first bytes of the file at path, with the stamp they were read under.
  FileRangeReader(std::filesystem::path path, std::shared_ptr<const FileData> head);
  ~FileRangeReader();
  FileRangeReader(const FileRangeReader&) = delete;
  FileRangeReader& operator=(const FileRangeReader&) = delete;

  std::uint64_t fileSize() const { return stamp_.size; }
  const FileStamp& stamp() const { return stamp_; }
  // A reader over this object; it must not outlive it.
  RangeReader reader();
  // Bytes [offset, offset + length) clipped to the file's end; nullopt when
  // the file cannot be read or is no longer the one opened.
  std::optional<std::vector<std::uint8_t>> read(std::uint64_t offset, std::uint64_t length);
  // A read found the file changed or unreadable since the head was read.
  bool failed() const { return failed_; }

 private:
  std::filesystem::path path_;
  FileStamp stamp_;
  std::vector<std::pair<std::uint64_t, std::shared_ptr<const FileData>>> pieces_;  // offset, bytes
  bool failed_ = false;
  int fd_ = -1;  // opened on the first read past the head, kept for the others
};

}  // namespace lum
