#include "app/multi/FileTableModel.h"

#include <QApplication>
#include <QStyle>

#include <array>

#include "app/multi/ThumbnailCache.h"
#include "documents/DateTargets.h"
#include "documents/LumLocalized.h"
#include "documents/LumMultiFileDoc.h"

namespace {

constexpr std::array<std::string_view, FileTableModel::ColumnCount> kKeys{
    "Thumbnail", "FileName", "DateTimeOriginal", "DateTimeDigitized", "DateTime", "Edit", "Edited"};

QString pathText(const LumFileItemDoc& item) { return QString::fromStdString(item.path().string()); }

}  // namespace

FileTableModel::FileTableModel(LumMultiFileDoc& document, const ThumbnailCache& thumbnails, QObject* parent)
    : QAbstractTableModel(parent), document_(document), thumbnails_(thumbnails) {
  connect(&document_, &LumMultiFileDoc::rowsChanged, this, &FileTableModel::documentRowsChanged);
}

std::string_view FileTableModel::columnKey(int column) {
  return column >= 0 && column < ColumnCount ? kKeys[static_cast<std::size_t>(column)] : std::string_view();
}

bool FileTableModel::isDateColumn(int column) {
  return column == DateTimeOriginal || column == DateTimeDigitized || column == DateTime;
}

int FileTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : document_.rowCount(); }

int FileTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant FileTableModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return {};
  const LumFileItemDoc& item = document_.item(index.row());
  if (role == PathRole) return pathText(item);
  switch (index.column()) {
    case Thumbnail: {
      const QPixmap* pixmap = thumbnails_.find(pathText(item));
      if (role == Qt::DecorationRole && pixmap) return *pixmap;
      if (role == ThumbnailPendingRole) return pixmap == nullptr;
      return {};
    }
    case FileName:
      if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return QString::fromStdString(item.fileName());
      return {};
    case Edit:
      if (role == Qt::CheckStateRole) return item.isEdit() && !item.noDateTimes() ? Qt::Checked : Qt::Unchecked;
      return {};
    case Edited:
      if (role == Qt::DecorationRole && item.isEdited())
        return QApplication::style()->standardIcon(QStyle::SP_DialogApplyButton);
      if (role == Qt::AccessibleTextRole) return item.isEdited() ? LumLocalized::text("Edited") : QString();
      return {};
    default: return dateData(index.row(), index.column(), role);
  }
}

QVariant FileTableModel::dateData(int row, int column, int role) const {
  const auto target = DateTargets::targetForColumn(columnKey(column));
  if (!target) return {};
  const std::optional<std::string>& text = document_.item(row).dateText(target->index);
  if (role == Qt::DisplayRole || role == Qt::EditRole) return text ? QString::fromStdString(*text) : QString();
  if (role == PlaceholderRole && !text) return LumLocalized::text("No Date-Time");
  return {};
}

QVariant FileTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) return {};
  const QString title = LumLocalized::text(kKeys[static_cast<std::size_t>(section)].data());
  // The thumbnail column is as narrow as its pictures: its title would be
  // clipped, so it is given to the tooltip and to screen readers only.
  if (section == Thumbnail && role == Qt::DisplayRole) return QString();
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return title;
  return {};
}

Qt::ItemFlags FileTableModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const LumFileItemDoc& item = document_.item(index.row());
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (isDateColumn(index.column()) && dateData(index.row(), index.column(), Qt::DisplayRole) != QString())
    flags |= Qt::ItemIsEditable;
  if (index.column() == Edit) {
    flags |= Qt::ItemIsUserCheckable;
    if (item.noDateTimes()) flags &= ~Qt::ItemIsEnabled;
  }
  return flags;
}

bool FileTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) return false;
  if (index.column() == Edit && role == Qt::CheckStateRole) {
    document_.setEditTarget(index.row(), value.toInt() == Qt::Checked);
    return true;
  }
  if (!isDateColumn(index.column()) || (role != Qt::EditRole && role != ShiftEditRole)) return false;
  // The document answers with rowsChanged, which repaints: the new text, or
  // the old one again when the text was refused.
  const std::string typed = value.toString().toStdString();
  return document_.controlTextDidEndEditing(index.row(), columnKey(index.column()), typed, role == ShiftEditRole) ==
         LumMultiFileDoc::TypedResult::Applied;
}

void FileTableModel::sort(int column, Qt::SortOrder order) {
  if (column == Thumbnail || column < 0 || column >= ColumnCount) return;
  const std::string key(columnKey(column));
  std::vector<LumMultiFileDoc::SortDescriptor> descriptors{{key, order == Qt::AscendingOrder}};
  for (const auto& d : document_.sortDescriptors())
    if (d.key != key) descriptors.push_back(d);
  document_.tableViewSortDescriptorsDidChange(std::move(descriptors));
}

void FileTableModel::thumbnailArrived(const QString& path) {
  const LumFileItemDoc* item = document_.itemForURL(path.toStdString());
  if (const auto row = item ? document_.rowOf(item) : std::nullopt) {
    const QModelIndex cell = index(*row, Thumbnail);
    emit dataChanged(cell, cell, {Qt::DecorationRole, ThumbnailPendingRole});
  }
}

void FileTableModel::documentRowsChanged() {
  // The row count never changes; the rows' order and values may have.
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}
