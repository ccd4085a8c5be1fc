#include "app/multi/FileTableView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>

#include "app/multi/FileTableModel.h"

FileTableView::FileTableView(QWidget* parent) : QTableView(parent) {
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::SelectedClicked);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setTabKeyNavigation(false);  // Tab leaves the table for the path field
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView* header = horizontalHeader();
  header->setSectionsClickable(true);
  header->setSectionsMovable(true);
  header->setSortIndicatorShown(true);
  header->setHighlightSections(false);
  header->setStretchLastSection(false);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &FileTableView::shownRowsMayHaveChanged);
  busyTimer_.setInterval(150);
  connect(&busyTimer_, &QTimer::timeout, this, &FileTableView::stepBusyMarks);
}

void FileTableView::animateBusyThumbnails() {
  if (!busyTimer_.isActive()) busyTimer_.start();
}

void FileTableView::stepBusyMarks() {
  if (!stillBusy_ || !stillBusy_()) {
    busyTimer_.stop();
    return;
  }
  ++busyPhase_;
  const int x = columnViewportPosition(FileTableModel::Thumbnail);
  viewport()->update(QRect(x, 0, columnWidth(FileTableModel::Thumbnail), viewport()->height()));
}

void FileTableView::applyRowHeight(int rowHeight, int thumbnailWidth) {
  verticalHeader()->setMinimumSectionSize(std::min(rowHeight, verticalHeader()->minimumSectionSize()));
  verticalHeader()->setDefaultSectionSize(rowHeight);
  // The file-name column stretches, so it takes what the thumbnail column
  // gives up or gains and the table always fills its width.
  QHeaderView* header = horizontalHeader();
  header->setSectionResizeMode(FileTableModel::Thumbnail, QHeaderView::Fixed);
  header->resizeSection(FileTableModel::Thumbnail, thumbnailWidth);
  header->setSectionResizeMode(FileTableModel::FileName, QHeaderView::Stretch);
  emit shownRowsMayHaveChanged();
}

std::pair<int, int> FileTableView::shownRows() const {
  const int count = model() ? model()->rowCount() : 0;
  if (count == 0) return {0, -1};
  const int first = std::max(0, rowAt(0));
  const int bottom = rowAt(viewport()->height() - 1);
  return {first, bottom < 0 ? count - 1 : bottom};
}

void FileTableView::contextMenuEvent(QContextMenuEvent* event) {
  std::optional<int> row;
  QPoint at = event->globalPos();
  if (event->reason() == QContextMenuEvent::Mouse) {
    const int clicked = rowAt(event->pos().y());
    if (clicked >= 0) row = clicked;
  } else if (currentIndex().isValid()) {
    row = currentIndex().row();
    at = viewport()->mapToGlobal(visualRect(currentIndex()).center());
  }
  emit contextMenuAsked(row, at);
  event->accept();
}

void FileTableView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  emit shownRowsMayHaveChanged();
}

void FileTableView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QList<int>& roles) {
  QTableView::dataChanged(topLeft, bottomRight, roles);
  // A sort moves other files into view; a thumbnail alone does not.
  if (!roles.contains(FileTableModel::ThumbnailPendingRole)) emit shownRowsMayHaveChanged();
}
