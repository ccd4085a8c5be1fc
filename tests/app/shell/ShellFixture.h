#pragma once
// What the shell tests share: settings in a temporary file, the fake
// prompts, a document controller and photo files in a scratch folder.

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUndoGroup>

#include <memory>

#include "app/AppActions.h"
#include "app/AppContext.h"
#include "app/DocumentController.h"
#include "app/DocumentWindow.h"
#include "app/multi/MultiFileWindow.h"
#include "app/preferences/Settings.h"
#include "app/support/FakePrompts.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/PhotoFiles.h"

struct ShellFixture {
  QTemporaryDir settingsDir;
  QSettings store{settingsDir.filePath("settings.ini"), QSettings::IniFormat};
  Settings settings{store};
  FakePrompts prompts;
  QUndoGroup undoGroup;
  AppActions actions{undoGroup};
  AppContext context{settings, prompts, actions};
  doctest_support::TempFolder folder;
  DocumentController controller{context, undoGroup};

  ShellFixture() {
    settings.registerDefaults();
  }

  std::filesystem::path photo(const std::string& name) {
    return doctest_support::writePhoto(folder, name, {"2020:01:31 10:00:00", "2020:01:31 10:00:00", std::nullopt});
  }
  // Runs an opening and waits until it is over.
  bool waitForOpening(const std::function<void()>& start) {
    QSignalSpy finished(&controller, &DocumentController::openingFinished);
    start();
    return finished.count() > 0 || finished.wait(20000);
  }
  std::vector<MultiFileWindow*> multiWindows() const {
    std::vector<MultiFileWindow*> found;
    for (DocumentWindow* window : controller.windows())
      if (auto* multi = dynamic_cast<MultiFileWindow*>(window)) found.push_back(multi);
    return found;
  }
};
