#include "documents/InPlaceWriter.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <vector>

#include "core/NSDataOrbAdditions.h"

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

bool inside(std::uint64_t position, std::uint64_t length, std::uint64_t size) {
  return position <= size && length <= size - position;
}

bool insideFile(const BytePatch& patch, std::uint64_t size) {
  if (const auto& c = patch.checksum) return inside(c->start, c->length, size) && inside(c->at, 4, size);
  return inside(patch.position, patch.bytes.size(), size);
}

// Changes closer than this share one run: a second write costs more than
// the few bytes in between.
constexpr std::uint64_t kJoinGap = 4096;

// Bytes of the file from first to end, as read and as they are to be written.
struct Run {
  std::uint64_t first = 0;
  std::uint64_t end = 0;
  std::vector<std::uint8_t> original;
  std::vector<std::uint8_t> patched;
};

// The runs that cover every patch (a checksum's whole range with it), in
// file order: far apart changes (IFD0 at the start of a RAW, its Exif IFD
// megabytes on) are written on their own, never the image between them.
std::vector<Run> runsOf(std::span<const BytePatch> patches) {
  std::vector<Run> spans;
  for (const BytePatch& p : patches) {
    if (const auto& c = p.checksum)
      spans.push_back({std::min(c->start, c->at), std::max(c->start + c->length, c->at + 4), {}, {}});
    else if (!p.bytes.empty())
      spans.push_back({p.position, p.position + p.bytes.size(), {}, {}});
  }
  std::sort(spans.begin(), spans.end(), [](const Run& a, const Run& b) { return a.first < b.first; });
  std::vector<Run> runs;
  for (Run& span : spans) {
    if (!runs.empty() && span.first <= runs.back().end + kJoinGap)
      runs.back().end = std::max(runs.back().end, span.end);
    else
      runs.push_back(std::move(span));
  }
  return runs;
}

std::uint32_t crcOf(const std::vector<std::uint8_t>& bytes, std::uint64_t from, std::uint64_t length) {
  return NSDataOrbAdditions::CRC_32(std::span(bytes).subspan(static_cast<std::size_t>(from), static_cast<std::size_t>(length)));
}

// Fills run.patched: the byte patches inside the run, then the checksums
// over the result. False when a checksum stored in the file does not match
// the bytes it guards.
bool applyPatches(Run& run, std::span<const BytePatch> patches) {
  run.patched = run.original;
  const auto inRun = [&run](std::uint64_t at, std::uint64_t length) { return at >= run.first && at + length <= run.end; };
  for (const BytePatch& p : patches)
    if (!p.checksum && !p.bytes.empty() && inRun(p.position, p.bytes.size()))
      std::copy(p.bytes.begin(), p.bytes.end(), run.patched.begin() + static_cast<std::ptrdiff_t>(p.position - run.first));
  for (const BytePatch& p : patches) {
    if (!p.checksum || !inRun(p.checksum->start, p.checksum->length)) continue;
    const lum::ChecksumRange& c = *p.checksum;
    const std::size_t at = static_cast<std::size_t>(c.at - run.first);
    std::uint32_t stored = 0;
    for (int i = 0; i < 4; ++i) stored = stored << 8 | run.original[at + i];
    if (crcOf(run.original, c.start - run.first, c.length) != stored) return false;
    const std::uint32_t crc = crcOf(run.patched, c.start - run.first, c.length);
    for (int i = 0; i < 4; ++i) run.patched[at + i] = static_cast<std::uint8_t>(crc >> (24 - 8 * i));
  }
  return true;
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

  for (const BytePatch& p : patches)
    if (!insideFile(p, opened.size)) return failure(kBeyondEndReason);
  std::vector<Run> runs = runsOf(patches);
  if (runs.empty()) return {{true, {}, lum::FileStamp::ofStat(st)}, {}};
  for (Run& run : runs) {
    run.original.resize(static_cast<std::size_t>(run.end - run.first));
    if (const int error = readAll(file.fd(), run.original.data(), run.original.size(), static_cast<off_t>(run.first)))
      return failure(systemReason(error));
    if (!applyPatches(run, patches)) return failure(kChecksumWrongReason);
  }

  const WriteFunction& writer = write ? write : WriteFunction(::pwrite);
  for (std::size_t i = 0; i < runs.size(); ++i) {
    const Run& run = runs[i];
    if (const int error = writeAll(writer, file.fd(), run.patched.data(), run.patched.size(), static_cast<off_t>(run.first))) {
      // Put back what may have been written, this run in part; best effort,
      // the reason reported is the first failure.
      for (std::size_t j = 0; j <= i; ++j)
        writeAll(writer, file.fd(), runs[j].original.data(), runs[j].original.size(), static_cast<off_t>(runs[j].first));
      ::fsync(file.fd());
      return failure(systemReason(error));
    }
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
