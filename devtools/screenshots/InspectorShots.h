#pragma once
// Pictures of the inspector window.

#include <filesystem>

#include "ScreenshotSession.h"

class DocumentController;
struct AppContext;

namespace Screenshots {

// The inspector over photo (a GPS-tagged sample), light and dark.
void shootInspector(DocumentController& controller, AppContext& context, Session& session,
                    const std::filesystem::path& photo);

}  // namespace Screenshots
