#pragma once
// The multi-file and single-file windows in Japanese ("multi-ja",
// "single-ja"): the program's translations for Japan are installed, so
// everything made afterwards speaks Japanese. Run it last.

#include <filesystem>

#include "ScreenshotSession.h"

namespace Screenshots {

// Pictures the photos of folder (the readable ones); answers how many
// pictures were written.
int shootInJapanese(const std::filesystem::path& folder, Session& session);

}  // namespace Screenshots
