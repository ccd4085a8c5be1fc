#include "formats/FileExpansion.h"

#include <gtest/gtest.h>

namespace {

TEST(FileExpansion, AcceptsOnlyTheJpegAndTiffExtensions) {
  const std::pair<const char*, bool> cases[] = {
      {"a.jpg", true}, {"a.JPEG", true}, {"a.TIF", true}, {"a.tiff", true}, {"a.Jpg", false}, {"a.png", false},
      {"a.jpe", false}, {"jpg", false}, {"a.jpg.bak", false}, {"dir.jpg/b", false},
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
