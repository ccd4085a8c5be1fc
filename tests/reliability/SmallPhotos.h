#pragma once
// Small generated JPEG photos with the three dates, by the thousand, and the
// bytes each must hold after a shift: for the kill test and the load test.

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <vector>

#include "documents/DateTextRules.h"
#include "documents/LumMultiFileDoc.h"

namespace reltest {

// A JPEG of about 1 KB whose three dates differ from photo to photo.
std::vector<std::uint8_t> smallDatedJpeg(int index);

// Writes `count` such photos into folder as img-00000.jpg ...; answers their paths.
std::vector<std::filesystem::path> writeSmallPhotos(const std::filesystem::path& folder, int count);

// The bytes with every date text in them shifted by the offsets (what a shift
// must leave in the file); only days, hours, minutes and seconds.
std::vector<std::uint8_t> shiftedBytes(const std::vector<std::uint8_t>& bytes, const DateTextRules::Offsets& offsets);

// Marks every row and applies a shift of one day and one second forward.
inline void shiftAllOneDay(LumMultiFileDoc& doc) {
  doc.changeActionMode(LumActionMode::Forward);
  doc.setFieldValues({0, 0, 1, 0, 0, 1});
  doc.setEditTargetMask(DateTargets::kAllMask);
  doc.setEditStateOnAllFiles();
  doc.applyToAllFiles();
}

// Count from an environment variable, or fallback when unset or not a number.
int countFromEnvironment(const char* name, int fallback);

// Starts `lumidate-cli shift --days 1 folder` as a child process with its
// output thrown away; answers the child's pid.
inline pid_t startShiftByOneDay(const std::filesystem::path& folder) {
  const pid_t pid = ::fork();
  if (pid == 0) {
    const int null = ::open("/dev/null", O_WRONLY);
    ::dup2(null, STDOUT_FILENO);
    ::dup2(null, STDERR_FILENO);
    ::execl(LUMIDATE_CLI_PATH, LUMIDATE_CLI_PATH, "shift", "--days", "1", folder.c_str(), static_cast<char*>(nullptr));
    ::_exit(127);
  }
  return pid;
}

}  // namespace reltest
