#pragma once
// The multi-file table: whole rows selected, sortable headers, a row height
// per list size, and the signals the window binds to: the rows shown may
// have changed (for thumbnails) and a context menu was asked for.

#include <QTableView>
#include <QTimer>

#include <functional>

#include <optional>
#include <utility>

class FileTableView : public QTableView {
  Q_OBJECT

 public:
  explicit FileTableView(QWidget* parent = nullptr);

  // Rows of rowHeight; the thumbnail column becomes thumbnailWidth wide and
  // the file-name column takes what it gave up or gained.
  void applyRowHeight(int rowHeight, int thumbnailWidth);
  // First and last row in view (an empty range when the table is empty).
  std::pair<int, int> shownRows() const;

  // While stillBusy() answers true, the busy marks of thumbnails on their
  // way turn (busyPhase() steps); the timer stops by itself afterwards.
  void setBusyTest(std::function<bool()> stillBusy) { stillBusy_ = std::move(stillBusy); }
  void animateBusyThumbnails();
  int busyPhase() const { return busyPhase_; }

 signals:
  void shownRowsMayHaveChanged();
  // row: the row under the click (none outside the rows); from the keyboard
  // the current row.
  void contextMenuAsked(std::optional<int> row, const QPoint& globalPos);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles) override;

 private:
  void stepBusyMarks();

  std::function<bool()> stillBusy_;
  QTimer busyTimer_;
  int busyPhase_ = 0;
};
