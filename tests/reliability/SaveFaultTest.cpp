// Saving real photos while the disk or the file misbehaves. After every fault
// the file must be exactly as it was opened or exactly as intended, and a
// failure must come back with its reason.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <csignal>
#include <map>
#include <set>
#include <system_error>

#include "DatedPhotos.h"
#include "documents/PhotoFiles.h"
#include "support/TestData.h"

using reltest::DatedPhoto;
namespace fs = std::filesystem;

namespace {

std::string errnoText(int error) { return std::system_category().message(error); }

// A copy of the photo in a scratch folder and its identity as opened.
struct Copy {
  lumtest::TempFolder folder;
  fs::path path;
  InPlaceWriter::FileIdentity opened;
  explicit Copy(const DatedPhoto& photo) : path(folder.path() / photo.name) {
    lumtest::writeFile(path, photo.bytes);
    opened = *InPlaceWriter::identityOfFile(path);
  }
};

// The first and one-past-last byte of the single run the writer writes.
std::pair<std::uint64_t, std::uint64_t> runOf(const DatedPhoto& photo) {
  std::uint64_t first = UINT64_MAX, end = 0;
  for (const auto& p : photo.patches) {
    first = std::min(first, p.position);
    end = std::max(end, p.position + p.bytes.size());
  }
  return {first, end};
}

// Takes `budget` bytes, then fails with `error`; `failures` times, then works.
InPlaceWriter::WriteFunction failingWriter(std::size_t budget, int error, int failures) {
  auto left = std::make_shared<std::size_t>(budget);
  auto failuresLeft = std::make_shared<int>(failures);
  return [=](int fd, const void* buffer, std::size_t count, off_t offset) -> ssize_t {
    if (*failuresLeft == 0) return ::pwrite(fd, buffer, count, offset);
    if (*left == 0) return --*failuresLeft, errno = error, -1;
    const ssize_t n = ::pwrite(fd, buffer, std::min(count, *left), offset);
    if (n > 0) *left -= static_cast<std::size_t>(n);
    return n;
  };
}

// The disk gives out after nothing, one byte, just before and after a whole
// date, half the run, all but one byte. Failing once leaves the file exactly
// as opened (the partial write is put back). A disk that stays broken fails
// the restore too, so the run may hold part of the new dates: no program can
// undo a write the disk will not take. The failure is still reported, the
// size kept, and nothing outside the run moves.
TEST(SaveFaults, AWriteThatFailsPartWayIsReportedAndNeverMovesBytesOutsideTheDates) {
  LUMTEST_REQUIRE_REAL_DATA();
  const struct { const char* name; int error, failures; } disks[] = {{"fails once", ENOSPC, 1},
                                                                      {"stays broken", EIO, 1000}};
  for (const auto& disk : disks) {
    int faults = 0;
    for (const DatedPhoto* photo : reltest::photosForFaults()) {
      const auto [first, end] = runOf(*photo);
      for (const std::size_t n : {0ul, 1ul, 18ul, 19ul, 20ul, (end - first) / 2, end - first - 1}) {
        if (n >= end - first) continue;
        SCOPED_TRACE(photo->name + ": " + disk.name + " after " + std::to_string(n) + " bytes");
        const Copy copy(*photo);
        const auto result = InPlaceWriter::writePatches(copy.path, copy.opened, photo->patches,
                                                        failingWriter(n, disk.error, disk.failures));
        ++faults;
        EXPECT_FALSE(result.ok);
        EXPECT_EQ(result.reason, errnoText(disk.error));
        std::vector<std::uint8_t> now = lumtest::readFile(copy.path);
        if (disk.failures == 1) { EXPECT_EQ(reltest::stateOf(now, *photo), "as opened"); }
        ASSERT_EQ(now.size(), photo->bytes.size());
        std::copy(photo->bytes.begin() + first, photo->bytes.begin() + end, now.begin() + first);
        EXPECT_EQ(now, photo->bytes) << "bytes outside the dates' run changed";
      }
    }
    reltest::reportFigure(std::string("write faults injected, disk that ") + disk.name, faults);
  }
}

TEST(SaveFaults, AFailedFlushFailsTheFilesItCoveredAndNoOther) {
  LUMTEST_REQUIRE_REAL_DATA();
  lumtest::TempFolder folder;
  std::map<fs::path, const DatedPhoto*> photos;
  for (const DatedPhoto* photo : reltest::photosForFaults()) {
    photos[folder.path() / photo->name] = photo;
    lumtest::writeFile(folder.path() / photo->name, photo->bytes);
  }
  std::vector<fs::path> paths;
  for (const auto& entry : photos) paths.push_back(entry.first);
  auto doc = doctest_support::openDocument(paths);
  // Every date a photo shows is typed anew, so each file must end as intended;
  // a file the document does not open, or whose dates it does not show, plays no part.
  std::erase_if(photos, [&](const auto& entry) {
    LumFileItemDoc* item = doc->itemForURL(entry.first);
    for (const DateTargets::Target& t : DateTargets::kTargets)
      if (item && item->dateText(t.index))
        doc->controlTextDidEndEditing(*doc->rowOf(item), t.column, reltest::kNewDate, false);
    return !item || !item->isEdited();
  });
  // Two files a flush; every second flush fails, and the file it went through
  // must be among the failures.
  int flushes = 0;
  std::set<fs::path> failedFlushes;
  const auto flush = [&](int fd) {
    if (++flushes % 2) return ::syncfs(fd);
    std::error_code ec;
    failedFlushes.insert(fs::read_symlink("/proc/self/fd/" + std::to_string(fd), ec));
    return errno = EIO, -1;
  };
  doc->setFlushFunction(flush, 2);
  const auto outcome = doctest_support::saveAndWait(*doc);
  ASSERT_TRUE(outcome.has_value()) << "the save never finished";
  EXPECT_EQ(flushes, static_cast<int>((photos.size() + 1) / 2));
  EXPECT_EQ(outcome->failures.size(), photos.size() / 4 * 2 + (photos.size() % 4 == 3 ? 1 : 0));
  std::set<fs::path> failed;
  for (const SaveReport::Failure& f : outcome->failures) {
    failed.insert(f.path);
    EXPECT_EQ(f.reason, errnoText(EIO)) << f.path;
  }
  EXPECT_TRUE(std::includes(failed.begin(), failed.end(), failedFlushes.begin(), failedFlushes.end()));
  for (const auto& [path, photo] : photos) {
    // A failed file keeps its edit to be saved again; its bytes were written,
    // only their way to the disk is in doubt.
    EXPECT_EQ(doc->itemForURL(path)->isEdited(), failed.count(path) == 1) << path;
    EXPECT_EQ(reltest::stateOf(lumtest::readFile(path), *photo), "as intended") << path;
  }
  reltest::reportFigure("faults injected, failed flushes", static_cast<double>(failedFlushes.size()));
}

// Saves in a child process whose file size limit (RLIMIT_FSIZE) is below, at
// and past the run: at 0, the run's start, inside it, one byte short, its end
// and the file's size.
TEST(SaveFaults, AFileSizeLimitBelowTheDatesFailsTheSaveAndKeepsTheFile) {
  LUMTEST_REQUIRE_REAL_DATA();
  int faults = 0;
  for (const DatedPhoto* photo : reltest::photosForFaults()) {
    const auto [first, end] = runOf(*photo);
    for (const rlim_t limit : {rlim_t{0}, first, first + 10, end - 1, end, rlim_t{photo->bytes.size()}}) {
      SCOPED_TRACE(photo->name + " limit " + std::to_string(limit));
      const Copy copy(*photo);
      const bool below = limit < end;
      faults += below;
      const pid_t pid = ::fork();
      if (pid == 0) {
        std::signal(SIGXFSZ, SIG_IGN);  // EFBIG instead of a killed process
        const rlimit rl{limit, limit};
        ::setrlimit(RLIMIT_FSIZE, &rl);
        const auto result = InPlaceWriter::writePatches(copy.path, copy.opened, photo->patches);
        ::_exit(result.ok ? 0 : result.reason == errnoText(EFBIG) ? 1 : 2);
      }
      int status = -1;
      ::waitpid(pid, &status, 0);
      EXPECT_TRUE(WIFEXITED(status)) << status;
      EXPECT_EQ(WEXITSTATUS(status), below ? 1 : 0) << "0: saved, 1: too large, 2: another failure";
      EXPECT_EQ(reltest::stateOf(lumtest::readFile(copy.path), *photo), below ? "as opened" : "as intended");
    }
  }
  reltest::reportFigure("faults injected, file size limit", faults);
}

}  // namespace
