// Reading a file's bytes: a head is the file's start with the whole file's
// stamp, and a read after opening refuses a file that is no longer the one
// opened, whatever happened to it.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <numeric>

#include "formats/FileData.h"
#include "formats/ImageFileTestSupport.h"

namespace {

namespace fs = std::filesystem;
using lum::FileData;
using lumtest::Bytes;

Bytes pattern(std::size_t size) { Bytes b(size); std::iota(b.begin(), b.end(), std::uint8_t{7}); return b; }

TEST(FileData, AHeadIsTheFileStartWithTheWholeFilesStamp) {
  constexpr std::size_t kHead = 4096;
  for (const std::size_t size : {std::size_t{0}, kHead, kHead + 1}) {
    const Bytes bytes = pattern(size);
    const lumtest::TempFile temp(bytes);
    for (const std::size_t length : {kHead, FileData::kWholeFile}) {
      SCOPED_TRACE(std::to_string(size) + " bytes read up to " + std::to_string(length));
      const auto data = FileData::readHead(temp.path(), length);
      ASSERT_TRUE(data);
      const std::size_t kept = std::min(size, length);
      EXPECT_EQ(Bytes(data->bytes().data(), data->bytes().data() + data->size()),
                Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(kept)));
      EXPECT_EQ(data->stampAsOpened(), lum::FileStamp::of(temp.path()));
      EXPECT_EQ(data->holdsWholeFile(), kept == size);
    }
  }
}

TEST(FileData, AReadAfterOpeningRefusesAFileThatIsNoLongerTheOneOpened) {
  const std::pair<const char*, std::function<void(const fs::path&)>> cases[] = {
      {"left alone", nullptr},
      // Another program's write lands in a later clock tick than the
      // opening; the time is moved on so that holds however fast this runs.
      {"written in place", [](const fs::path& p) {
         std::fstream(p, std::ios::in | std::ios::out | std::ios::binary).put('x');
         fs::last_write_time(p, fs::last_write_time(p) + std::chrono::seconds(1));
       }},
      {"cut short", [](const fs::path& p) { fs::resize_file(p, 10); }},
      {"replaced by a copy with the same time", [](const fs::path& p) {
         fs::copy_file(p, p.string() + ".copy");
         fs::last_write_time(p.string() + ".copy", fs::last_write_time(p));
         fs::rename(p.string() + ".copy", p);
       }},
      {"deleted", [](const fs::path& p) { fs::remove(p); }},
  };
  for (const auto& [name, change] : cases) {
    SCOPED_TRACE(name);
    const lumtest::TempFile temp(pattern(10000));
    const auto opened = FileData::readHead(temp.path(), 16);
    ASSERT_TRUE(opened);
    if (change) change(temp.path());
    lum::ReadFailure failure;
    const auto again = FileData::readIfUnchanged(temp.path(), *opened->stampAsOpened(), FileData::kWholeFile, &failure);
    EXPECT_EQ(again ? again->size() : 0, change ? 0u : 10000u);
    EXPECT_EQ(failure.reason, change ? lum::kChangedSinceOpenedReason : "");
  }
}

TEST(FileData, AFailureSaysWhatCanBeDone) {
  lum::ReadFailure missing, folder;
  EXPECT_FALSE(FileData::readHead("/nonexistent/photo.jpg", 4096, &missing) || FileData::readHead("/", 4096, &folder));
  EXPECT_EQ(missing.recoverySuggestion + "|" + folder.recoverySuggestion,
            "Check that the file exists.|Choose a regular file, not a folder or a device.");
}

}  // namespace
