#pragma once
// The multi-file window's own commands: closing, saving, selecting, edit
// marks and restoring. Their enabled states and titles come from the
// document; refresh() asks it again (the window calls it when rows, the
// selection or the title change, and before a menu opens).

#include <QObject>

#include <optional>

class LumMultiFileDoc;
class QAction;
class QMenu;
class QWidget;
struct WindowMenuActions;

class MultiFileActions : public QObject {
  Q_OBJECT

 public:
  MultiFileActions(LumMultiFileDoc& document, QWidget* window);
  ~MultiFileActions() override;

  QAction* close = nullptr;
  QAction* save = nullptr;
  QAction* saveAll = nullptr;
  QAction* selectAll = nullptr;
  QAction* markAll = nullptr;
  QAction* markNone = nullptr;
  QAction* markSelected = nullptr;
  QAction* unmarkSelected = nullptr;
  QAction* restoreSelected = nullptr;
  QAction* restoreAll = nullptr;
  // Sorting from the keyboard: one command per sortable column.
  QMenu* sortMenu = nullptr;

  // The window's part of the menu bar.
  WindowMenuActions menuActions() const;
  // The table's context menu, for row (none: not on a row); the restore
  // command then names the clicked file or the selection.
  QMenu& contextMenuFor(std::optional<int> row);

 public slots:
  void refresh();

 signals:
  // Sort by column (ascending, or the other way round when the table is
  // sorted by it already), as a click on its header does.
  void sortByColumn(int column);

 private:
  LumMultiFileDoc& document_;
  QMenu* contextMenu_ = nullptr;
};
