#include "app/multi/MultiFileWindow.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelection>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include "app/AppActions.h"
#include "app/Appearance.h"
#include "app/MenuBar.h"
#include "app/Prompts.h"
#include "app/multi/ChangeControls.h"
#include "app/multi/FileTableDelegate.h"
#include "app/multi/FileTableModel.h"
#include "app/multi/FileTableView.h"
#include "app/multi/MultiFileActions.h"
#include "app/multi/ThumbnailScheduler.h"
#include "app/preferences/Settings.h"
#include "app/sheets/SavingSheet.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/LumNotificationCenter.h"

namespace {

// Queued thumbnail work is kept for rows this many screens above and below.
constexpr int kNearbyScreens = 2;

constexpr std::array<int, FileTableModel::ColumnCount> kInitialWidths{48, 220, 150, 150, 150, 40, 56};

}  // namespace

MultiFileWindow::MultiFileWindow(std::unique_ptr<LumMultiFileDoc> document, AppContext& context, QWidget* parent)
    : DocumentWindow(context, parent), document_(std::move(document)) {
  document_->setDarkMode(Appearance::isDark());
  setMinimumSize(705, 480);
  resize(900, 600);
  buildLayout();
  actions_ = new MultiFileActions(*document_, this);
  buildMenuBar(*this, context.actions, actions_->menuActions());
  for (QMenu* menu : menuBar()->findChildren<QMenu*>())
    connect(menu, &QMenu::aboutToShow, this, [this] {
      document_->setClickedRow(std::nullopt);  // the menu bar acts on the selection
      actions_->refresh();
    });
  connect(actions_->selectAll, &QAction::triggered, table_, &QTableView::selectAll);
  connect(actions_, &MultiFileActions::sortByColumn, this, [this](int column) {
    // Through the header, so its indicator and the stored layout follow.
    QHeaderView* header = table_->horizontalHeader();
    const bool flip = header->sortIndicatorSection() == column && header->sortIndicatorOrder() == Qt::AscendingOrder;
    header->setSortIndicator(column, flip ? Qt::DescendingOrder : Qt::AscendingOrder);
  });
  bindDocument();
  bindTable();
  restoreTableLayout();
  applyListSize();
  showDocumentSelection();
  setWindowTitle(document_->windowTitle() + QStringLiteral("[*]"));
  setWindowModified(document_->hasEditedFileSelected());
}

MultiFileWindow::~MultiFileWindow() {
  // The widgets refer to the document: they go first, and the table's
  // layout as it stood is what stays stored.
  table_->horizontalHeader()->disconnect(this);
  scheduler_.reset();
  std::unique_ptr<QWidget> central(takeCentralWidget());
}

void MultiFileWindow::buildLayout() {
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  controls_ = new ChangeControls(*document_, central);
  model_ = new FileTableModel(*document_, thumbnails_, this);
  table_ = new FileTableView(central);
  table_->setObjectName("fileTable");
  table_->setAccessibleName(tr("Files"));
  table_->setItemDelegate(new FileTableDelegate(table_));
  table_->setModel(model_);
  path_ = new QLineEdit(central);
  path_->setObjectName("pathField");
  path_->setAccessibleName(tr("Path"));
  path_->setReadOnly(true);
  auto* pathLabel = new QLabel(tr("&Path:"), central);
  pathLabel->setBuddy(path_);
  auto* pathRow = new QHBoxLayout;
  pathRow->addWidget(pathLabel);
  pathRow->addWidget(path_, 1);
  layout->addWidget(controls_);
  layout->addWidget(table_, 1);
  layout->addLayout(pathRow);
  setCentralWidget(central);
  savingSheet_ = new SavingSheet(this);
}

void MultiFileWindow::bindDocument() {
  LumMultiFileDoc* doc = document_.get();
  connect(doc, &LumMultiFileDoc::beep, this, [] { QApplication::beep(); });
  connect(doc, &LumMultiFileDoc::titleChanged, this, [this](const QString& title, bool edited) {
    setWindowTitle(title + QStringLiteral("[*]"));
    setWindowModified(edited);
    actions_->refresh();
  });
  connect(doc, &LumMultiFileDoc::rowsChanged, this, &MultiFileWindow::showDocumentSelection);
  connect(doc, &LumMultiFileDoc::rowsChanged, actions_, &MultiFileActions::refresh);
  connect(&doc->undoStack(), &QUndoStack::indexChanged, actions_, &MultiFileActions::refresh);
  connect(doc, &LumMultiFileDoc::savingStarted, this, [this](int count) {
    if (count >= 2) savingSheet_->start();
  });
  connect(doc, &LumMultiFileDoc::savingProgress, savingSheet_, &SavingSheet::setProgress);
  connect(doc, &LumMultiFileDoc::saveFinished, this, &MultiFileWindow::saveFinished);
  connect(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted, this,
          [this](const QString& name, const void*) {
            if (name == QLatin1String(kLumListSizeDidChangeNotification)) applyListSize();
          });
}

void MultiFileWindow::bindTable() {
  scheduler_ = std::make_unique<ThumbnailScheduler>(thumbnails_, [this] {
    ThumbnailScheduler::Wanted wanted;
    const auto [first, last] = table_->shownRows();
    const int reach = (last - first + 1) * kNearbyScreens;
    for (int row = std::max(0, first - reach); row <= std::min(document_->rowCount() - 1, last + reach); ++row) {
      const LumFileItemDoc& item = document_->item(row);
      if (row >= first && row <= last) wanted.shown.push_back({item.path(), item.sharedImageFile()});
      else wanted.nearby.push_back(QString::fromStdString(item.path().string()));
    }
    return wanted;
  });
  connect(scheduler_.get(), &ThumbnailScheduler::thumbnailReady, model_, &FileTableModel::thumbnailArrived);
  connect(table_, &FileTableView::shownRowsMayHaveChanged, scheduler_.get(), &ThumbnailScheduler::poke);
  table_->setBusyTest([this] { return scheduler_->pendingCount() > 0; });
  connect(table_, &FileTableView::shownRowsMayHaveChanged, table_, &FileTableView::animateBusyThumbnails);
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &MultiFileWindow::tableSelectionChanged);
  connect(table_, &FileTableView::contextMenuAsked, this, &MultiFileWindow::showContextMenu);
  QHeaderView* header = table_->horizontalHeader();
  connect(header, &QHeaderView::sortIndicatorChanged, this, &MultiFileWindow::sortIndicatorChanged);
  const auto saveLayout = [this] { context().settings.setTableLayout(table_->horizontalHeader()->saveState()); };
  connect(header, &QHeaderView::sectionResized, this, saveLayout);
  connect(header, &QHeaderView::sectionMoved, this, saveLayout);
  scheduler_->poke();
}

void MultiFileWindow::restoreTableLayout() {
  QHeaderView* header = table_->horizontalHeader();
  const QSignalBlocker blocker(header);  // nothing is stored while the kept layout is put back
  for (int column = 0; column < FileTableModel::ColumnCount; ++column)
    header->resizeSection(column, kInitialWidths[static_cast<std::size_t>(column)]);
  const QByteArray state = context().settings.tableLayout();
  if (!state.isEmpty() && header->restoreState(state) && header->sortIndicatorSection() != FileTableModel::Thumbnail) {
    model_->sort(header->sortIndicatorSection(), header->sortIndicatorOrder());
    return;
  }
  // No layout kept: the indicator shows the document's first sort key.
  const auto& first = document_->sortDescriptors().front();
  for (int column = 0; column < FileTableModel::ColumnCount; ++column)
    if (FileTableModel::columnKey(column) == first.key)
      header->setSortIndicator(column, first.ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void MultiFileWindow::applyListSize() {
  const int height = Settings::rowHeightForListSize(context().settings.tableViewRowHeight());
  table_->applyRowHeight(height, Settings::thumbnailColumnWidth(height));
}

void MultiFileWindow::sortIndicatorChanged(int section, Qt::SortOrder order) {
  QHeaderView* header = table_->horizontalHeader();
  if (section == FileTableModel::Thumbnail) {
    // Thumbnails do not sort: the indicator goes back to the sorted column.
    const QSignalBlocker blocker(header);
    const auto& first = document_->sortDescriptors().front();
    for (int column = 0; column < FileTableModel::ColumnCount; ++column)
      if (FileTableModel::columnKey(column) == first.key)
        header->setSortIndicator(column, first.ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    return;
  }
  model_->sort(section, order);
  context().settings.setTableLayout(header->saveState());
}

void MultiFileWindow::tableSelectionChanged() {
  if (showingDocumentSelection_) return;
  std::vector<int> rows;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) rows.push_back(index.row());
  document_->setSelectedRows(rows, isActiveWindow());
  showSelectionInImageWindow();
  const LumFileItemDoc* shown = document_->_selectedDocument();
  path_->setText(shown ? QString::fromStdString(shown->path().string()) : QString());
  actions_->refresh();
}

void MultiFileWindow::showDocumentSelection() {
  // After a sort or a change the document says where its selected files
  // now stand; the view follows without telling the document again.
  const std::vector<int> rows = document_->selectedRows();
  QItemSelection selection;
  for (int row : rows) selection.select(model_->index(row, 0), model_->index(row, FileTableModel::ColumnCount - 1));
  showingDocumentSelection_ = true;
  table_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  if (!rows.empty()) {
    const QModelIndex first = model_->index(rows.front(), FileTableModel::FileName);
    table_->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    table_->scrollTo(first);
  }
  showingDocumentSelection_ = false;
  const LumFileItemDoc* shown = document_->_selectedDocument();
  path_->setText(shown ? QString::fromStdString(shown->path().string()) : QString());
}

void MultiFileWindow::showContextMenu(std::optional<int> row, const QPoint& globalPos) {
  actions_->contextMenuFor(row).popup(globalPos);
}

void MultiFileWindow::saveFinished(const LumSaveOutcome& outcome) {
  savingSheet_->finish();
  if (outcome.alert)
    context().prompts.showCriticalAlert(this, {outcome.alert->message, outcome.alert->informativeText, {}});
  actions_->refresh();
  if (std::exchange(savingForClose_, false)) closeSaveFinished(outcome.failures.empty());
}

std::vector<std::filesystem::path> MultiFileWindow::openFiles() const {
  std::vector<std::filesystem::path> paths;
  for (int row = 0; row < document_->rowCount(); ++row) paths.push_back(document_->item(row).path());
  return paths;
}

std::size_t MultiFileWindow::editedFileCount() const { return document_->editedFileCount(); }

QUndoStack& MultiFileWindow::undoStack() { return document_->undoStack(); }

const LumImageFile* MultiFileWindow::selectedImageFile() const { return document_->selectedImageFile(); }

std::optional<DocumentWindow::CloseTexts> MultiFileWindow::closeAlertTexts() const {
  return closeTextsFrom(document_->getTitleForAlertWhenCloseDociment());
}

void MultiFileWindow::saveAllForClose(bool quitting) {
  savingForClose_ = true;
  document_->saveFileAll(true, true, quitting);
  // Nothing was edited after all: the save never started.
  if (!document_->isSaving() && std::exchange(savingForClose_, false)) closeSaveFinished(true);
}

void MultiFileWindow::changeEvent(QEvent* event) {
  DocumentWindow::changeEvent(event);
  if (event->type() == QEvent::ApplicationPaletteChange) document_->appEffectiveAppearanceDidChange(Appearance::isDark());
  // The inspector follows the file selected in the active window.
  if (event->type() == QEvent::ActivationChange && isActiveWindow())
    document_->setSelectedRows(document_->selectedRows(), true);
}
