#include "formats/FileExpansion.h"

#include <gtest/gtest.h>

#include <fstream>

namespace fs = std::filesystem;

namespace {

TEST(FileExpansion, AcceptsExactlyTheEightExtensions) {
  const std::pair<const char*, bool> cases[] = {
      {"a.jpg", true},  {"a.JPG", true},  {"a.jpeg", true}, {"a.JPEG", true}, {"a.tif", true},
      {"a.TIF", true},  {"a.tiff", true}, {"a.TIFF", true}, {"a.Jpg", false}, {"a.png", false},
      {"a.jpe", false}, {"jpg", false},   {"a.jpg.bak", false}, {"dir.jpg/b", false},
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

class FileExpansionTree : public ::testing::Test {
 protected:
  void SetUp() override {
    root_ = fs::temp_directory_path() / ("lum-expand-" + std::to_string(::getpid()));
    fs::remove_all(root_);
    for (const char* name : {"a.jpg", "b.JPG", "c.png", "sub/d.tif", "sub/deeper/e10.jpeg", "sub/deeper/e9.jpeg"}) {
      fs::create_directories((root_ / name).parent_path());
      std::ofstream(root_ / name) << "x";
    }
  }
  void TearDown() override { fs::remove_all(root_); }
  fs::path root_;
};

TEST_F(FileExpansionTree, FoldersAreSearchedAtAnyDepthSortedAndTakenOnce) {
  const auto result = FileExpansion::allPhotoPaths({root_, root_ / "a.jpg", root_ / "sub" / ".." / "b.JPG",
                                                    root_ / "c.png", root_ / "missing.jpg"});
  const std::vector<fs::path> expected = {root_ / "a.jpg", root_ / "b.JPG", root_ / "sub/d.tif",
                                          root_ / "sub/deeper/e9.jpeg", root_ / "sub/deeper/e10.jpeg"};
  EXPECT_EQ(result.files, expected);
  EXPECT_EQ(result.missing, std::vector<fs::path>{root_ / "missing.jpg"});
}

}  // namespace
