#include "formats/FileData.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lum {

namespace {

// Mappings held by FileData objects now.
std::atomic<std::size_t> liveMappings{0};

ReadFailure failureFor(const std::filesystem::path& path, int error) {
  ReadFailure f;
  f.reason = std::strerror(error);
  f.description = "The file \"" + path.filename().string() + "\" couldn't be opened.";
  f.recoverySuggestion = error == EACCES ? "Check the file's permissions." : "Check that the file exists and is a regular file.";
  return f;
}

// Closes the descriptor on every path out of the factories.
struct Descriptor {
  int fd;
  ~Descriptor() {
    if (fd >= 0) ::close(fd);
  }
};

// True when file was opened and is a regular file (its stat in *st);
// otherwise fills *failure when given.
bool isOpenRegularFile(const Descriptor& file, const std::filesystem::path& path, struct stat* st,
                       ReadFailure* failure) {
  if (file.fd < 0 || ::fstat(file.fd, st) != 0) {
    if (failure) *failure = failureFor(path, errno);
    return false;
  }
  if (!S_ISREG(st->st_mode)) {
    if (failure) *failure = failureFor(path, S_ISDIR(st->st_mode) ? EISDIR : EINVAL);
    return false;
  }
  return true;
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

namespace {

// Reads `expected` bytes of the open file into memory, from its start; a
// file cut short while it is read gives what was there. Answers 0 or the
// errno.
int readStart(int fd, std::size_t expected, std::unique_ptr<std::uint8_t[]>* buffer, std::size_t* size) {
  // Not zero-filled first: every byte kept is read from the file.
  *buffer = std::make_unique_for_overwrite<std::uint8_t[]>(expected);
  std::size_t done = 0;
  while (done < expected) {
    const ssize_t n = ::pread(fd, buffer->get() + done, expected - done, static_cast<off_t>(done));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) break;
    done += static_cast<std::size_t>(n);
  }
  *size = done;
  return 0;
}

}  // namespace

std::shared_ptr<const FileData> FileData::briefFile(const std::filesystem::path& path, ReadFailure* failure) {
  const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  struct stat st {};
  if (!isOpenRegularFile(file, path, &st, failure)) return nullptr;
  const auto size = static_cast<std::size_t>(st.st_size);
  if (size <= kBriefReadUpTo) return readOpenFile(file.fd, st, size, path, failure);
  return mapOpenFile(file.fd, st, path, failure);
}

FileData::MappedWithHead FileData::mapFileWithHead(const std::filesystem::path& path, std::size_t headLength,
                                                   ReadFailure* failure) {
  return openWithHead(path, headLength, nullptr, failure);
}

FileData::MappedWithHead FileData::mapFileWithHeadAfterWrite(const std::filesystem::path& path,
                                                             std::size_t headLength,
                                                             std::shared_ptr<const FileData> opened,
                                                             ReadFailure* failure) {
  return openWithHead(path, headLength, std::move(opened), failure);
}

FileData::MappedWithHead FileData::openWithHead(const std::filesystem::path& path, std::size_t headLength,
                                                std::shared_ptr<const FileData> reusable, ReadFailure* failure) {
  const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  struct stat st {};
  if (!isOpenRegularFile(file, path, &st, failure)) return {};
  const auto size = static_cast<std::size_t>(st.st_size);
  if (size == 0) {
    auto empty = readOpenFile(file.fd, st, 0, path, failure);
    return {empty, empty};
  }
  auto head = readOpenFile(file.fd, st, std::min(headLength, size), path, failure);
  if (!head) return {};
  if (auto same = restamped(std::move(reusable), FileStamp::ofStat(st))) return {std::move(same), std::move(head)};
  auto whole = mapOpenFile(file.fd, st, path, failure);
  if (!whole) return {};
  return {std::move(whole), std::move(head)};
}

// The bytes of `mapping` with the file's new stamp, when the mapping still
// shows that file (same device, inode and size); nullptr otherwise.
std::shared_ptr<const FileData> FileData::restamped(std::shared_ptr<const FileData> mapping, const FileStamp& stamp) {
  if (!mapping || !mapping->stamp_ || !mapping->isMapped()) return nullptr;
  const FileStamp& was = *mapping->stamp_;
  if (was.device != stamp.device || was.inode != stamp.inode || was.size != stamp.size) return nullptr;
  auto data = std::make_shared<FileData>(Key{});
  data->stamp_ = stamp;
  data->data_ = mapping->data_;
  data->size_ = mapping->size_;
  data->shared_ = mapping->shared_ ? mapping->shared_ : std::move(mapping);
  return data;
}

// Maps the whole of the open, non-empty file read-only.
std::shared_ptr<const FileData> FileData::mapOpenFile(int fd, const struct stat& st,
                                                      const std::filesystem::path& path, ReadFailure* failure) {
  const auto size = static_cast<std::size_t>(st.st_size);
  void* mapping = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, fd, 0);
  if (mapping == MAP_FAILED) {
    if (failure) *failure = failureFor(path, errno);
    return nullptr;
  }
  auto data = std::make_shared<FileData>(Key{});
  data->stamp_ = FileStamp::ofStat(st);
  data->mapping_ = mapping;
  liveMappings.fetch_add(1, std::memory_order_relaxed);
  data->data_ = static_cast<const std::uint8_t*>(mapping);
  data->size_ = size;
  return data;
}

std::shared_ptr<const FileData> FileData::readFile(const std::filesystem::path& path, ReadFailure* failure) {
  const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  struct stat st {};
  if (!isOpenRegularFile(file, path, &st, failure)) return nullptr;
  return readOpenFile(file.fd, st, static_cast<std::size_t>(st.st_size), path, failure);
}

std::shared_ptr<const FileData> FileData::readHead(const std::filesystem::path& path, std::size_t length,
                                                   ReadFailure* failure) {
  const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
  struct stat st {};
  if (!isOpenRegularFile(file, path, &st, failure)) return nullptr;
  return readOpenFile(file.fd, st, std::min(length, static_cast<std::size_t>(st.st_size)), path, failure);
}

// Reads the first `length` bytes of the open file.
std::shared_ptr<const FileData> FileData::readOpenFile(int fd, const struct stat& st, std::size_t length,
                                                       const std::filesystem::path& path, ReadFailure* failure) {
  auto data = std::make_shared<FileData>(Key{});
  std::size_t size = 0;
  if (const int error = readStart(fd, length, &data->buffer_, &size)) {
    if (failure) *failure = failureFor(path, error);
    return nullptr;
  }
  data->stamp_ = FileStamp::ofStat(st);
  data->data_ = data->buffer_.get();
  data->size_ = size;
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

namespace {

std::size_t mappingBudget() {
  static const std::size_t budget = [] {
    std::size_t kernelLimit = 65530;
    if (std::FILE* f = std::fopen("/proc/sys/vm/max_map_count", "re")) {
      unsigned long value = 0;
      if (std::fscanf(f, "%lu", &value) == 1 && value > 0) kernelLimit = value;
      std::fclose(f);
    }
    return std::min(FileData::kMappingBudget, kernelLimit / 2);
  }();
  return budget;
}

}  // namespace

bool FileData::mayKeepAnotherMapping() { return liveMappings.load(std::memory_order_relaxed) < mappingBudget(); }

FileData::~FileData() {
  if (!mapping_) return;
  ::munmap(mapping_, size_);
  liveMappings.fetch_sub(1, std::memory_order_relaxed);
}

}  // namespace lum
