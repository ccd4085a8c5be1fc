// `lumidate-cli shift` killed at random moments while it saves a folder of
// photos. After every kill each file must be exactly as it was before that
// run or exactly as the run meant to leave it: never a mix, never shorter.
//
// LUMIDATE_KILL_FILES (default 200) and LUMIDATE_KILLS (default 5) set the
// size; RELIABILITY.md gives the figures of 1000 files and 50 kills.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <thread>

#include "DatedPhotos.h"
#include "SmallPhotos.h"

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace {

const DateTextRules::Offsets kOneDay{0, 0, 1, 0, 0, 0};

int waitFor(pid_t pid) {
  int status = 0;
  ::waitpid(pid, &status, 0);
  return status;
}

TEST(KillDuringSave, EveryFileIsAsBeforeOrAsIntendedAfterEachKill) {
  ASSERT_TRUE(fs::exists(LUMIDATE_CLI_PATH)) << "lumidate-cli is not built at " << LUMIDATE_CLI_PATH;
  const int fileCount = reltest::countFromEnvironment("LUMIDATE_KILL_FILES", 200);
  const int kills = reltest::countFromEnvironment("LUMIDATE_KILLS", 5);
  lumtest::TempFolder folder;
  const auto paths = reltest::writeSmallPhotos(folder.path(), fileCount);
  // Each file as the run found it and as the run means to leave it.
  std::vector<std::vector<std::uint8_t>> before(paths.size()), intended(paths.size());
  const auto refresh = [&] {
    for (std::size_t i = 0; i < paths.size(); ++i)
      intended[i] = reltest::shiftedBytes(before[i] = lumtest::readFile(paths[i]), kOneDay);
  };

  // One whole run first: it must change every file, and it says how long a
  // run takes, so the kills can fall anywhere in one.
  refresh();
  const auto start = Clock::now();
  const int status = waitFor(reltest::startShiftByOneDay(folder.path()));
  const auto runTime = Clock::now() - start;
  ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
  for (std::size_t i = 0; i < paths.size(); ++i) ASSERT_EQ(lumtest::readFile(paths[i]), intended[i]) << paths[i];

  std::mt19937 random(20240601);
  std::uniform_int_distribution<long> moment(0, std::chrono::duration_cast<std::chrono::microseconds>(runTime).count());
  int killsMidSave = 0, mixed = 0;
  for (int k = 0; k < kills; ++k) {
    refresh();
    const pid_t pid = reltest::startShiftByOneDay(folder.path());
    // The kill must land at a random moment of the save, which no signal marks.
    std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));  // UNAVOIDABLE
    ::kill(pid, SIGKILL);
    waitFor(pid);
    std::size_t changed = 0;
    for (std::size_t i = 0; i < paths.size(); ++i) {
      const std::vector<std::uint8_t> now = lumtest::readFile(paths[i]);
      changed += now == intended[i];
      if (now != intended[i] && now != before[i])
        ++mixed, ADD_FAILURE() << "kill " << k << " left " << paths[i] << " neither as before nor as intended";
    }
    if (changed > 0 && changed < paths.size()) ++killsMidSave;
  }
  EXPECT_EQ(mixed, 0);
  reltest::reportFigure("kill test: files", fileCount);
  reltest::reportFigure("kill test: kills survived", kills);
  reltest::reportFigure("kill test: kills that fell inside the saving of the folder", killsMidSave);
  reltest::reportFigure("kill test: seconds for one whole run", std::chrono::duration<double>(runTime).count());
}

}  // namespace
