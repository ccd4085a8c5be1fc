// Saving real photos while the disk or the file misbehaves. After every fault
// the file must be exactly as it was opened or exactly as intended, and a
// failure must come back with its reason.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <system_error>

#include "DatedPhotos.h"
#include "support/TestData.h"

using reltest::DatedPhoto;
using reltest::ScratchFolder;
namespace fs = std::filesystem;

namespace {

void reportFaults(int faults) {
  reltest::reportFigure(std::string("faults injected, ") + ::testing::UnitTest::GetInstance()->current_test_info()->name(),
                        faults);
}

std::string errnoText(int error) { return std::system_category().message(error); }

// A copy of the photo in the scratch folder and its identity as opened.
struct OpenedCopy {
  fs::path path;
  InPlaceWriter::FileIdentity opened;
};

OpenedCopy openCopy(const ScratchFolder& folder, const DatedPhoto& photo) {
  const fs::path path = folder.path() / photo.name;
  reltest::writeAll(path, photo.bytes);
  return {path, *InPlaceWriter::identityOfFile(path)};
}

// The first and one-past-last byte of the single run the writer writes.
std::pair<std::uint64_t, std::uint64_t> runOf(const DatedPhoto& photo) {
  std::uint64_t first = UINT64_MAX, end = 0;
  for (const auto& p : photo.patches) {
    first = std::min(first, p.position);
    end = std::max(end, p.position + p.bytes.size());
  }
  return {first, end};
}

void setModifiedLater(const fs::path& path) {
  struct stat st {};
  ::stat(path.c_str(), &st);
  const timespec times[2] = {st.st_atim, {st.st_mtim.tv_sec + 5, st.st_mtim.tv_nsec}};
  ::utimensat(AT_FDCWD, path.c_str(), times, 0);
}

// ---- the file changes between opening and saving ---------------------------

struct DiskChange {
  const char* name;
  std::function<void(const fs::path&, const DatedPhoto&)> apply;
  const char* reason;  // nullptr: any reason, as long as there is one
};

const std::vector<DiskChange>& diskChanges() {
  static const std::vector<DiskChange> changes{
      {"deleted", [](const fs::path& p, const DatedPhoto&) { fs::remove(p); }, InPlaceWriter::kMissingReason},
      {"replaced by other bytes of the same size",
       [](const fs::path& p, const DatedPhoto& photo) {
         std::vector<std::uint8_t> other = photo.bytes;
         other.back() ^= 0xFF;
         const fs::path tmp = p.string() + ".new";
         reltest::writeAll(tmp, other);
         setModifiedLater(tmp);
         fs::rename(tmp, p);
       },
       InPlaceWriter::kChangedOnDiskReason},
      {"touched (same bytes, newer time)", [](const fs::path& p, const DatedPhoto&) { setModifiedLater(p); },
       InPlaceWriter::kChangedOnDiskReason},
      {"truncated by one byte",
       [](const fs::path& p, const DatedPhoto& photo) { fs::resize_file(p, photo.bytes.size() - 1); },
       InPlaceWriter::kChangedOnDiskReason},
      {"truncated to nothing", [](const fs::path& p, const DatedPhoto&) { fs::resize_file(p, 0); },
       InPlaceWriter::kChangedOnDiskReason},
      {"grown by one byte",
       [](const fs::path& p, const DatedPhoto& photo) { fs::resize_file(p, photo.bytes.size() + 1); },
       InPlaceWriter::kChangedOnDiskReason},
      {"replaced by a folder",
       [](const fs::path& p, const DatedPhoto&) {
         fs::remove(p);
         fs::create_directory(p);
       },
       nullptr},
      {"replaced by a link to another copy",
       [](const fs::path& p, const DatedPhoto& photo) {
         const fs::path other = p.string() + ".other";
         reltest::writeAll(other, photo.bytes);
         setModifiedLater(other);
         fs::remove(p);
         fs::create_symlink(other, p);
       },
       InPlaceWriter::kChangedOnDiskReason},
  };
  return changes;
}

// What the path holds now: file bytes, or a marker for anything else.
std::vector<std::uint8_t> snapshot(const fs::path& path) {
  std::error_code ec;
  if (!fs::exists(path, ec)) return {'<', 'g', 'o', 'n', 'e', '>'};
  if (fs::is_directory(path, ec)) return {'<', 'd', 'i', 'r', '>'};
  return reltest::readAll(path);
}

TEST(SaveFaults, AFileChangedOnDiskSinceOpeningIsNeverWritten) {
  LUMTEST_REQUIRE_REAL_DATA();
  int faults = 0;
  for (const DatedPhoto* each : reltest::photosForFaults()) {
    const DatedPhoto& photo = *each;
    for (const DiskChange& change : diskChanges()) {
      SCOPED_TRACE(photo.name + ": " + change.name);
      ScratchFolder folder;
      const OpenedCopy copy = openCopy(folder, photo);
      change.apply(copy.path, photo);
      const std::vector<std::uint8_t> afterChange = snapshot(copy.path);

      const auto result = InPlaceWriter::writePatches(copy.path, copy.opened, photo.patches);
      ++faults;
      EXPECT_FALSE(result.ok);
      if (change.reason) {
        EXPECT_EQ(result.reason, change.reason);
      }
      EXPECT_FALSE(result.reason.empty());
      EXPECT_EQ(snapshot(copy.path), afterChange) << "the save wrote into a file that is not the one opened";
    }
  }
  reportFaults(faults);
}

// ---- permissions --------------------------------------------------------------

TEST(SaveFaults, AReadOnlyFileIsRefusedAndLeftAlone) {
  LUMTEST_REQUIRE_REAL_DATA();
  for (const DatedPhoto* each : reltest::photosForFaults()) {
    const DatedPhoto& photo = *each;
    SCOPED_TRACE(photo.name);
    ScratchFolder folder;
    const OpenedCopy copy = openCopy(folder, photo);
    ASSERT_EQ(::chmod(copy.path.c_str(), 0444), 0);
    // Even root, whom the system lets write anyway, must be refused.
    const auto result = InPlaceWriter::writePatches(copy.path, copy.opened, photo.patches);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, InPlaceWriter::kReadOnlyReason);
    EXPECT_EQ(reltest::readAll(copy.path), photo.bytes);
  }
}

TEST(SaveFaults, AReadOnlyFolderDoesNotStopAnInPlaceSave) {
  LUMTEST_REQUIRE_REAL_DATA();
  // Saving writes into the existing file; it needs no new entry in the folder.
  for (const DatedPhoto* each : reltest::photosForFaults()) {
    const DatedPhoto& photo = *each;
    SCOPED_TRACE(photo.name);
    ScratchFolder folder;
    const OpenedCopy copy = openCopy(folder, photo);
    ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
    const auto result = InPlaceWriter::writePatches(copy.path, copy.opened, photo.patches);
    EXPECT_TRUE(result.ok) << result.reason;
    EXPECT_EQ(reltest::readAll(copy.path), photo.intended);
    std::size_t entries = 0;
    for ([[maybe_unused]] const auto& e : fs::directory_iterator(folder.path())) ++entries;
    EXPECT_EQ(entries, 1u) << "the save left another file in the folder";
  }
}

// ---- a write that fails part way ------------------------------------------------

// Points in the run where the disk gives out: nothing written, one byte, just
// before and after a whole date, half way, one byte short.
std::vector<std::size_t> failurePoints(std::size_t runLength) {
  std::vector<std::size_t> points{0, 1, 18, 19, 20, runLength / 2, runLength - 1};
  std::erase_if(points, [&](std::size_t n) { return n >= runLength; });
  return points;
}

// Takes `budget` bytes, then fails with `error`; `failures` times, then works.
InPlaceWriter::WriteFunction failingWriter(std::size_t budget, int error, int failures) {
  auto left = std::make_shared<std::size_t>(budget);
  auto failuresLeft = std::make_shared<int>(failures);
  return [=](int fd, const void* buffer, std::size_t count, off_t offset) -> ssize_t {
    if (*failuresLeft == 0) return ::pwrite(fd, buffer, count, offset);
    if (*left == 0) {
      --*failuresLeft;
      errno = error;
      return -1;
    }
    const ssize_t n = ::pwrite(fd, buffer, std::min(count, *left), offset);
    if (n > 0) *left -= static_cast<std::size_t>(n);
    return n;
  };
}

TEST(SaveFaults, AWriteThatFailsOncePartWayLeavesTheFileAsOpened) {
  LUMTEST_REQUIRE_REAL_DATA();
  int faults = 0;
  for (const DatedPhoto* each : reltest::photosForFaults()) {
    const DatedPhoto& photo = *each;
    const auto [first, end] = runOf(photo);
    for (const std::size_t n : failurePoints(end - first)) {
      SCOPED_TRACE(photo.name + " fails after " + std::to_string(n) + " bytes");
      ScratchFolder folder;
      const OpenedCopy copy = openCopy(folder, photo);
      const auto result =
          InPlaceWriter::writePatches(copy.path, copy.opened, photo.patches, failingWriter(n, ENOSPC, 1));
      ++faults;
      EXPECT_FALSE(result.ok);
      EXPECT_EQ(result.reason, errnoText(ENOSPC));
      EXPECT_EQ(reltest::stateOf(reltest::readAll(copy.path), photo), "as opened");
    }
  }
  reportFaults(faults);
}

TEST(SaveFaults, ADiskThatStaysBrokenNeverShortensTheFileNorTouchesBytesOutsideTheDates) {
  LUMTEST_REQUIRE_REAL_DATA();
  // When the restore fails too, the run may hold part of the new dates: no
  // program can undo a write the disk will not take. What must still hold:
  // the failure is reported, the size is kept, nothing outside the run moves.
  for (const DatedPhoto* each : reltest::photosForFaults()) {
    const DatedPhoto& photo = *each;
    const auto [first, end] = runOf(photo);
    for (const std::size_t n : failurePoints(end - first)) {
      SCOPED_TRACE(photo.name + " breaks after " + std::to_string(n) + " bytes");
      ScratchFolder folder;
      const OpenedCopy copy = openCopy(folder, photo);
      const auto result =
          InPlaceWriter::writePatches(copy.path, copy.opened, photo.patches, failingWriter(n, EIO, 1000));
      EXPECT_FALSE(result.ok);
      EXPECT_EQ(result.reason, errnoText(EIO));
      const std::vector<std::uint8_t> now = reltest::readAll(copy.path);
      ASSERT_EQ(now.size(), photo.bytes.size());
      EXPECT_TRUE(std::equal(now.begin(), now.begin() + static_cast<std::ptrdiff_t>(first), photo.bytes.begin()));
      EXPECT_TRUE(std::equal(now.begin() + static_cast<std::ptrdiff_t>(end), now.end(),
                             photo.bytes.begin() + static_cast<std::ptrdiff_t>(end)));
    }
  }
}

// ---- the file size limit of the process (RLIMIT_FSIZE) ---------------------------

struct ChildResult {
  bool ok = false;
  std::string reason;
};

// Saves in a child process whose file size limit is `limit` bytes.
ChildResult saveUnderSizeLimit(const OpenedCopy& copy, const DatedPhoto& photo, rlim_t limit) {
  int fds[2];
  if (::pipe(fds) != 0) return {false, "pipe failed"};
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::close(fds[0]);
    std::signal(SIGXFSZ, SIG_IGN);  // EFBIG instead of a killed process
    const rlimit rl{limit, limit};
    ::setrlimit(RLIMIT_FSIZE, &rl);
    const auto result = InPlaceWriter::writePatches(copy.path, copy.opened, photo.patches);
    const std::string message = (result.ok ? "1" : "0") + result.reason;
    [[maybe_unused]] const ssize_t n = ::write(fds[1], message.data(), message.size());
    ::_exit(0);
  }
  ::close(fds[1]);
  std::string message;
  char buffer[256];
  for (ssize_t n; (n = ::read(fds[0], buffer, sizeof buffer)) > 0;) message.append(buffer, static_cast<std::size_t>(n));
  ::close(fds[0]);
  int status = 0;
  ::waitpid(pid, &status, 0);
  if (message.empty()) return {false, "child gave no answer"};
  return {message[0] == '1', message.substr(1)};
}

TEST(SaveFaults, AFileSizeLimitBelowTheDatesFailsTheSaveAndKeepsTheFile) {
  LUMTEST_REQUIRE_REAL_DATA();
  int faults = 0;
  for (const DatedPhoto* each : reltest::photosForFaults()) {
    const DatedPhoto& photo = *each;
    const auto [first, end] = runOf(photo);
    const std::vector<rlim_t> limits{0, first, first + 10, end - 1, end, photo.bytes.size()};
    for (const rlim_t limit : limits) {
      SCOPED_TRACE(photo.name + " limit " + std::to_string(limit));
      ScratchFolder folder;
      const OpenedCopy copy = openCopy(folder, photo);
      const ChildResult result = saveUnderSizeLimit(copy, photo, limit);
      const std::vector<std::uint8_t> now = reltest::readAll(copy.path);
      if (limit >= end) {
        EXPECT_TRUE(result.ok) << result.reason;
        EXPECT_EQ(reltest::stateOf(now, photo), "as intended");
      } else {
        ++faults;
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.reason, errnoText(EFBIG));
        EXPECT_EQ(reltest::stateOf(now, photo), "as opened");
      }
    }
  }
  reportFaults(faults);
}

}  // namespace
