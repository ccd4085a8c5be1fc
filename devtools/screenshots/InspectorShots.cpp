// The inspector over the GPS sample, in light and dark colours.
#include "InspectorShots.h"

#include <QApplication>
#include <QTableView>
#include <QTest>

#include <functional>

#include "app/DocumentController.h"
#include "app/ToolWindows.h"
#include "app/inspector/InfoWindow.h"
#include "app/single/SingleFileWindow.h"

namespace Screenshots {

namespace {

bool waitUntil(const std::function<bool()>& done) { return QTest::qWaitFor(done, 20000); }

}  // namespace

void shootInspector(DocumentController& controller, AppContext& context, Session& session,
                    const std::filesystem::path& photo) {
  for (DocumentWindow* w : controller.windows()) delete w;
  controller.openFiles({photo}, false);
  SingleFileWindow* window = nullptr;
  waitUntil([&] {
    for (DocumentWindow* w : controller.windows())
      if ((window = qobject_cast<SingleFileWindow*>(w))) return !controller.isDocumentOpening();
    return false;
  });
  if (!window) return;
  ToolWindows tools(context, [window]() -> DocumentWindow* { return window; });
  tools.toggleInspector();
  InfoWindow& info = tools.inspector();
  info.resize(520, 600);
  if (!waitUntil([&] { return info.isVisible() && info.table().model()->rowCount() > 0; })) return;
  session.shoot(QStringLiteral("inspector-gps"), info);

  useStableLook(true);
  waitUntil([&] { return info.palette().color(QPalette::Window).lightness() < 128; });
  info.table().selectRow(0);
  session.shoot(QStringLiteral("inspector-gps-dark"), info);
  useStableLook(false);
  tools.toggleInspector();
}

}  // namespace Screenshots
