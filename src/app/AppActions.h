#pragma once
// The application's own commands, shared by the menu bars of every window:
// opening, recent files, quitting, undo and redo of the active window, the
// list size and the tool windows. The document controller connects them;
// each window adds them to its menu bar (app/MenuBar) beside its own.

#include <QObject>

#include <memory>

class QAction;
class QActionGroup;
class QMenu;
class QUndoGroup;

class AppActions : public QObject {
  Q_OBJECT

 public:
  // Undo and redo follow the active stack of undoGroup.
  explicit AppActions(QUndoGroup& undoGroup, QObject* parent = nullptr);
  ~AppActions() override;

  QAction* open = nullptr;
  QMenu* openRecent = nullptr;  // filled by the controller
  QAction* quit = nullptr;
  QAction* undo = nullptr;
  QAction* redo = nullptr;
  QActionGroup* listSize = nullptr;  // three checkable actions, data() = size 1..3
  QAction* listSmall = nullptr;
  QAction* listMedium = nullptr;
  QAction* listLarge = nullptr;
  QAction* showInformation = nullptr;  // tool windows: their windows arrive later
  QAction* showImageView = nullptr;
  QAction* dayCalculator = nullptr;
  QAction* about = nullptr;

  // Checks the list-size action of size (1 small, 2 medium, 3 large).
  void checkListSize(int size);

 private:
  // A menu's parent must be a widget; this one belongs to no window.
  std::unique_ptr<QMenu> recentMenu_;
};
