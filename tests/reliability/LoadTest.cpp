// Many small photos in one document: loaded, shifted, undone, redone and
// saved through the document, then shifted again by `lumidate-cli shift`.
// Memory per file stays small, no file descriptor is left open, and every
// file ends exactly as intended.
//
// LUMIDATE_LOAD_FILES sets the number of files (default 500; RELIABILITY.md
// gives the figures for 20000).
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <fstream>
#include <functional>

#include "DatedPhotos.h"
#include "DocumentHarness.h"
#include "SmallPhotos.h"

namespace fs = std::filesystem;

namespace {

std::size_t openDescriptors() {
  std::size_t n = 0;
  for ([[maybe_unused]] const auto& e : fs::directory_iterator("/proc/self/fd")) ++n;
  return n;
}

// Resident memory now, in KB.
long residentKB() {
  std::ifstream statm("/proc/self/statm");
  long pages = 0, resident = 0;
  statm >> pages >> resident;
  return resident * (::sysconf(_SC_PAGESIZE) / 1024);
}

long peakKB() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

bool mapsAnyFileIn(const fs::path& folder) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);)
    if (line.find(folder.string()) != std::string::npos) return true;
  return false;
}

// Runs `lumidate-cli shift --days 1 folder`; answers its exit status and peak memory.
std::pair<int, long> shiftWithTool(const fs::path& folder) {
  const pid_t pid = reltest::startShiftByOneDay(folder);
  int status = 0;
  rusage usage{};
  ::wait4(pid, &status, 0, &usage);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, usage.ru_maxrss};
}

TEST(Load, ManyFilesStayBoundedLeakNoDescriptorAndEndAsIntended) {
  ASSERT_TRUE(fs::exists(LUMIDATE_CLI_PATH)) << "lumidate-cli is not built at " << LUMIDATE_CLI_PATH;
  const int count = reltest::countFromEnvironment("LUMIDATE_LOAD_FILES", 500);
  reltest::ScratchFolder folder;
  const auto paths = reltest::writeSmallPhotos(folder.path(), count);
  std::vector<std::vector<std::uint8_t>> intended;
  intended.reserve(paths.size());
  for (const fs::path& p : paths) intended.push_back(reltest::shiftedBytes(reltest::readAll(p), {0, 0, 1, 0, 0, 1}));

  reltest::qtApp();
  const std::size_t descriptorsBefore = openDescriptors();
  const long residentBefore = residentKB();
  {
    auto doc = reltest::openDocument(paths);
    ASSERT_EQ(doc->rowCount(), count);
    EXPECT_FALSE(mapsAnyFileIn(folder.path())) << "an opened file stays mapped";
    const std::size_t descriptorsLoaded = openDescriptors();
    const long residentLoaded = residentKB();

    reltest::shiftAllOneDay(*doc);
    ASSERT_EQ(static_cast<int>(doc->editedFileCount()), count);
    doc->undoStack().undo();
    EXPECT_EQ(doc->editedFileCount(), 0u) << "undo left files edited";
    doc->undoStack().redo();
    ASSERT_EQ(static_cast<int>(doc->editedFileCount()), count);

    const auto outcome = reltest::saveAndWait(*doc);
    ASSERT_TRUE(outcome.has_value());
    EXPECT_TRUE(outcome->failures.empty());
    const std::size_t descriptorsSaved = openDescriptors();
    const long peak = peakKB();

    EXPECT_LE(descriptorsLoaded, descriptorsBefore + 2) << "loading keeps descriptors open";
    EXPECT_LE(descriptorsSaved, descriptorsBefore + 2) << "saving keeps descriptors open";
    const double perFileKB = static_cast<double>(residentLoaded - residentBefore) / count;
    EXPECT_LT(perFileKB, 64.0) << "each opened file holds this much memory";
    reltest::reportFigure("load: files", count);
    reltest::reportFigure("load: resident KB per file opened", perFileKB);
    reltest::reportFigure("load: process peak resident MB", static_cast<double>(peak) / 1024.0);
    reltest::reportFigure("load: open descriptors before loading", static_cast<double>(descriptorsBefore));
    reltest::reportFigure("load: open descriptors after loading", static_cast<double>(descriptorsLoaded));
    reltest::reportFigure("load: open descriptors after saving", static_cast<double>(descriptorsSaved));
  }
  for (std::size_t i = 0; i < paths.size(); ++i) ASSERT_EQ(reltest::readAll(paths[i]), intended[i]) << paths[i];
  EXPECT_EQ(openDescriptors(), descriptorsBefore) << "closing the document left descriptors open";

  // The same folder once more through the command-line tool.
  for (std::size_t i = 0; i < paths.size(); ++i)
    intended[i] = reltest::shiftedBytes(reltest::readAll(paths[i]), {0, 0, 1, 0, 0, 0});
  const auto [status, toolPeakKB] = shiftWithTool(folder.path());
  EXPECT_EQ(status, 0);
  for (std::size_t i = 0; i < paths.size(); ++i) ASSERT_EQ(reltest::readAll(paths[i]), intended[i]) << paths[i];
  reltest::reportFigure("load: command-line peak resident MB", static_cast<double>(toolPeakKB) / 1024.0);
  reltest::reportFigure("load: command-line peak resident KB per file", static_cast<double>(toolPeakKB) / count);
}

// A file changed by another program after the document opened it is not
// saved, and keeps the bytes the other program left; the others are saved.
TEST(Load, FilesChangedAfterOpeningAreNotWritten) {
  const std::function<void(const fs::path&)> changes[] = {
      nullptr,  // left alone: saved
      [](const fs::path& p) { fs::resize_file(p, fs::file_size(p) / 2); },
      [](const fs::path& p) {  // replaced by a copy of itself with the same time
        fs::copy_file(p, p.string() + ".copy");
        fs::last_write_time(p.string() + ".copy", fs::last_write_time(p));
        fs::rename(p.string() + ".copy", p);
      },
  };
  reltest::ScratchFolder folder;
  const auto paths = reltest::writeSmallPhotos(folder.path(), static_cast<int>(std::size(changes)));
  reltest::qtApp();
  auto doc = reltest::openDocument(paths);
  reltest::shiftAllOneDay(*doc);
  std::vector<std::vector<std::uint8_t>> before;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (changes[i]) changes[i](paths[i]);
    before.push_back(reltest::readAll(paths[i]));
  }
  const auto outcome = reltest::saveAndWait(*doc);
  ASSERT_TRUE(outcome.has_value());
  ASSERT_EQ(outcome->failures.size(), 2u);
  for (const SaveReport::Failure& f : outcome->failures) EXPECT_EQ(f.reason, InPlaceWriter::kChangedOnDiskReason);
  EXPECT_EQ(reltest::readAll(paths[0]), reltest::shiftedBytes(before[0], {0, 0, 1, 0, 0, 1}));
  for (std::size_t i = 1; i < paths.size(); ++i) EXPECT_EQ(reltest::readAll(paths[i]), before[i]) << paths[i];
}

}  // namespace
