#include "app/inspector/InfoWindow.h"

#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenuBar>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QThreadPool>
#include <QVBoxLayout>

#include <algorithm>

#include "app/Appearance.h"
#include "app/inspector/InfoClipboard.h"
#include "app/inspector/InfoTableModel.h"
#include "app/preferences/Settings.h"
#include "documents/LumLocalized.h"
#include "documents/LumNotificationCenter.h"
#include "formats/LumImageFile.h"

namespace {

// Heading rows keep their own text colour when selected (white in the dark
// appearance, where the band is light).
class HeadingDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(InfoTableModel::kHeadingRole).toBool()) return;
    const bool selected = option->state.testFlag(QStyle::State_Selected);
    if (const auto text = infoHeadingColors(Appearance::isDark(), selected).text; text && selected)
      option->palette.setColor(QPalette::HighlightedText, *text);
  }
};

}  // namespace

InfoWindow::InfoWindow(Settings* settings, InfoFollower::DocumentFile documentFile, QWidget* parent)
    : QWidget(parent, Qt::Window),
      settings_(settings),
      follower_(std::move(documentFile)),
      model_(std::make_unique<InfoTableModel>(follower_.rows())) {
  setObjectName(QStringLiteral("LumInfo"));
  setWindowTitle(LumLocalized::text("Information"));
  setAccessibleName(windowTitle());

  table_ = new QTableView(this);
  table_->setModel(model_.get());
  table_->setItemDelegate(new HeadingDelegate(table_));
  table_->setAccessibleName(windowTitle());
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setWordWrap(false);
  table_->setTextElideMode(Qt::ElideMiddle);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 4);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->horizontalHeader()->setHighlightSections(false);

  copy_ = new QAction(tr("&Copy"), this);
  copy_->setShortcut(QKeySequence::Copy);
  copy_->setShortcutContext(Qt::WindowShortcut);
  connect(copy_, &QAction::triggered, this, &InfoWindow::copySelection);
  addAction(copy_);
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
  table_->addAction(copy_);

  auto* bar = new QMenuBar(this);
  bar->addMenu(tr("&Edit"))->addAction(copy_);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setMenuBar(bar);
  layout->addWidget(table_);

  resize(420, 520);
  if (settings_) restoreGeometry(settings_->store().value(QLatin1String(kGeometryKey)).toByteArray());

  connect(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted, this, &InfoWindow::notified);
  reload(true);
}

InfoWindow::~InfoWindow() {
  // The table must not read the rows while the model goes away.
  table_->setModel(nullptr);
}

void InfoWindow::setImageFile(const LumImageFile* file) { reload(follower_.show(file)); }

void InfoWindow::letGoOf(const std::vector<std::filesystem::path>& files, const LumImageFile* selected) {
  reload(follower_.letGoOf(files, selected));
}

void InfoWindow::notified(const QString& name, const void* object) { reload(follower_.notified(name, object)); }

void InfoWindow::reload(bool rebuilt) {
  if (!rebuilt) return;
  model_->reload();
  // The titles set the first column's width, with room to spare so the
  // longest one does not touch the grid line.
  table_->resizeColumnToContents(InfoTableModel::TagName);
  table_->setColumnWidth(InfoTableModel::TagName,
                         table_->columnWidth(InfoTableModel::TagName) + table_->fontMetrics().averageCharWidth() * 2);
  readStructureInBackground();
}

void InfoWindow::readStructureInBackground() {
  const auto read = follower_.structureToRead();
  if (!read) return;
  QPointer<InfoWindow> self(this);
  QThreadPool::globalInstance()->start([self, read = *read] {
    std::shared_ptr<OrbTiff> tiff = LumImageFile::readTiff(read.path, read.opened);
    // Answered through the application object: the window may be gone.
    QMetaObject::invokeMethod(
        qApp, [self, read, tiff = std::move(tiff)]() mutable {
          if (self) self->reload(self->follower_.structureArrived(read, std::move(tiff)));
        },
        Qt::QueuedConnection);
  });
}

void InfoWindow::copySelection() {
  QModelIndexList selected = table_->selectionModel()->selectedRows();
  if (selected.isEmpty()) return;
  std::sort(selected.begin(), selected.end());
  std::vector<const LumInfoRow*> rows;
  for (const QModelIndex& index : selected)
    if (const LumInfoRow* row = model_->rowAt(index.row())) rows.push_back(row);
  QGuiApplication::clipboard()->setMimeData(InfoClipboard::mimeDataForRows(rows).release());
}

void InfoWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  emit visibilityChanged(true);
}

void InfoWindow::hideEvent(QHideEvent* event) {
  saveGeometryToSettings();
  QWidget::hideEvent(event);
  emit visibilityChanged(false);
}

void InfoWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange ||
      event->type() == QEvent::StyleChange)
    model_->appearanceChanged();
}

void InfoWindow::saveGeometryToSettings() {
  if (settings_) settings_->store().setValue(QLatin1String(kGeometryKey), saveGeometry());
}
