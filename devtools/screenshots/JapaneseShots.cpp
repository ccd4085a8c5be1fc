#include "JapaneseShots.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoGroup>

#include <cstdio>
#include <functional>

#include "app/AppActions.h"
#include "app/DialogPrompts.h"
#include "app/DocumentController.h"
#include "app/ToolWindows.h"
#include "app/calculator/DayCalculatorWindow.h"
#include "app/inspector/InfoWindow.h"
#include "app/multi/MultiFileWindow.h"
#include "app/preferences/Settings.h"
#include "app/single/PhotoView.h"
#include "app/single/SingleFileWindow.h"
#include "app/startup/Translations.h"

namespace fs = std::filesystem;

namespace Screenshots {
namespace {

class OneWindowPrompts : public DialogPrompts {
 public:
  OpenStyle askHowToOpen(std::size_t) override { return OpenStyle::OneWindow; }
};

bool waitFor(const std::function<bool()>& done, const char* what) {
  if (QTest::qWaitFor(done, 20000)) return true;
  std::fprintf(stderr, "lumidate-screenshots: gave up waiting for %s in Japanese\n", what);
  return false;
}

template <typename W>
W* openedWindow(const DocumentController& controller) {
  W* window = nullptr;
  const bool opened = waitFor([&] {
    for (DocumentWindow* w : controller.windows())
      if ((window = qobject_cast<W*>(w))) return !controller.isDocumentOpening();
    return false;
  }, "a window");
  return opened ? window : nullptr;
}

void closeAll(const DocumentController& controller) {
  for (DocumentWindow* w : controller.windows()) delete w;
}

}  // namespace

int shootInJapanese(const fs::path& folder, Session& session) {
  const QLocale japanese(QLocale::Japanese, QLocale::Japan);
  QLocale::setDefault(japanese);
  Translations::install(*QCoreApplication::instance(), japanese);

  QTemporaryDir scratch;
  QSettings store(scratch.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
  Settings settings(store);
  QUndoGroup undoGroup;
  AppActions actions(undoGroup);  // made now, so its menus are Japanese
  OneWindowPrompts prompts;
  AppContext context{settings, prompts, actions};
  DocumentController controller(context, undoGroup);

  std::vector<fs::path> photos;
  for (const char* name : {"IMG_0001.jpg", "IMG_0002.jpg", "IMG_0010.jpg", "only-original.jpg", "scan-1987.tif"})
    if (fs::exists(folder / name)) photos.push_back(folder / name);
  int written = 0;
  controller.openFiles(photos, false);
  if (auto* window = openedWindow<MultiFileWindow>(controller)) {
    window->resize(1000, 640);
    waitFor([&] {
      for (const fs::path& photo : photos)
        if (!window->thumbnails().contains(QString::fromStdString(photo.string()))) return false;
      return true;
    }, "the thumbnails");
    written += !session.shoot(QStringLiteral("multi-ja"), *window).isEmpty();
  }
  closeAll(controller);

  controller.openFiles({folder / "IMG_0001.jpg"}, false);
  if (auto* window = openedWindow<SingleFileWindow>(controller)) {
    waitFor([&] { return window->photo().hasImage(); }, "the photo");
    written += !session.shoot(QStringLiteral("single-ja"), *window).isEmpty();
  }
  closeAll(controller);

  // The inspector's tag titles and coded words, and a tool window.
  controller.openFiles({folder / "gps-summit.jpg"}, false);
  if (auto* window = openedWindow<SingleFileWindow>(controller)) {
    ToolWindows tools(context, [window]() -> DocumentWindow* { return window; });
    tools.toggleInspector();
    InfoWindow& info = tools.inspector();
    info.resize(520, 600);
    if (waitFor([&] { return info.table().model()->rowCount() > 0; }, "the inspector"))
      written += !session.shoot(QStringLiteral("inspector-ja"), info).isEmpty();
    tools.toggleInspector();
  }
  closeAll(controller);
  DayCalculatorWindow calculator;
  calculator.show();
  written += !session.shoot(QStringLiteral("calculator-ja"), calculator).isEmpty();
  return written;
}

}  // namespace Screenshots
