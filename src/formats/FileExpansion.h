#pragma once
// Turns the paths a user hands over (files and folders) into the photo files
// to open, the way the file manager would list them.
//
// A folder contributes every file below it, at any depth, whose extension is
// a photo's (PhotoExtensions.h: the JPEG and TIFF ones compared exactly, the
// RAW, HEIF, PNG and WebP ones in any case); a file contributes itself under
// the same rule, or when it is a video (.mp4, .mov: refused with its reason
// when opened, where a folder's videos are passed over). No file is taken
// twice. The result is sorted by path with numbers inside names compared by
// value ("img2" before "img10") and letters without regard to case.

#include <compare>
#include <filesystem>
#include <string_view>
#include <vector>

namespace FileExpansion {

bool hasAcceptedExtension(const std::filesystem::path& path);
bool hasVideoExtension(const std::filesystem::path& path);

// Natural order of two names: runs of digits compare by value, other
// characters case-insensitively; ties are broken by the exact bytes.
std::strong_ordering naturalCompare(std::string_view a, std::string_view b);

// Paths compared folder by folder with naturalCompare.
bool naturalPathLess(const std::filesystem::path& a, const std::filesystem::path& b);

struct Expansion {
  std::vector<std::filesystem::path> files;    // sorted, each once
  std::vector<std::filesystem::path> missing;  // arguments that do not exist
};

Expansion allPhotoPaths(const std::vector<std::filesystem::path>& paths);

}  // namespace FileExpansion
