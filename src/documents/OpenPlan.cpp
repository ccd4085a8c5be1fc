#include "documents/OpenPlan.h"

#include <algorithm>
#include <set>

namespace OpenPlan {

std::vector<std::filesystem::path> removeOpen(const std::vector<std::filesystem::path>& files,
                                              const std::vector<std::filesystem::path>& open) {
  const std::set<std::filesystem::path> openSet(open.begin(), open.end());
  std::vector<std::filesystem::path> left;
  std::copy_if(files.begin(), files.end(), std::back_inserter(left),
               [&](const std::filesystem::path& file) { return !openSet.contains(file); });
  return left;
}

Split split(const std::vector<std::filesystem::path>& files, bool separateWindows) {
  Split result;
  if (files.size() != 1 && !separateWindows) {
    result.together = files;
    return result;
  }
  const std::size_t own = std::min(files.size(), kMaxSeparateWindows);
  const auto middle = files.begin() + static_cast<std::ptrdiff_t>(own);
  result.separate.assign(files.begin(), middle);
  result.together.assign(middle, files.end());
  return result;
}

}  // namespace OpenPlan
