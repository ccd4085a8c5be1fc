#pragma once
// The inspector's rows as a two-column table ("TagName" and "Value"). Heading
// rows carry their shading as background and foreground roles, chosen for
// the current appearance when they are asked for.

#include <QAbstractTableModel>
#include <QColor>

#include <optional>

class LumInfoDataSource;
struct LumInfoRow;

// The colours of a heading row. A light grey band in the light appearance;
// in the dark one a near-white band with black text, which stands out from
// the dark rows around it; a selected heading shows the selection with
// white text there.
struct InfoHeadingColors {
  std::optional<QColor> background;  // none: the selection is drawn
  std::optional<QColor> text;        // none: the palette's own colour
};
InfoHeadingColors infoHeadingColors(bool dark, bool selected);

class InfoTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { TagName = 0, Value = 1, ColumnCount };
  static constexpr int kHeadingRole = Qt::UserRole + 1;

  explicit InfoTableModel(const LumInfoDataSource& source, QObject* parent = nullptr);

  // The rows were rebuilt.
  void reload();
  // The appearance changed: heading colours are asked for again.
  void appearanceChanged();

  const LumInfoRow* rowAt(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const LumInfoDataSource& source_;
};
