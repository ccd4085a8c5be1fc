// Many small photos in one document: loaded, shifted, undone, redone and
// saved through the document, then shifted again by `lumidate-cli shift`.
// Memory per file stays small, no file descriptor is left open, and every
// file ends exactly as intended.
//
// LUMIDATE_LOAD_FILES sets the number of files (default 500; RELIABILITY.md
// gives the figures for 20000).
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QTest>

#include <fstream>

#include "DatedPhotos.h"
#include "documents/PhotoFiles.h"
#include "SmallPhotos.h"

namespace fs = std::filesystem;

namespace {

double openDescriptors() {
  return static_cast<double>(std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

// The descriptors open once they came down to at most limit, or after 5 s:
// a worker thread that has just handed its result over still holds its
// event descriptor until it has ended.
double settledDescriptors(double limit) {
  (void)QTest::qWaitFor([limit] { return openDescriptors() <= limit; }, 5000);
  return openDescriptors();
}

// Resident memory now, in KB.
double residentKB() {
  long pages = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident * (::sysconf(_SC_PAGESIZE) / 1024));
}

TEST(Load, ManyFilesStayBoundedLeakNoDescriptorAndEndAsIntended) {
  ASSERT_TRUE(fs::exists(LUMIDATE_CLI_PATH)) << "lumidate-cli is not built at " << LUMIDATE_CLI_PATH;
  const int count = reltest::countFromEnvironment("LUMIDATE_LOAD_FILES", 500);
  lumtest::TempFolder folder;
  const auto paths = reltest::writeSmallPhotos(folder.path(), count);
  std::vector<std::vector<std::uint8_t>> intended;
  for (const fs::path& p : paths) intended.push_back(reltest::shiftedBytes(lumtest::readFile(p), {0, 0, 1, 0, 0, 1}));

  doctest_support::ensureApplication();
  const double descriptorsBefore = openDescriptors(), residentBefore = residentKB();
  {
    auto doc = doctest_support::openDocument(paths);
    ASSERT_EQ(doc->rowCount(), count);
    const double descriptorsLoaded = settledDescriptors(descriptorsBefore + 2), perFileKB = (residentKB() - residentBefore) / count;
    // That an opened file stays unmapped is the image file suite's.

    reltest::shiftAllOneDay(*doc);
    doc->undoStack().undo();
    EXPECT_EQ(doc->editedFileCount(), 0u) << "undo left files edited";
    doc->undoStack().redo();
    ASSERT_EQ(static_cast<int>(doc->editedFileCount()), count);
    const auto outcome = doctest_support::saveAndWait(*doc);
    ASSERT_TRUE(outcome.has_value());
    EXPECT_TRUE(outcome->failures.empty());
    const double descriptorsSaved = settledDescriptors(descriptorsBefore + 2);
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);

    EXPECT_LE(descriptorsLoaded, descriptorsBefore + 2) << "loading keeps descriptors open";
    EXPECT_LE(descriptorsSaved, descriptorsBefore + 2) << "saving keeps descriptors open";
    EXPECT_LT(perFileKB, 64.0) << "each opened file holds this much memory";
    reltest::reportFigure("load: files", count);
    reltest::reportFigure("load: resident KB per file opened", perFileKB);
    reltest::reportFigure("load: process peak resident MB", static_cast<double>(usage.ru_maxrss) / 1024.0);
    reltest::reportFigure("load: open descriptors before loading", descriptorsBefore);
    reltest::reportFigure("load: open descriptors after loading", descriptorsLoaded);
    reltest::reportFigure("load: open descriptors after saving", descriptorsSaved);
  }
  for (std::size_t i = 0; i < paths.size(); ++i) ASSERT_EQ(lumtest::readFile(paths[i]), intended[i]) << paths[i];
  EXPECT_EQ(settledDescriptors(descriptorsBefore), descriptorsBefore) << "closing the document left descriptors open";

  // The same folder once more through the command-line tool, for its memory
  // figures (what a whole run leaves in each file is the kill test's first run).
  int status = 0;
  rusage usage{};
  ::wait4(reltest::startShiftByOneDay(folder.path()), &status, 0, &usage);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  reltest::reportFigure("load: command-line peak resident MB", static_cast<double>(usage.ru_maxrss) / 1024.0);
  reltest::reportFigure("load: command-line peak resident KB per file", static_cast<double>(usage.ru_maxrss) / count);
}

}  // namespace
