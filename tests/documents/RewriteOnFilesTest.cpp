// The copy-based rewrites of both documents on generated photo files.
#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "datetime/DateAdditions.h"
#include "documents/DateRewrite.h"
#include "documents/LumMultiFileDoc.h"

using namespace doctest_support;

namespace {

const std::string kA = "2020:01:31 10:00:00";

std::size_t find(const std::vector<std::uint8_t>& bytes, const std::string& text) {
  return static_cast<std::size_t>(std::search(bytes.begin(), bytes.end(), text.begin(), text.end()) - bytes.begin());
}

std::vector<std::size_t> differences(const std::vector<std::uint8_t>& a, const std::vector<std::uint8_t>& b) {
  std::vector<std::size_t> at;
  for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i)
    if (a[i] != b[i]) at.push_back(i);
  return at;
}

TEST(RewriteOnFiles, MultiFileRewriteWritesAtTheEntryOffsetPlusTheHeaderPosition) {
  TempFolder folder;
  const auto path = writePhoto(folder, "a.jpg", {kA, std::nullopt, "2000:01:01 00:00:00"});
  const auto bytes = readBytes(path);
  const auto item = openItem(path);
  ASSERT_TRUE(item);
  // SOI, APP1 marker, length, "Exif\0\0": the TIFF header is at 12 and the
  // original date is the first copy of its text after it.
  ASSERT_EQ(bytes[12], 'I');
  const std::size_t at = find(bytes, kA);
  ASSERT_EQ(item->imageFile().dateValueOffset(LumDateField::DateTimeOriginal), at);

  item->setDateTimeOriginalString("1999:12:31 23:59:59");
  const auto copy = LumMultiFileDoc::_changedDateWithData(orb::ByteView(bytes.data(), bytes.size()), *item);
  ASSERT_EQ(copy.size(), bytes.size());
  EXPECT_EQ(find(copy, "1999:12:31 23:59:59"), at);
  for (std::size_t i : differences(bytes, copy)) EXPECT_TRUE(i >= at && i < at + 19) << i;
  EXPECT_EQ(copy[at + 19], 0);  // the NUL stays
}

TEST(RewriteOnFiles, SingleFileRewriteSkipsDisabledPickers) {
  TempFolder folder;
  const auto path = writePhoto(folder, "a.jpg", {kA, std::nullopt, kA});
  const auto bytes = readBytes(path);
  LumError error;
  const auto file = LumImageFile::imageFileWithURL(path, &error);
  ASSERT_TRUE(file);
  const TimeZone utc = TimeZone::gmt();
  DateRewrite::PickerDates pickers{DateAdditions::dateWithY(2001, 2, 3, 4, 5, 6, utc), std::nullopt,
                                   DateAdditions::dateWithY(987, 6, 5, 4, 3, 2, utc)};
  const auto copy = DateRewrite::pMakeNewDateWithData(orb::ByteView(bytes.data(), bytes.size()), *file, pickers);
  const std::size_t original = *file->dateValueOffset(LumDateField::DateTimeOriginal);
  const std::size_t edited = *file->dateValueOffset(LumDateField::DateTime);
  EXPECT_EQ(find(copy, "2001:02:03 04:05:06"), original);
  EXPECT_EQ(find(copy, "0987:06:05 04:03:02"), edited);
  for (std::size_t i : differences(bytes, copy))
    EXPECT_TRUE((i >= original && i < original + 19) || (i >= edited && i < edited + 19)) << i;
}

}  // namespace
