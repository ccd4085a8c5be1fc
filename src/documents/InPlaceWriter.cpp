#include "documents/InPlaceWriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <vector>

namespace InPlaceWriter {
namespace {


std::string systemReason(int error) { return std::system_category().message(error); }

// Writes all of [data, data + count) at offset, going on after short writes.
// Answers 0 or the errno of the failure.
int writeAll(const WriteFunction& write, int fd, const std::uint8_t* data, std::size_t count, off_t offset) {
  while (count > 0) {
    const ssize_t n = write(fd, data, count, offset);
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno ? errno : EIO;
    }
    if (n == 0) return EIO;
    data += n;
    count -= static_cast<std::size_t>(n);
    offset += n;
  }
  return 0;
}

// Reads exactly count bytes at offset; answers 0 or an errno.
int readAll(int fd, std::uint8_t* data, std::size_t count, off_t offset) {
  while (count > 0) {
    const ssize_t n = ::pread(fd, data, count, offset);
    if (n < 0) {
      if (errno == EINTR) continue;
      return errno;
    }
    if (n == 0) return EIO;  // the file is shorter than its size said
    data += n;
    count -= static_cast<std::size_t>(n);
    offset += n;
  }
  return 0;
}

bool insideFile(const BytePatch& patch, std::uint64_t size) {
  return patch.position <= size && patch.bytes.size() <= size - patch.position;
}

UnflushedWrite failure(std::string reason) { return {{false, std::move(reason), std::nullopt}, {}}; }

}  // namespace

OpenFile::OpenFile(const std::filesystem::path& path) : fd_(::open(path.c_str(), O_RDWR | O_CLOEXEC)) {}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept {
  if (this != &other) {
    close();
    fd_ = std::exchange(other.fd_, -1);
  }
  return *this;
}

void OpenFile::close() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

std::optional<FileIdentity> identityOfFile(const std::filesystem::path& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return std::nullopt;
  return lum::FileStamp::ofStat(st);
}

UnflushedWrite writeWithoutFlush(const std::filesystem::path& path, const FileIdentity& opened,
                                 std::span<const BytePatch> patches, const WriteFunction& write) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return failure(errno == ENOENT ? kMissingReason : systemReason(errno));
  // Honour the read-only mark even when the process could override it (root):
  // a photographer who protects a file means it.
  if ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) return failure(kReadOnlyReason);

  OpenFile file(path);
  if (file.fd() < 0) return failure(errno == ENOENT ? kMissingReason : systemReason(errno));
  if (::fstat(file.fd(), &st) != 0) return failure(systemReason(errno));
  if (!S_ISREG(st.st_mode) || lum::FileStamp::ofStat(st) != opened) return failure(kChangedOnDiskReason);

  const std::uint64_t size = opened.size;
  std::uint64_t first = UINT64_MAX, end = 0;
  for (const BytePatch& p : patches) {
    if (!insideFile(p, size)) return failure(kBeyondEndReason);
    if (p.bytes.empty()) continue;
    first = std::min(first, p.position);
    end = std::max(end, p.position + p.bytes.size());
  }
  if (end == 0) return {{true, {}, lum::FileStamp::ofStat(st)}, {}};

  // One run from the first changed byte to the last: the bytes in between are
  // the file's own, read now, so they are written back unchanged.
  const auto offset = static_cast<off_t>(first);
  std::vector<std::uint8_t> original(static_cast<std::size_t>(end - first));
  if (const int error = readAll(file.fd(), original.data(), original.size(), offset))
    return failure(systemReason(error));
  std::vector<std::uint8_t> run = original;
  for (const BytePatch& p : patches)
    std::copy(p.bytes.begin(), p.bytes.end(), run.begin() + static_cast<std::ptrdiff_t>(p.position - first));

  const WriteFunction& writer = write ? write : WriteFunction(::pwrite);
  if (const int error = writeAll(writer, file.fd(), run.data(), run.size(), offset)) {
    // Put back what may have been written in part; best effort, the reason
    // reported is the first failure.
    writeAll(writer, file.fd(), original.data(), original.size(), offset);
    ::fsync(file.fd());
    return failure(systemReason(error));
  }
  // The stamp is final once the write returned: a flush changes no time.
  // One that cannot be read only means the caller must open the file again
  // to learn it.
  std::optional<FileIdentity> stamp;
  if (::fstat(file.fd(), &st) == 0) stamp = lum::FileStamp::ofStat(st);
  return {{true, {}, stamp}, std::move(file)};
}

WriteResult writePatches(const std::filesystem::path& path, const FileIdentity& opened,
                         std::span<const BytePatch> patches, const WriteFunction& write) {
  UnflushedWrite written = writeWithoutFlush(path, opened, patches, write);
  if (written.file.isOpen() && ::fsync(written.file.fd()) != 0)
    return {false, systemReason(errno), std::nullopt};
  return written.result;
}

}  // namespace InPlaceWriter
