#pragma once
// Builds a document window's menu bar: the application's commands
// (AppActions) with the window's own in their usual places.
//
// File: Open..., Open Recent, Close, Save, Save All, Revert to Saved, Quit.
// Edit: Undo, Redo, Select All, then the window's edit commands.
// View: List Size (Small, Medium, Large), Show Information, Image Viewer.
// Tools: Day Count Calculator. Help: About Lumidate.

#include <QList>

class AppActions;
class QAction;
class QMainWindow;

struct WindowMenuActions {
  QAction* close = nullptr;
  QAction* save = nullptr;
  QAction* saveAll = nullptr;  // may be null (single-file windows)
  QAction* revert = nullptr;   // may be null (multi-file windows)
  QAction* selectAll = nullptr;
  QList<QAction*> edit;  // after Select All; a null entry is a separator
};

void buildMenuBar(QMainWindow& window, AppActions& app, const WindowMenuActions& own);
