// A file's bytes, mapped or read, are the same bytes with the same stamp.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>

#include "formats/FileData.h"
#include "formats/ImageFileTestSupport.h"

namespace {

TEST(FileData, BriefAndMappedOpeningsAgreeAtEverySize) {
  using lum::FileData;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{4096}, FileData::kBriefReadUpTo,
                                 FileData::kBriefReadUpTo + 1}) {
    SCOPED_TRACE(size);
    lumtest::Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i * 31 + 7);
    const lumtest::TempFile temp(bytes);
    const auto mapped = FileData::mapFileWithHead(temp.path(), 4096).whole;
    const auto brief = FileData::briefFile(temp.path());
    const auto read = FileData::readFile(temp.path());
    ASSERT_TRUE(mapped && brief && read);
    for (const auto* data : {mapped.get(), brief.get(), read.get()}) {
      EXPECT_EQ(lumtest::Bytes(data->bytes().data(), data->bytes().data() + data->size()), bytes);
      EXPECT_EQ(data->stampAsOpened(), lum::FileStamp::of(temp.path()));
    }
  }
}

TEST(FileData, AHeadIsTheFileStartWithTheWholeFilesStamp) {
  using lum::FileData;
  constexpr std::size_t kHead = 4096;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, kHead, kHead + 1, 10 * kHead}) {
    SCOPED_TRACE(size);
    lumtest::Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::uint8_t>(i * 13 + 1);
    const lumtest::TempFile temp(bytes);
    const auto [whole, headOfMapped] = FileData::mapFileWithHead(temp.path(), kHead);
    ASSERT_TRUE(whole && headOfMapped);
    EXPECT_EQ(lumtest::Bytes(whole->bytes().data(), whole->bytes().data() + whole->size()), bytes);
    EXPECT_EQ(whole->stampAsOpened(), lum::FileStamp::of(temp.path()));
    for (const auto& head : {FileData::readHead(temp.path(), kHead), headOfMapped}) {
      ASSERT_TRUE(head);
      const std::size_t kept = std::min(size, kHead);
      EXPECT_EQ(lumtest::Bytes(head->bytes().data(), head->bytes().data() + head->size()),
                lumtest::Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(kept)));
      EXPECT_EQ(head->stampAsOpened(), lum::FileStamp::of(temp.path()));
      EXPECT_EQ(head->holdsWholeFile(), size <= kHead);
    }
  }
}

TEST(FileData, AfterAnInPlaceWriteTheMappingIsReusedWhileItShowsTheFile) {
  using lum::FileData;
  constexpr std::size_t kAt = 5000;
  const std::string kText = "2020:02:29 12:34:56";
  const struct {
    const char* name;
    bool mapped;      // whether the bytes held are a mapping
    bool replaced;    // whether another file was moved into the path
    bool reused;
  } cases[] = {
      {"a mapping of the same file", true, false, true},
      {"a copy", false, false, false},
      {"another file moved into its place", true, true, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const lumtest::TempFile temp(lumtest::Bytes(10000, 'a'));
    const auto opened = c.mapped ? FileData::mapFileWithHead(temp.path(), 4096).whole : FileData::readFile(temp.path());
    ASSERT_TRUE(opened);
    if (c.replaced) {
      const auto other = temp.path().string() + ".new";
      std::ofstream(other, std::ios::binary) << std::string(10000, 'a');
      std::filesystem::rename(other, temp.path());
    }
    {
      std::fstream file(temp.path(), std::ios::in | std::ios::out | std::ios::binary);
      file.seekp(kAt);
      file.write(kText.data(), static_cast<std::streamsize>(kText.size()));
    }
    const auto [whole, head] = FileData::mapFileWithHeadAfterWrite(temp.path(), 4096, opened);
    ASSERT_TRUE(whole && head);
    EXPECT_EQ(whole->bytes().data() == opened->bytes().data(), c.reused);
    EXPECT_EQ(whole->stampAsOpened(), lum::FileStamp::of(temp.path()));
    const auto text = whole->bytes().bytes(kAt, kText.size());
    ASSERT_TRUE(text);
    EXPECT_EQ(std::string(text->begin(), text->end()), kText);
  }
}

TEST(FileData, AFolderOrAMissingFileIsAFailureWithAReason) {
  for (const char* path : {"/", "/nonexistent/lumidate/photo.jpg"}) {
    lum::ReadFailure failure;
    EXPECT_EQ(lum::FileData::briefFile(path, &failure), nullptr) << path;
    EXPECT_FALSE(failure.reason.empty()) << path;
    failure = {};
    EXPECT_EQ(lum::FileData::readHead(path, 4096, &failure), nullptr) << path;
    EXPECT_FALSE(failure.reason.empty()) << path;
    failure = {};
    const auto [whole, head] = lum::FileData::mapFileWithHead(path, 4096, &failure);
    EXPECT_TRUE(!whole && !head) << path;
    EXPECT_FALSE(failure.reason.empty()) << path;
  }
}

}  // namespace
