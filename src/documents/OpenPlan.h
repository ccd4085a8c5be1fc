#pragma once
// The rules of an opening: which of the chosen photo files still need a
// window, and which get a window of their own and which share one.

#include <cstddef>
#include <filesystem>
#include <vector>

namespace OpenPlan {

// At most this many files open in windows of their own at once; the rest
// of an opening shares one multi-file window.
inline constexpr std::size_t kMaxSeparateWindows = 50;

// files without those that are open already (order kept).
std::vector<std::filesystem::path> removeOpen(const std::vector<std::filesystem::path>& files,
                                              const std::vector<std::filesystem::path>& open);

struct Split {
  std::vector<std::filesystem::path> separate;  // one window each, in order
  std::vector<std::filesystem::path> together;  // one multi-file window
};
// One file always gets its own window. With separate windows the first 50
// files get their own and the rest share one; otherwise all share one.
Split split(const std::vector<std::filesystem::path>& files, bool separateWindows);

}  // namespace OpenPlan
