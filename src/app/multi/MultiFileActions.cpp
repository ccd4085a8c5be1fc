#include "app/multi/MultiFileActions.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

#include "app/MenuBar.h"
#include "app/multi/FileTableModel.h"
#include "documents/LumLocalized.h"
#include "documents/LumMultiFileDoc.h"

namespace {

QAction* makeAction(QWidget* window, const QString& text, QKeySequence shortcut = {}) {
  auto* action = new QAction(text, window);
  action->setShortcut(shortcut);
  window->addAction(action);  // shortcuts work while the menu bar is hidden too
  return action;
}

}  // namespace

MultiFileActions::MultiFileActions(LumMultiFileDoc& document, QWidget* window)
    : QObject(window), document_(document) {
  using Doc = LumMultiFileDoc;
  close = makeAction(window, tr("&Close"), QKeySequence::Close);
  save = makeAction(window, tr("&Save"), QKeySequence::Save);
  saveAll = makeAction(window, tr("Save &All"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  selectAll = makeAction(window, tr("Select &All"), QKeySequence::SelectAll);
  markAll = makeAction(window, tr("Mark All Files"));
  markNone = makeAction(window, tr("Unmark All Files"));
  markSelected = makeAction(window, tr("Mark Selected Files"));
  unmarkSelected = makeAction(window, tr("Unmark Selected Files"));
  restoreSelected = makeAction(window, LumLocalized::text("Restore Selected Files"));
  restoreAll = makeAction(window, LumLocalized::text("Restore All Files"));

  connect(close, &QAction::triggered, window, &QWidget::close);
  connect(save, &QAction::triggered, &document_, [this] { document_.saveDocument(); });
  connect(saveAll, &QAction::triggered, &document_, [this] { document_.saveAllDocuments(); });
  connect(markAll, &QAction::triggered, &document_, &Doc::setEditStateOnAllFiles);
  connect(markNone, &QAction::triggered, &document_, &Doc::setEditStateOffAllFiles);
  connect(markSelected, &QAction::triggered, &document_, &Doc::setEditStateOnSelectedFiles);
  connect(unmarkSelected, &QAction::triggered, &document_, &Doc::setEditStateOffSelectedFiles);
  connect(restoreSelected, &QAction::triggered, &document_, &Doc::restoreSelectedFiles);
  connect(restoreAll, &QAction::triggered, &document_, &Doc::restoreAllFiles);

  sortMenu = new QMenu(tr("Sort By"), window);
  sortMenu->setObjectName("sortMenu");
  for (int column = FileTableModel::FileName; column < FileTableModel::ColumnCount; ++column) {
    QAction* sortBy = sortMenu->addAction(LumLocalized::text(FileTableModel::columnKey(column).data()));
    connect(sortBy, &QAction::triggered, this, [this, column] { emit sortByColumn(column); });
  }

  contextMenu_ = new QMenu(window);
  contextMenu_->setObjectName("fileTableContextMenu");
  contextMenu_->addActions({restoreSelected, restoreAll});
  contextMenu_->addSeparator();
  contextMenu_->addActions({markAll, markNone, markSelected, unmarkSelected});
  refresh();
}

MultiFileActions::~MultiFileActions() = default;

WindowMenuActions MultiFileActions::menuActions() const {
  WindowMenuActions own;
  own.close = close;
  own.save = save;
  own.saveAll = saveAll;
  own.selectAll = selectAll;
  own.edit = {markAll,         markNone,   markSelected, unmarkSelected,         nullptr,
              restoreSelected, restoreAll, nullptr,      sortMenu->menuAction()};
  return own;
}

QMenu& MultiFileActions::contextMenuFor(std::optional<int> row) {
  document_.setClickedRow(row);
  refresh();
  return *contextMenu_;
}

void MultiFileActions::refresh() {
  using Command = LumMultiFileDoc::MenuCommand;
  const auto apply = [this](QAction* action, Command command) {
    const LumMultiFileDoc::MenuState state = document_.validateMenuItem(command);
    action->setEnabled(state.enabled);
    if (!state.title.isEmpty()) action->setText(state.title);
  };
  apply(save, Command::Save);
  apply(saveAll, Command::SaveAll);
  apply(markAll, Command::EditOnAll);
  apply(markNone, Command::EditOffAll);
  apply(markSelected, Command::EditOnSelected);
  apply(unmarkSelected, Command::EditOffSelected);
  apply(restoreSelected, Command::RestoreSelected);
  apply(restoreAll, Command::RestoreAll);
}
