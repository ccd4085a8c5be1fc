#include "app/inspector/InfoTableModel.h"

#include <QBrush>

#include "app/Appearance.h"
#include "formats/inspector/LumInfoDataSource.h"

InfoHeadingColors infoHeadingColors(bool dark, bool selected) {
  if (dark) {
    if (selected) return {std::nullopt, QColor(Qt::white)};
    return {QColor::fromRgbF(0.95f, 0.95f, 0.95f), QColor(Qt::black)};
  }
  if (selected) return {};
  return {QColor::fromRgbF(0.8f, 0.8f, 0.8f), std::nullopt};
}

InfoTableModel::InfoTableModel(const LumInfoDataSource& source, QObject* parent)
    : QAbstractTableModel(parent), source_(source) {}

void InfoTableModel::reload() {
  beginResetModel();
  endResetModel();
}

void InfoTableModel::appearanceChanged() {
  if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

const LumInfoRow* InfoTableModel::rowAt(int row) const {
  const auto& rows = source_.IFDDataSources();
  return row >= 0 && static_cast<std::size_t>(row) < rows.size() ? &rows[static_cast<std::size_t>(row)] : nullptr;
}

int InfoTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(source_.numberOfRows());
}

int InfoTableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant InfoTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !rowAt(index.row())) return {};
  const auto row = static_cast<std::size_t>(index.row());
  const bool heading = source_.isHeadingRow(row);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole: {
      const auto column = index.column() == TagName ? LumInfoDataSource::kTagNameColumn : LumInfoDataSource::kValueColumn;
      return QString::fromStdString(source_.objectValue(column, row));
    }
    case kHeadingRole: return heading;
    case Qt::BackgroundRole:
      if (const auto colour = heading ? infoHeadingColors(Appearance::isDark(), false).background : std::nullopt)
        return QBrush(*colour);
      return {};
    case Qt::ForegroundRole:
      if (const auto colour = heading ? infoHeadingColors(Appearance::isDark(), false).text : std::nullopt)
        return QBrush(*colour);
      return {};
    default: return {};
  }
}

QVariant InfoTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)) return {};
  return section == TagName ? tr("Tag") : tr("Value");
}

Qt::ItemFlags InfoTableModel::flags(const QModelIndex& index) const {
  return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}
