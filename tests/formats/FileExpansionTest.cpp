#include "formats/FileExpansion.h"

#include <gtest/gtest.h>

namespace {

// JPEG and TIFF in their eight exact spellings, the other photo formats in
// any case; videos and look-alikes are not taken.
TEST(FileExpansion, AcceptedExtensions) {
  const std::pair<const char*, bool> cases[] = {
      {"a.jpg", true},      {"a.JPEG", true},     {"a.TIF", true},     {"a.tiff", true},      {"a.Jpg", false},
      {"a.Tif", false},     {"a.jpe", false},     {"jpg", false},      {"a.jpg.bak", false},  {"dir.jpg/b", false},
      {"a.dng", true},      {"a.CR2", true},      {"a.Nef", true},     {"a.3FR", true},       {"a.rwl", true},
      {"a.ORF", true},      {"a.rw2", true},      {"a.RaF", true},     {"a.cr3", true},       {"a.HEIC", true},
      {"a.heif", true},     {"a.HIF", true},      {"a.avif", true},    {"a.png", true},       {"a.WEBP", true},
      {"a.mp4", false},     {"a.MOV", false},     {"a.crw", false},    {"a.heics", false},    {"a.pn", false},
      {"png", false},       {"a.", false},        {"a.png.txt", false}, {"a.\xC3\x89rf", false},
  };
  for (const auto& [name, accepted] : cases) EXPECT_EQ(FileExpansion::hasAcceptedExtension(name), accepted) << name;
}

TEST(FileExpansion, NaturalOrder) {
  // Each name sorts strictly before the next.
  const char* ordered[] = {"IMG1.jpg", "img2.jpg", "IMG10.jpg", "img010b.jpg", "img10c.jpg"};
  for (std::size_t i = 0; i + 1 < std::size(ordered); ++i) {
    EXPECT_TRUE(FileExpansion::naturalCompare(ordered[i], ordered[i + 1]) < 0) << ordered[i] << " < " << ordered[i + 1];
    EXPECT_TRUE(FileExpansion::naturalCompare(ordered[i + 1], ordered[i]) > 0) << ordered[i + 1] << " > " << ordered[i];
  }
  EXPECT_TRUE(FileExpansion::naturalCompare("a1.jpg", "a1.jpg") == 0);
  EXPECT_TRUE(FileExpansion::naturalCompare("a99999999999999999999999.jpg", "a100000000000000000000000.jpg") < 0);
  // Folders compare before the names in them.
  EXPECT_TRUE(FileExpansion::naturalPathLess("d/z.jpg", "d 2/a.jpg"));
  EXPECT_TRUE(FileExpansion::naturalPathLess("d2/z.jpg", "d10/a.jpg"));
  EXPECT_TRUE(FileExpansion::naturalPathLess("d", "d/a.jpg"));
}

}  // namespace
