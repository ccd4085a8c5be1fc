#pragma once
// Small generated JPEG photos with the three dates, by the thousand, and the
// bytes each must hold after a shift: for the kill test and the load test.

#include <cstdint>
#include <filesystem>
#include <vector>

#include "documents/DateTextRules.h"

namespace reltest {

// A JPEG of about 1 KB whose three dates differ from photo to photo.
std::vector<std::uint8_t> smallDatedJpeg(int index);

// Writes `count` such photos into folder as img-00000.jpg ...; answers their paths.
std::vector<std::filesystem::path> writeSmallPhotos(const std::filesystem::path& folder, int count);

// The bytes with every date the scan finds shifted by the offsets (what a
// shift must leave in the file); the bytes unchanged when they hold none.
std::vector<std::uint8_t> shiftedBytes(const std::vector<std::uint8_t>& bytes, const DateTextRules::Offsets& offsets);

// Count from an environment variable, or fallback when unset or not a number.
int countFromEnvironment(const char* name, int fallback);

}  // namespace reltest
