// The physical floor for the benchmark: the least work any date tool must do.
//
//   bench-floor read [--also OFFSET LENGTH] FILE...
//                                                 pread the first 64 KiB of each file, and
//                                                 with --also that range too (a second read:
//                                                 where a HEIC keeps its Exif item)
//   bench-floor write [--fsync|--syncfs] --at N FILE...
//                                                 write 19 bytes in place at offset N
//
// --fsync flushes each file before the next; --syncfs writes every file, then
// makes them durable together with one syncfs(2) of the file system (through
// the first file, kept open so that the call reports any writeback error
// since it was opened).
// One process handles every file, as the tools it is compared with do, so the
// per-file time is what the kernel charges for open, one read or write, and
// close. Exit status 1 when any file failed (reported on standard error).
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

constexpr size_t kReadSize = 64 * 1024;
// A canonical date text, as wide as the ones a date tool rewrites.
constexpr std::string_view kDateText = "2020:02:29 12:34:56";
static_assert(kDateText.size() == 19);

bool fail(const char* path, const char* what) {
  std::fprintf(stderr, "bench-floor: %s: %s: %s\n", path, what, std::strerror(errno));
  return false;
}

// Reads the head of the file and folds it into `sum` so the read cannot be
// optimised away.
bool readInto(int fd, const char* path, std::vector<unsigned char>& buffer, off_t at, unsigned& sum) {
  const ssize_t n = ::pread(fd, buffer.data(), buffer.size(), at);
  if (n < 0) return fail(path, "pread");
  if (n > 0) sum += buffer[static_cast<size_t>(n) - 1];
  return true;
}

// A range of the file read after its head; empty when there is none.
struct Extra {
  off_t at = 0;
  std::vector<unsigned char> buffer;
};

bool readHead(const char* path, Extra& extra, unsigned& sum) {
  static std::vector<unsigned char> head(kReadSize);
  const int fd = ::open(path, O_RDONLY | O_CLOEXEC);
  if (fd < 0) return fail(path, "open");
  bool ok = readInto(fd, path, head, 0, sum);
  if (ok && !extra.buffer.empty()) ok = readInto(fd, path, extra.buffer, extra.at, sum);
  ::close(fd);
  return ok;
}

bool writeInPlace(const char* path, off_t at, bool durable, int* keep = nullptr) {
  const int fd = ::open(path, O_WRONLY | O_CLOEXEC);
  if (fd < 0) return fail(path, "open");
  bool ok = ::pwrite(fd, kDateText.data(), kDateText.size(), at) ==
            static_cast<ssize_t>(kDateText.size());
  if (!ok) fail(path, "pwrite");
  if (ok && durable && ::fsync(fd) != 0) ok = fail(path, "fsync");
  if (keep && *keep < 0) {
    *keep = fd;
    return ok;
  }
  if (::close(fd) != 0 && ok) ok = fail(path, "close");
  return ok;
}

int usage() {
  std::fputs("usage: bench-floor read [--also OFFSET LENGTH] FILE...\n"
             "       bench-floor write [--fsync|--syncfs] --at OFFSET FILE...\n", stderr);
  return 2;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc < 2) return usage();
  const std::string_view mode = argv[1];
  int i = 2;
  bool durable = false, together = false;
  long long at = -1;
  Extra extra;
  if (mode == "read" && i + 2 < argc && std::string_view(argv[i]) == "--also") {
    const long long from = std::atoll(argv[i + 1]), length = std::atoll(argv[i + 2]);
    if (from < 0 || length <= 0) return usage();
    extra.at = static_cast<off_t>(from);
    extra.buffer.resize(static_cast<size_t>(length));
    i += 3;
  }
  if (mode == "write") {
    for (; i < argc && argv[i][0] == '-'; ++i) {
      const std::string_view opt = argv[i];
      if (opt == "--fsync") durable = true;
      else if (opt == "--syncfs") together = true;
      else if (opt == "--at" && i + 1 < argc) at = std::atoll(argv[++i]);
      else return usage();
    }
    if (at < 0) return usage();
  } else if (mode != "read") {
    return usage();
  }

  bool allOk = true;
  unsigned sum = 0;
  int first = -1;  // with --syncfs, the first file stays open for the flush
  for (; i < argc; ++i)
    allOk &= mode == "read" ? readHead(argv[i], extra, sum) : writeInPlace(argv[i], at, durable, together ? &first : nullptr);
  if (first >= 0) {
    if (::syncfs(first) != 0) allOk = fail("(file system)", "syncfs");
    ::close(first);
  }
  // Printed to /dev/null by the harness; keeps the reads observable.
  std::printf("%u\n", sum);
  return allOk ? 0 : 1;
}
