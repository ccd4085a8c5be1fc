#include "documents/InPlaceWriter.h"

#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>

#include "TempFiles.h"

using namespace InPlaceWriter;
using doctest_support::patternBytes;
using doctest_support::readBytes;
using doctest_support::TempFolder;
using doctest_support::writeBytes;

namespace {

const std::string kDate = "2024:01:02 03:04:05";

struct WriterFixture : ::testing::Test {
  TempFolder folder;
  std::filesystem::path file = folder / "photo.jpg";
  std::vector<std::uint8_t> before = patternBytes(400);
  FileIdentity opened;

  void SetUp() override {
    writeBytes(file, before);
    opened = *identityOfFile(file);
  }
  std::vector<std::uint8_t> expectedWith(const std::vector<BytePatch>& patches) const {
    std::vector<std::uint8_t> bytes = before;
    for (const BytePatch& p : patches) std::copy(p.bytes.begin(), p.bytes.end(), bytes.begin() + p.position);
    return bytes;
  }
};

TEST_F(WriterFixture, ChangesExactlyThePatchedBytesWithOneWriteOverTheirSpan) {
  const std::vector<BytePatch> patches{{196, kDate}, {40, kDate}, {300, kDate}};
  std::vector<std::pair<off_t, std::size_t>> calls;
  const WriteFunction spy = [&](int fd, const void* buf, std::size_t n, off_t off) {
    calls.emplace_back(off, n);
    return ::pwrite(fd, buf, n, off);
  };
  const WriteResult result = writePatches(file, opened, patches, spy);
  ASSERT_TRUE(result.ok) << result.reason;
  EXPECT_EQ(readBytes(file), expectedWith(patches));
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].first, 40);
  EXPECT_EQ(calls[0].second, 300u + 19u - 40u);
}

TEST_F(WriterFixture, AFailedWriteIsReportedAndThePartialWriteUndone) {
  const std::vector<BytePatch> patches{{10, kDate}, {100, kDate}};
  std::size_t budget = 25;  // the "disk" takes 25 bytes, then fails once
  bool failed = false;
  const WriteFunction failing = [&](int fd, const void* buf, std::size_t n, off_t off) -> ssize_t {
    if (!failed && budget == 0) {
      failed = true;
      errno = ENOSPC;
      return -1;
    }
    const std::size_t take = failed ? n : std::min(n, budget);
    if (!failed) budget -= take;
    return ::pwrite(fd, buf, take, off);
  };
  const WriteResult result = writePatches(file, opened, patches, failing);
  EXPECT_FALSE(result.ok);
  EXPECT_EQ(result.reason, std::system_category().message(ENOSPC));
  EXPECT_EQ(readBytes(file), before);
}

// Each case changes the file's situation after it was opened; the save must
// be refused with the reason and the file left exactly as it is then.
struct Refusal {
  const char* name;
  std::function<void(const std::filesystem::path&)> change;
  std::vector<BytePatch> patches;
  std::string reason;
};

TEST_F(WriterFixture, RefusesAndLeavesTheFileUntouched) {
  const std::vector<Refusal> cases{
      {"grown", [](const auto& p) { std::ofstream(p, std::ios::app) << 'x'; }, {{10, kDate}}, kChangedOnDiskReason},
      {"same size, newer time",
       [](const auto& p) {
         const timespec times[2] = {{0, UTIME_OMIT}, {1234567, 0}};
         ::utimensat(AT_FDCWD, p.c_str(), times, 0);
       },
       {{10, kDate}},
       kChangedOnDiskReason},
      {"replaced by a copy with the same size and time",
       [](const auto& p) {
         struct stat st {};
         ::stat(p.c_str(), &st);
         const std::filesystem::path copy = std::filesystem::path(p).concat(".new");
         std::filesystem::copy_file(p, copy);
         const timespec times[2] = {{0, UTIME_OMIT}, st.st_mtim};
         ::utimensat(AT_FDCWD, copy.c_str(), times, 0);
         std::filesystem::rename(copy, p);
       },
       {{10, kDate}},
       kChangedOnDiskReason},
      {"read-only", [](const auto& p) { ::chmod(p.c_str(), 0444); }, {{10, kDate}}, kReadOnlyReason},
      {"beyond the end", [](const auto&) {}, {{10, kDate}, {400 - 18, kDate}}, kBeyondEndReason},
      {"far beyond the end", [](const auto&) {}, {{UINT64_MAX - 5, kDate}}, kBeyondEndReason},
      {"missing", [](const auto& p) { std::filesystem::remove(p); }, {{10, kDate}}, kMissingReason},
  };
  for (const Refusal& c : cases) {
    SCOPED_TRACE(c.name);
    writeBytes(file, before);
    ::chmod(file.c_str(), 0644);
    opened = *identityOfFile(file);
    c.change(file);
    const bool existed = std::filesystem::exists(file);
    const std::vector<std::uint8_t> onDisk = existed ? readBytes(file) : std::vector<std::uint8_t>{};
    const WriteResult result = writePatches(file, opened, c.patches);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, c.reason);
    EXPECT_EQ(std::filesystem::exists(file), existed);
    if (existed) {
      EXPECT_EQ(readBytes(file), onDisk);
    }
  }
}

}  // namespace
