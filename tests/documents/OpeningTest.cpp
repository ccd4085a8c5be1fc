// Opening: the background loader (its folder expansion is taken through
// the document controller's folder opening), the opening rules and the failure alert.
#include <QSignalSpy>
#include <gtest/gtest.h>

#include "PhotoFiles.h"
#include "documents/LumFileLoader.h"
#include "documents/OpenFailureReport.h"
#include "documents/OpenPlan.h"

using namespace doctest_support;
namespace fs = std::filesystem;

namespace {

std::vector<fs::path> writePhotos(const TempFolder& folder, int count) {
  std::vector<fs::path> paths;
  const std::vector<std::uint8_t> bytes = photoBytes({"2020:01:31 10:00:00", std::nullopt, std::nullopt});
  for (int i = 0; i < count; ++i) {
    paths.push_back(folder / ("p" + std::to_string(i) + ".jpg"));
    writeBytes(paths.back(), bytes);
  }
  return paths;
}

struct LoaderFixture : ::testing::Test {
  TempFolder folder;
  void SetUp() override { ensureApplication(); }
};

TEST_F(LoaderFixture, LoadsEveryFileAndReportsTheUnreadable) {
  std::vector<fs::path> paths = writePhotos(folder, 120);
  writeBytes(folder / "bad.jpg", {'x', 'y'});
  paths.push_back(folder / "bad.jpg");
  paths.push_back(folder / "gone.jpg");
  LumFileLoader loader;
  QSignalSpy progress(&loader, &LumFileLoader::progress);
  QSignalSpy finished(&loader, &LumFileLoader::finished);
  loader.load(paths);
  ASSERT_TRUE(finished.wait(20000));
  LumFileLoader::Result result = loader.takeResult();
  EXPECT_FALSE(result.cancelled);
  EXPECT_EQ(result.files.size(), 120u);
  ASSERT_EQ(result.failures.size(), 2u);
  for (const LumErrorInfo& failure : result.failures) {
    EXPECT_EQ(failure.error.domain, kLumErrorDomain);
    EXPECT_EQ(failure.error.code, failure.url.filename() == "bad.jpg" ? -1 : -2);
  }
  ASSERT_FALSE(progress.isEmpty());
  EXPECT_EQ(progress.back()[0].value<std::size_t>(), paths.size());
  EXPECT_EQ(progress.back()[1].value<std::size_t>(), paths.size());
}

TEST_F(LoaderFixture, CancelStopsTheWorkersAndHandsNothingOver) {
  const std::vector<fs::path> paths = writePhotos(folder, 3000);
  LumFileLoader loader;
  QSignalSpy finished(&loader, &LumFileLoader::finished);
  loader.load(paths);
  loader.cancel();
  ASSERT_TRUE(finished.wait(20000));
  EXPECT_LT(loader.doneCount(), paths.size());
  const LumFileLoader::Result result = loader.takeResult();
  EXPECT_TRUE(result.cancelled && result.files.empty() && result.failures.empty());
}

std::vector<fs::path> numbered(int count) {
  std::vector<fs::path> paths;
  for (int i = 0; i < count; ++i) paths.emplace_back("/p/" + std::to_string(i) + ".jpg");
  return paths;
}

TEST(OpenPlan, SplitsIntoOwnAndSharedWindows) {
  struct Case {
    int files;
    bool separate;
    std::size_t own, shared;
  };
  for (const Case& c : {Case{1, false, 1, 0}, Case{3, false, 0, 3}, Case{3, true, 3, 0}, Case{50, true, 50, 0},
                        Case{60, true, 50, 10}, Case{0, true, 0, 0}}) {
    const OpenPlan::Split split = OpenPlan::split(numbered(c.files), c.separate);
    EXPECT_EQ(split.separate.size(), c.own) << c.files << " " << c.separate;
    EXPECT_EQ(split.together.size(), c.shared) << c.files << " " << c.separate;
    if (!split.together.empty()) {
      EXPECT_EQ(split.together.front(), numbered(c.files)[c.own]);
    }
  }
}

TEST(OpenPlan, DropsFilesAlreadyOpen) {
  const std::vector<fs::path> files = numbered(4);
  EXPECT_EQ(OpenPlan::removeOpen(files, {files[2], "/other.jpg", files[0]}),
            (std::vector<fs::path>{files[1], files[3]}));
}

TEST(OpenFailureReport, NamesTheFileOrListsThePaths) {
  const LumError unknownFormat{kLumErrorDomain, -1, {}}, unknownCause{kLumErrorDomain, -2, {}};
  const LumError other{"OtherDomain", -1, {}}, video{kLumErrorDomain, kLumErrorRefused, "videos are not edited yet"};
  const QString format = "It uses a file format that Lumidate does not recognize.", cause = "An unknown cause.";
  struct Case {
    std::vector<LumErrorInfo> failures;
    QString message, informative;
    QStringList paths;
  };
  const std::vector<Case> cases{
      {{{"/p/b.jpg", unknownFormat}}, "\"b.jpg\" could not be opened.", format, {}},
      {{{"/p/b.jpg", unknownCause}}, "\"b.jpg\" could not be opened.", cause, {}},
      {{{"/p/b.jpg", other}}, "\"b.jpg\" could not be opened.", "", {}},
      {{{"/p/c.mov", video}}, "\"c.mov\" could not be opened.", "Videos are not edited yet.", {}},
      {{{"/p/c.mov", video}, {"/p/a.jpg", unknownCause}}, "The files could not be opened.", format,
       {"/p/c.mov", "/p/a.jpg"}},
      {{{"/p/a.jpg", unknownCause}, {"/p/b.jpg", unknownFormat}},
       "The files could not be opened.", format, {"/p/a.jpg", "/p/b.jpg"}},
      {{{"/p/a.jpg", other}, {"/p/b.jpg", unknownCause}}, "The files could not be opened.", cause,
       {"/p/a.jpg", "/p/b.jpg"}},
  };
  for (const Case& c : cases) {
    const auto texts = OpenFailureReport::alertTexts(c.failures);
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->message, c.message);
    EXPECT_EQ(texts->informativeText, c.informative);
    EXPECT_EQ(texts->paths, c.paths);
  }
  EXPECT_FALSE(OpenFailureReport::alertTexts({}));
}

}  // namespace
