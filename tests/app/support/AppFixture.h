#pragma once
// What the window tests share: settings in a temporary file, the fake
// prompts, the shared actions, a document controller and photo files in a
// scratch folder.

#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTemporaryDir>
#include <QUndoGroup>

#include "app/AppActions.h"
#include "app/AppContext.h"
#include "app/DocumentController.h"
#include "app/DocumentWindow.h"
#include "app/multi/MultiFileWindow.h"
#include "app/single/SingleFileWindow.h"
#include "app/preferences/Settings.h"
#include "app/support/FakePrompts.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/PhotoFiles.h"

struct AppFixture {
  QTemporaryDir settingsDir;
  QSettings store{settingsDir.filePath("settings.ini"), QSettings::IniFormat};
  Settings settings{store};
  FakePrompts prompts;
  QUndoGroup undoGroup;
  AppActions actions{undoGroup};
  AppContext context{settings, prompts, actions};
  doctest_support::TempFolder folder;
  // The defaults are in place before the controller reads the list size.
  DocumentController controller{(settings.registerDefaults(), context), undoGroup};

  std::filesystem::path photo(const std::string& name,
                              const doctest_support::PhotoDates& dates = {"2020:01:31 10:00:00",
                                                                          "2020:01:31 10:00:00", std::nullopt}) {
    return doctest_support::writePhoto(folder, name, dates);
  }
  // A shown single-file window over a photo; none when it cannot be read.
  std::unique_ptr<SingleFileWindow> openSingle(const std::filesystem::path& path) {
    auto doc = std::make_unique<LumSingleFileDoc>();
    if (!doc->readFromURL(path, "JPEG", nullptr)) return nullptr;
    auto window = std::make_unique<SingleFileWindow>(std::move(doc), context);
    window->show();
    return window;
  }
  std::unique_ptr<SingleFileWindow> openSingle(const std::string& name, const doctest_support::PhotoDates& dates) {
    return openSingle(photo(name, dates));
  }
  // Runs an opening and waits until it is over.
  bool waitForOpening(const std::function<void()>& start) {
    QSignalSpy finished(&controller, &DocumentController::openingFinished);
    start();
    return finished.count() > 0 || finished.wait(20000);
  }
  // The files of the one multi-file window, in row order; none if there are
  // no such windows or several.
  std::vector<std::filesystem::path> multiWindowRows() const {
    std::vector<MultiFileWindow*> multi;
    for (DocumentWindow* window : controller.windows())
      if (auto* found = dynamic_cast<MultiFileWindow*>(window)) multi.push_back(found);
    std::vector<std::filesystem::path> rows;
    for (int row = 0; multi.size() == 1 && row < multi[0]->document().rowCount(); ++row)
      rows.push_back(multi[0]->document().item(row).path());
    return rows;
  }
};

// Types an hour into a picker's field and ends the editing, as the picker
// control does.
inline void typeHour(OrbDatePicker& picker, const char* hour) {
  picker.setFocused(OrbDatePicker::Control::hourField);
  QVERIFY(picker.controlTextDidChange(OrbDatePicker::Control::hourField, hour));
  picker.controlTextDidEndEditing(OrbDatePicker::Control::hourField);
}
