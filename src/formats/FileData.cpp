#include "formats/FileData.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

namespace lum {

namespace {

// What the user can do about a failed read, by its cause; nothing is
// suggested where nothing would help.
const char* suggestionFor(int error) {
  switch (error) {
    case EACCES:
    case EPERM: return "Check the file's permissions.";
    case ENOENT:
    case ENOTDIR: return "Check that the file exists.";
    case EISDIR:
    case EINVAL: return "Choose a regular file, not a folder or a device.";
    case ENOMEM: return "Close other programs to free memory, then try again.";
    default: return "";
  }
}

ReadFailure failureFor(const std::filesystem::path& path, int error) {
  return {std::strerror(error), "The file \"" + path.filename().string() + "\" couldn't be opened.",
          suggestionFor(error)};
}

ReadFailure changedFailure(const std::filesystem::path& path) {
  return {kChangedSinceOpenedReason, "The file \"" + path.filename().string() + "\" couldn't be read again.",
          "Open the file again."};
}

// Closes the descriptor on every path out of read().
struct Descriptor {
  int fd;
  ~Descriptor() {
    if (fd >= 0) ::close(fd);
  }
};

// Reads up to `expected` bytes of the open file from offset into a
// buffer that is not zero-filled first; a file cut short while it is read
// gives what was there. Answers 0 or the errno.
int readAt(int fd, std::uint64_t offset, std::size_t expected, std::unique_ptr<std::uint8_t[]>* buffer,
           std::size_t* size) {
  try {
    *buffer = std::make_unique_for_overwrite<std::uint8_t[]>(expected);
  } catch (const std::bad_alloc&) {
    return ENOMEM;
  }
  std::size_t done = 0;
  while (done < expected) {
    const ssize_t n = ::pread(fd, buffer->get() + done, expected - done, static_cast<off_t>(offset + done));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) break;
    done += static_cast<std::size_t>(n);
  }
  *size = done;
  return 0;
}

}  // namespace

FileStamp FileStamp::ofStat(const struct stat& st) {
  return {static_cast<std::uint64_t>(st.st_size), static_cast<std::int64_t>(st.st_mtim.tv_sec),
          static_cast<std::int64_t>(st.st_mtim.tv_nsec), static_cast<std::uint64_t>(st.st_dev),
          static_cast<std::uint64_t>(st.st_ino)};
}

std::optional<FileStamp> FileStamp::of(const std::filesystem::path& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return std::nullopt;
  return FileStamp::ofStat(st);
}

std::shared_ptr<const FileData> FileData::readHead(const std::filesystem::path& path, std::size_t length,
                                                   ReadFailure* failure) {
  return read(path, nullptr, length, failure);
}

std::shared_ptr<const FileData> FileData::readIfUnchanged(const std::filesystem::path& path, const FileStamp& opened,
                                                          std::size_t length, ReadFailure* failure) {
  return read(path, &opened, length, failure);
}

std::shared_ptr<const FileData> FileData::readRangeIfUnchanged(int fd, const FileStamp& opened, std::uint64_t offset,
                                                               std::size_t length) {
  struct stat st {};
  if (::fstat(fd, &st) != 0 || FileStamp::ofStat(st) != opened) return nullptr;
  auto data = std::make_shared<FileData>(Key{});
  const std::size_t wanted =
      offset >= opened.size ? 0 : static_cast<std::size_t>(std::min<std::uint64_t>(length, opened.size - offset));
  if (readAt(fd, offset, wanted, &data->buffer_, &data->size_) != 0) return nullptr;
  if (::fstat(fd, &st) != 0 || FileStamp::ofStat(st) != opened) return nullptr;
  data->stamp_ = opened;
  data->data_ = data->buffer_.get();
  return data;
}

std::shared_ptr<const FileData> FileData::read(const std::filesystem::path& path, const FileStamp* opened,
                                               std::size_t length, ReadFailure* failure) {
  const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  struct stat st {};
  const int openError = file.fd < 0 || ::fstat(file.fd, &st) != 0 ? errno : !S_ISREG(st.st_mode) ? EINVAL : 0;
  // A path that no longer opens is a changed file too when one was expected.
  if (openError || (opened && FileStamp::ofStat(st) != *opened)) {
    if (failure) *failure = opened && openError != EACCES ? changedFailure(path) : failureFor(path, openError);
    return nullptr;
  }
  auto data = std::make_shared<FileData>(Key{});
  const std::size_t wanted = std::min(length, static_cast<std::size_t>(st.st_size));
  if (const int error = readAt(file.fd, 0, wanted, &data->buffer_, &data->size_)) {
    if (failure) *failure = failureFor(path, error);
    return nullptr;
  }
  // A file written to or cut short while it was read is no longer the one
  // opened either.
  if (opened && (::fstat(file.fd, &st) != 0 || FileStamp::ofStat(st) != *opened)) {
    if (failure) *failure = changedFailure(path);
    return nullptr;
  }
  data->stamp_ = FileStamp::ofStat(st);
  data->data_ = data->buffer_.get();
  return data;
}

std::shared_ptr<const FileData> FileData::fromBytes(std::vector<std::uint8_t> bytes, std::optional<FileStamp> stamp) {
  auto data = std::make_shared<FileData>(Key{});
  data->stamp_ = stamp;
  data->owned_ = std::move(bytes);
  data->data_ = data->owned_.data();
  data->size_ = data->owned_.size();
  return data;
}

}  // namespace lum
