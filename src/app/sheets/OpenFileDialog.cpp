#include "app/sheets/OpenFileDialog.h"

#include <QAbstractItemView>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>

#include <optional>

#include "documents/LumLocalized.h"
#include "formats/PhotoExtensions.h"

namespace {

using PhotoExtensions::Family;

struct FamilyFilter {
  Family family;
  const char* label;  // translated in the OpenFileDialog context
};

constexpr FamilyFilter kFamilyFilters[] = {
    {Family::CameraRaw, QT_TRANSLATE_NOOP("OpenFileDialog", "Camera RAW (%1)")},
    {Family::Heif, QT_TRANSLATE_NOOP("OpenFileDialog", "HEIC/HEIF/AVIF (%1)")},
    {Family::Png, QT_TRANSLATE_NOOP("OpenFileDialog", "PNG (%1)")},
    {Family::WebP, QT_TRANSLATE_NOOP("OpenFileDialog", "WebP (%1)")},
};

// The patterns of one family, or of every photo when family is empty. The
// filters match by case (as the folder expansion does for JPEG and TIFF),
// so an extension taken in any case is listed in lower and in upper case,
// the spellings cameras and phones write.
QStringList patterns(std::optional<Family> family) {
  QStringList out;
  if (!family)
    for (const std::string_view extension : PhotoExtensions::kExact)
      out << QStringLiteral("*.") + QString::fromLatin1(extension.data(), qsizetype(extension.size()));
  for (const PhotoExtensions::AnyCase& known : PhotoExtensions::kAnyCase) {
    if (family && known.family != *family) continue;
    const QString lower = QString::fromLatin1(known.extension.data(), qsizetype(known.extension.size()));
    out << QStringLiteral("*.") + lower << QStringLiteral("*.") + lower.toUpper();
  }
  return out;
}

}  // namespace

QStringList OpenFileDialog::photoNameFilters() {
  QStringList filters{tr("Photos (%1)").arg(patterns(std::nullopt).join(' '))};
  for (const FamilyFilter& f : kFamilyFilters) filters << tr(f.label).arg(patterns(f.family).join(' '));
  filters << tr("All Files (*)");
  return filters;
}

OpenFileDialog::OpenFileDialog(QWidget* parent, bool separateWindowsPreselected) : QFileDialog(parent) {
  setObjectName("openFileDialog");
  setOption(QFileDialog::DontUseNativeDialog);
  // The filter list shows "Photos", "Camera RAW", ...: the full "Photos"
  // pattern list alone would make the dialog wider than most screens.
  setOption(QFileDialog::HideNameFilterDetails);
  setFileMode(QFileDialog::ExistingFiles);
  setAcceptMode(QFileDialog::AcceptOpen);
  // Qt's own dialog matches name filters without regard to case unless told:
  // "a.Jpg" would show as a photo and then not open.
  setFilter(filter() | QDir::CaseSensitive);
  setNameFilters(photoNameFilters());
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
