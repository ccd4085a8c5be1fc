#pragma once
// Pictures of the image viewer: a sample photo with its information text,
// in light and dark colours.

#include <filesystem>

class Settings;

namespace Screenshots {

class Session;

// samples: the scratch copy of the sample folder (a photo is added there).
void shootViewer(Session& session, Settings& settings, const std::filesystem::path& samples);

}  // namespace Screenshots
