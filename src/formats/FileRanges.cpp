#include "formats/FileRanges.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lum {

namespace {

std::optional<FileStamp> stampOf(int fd) {
  struct stat st {};
  if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) return std::nullopt;
  return FileStamp::ofStat(st);
}

}  // namespace

std::optional<FileRanges> FileRanges::open(const std::filesystem::path& path,
                                           const std::optional<FileStamp>& expected) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return std::nullopt;
  const std::optional<FileStamp> stamp = stampOf(fd);
  if (!stamp || (expected && *stamp != *expected)) {
    ::close(fd);
    return std::nullopt;
  }
  return FileRanges(fd, *stamp);
}

FileRanges::~FileRanges() {
  if (fd_ >= 0) ::close(fd_);
}

RangeReader FileRanges::reader() const {
  return [this](std::uint64_t offset, std::uint64_t length) -> std::optional<std::vector<std::uint8_t>> {
    if (offset > size()) return std::nullopt;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(std::min(length, size() - offset)));
    std::size_t done = 0;
    while (done < bytes.size()) {
      const ssize_t n = ::pread(fd_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(offset + done));
      if (n < 0 && errno == EINTR) continue;
      if (n < 0) return std::nullopt;
      if (n == 0) break;
      done += static_cast<std::size_t>(n);
    }
    bytes.resize(done);
    return bytes;
  };
}

bool FileRanges::unchanged() const { return stampOf(fd_) == std::optional<FileStamp>(stamp_); }

}  // namespace lum
