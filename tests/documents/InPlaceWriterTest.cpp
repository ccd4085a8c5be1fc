#include "documents/InPlaceWriter.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <system_error>

#include "PhotoFiles.h"
#include "core/NSDataOrbAdditions.h"

using namespace InPlaceWriter;
using doctest_support::readBytes;
using doctest_support::TempFolder;
namespace fs = std::filesystem;

namespace {

const std::string kDate = "2024:01:02 03:04:05";
// Bytes that differ from position to position, so a misplaced write shows.
const std::vector<std::uint8_t> kBefore = [] {
  std::vector<std::uint8_t> bytes(400);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>((i * 7 + 3) & 0xFF);
  return bytes;
}();

fs::path writeBefore(const fs::path& file) { return doctest_support::writeBytes(file, kBefore), file; }

std::vector<std::uint8_t> patched(const std::vector<BytePatch>& patches) {
  std::vector<std::uint8_t> bytes = kBefore;
  for (const BytePatch& p : patches) std::copy(p.bytes.begin(), p.bytes.end(), bytes.begin() + p.position);
  return bytes;
}

// What the path holds: its type, and its bytes when it is a file.
std::pair<fs::file_type, std::vector<std::uint8_t>> held(const fs::path& p) {
  const fs::file_type type = fs::symlink_status(p).type();
  return {type, type == fs::file_type::regular ? readBytes(p) : std::vector<std::uint8_t>{}};
}

// Writing in place needs no new entry in the folder, so a read-only folder
// does not stop it, and nothing else is left there.
TEST(InPlaceWriter, ChangesExactlyThePatchedBytesWithOneWriteOverTheirSpan) {
  TempFolder folder;
  const fs::path file = writeBefore(folder / "photo.jpg");
  ::chmod(folder.path().c_str(), 0555);
  const std::vector<BytePatch> patches{{196, kDate}, {40, kDate}, {300, kDate}};
  std::vector<std::pair<off_t, std::size_t>> calls;
  const WriteResult result =
      writePatches(file, *identityOfFile(file), patches, [&](int fd, const void* buf, std::size_t n, off_t off) {
        calls.emplace_back(off, n);
        return ::pwrite(fd, buf, n, off);
      });
  ASSERT_TRUE(result.ok) << result.reason;
  EXPECT_EQ(readBytes(file), patched(patches));
  EXPECT_EQ(calls, (std::vector<std::pair<off_t, std::size_t>>{{40, 300 + 19 - 40}}));
  EXPECT_EQ(result.stamp, identityOfFile(file));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
  EXPECT_FALSE(writeWithoutFlush(file, *identityOfFile(file), {}).file.isOpen()) << "nothing to write, yet held open";
}

// Each case changes the file's situation after it was opened; the save must
// be refused with the reason and whatever the path holds then left as it is.
TEST(InPlaceWriter, RefusesAFileThatIsNotTheOneOpenedAndLeavesItAlone) {
  const auto resize = [](int size) { return [size](const fs::path& p) { fs::resize_file(p, size); }; };
  const auto copyKeepingTime = [](const fs::path& from, const fs::path& to) {
    fs::copy_file(from, to);
    fs::last_write_time(to, fs::last_write_time(from));
  };
  const auto none = [](const fs::path&) {};
  const struct {
    const char* name; std::function<void(const fs::path&)> change; std::string reason;
    std::vector<BytePatch> patches = {{10, kDate}};
  } cases[] = {
      {"grown by one byte", resize(401), kChangedOnDiskReason},
      {"truncated to nothing", resize(0), kChangedOnDiskReason},
      {"same bytes, another time",
       [](const fs::path& p) { fs::last_write_time(p, fs::last_write_time(p) - std::chrono::hours(1)); },
       kChangedOnDiskReason},
      {"a copy with the same size and time",
       [&](const fs::path& p) { copyKeepingTime(p, p.string() + ".new"), fs::rename(p.string() + ".new", p); },
       kChangedOnDiskReason},
      {"a link to another copy",
       [&](const fs::path& p) {
         copyKeepingTime(p, p.string() + ".o"), fs::remove(p), fs::create_symlink(p.string() + ".o", p);
       },
       kChangedOnDiskReason},
      {"a folder", [](const fs::path& p) { fs::remove(p), fs::create_directory(p); },
       std::system_category().message(EISDIR)},
      {"deleted", [](const fs::path& p) { fs::remove(p); }, kMissingReason},
      {"read-only", [](const fs::path& p) { ::chmod(p.c_str(), 0444); }, kReadOnlyReason},
      {"a date past the end", none, kBeyondEndReason, {{10, kDate}, {400 - 18, kDate}}},
      {"a date far past the end", none, kBeyondEndReason, {{UINT64_MAX - 5, kDate}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TempFolder folder;
    const fs::path file = writeBefore(folder / "photo.jpg");
    const FileIdentity opened = *identityOfFile(file);
    c.change(file);
    const auto before = held(file);
    const UnflushedWrite result = writeWithoutFlush(file, opened, c.patches);
    EXPECT_FALSE(result.result.ok);
    EXPECT_EQ(result.result.reason, c.reason);
    EXPECT_FALSE(result.file.isOpen());
    EXPECT_EQ(held(file), before);
  }
}

// Changes far apart are written apart, never the bytes between them; a CRC
// over changed bytes is rewritten with them, unless it was wrong before.
TEST(InPlaceWriter, WritesFarChangesApartAndKeepsAChecksumRight) {
  std::vector<std::uint8_t> bytes(9000, 'x');
  const lum::ChecksumRange crc{100, 30, 130};
  const auto storeCrc = [&crc](std::vector<std::uint8_t>& b) {
    const std::uint32_t value = NSDataOrbAdditions::CRC_32(std::span(b).subspan(crc.start, crc.length));
    for (int i = 0; i < 4; ++i) b[crc.at + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
  };
  storeCrc(bytes);
  const BytePatch checksum{crc.at, {}, crc};
  const struct { const char* name; bool crcRight; std::vector<BytePatch> patches; std::string reason;
                 std::vector<std::pair<off_t, std::size_t>> calls; } cases[] = {
      {"far apart", true, {{8000, kDate}, {10, kDate}}, "", {{10, 19}, {8000, 19}}},
      {"under a checksum", true, {{105, kDate}, checksum}, "", {{100, 34}}},
      {"under a wrong checksum", false, {{105, kDate}, checksum}, kChecksumWrongReason, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    TempFolder folder;
    std::vector<std::uint8_t> before = bytes;
    if (!c.crcRight) before[crc.at] ^= 1;
    const fs::path file = folder / "photo.png";
    doctest_support::writeBytes(file, before);
    std::vector<std::pair<off_t, std::size_t>> calls;
    const WriteResult result =
        writePatches(file, *identityOfFile(file), c.patches, [&](int fd, const void* buf, std::size_t n, off_t off) {
          calls.emplace_back(off, n);
          return ::pwrite(fd, buf, n, off);
        });
    EXPECT_EQ(result.reason, c.reason);
    EXPECT_EQ(calls, c.calls);
    std::vector<std::uint8_t> want = before;
    if (result.ok) {
      for (const BytePatch& p : c.patches) std::copy(p.bytes.begin(), p.bytes.end(), want.begin() + p.position);
      if (c.patches.back().checksum) storeCrc(want);
    }
    EXPECT_EQ(readBytes(file), want);
  }
}

}  // namespace
