#include "app/MenuBar.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "app/AppActions.h"

namespace {
void addActions(QMenu* menu, const QList<QAction*>& actions) {
  for (QAction* action : actions) {
    if (action) menu->addAction(action);
    else menu->addSeparator();
  }
}
}  // namespace

void buildMenuBar(QMainWindow& window, AppActions& app, const WindowMenuActions& own) {
  QMenuBar* bar = window.menuBar();
  QMenu* file = bar->addMenu(QMenuBar::tr("&File"));
  file->addAction(app.open);
  file->addMenu(app.openRecent);
  file->addSeparator();
  addActions(file, {own.close, own.save});
  if (own.saveAll) file->addAction(own.saveAll);
  if (own.revert) file->addAction(own.revert);
  file->addSeparator();
  file->addAction(app.quit);

  QMenu* edit = bar->addMenu(QMenuBar::tr("&Edit"));
  addActions(edit, {app.undo, app.redo, nullptr});
  if (own.selectAll) edit->addAction(own.selectAll);
  if (!own.edit.isEmpty()) {
    edit->addSeparator();
    addActions(edit, own.edit);
  }

  QMenu* view = bar->addMenu(QMenuBar::tr("&View"));
  QMenu* listSize = view->addMenu(QMenuBar::tr("List Size"));
  addActions(listSize, {app.listSmall, app.listMedium, app.listLarge});
  view->addSeparator();
  addActions(view, {app.showInformation, app.showImageView});

  QMenu* tools = bar->addMenu(QMenuBar::tr("&Tools"));
  tools->addAction(app.dayCalculator);
  QMenu* help = bar->addMenu(QMenuBar::tr("&Help"));
  help->addAction(app.about);
}
