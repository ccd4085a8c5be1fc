#include "documents/InPlaceWriter.h"

#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <set>
#include <system_error>

#include "TempFiles.h"
#include "documents/BatchFlush.h"

using namespace InPlaceWriter;
using doctest_support::patternBytes;
using doctest_support::readBytes;
using doctest_support::TempFolder;
using doctest_support::writeBytes;
namespace fs = std::filesystem;

namespace {

const std::string kDate = "2024:01:02 03:04:05";
const std::vector<std::uint8_t> kBefore = patternBytes(400);

std::vector<std::uint8_t> patched(const std::vector<BytePatch>& patches) {
  std::vector<std::uint8_t> bytes = kBefore;
  for (const BytePatch& p : patches) std::copy(p.bytes.begin(), p.bytes.end(), bytes.begin() + p.position);
  return bytes;
}

void setTime(const fs::path& p, timespec modified) {
  const timespec times[2] = {{0, UTIME_OMIT}, modified};
  ::utimensat(AT_FDCWD, p.c_str(), times, 0);
}

// A copy of the file moved into its place: size and modification time kept,
// so only the file itself (its inode) tells it apart.
void replaceByCopy(const fs::path& p) {
  struct stat st {};
  ::stat(p.c_str(), &st);
  const fs::path copy = fs::path(p).concat(".new");
  fs::copy_file(p, copy);
  setTime(copy, st.st_mtim);
  fs::rename(copy, p);
}

// What the path holds: its type, and its bytes when it is a file.
std::pair<fs::file_type, std::vector<std::uint8_t>> snapshot(const fs::path& p) {
  const fs::file_type type = fs::symlink_status(p).type();
  return {type, type == fs::file_type::regular ? readBytes(p) : std::vector<std::uint8_t>{}};
}

// Writing in place needs no new entry in the folder, so a read-only folder
// does not stop it, and nothing else is left there.
TEST(InPlaceWriter, ChangesExactlyThePatchedBytesWithOneWriteOverTheirSpan) {
  TempFolder folder;
  const fs::path file = folder / "photo.jpg";
  writeBytes(file, kBefore);
  ::chmod(folder.path().c_str(), 0555);
  const std::vector<BytePatch> patches{{196, kDate}, {40, kDate}, {300, kDate}};
  std::vector<std::pair<off_t, std::size_t>> calls;
  const WriteFunction spy = [&](int fd, const void* buf, std::size_t n, off_t off) {
    calls.emplace_back(off, n);
    return ::pwrite(fd, buf, n, off);
  };
  const WriteResult result = writePatches(file, *identityOfFile(file), patches, spy);
  ASSERT_TRUE(result.ok) << result.reason;
  EXPECT_EQ(readBytes(file), patched(patches));
  EXPECT_EQ(calls, (std::vector<std::pair<off_t, std::size_t>>{{40, 300 + 19 - 40}}));
  EXPECT_EQ(result.stamp, identityOfFile(file));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
  // Nothing to write: nothing held open for a flush.
  const UnflushedWrite nothing = writeWithoutFlush(file, *identityOfFile(file), {});
  EXPECT_TRUE(nothing.result.ok);
  EXPECT_FALSE(nothing.file.isOpen());
}

// Each case changes the file's situation after it was opened; the save must
// be refused with the reason and whatever the path holds then left as it is.
TEST(InPlaceWriter, RefusesAFileThatIsNotTheOneOpenedAndLeavesItAlone) {
  const auto resize = [](long by) {
    return [by](const fs::path& p) { fs::resize_file(p, static_cast<std::uintmax_t>(400 + by)); };
  };
  const auto none = [](const fs::path&) {};
  const struct {
    const char* name;
    std::function<void(const fs::path&)> change;
    std::vector<BytePatch> patches;
    std::string reason;
  } cases[] = {
      {"grown by one byte", resize(1), {{10, kDate}}, kChangedOnDiskReason},
      {"truncated by one byte", resize(-1), {{10, kDate}}, kChangedOnDiskReason},
      {"truncated to nothing", resize(-400), {{10, kDate}}, kChangedOnDiskReason},
      {"same bytes, newer time", [](const fs::path& p) { setTime(p, {1234567, 0}); }, {{10, kDate}},
       kChangedOnDiskReason},
      {"a copy with the same size and time", replaceByCopy, {{10, kDate}}, kChangedOnDiskReason},
      {"a link to another copy",
       [](const fs::path& p) {
         fs::copy_file(p, p.string() + ".other");
         fs::remove(p);
         fs::create_symlink(p.string() + ".other", p);
       },
       {{10, kDate}}, kChangedOnDiskReason},
      {"a folder",
       [](const fs::path& p) {
         fs::remove(p);
         fs::create_directory(p);
       },
       {{10, kDate}}, std::system_category().message(EISDIR)},
      {"deleted", [](const fs::path& p) { fs::remove(p); }, {{10, kDate}}, kMissingReason},
      {"read-only", [](const fs::path& p) { ::chmod(p.c_str(), 0444); }, {{10, kDate}}, kReadOnlyReason},
      {"a date past the end", none, {{10, kDate}, {400 - 18, kDate}}, kBeyondEndReason},
      {"a date far past the end", none, {{UINT64_MAX - 5, kDate}}, kBeyondEndReason},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TempFolder folder;
    const fs::path file = folder / "photo.jpg";
    writeBytes(file, kBefore);
    const FileIdentity opened = *identityOfFile(file);
    c.change(file);
    const auto before = snapshot(file);
    const UnflushedWrite result = writeWithoutFlush(file, opened, c.patches);
    EXPECT_FALSE(result.result.ok);
    EXPECT_EQ(result.result.reason, c.reason);
    EXPECT_FALSE(result.file.isOpen());
    EXPECT_EQ(snapshot(file), before);
  }
}

std::uint64_t deviceOf(const fs::path& p) {
  struct stat st {};
  return ::stat(p.c_str(), &st) == 0 ? st.st_dev : 0;
}

// A folder in memory (on another file system than the test's folder, when
// the machine has one), removed at the end.
struct MemoryFolder {
  fs::path path;
  MemoryFolder() {
    std::string pattern = "/dev/shm/lumdocs-XXXXXX";
    if (::mkdtemp(pattern.data())) path = pattern;
  }
  ~MemoryFolder() {
    std::error_code ignored;
    if (!path.empty()) fs::remove_all(path, ignored);
  }
};

TEST(InPlaceWriter, ABatchIsFlushedOncePerFileSystemAndAFailedFlushCoversOnlyItsFiles) {
  TempFolder disk;
  MemoryFolder memory;
  const bool inMemory = !memory.path.empty() && deviceOf(memory.path) != deviceOf(disk.path());
  const fs::path other = inMemory ? memory.path : disk.path();
  const std::vector<fs::path> folders{disk.path(), other, disk.path(), other};
  std::set<std::uint64_t> devices;
  for (const fs::path& folder : folders) devices.insert(deviceOf(folder));
  const std::vector<BytePatch> patches{{40, kDate}};
  for (const bool diskFails : {false, true}) {
    SCOPED_TRACE(diskFails ? "the disk's flush fails" : "every flush works");
    std::vector<OpenFile> written;
    std::vector<int> fds;
    for (std::size_t i = 0; i < folders.size(); ++i) {
      const fs::path file = folders[i] / ("p" + std::to_string(i));
      writeBytes(file, kBefore);
      UnflushedWrite w = writeWithoutFlush(file, *identityOfFile(file), patches);
      ASSERT_TRUE(w.file.isOpen()) << w.result.reason;
      fds.push_back(w.file.fd());
      written.push_back(std::move(w.file));
    }
    std::multiset<std::uint64_t> flushed;
    const std::vector<std::string> reasons = flushTogether(written, [&](int fd) {
      struct stat st {};
      ::fstat(fd, &st);
      flushed.insert(st.st_dev);
      return diskFails && st.st_dev == deviceOf(disk.path()) ? (errno = EIO, -1) : ::syncfs(fd);
    });
    EXPECT_EQ(flushed, std::multiset<std::uint64_t>(devices.begin(), devices.end()));
    ASSERT_EQ(reasons.size(), folders.size());
    for (std::size_t i = 0; i < folders.size(); ++i) {
      EXPECT_EQ(reasons[i], diskFails && folders[i] == disk.path() ? std::system_category().message(EIO) : "") << i;
      // Written either way: only the bytes' way to the disk is in doubt.
      EXPECT_EQ(readBytes(folders[i] / ("p" + std::to_string(i))), patched(patches));
      EXPECT_EQ(::fcntl(fds[i], F_GETFD), -1) << "the flush left a descriptor open";
    }
  }
}

}  // namespace
