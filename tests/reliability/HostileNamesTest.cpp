// Photo names and folders a hostile or careless world hands over: odd bytes
// in names, very long paths, links, link loops, files vanishing mid-walk.
// The folder expansion must find exactly the photos, never loop, never throw;
// saving must go through links to the photo they point at.
#include <sys/stat.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <set>
#include <thread>

#include "DatedPhotos.h"
#include "documents/PhotoFiles.h"
#include "SmallPhotos.h"
#include "formats/FileExpansion.h"

namespace fs = std::filesystem;

namespace {

const DateTextRules::Offsets kOneDayOneSecond{0, 0, 1, 0, 0, 1};

// Names that break naive quoting, splitting or text conversion.
const std::string kHostileNames[] = {
    "with space.jpg", "  leading and trailing  .jpg", "quote's \"double\".jpg", "line\nbreak.jpg", "tab\there.JPG",
    "\xff\xfe not utf-8 \x80.jpg", "-dash-first.jpeg", "star*and?mark.tif.jpg", "back\\slash.jpg", "percent %s %n.jpg",
    "日本語の写真.jpg", std::string(250, 'n') + ".jpg", "dollar $(echo x).jpg", "semicolon; rm.jpg"};

std::set<fs::path> asSet(const std::vector<fs::path>& paths) { return {paths.begin(), paths.end()}; }

// A path of nested folders `total` bytes long (made step by step, since the
// whole path may be longer than the system takes in one call).
fs::path deepFolder(const fs::path& root, std::size_t total) {
  const std::string part(200, 'd');
  fs::path p = root;
  while (p.native().size() + part.size() + 1 < total) {
    p /= part;
    ::mkdir(p.c_str(), 0700);
  }
  return p;
}

// Hostile names, a path just below the system's limit and a link to a photo
// kept elsewhere: the walk finds each once, and saving writes through to the
// photo, leaving the link a link.
TEST(HostileNames, ExpansionFindsEveryPhotoAndSavingWritesEach) {
  lumtest::TempFolder root;
  const fs::path album = root.path() / "album", store = root.path() / "store";
  for (const fs::path& d : {album, store}) fs::create_directory(d);
  std::set<fs::path> photos;
  int index = 0;
  for (const std::string& name : kHostileNames) lumtest::writeFile(*photos.insert(album / name).first, reltest::smallDatedJpeg(index++));
  lumtest::writeFile(album / "notes.txt", {'x'});
  lumtest::writeFile(album / "no-extension", reltest::smallDatedJpeg(99));
  const fs::path deep = *photos.insert(deepFolder(album, 4000) / "deep.jpg").first;
  lumtest::writeFile(deep, reltest::smallDatedJpeg(7));
  ASSERT_TRUE(fs::exists(deep)) << "the system refused a path of " << deep.native().size() << " bytes";
  lumtest::writeFile(store / "real.jpg", reltest::smallDatedJpeg(3));
  fs::create_symlink("../store/real.jpg", *photos.insert(album / "link.jpg").first);

  const auto expansion = FileExpansion::allPhotoPaths({album});
  EXPECT_EQ(asSet(expansion.files), photos);
  EXPECT_EQ(expansion.files.size(), photos.size()) << "a file was taken twice";
  std::map<fs::path, std::vector<std::uint8_t>> intended;
  for (const fs::path& p : photos) intended[p] = reltest::shiftedBytes(lumtest::readFile(p), kOneDayOneSecond);
  auto doc = doctest_support::openDocument(expansion.files);
  reltest::shiftAllOneDay(*doc);
  const auto outcome = doctest_support::saveAndWait(*doc);
  ASSERT_TRUE(outcome && outcome->failures.empty());
  for (const fs::path& p : photos) EXPECT_EQ(lumtest::readFile(p), intended[p]) << p;
  EXPECT_TRUE(fs::is_symlink(album / "link.jpg")) << "the link was replaced by a file";
}

// Beyond the system's path limit, link loops and dangling links: the walk
// ends quietly and finds the photo once.
TEST(HostileNames, LongPathsAndLinkLoopsEndTheWalk) {
  lumtest::TempFolder folder;
  const fs::path sub = folder.path() / "sub";
  fs::create_directory(sub);
  lumtest::writeFile(sub / "photo.jpg", reltest::smallDatedJpeg(4));
  deepFolder(folder.path(), 4600);
  fs::create_directory_symlink(".", sub / "self");      // sub/self/self/... forever
  fs::create_directory_symlink("..", sub / "up");       // back to the top
  fs::create_symlink("a.jpg", folder.path() / "b.jpg");  // a.jpg -> b.jpg -> a.jpg
  fs::create_symlink("b.jpg", folder.path() / "a.jpg");
  fs::create_symlink("nowhere.jpg", folder.path() / "dangling.jpg");

  FileExpansion::Expansion expansion;
  ASSERT_NO_THROW(expansion = FileExpansion::allPhotoPaths({folder.path(), sub / "self" / "self" / "self"}));
  for (const fs::path& p : expansion.files) EXPECT_LT(p.native().size(), 4096u);
  // The photo is found (perhaps also through the links handed over by name),
  // and nothing is found forever.
  EXPECT_LE(expansion.files.size(), 8u);
  EXPECT_EQ(std::count(expansion.files.begin(), expansion.files.end(), sub / "photo.jpg"), 1);
  // Links that lead nowhere open as nothing and do not stop the others.
  EXPECT_GE(doctest_support::openDocument(expansion.files)->rowCount(), 1);
}

// Folders removed while the walk runs are passed over; the photos in the
// other folders are all still found.
TEST(HostileNames, FoldersVanishingDuringTheWalkDoNotHideTheOtherPhotos) {
  lumtest::TempFolder folder;
  std::set<fs::path> stable;
  std::vector<fs::path> doomed;
  for (int i = 0; i < 40; ++i) {
    const fs::path keep = folder.path() / ("keep-" + std::to_string(i)), gone = folder.path() / ("gone-" + std::to_string(i));
    fs::create_directories(keep);
    fs::create_directories(doomed.emplace_back(gone));
    lumtest::writeFile(*stable.insert(keep / "photo.jpg").first, {0xFF, 0xD8});
    for (int j = 0; j < 20; ++j) lumtest::writeFile(gone / ("p" + std::to_string(j) + ".jpg"), {0xFF, 0xD8});
  }
  std::atomic<bool> done{false};
  std::thread remover([&] {
    std::error_code ignored;
    for (const fs::path& d : doomed) fs::remove_all(d, ignored), std::this_thread::yield();
    done = true;
  });
  int walks = 0, incomplete = 0;
  while (!done || walks == 0) {
    FileExpansion::Expansion expansion;
    ASSERT_NO_THROW(expansion = FileExpansion::allPhotoPaths({folder.path()}));
    const std::set<fs::path> found = asSet(expansion.files);
    ++walks;
    if (!std::includes(found.begin(), found.end(), stable.begin(), stable.end())) ++incomplete;
  }
  remover.join();
  EXPECT_EQ(incomplete, 0) << "of " << walks << " walks, " << incomplete
                           << " lost photos that were there all along because another folder vanished";
}

}  // namespace
