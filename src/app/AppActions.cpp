#include "app/AppActions.h"

#include <QAction>
#include <QActionGroup>
#include <QKeySequence>
#include <QMenu>
#include <QUndoGroup>

namespace {
QAction* makeAction(QObject* parent, const QString& text, QKeySequence shortcut = {}) {
  auto* action = new QAction(text, parent);
  action->setShortcut(shortcut);
  return action;
}
}  // namespace

AppActions::AppActions(QUndoGroup& undoGroup, QObject* parent) : QObject(parent) {
  open = makeAction(this, tr("&Open..."), QKeySequence::Open);
  recentMenu_ = std::make_unique<QMenu>(tr("Open &Recent"));
  openRecent = recentMenu_.get();
  openRecent->setObjectName("openRecentMenu");
  quit = makeAction(this, tr("&Quit"), QKeySequence::Quit);
  quit->setMenuRole(QAction::QuitRole);

  undo = undoGroup.createUndoAction(this, tr("Undo"));
  undo->setShortcut(QKeySequence::Undo);
  redo = undoGroup.createRedoAction(this, tr("Redo"));
  redo->setShortcut(QKeySequence::Redo);

  listSize = new QActionGroup(this);
  listSmall = makeAction(this, tr("&Small"));
  listMedium = makeAction(this, tr("&Medium"));
  listLarge = makeAction(this, tr("&Large"));
  int size = 1;
  for (QAction* action : {listSmall, listMedium, listLarge}) {
    action->setCheckable(true);
    action->setData(size++);
    listSize->addAction(action);
  }

  showInformation = makeAction(this, tr("Show Information"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I));
  showImageView = makeAction(this, tr("Image Viewer"));
  dayCalculator = makeAction(this, tr("Day Count Calculator"));
  about = makeAction(this, tr("&About Lumidate"));
  about->setMenuRole(QAction::AboutRole);
}

AppActions::~AppActions() = default;

void AppActions::checkListSize(int size) {
  for (QAction* action : listSize->actions()) action->setChecked(action->data().toInt() == size);
}
