#include "app/sheets/OpenFileDialog.h"

#include <QAbstractItemView>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>

#include "documents/LumLocalized.h"

OpenFileDialog::OpenFileDialog(QWidget* parent, bool separateWindowsPreselected) : QFileDialog(parent) {
  setObjectName("openFileDialog");
  setOption(QFileDialog::DontUseNativeDialog);
  setFileMode(QFileDialog::ExistingFiles);
  setAcceptMode(QFileDialog::AcceptOpen);
  setNameFilters({tr("Photos (*.jpg *.JPG *.jpeg *.JPEG *.tif *.TIF *.tiff *.TIFF)"), tr("All Files (*)")});
  // The views take several entries, files and folders alike; accept() reads them.
  for (QAbstractItemView* view : findChildren<QAbstractItemView*>())
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
  addOpenStyleChoice(separateWindowsPreselected);
}

void OpenFileDialog::addOpenStyleChoice(bool separateWindowsPreselected) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  if (!grid) return;
  auto* row = new QWidget(this);
  auto* box = new QHBoxLayout(row);
  box->setContentsMargins(0, 0, 0, 0);
  oneWindow_ = new QRadioButton(LumLocalized::text("Open in One Window"), row);
  separateWindows_ = new QRadioButton(LumLocalized::text("Open in Separate Windows"), row);
  for (QRadioButton* button : {oneWindow_, separateWindows_}) {
    button->setAccessibleName(button->text());
    box->addWidget(button);
  }
  box->addStretch();
  (separateWindowsPreselected ? separateWindows_ : oneWindow_)->setChecked(true);
  grid->addWidget(row, grid->rowCount(), 0, 1, grid->columnCount());
}

bool OpenFileDialog::separateWindows() const { return separateWindows_ && separateWindows_->isChecked(); }

QStringList OpenFileDialog::selectedEntries() const {
  QStringList entries;
  for (const QAbstractItemView* view : findChildren<QAbstractItemView*>()) {
    const auto* model = qobject_cast<const QFileSystemModel*>(view->model());
    if (!model || !view->isVisible() || !view->selectionModel()) continue;
    for (const QModelIndex& index : view->selectionModel()->selectedRows()) entries << model->filePath(index);
    if (!entries.isEmpty()) break;
  }
  return entries;
}

void OpenFileDialog::accept() {
  QStringList entries = selectedEntries();
  if (entries.isEmpty()) {
    // Nothing picked in the views: a name typed in the field, as usual.
    QFileDialog::accept();
    entries = selectedFiles();
    if (result() != QDialog::Accepted) return;
  }
  chosen_.clear();
  for (const QString& entry : entries) chosen_.emplace_back(entry.toStdString());
  QDialog::accept();
}
