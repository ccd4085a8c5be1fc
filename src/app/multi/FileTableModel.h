#pragma once
// The multi-file table as an item model over the document. The document
// owns the rows and their order (sorting happens there, so there is no proxy
// model); this adapter shows the rows' values, forwards edits and sorts to
// the document, and repaints when the document says its rows changed.

#include <QAbstractTableModel>

#include <string_view>

class LumMultiFileDoc;
class ThumbnailCache;

class FileTableModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { Thumbnail = 0, FileName, DateTimeOriginal, DateTimeDigitized, DateTime, Edit, Edited, ColumnCount };
  enum Role {
    ThumbnailPendingRole = Qt::UserRole + 1,  // true while the row's thumbnail is not there yet
    PlaceholderRole,                          // the text an absent date shows, greyed
    ShiftEditRole,                            // a typed date committed with Shift held: all three dates take it
    PathRole,                                 // the file's path
  };

  FileTableModel(LumMultiFileDoc& document, const ThumbnailCache& thumbnails, QObject* parent = nullptr);

  // The column identifier the document knows (also the header's key).
  static std::string_view columnKey(int column);
  static bool isDateColumn(int column);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  // Puts the column first in the document's sort order (the others follow
  // as they were), so a click on a header sorts by it and breaks ties as
  // before. The thumbnail column does not sort.
  void sort(int column, Qt::SortOrder order) override;

  // The row of a file changed its thumbnail.
  void thumbnailArrived(const QString& path);

 private:
  void documentRowsChanged();
  QVariant dateData(int row, int column, int role) const;

  LumMultiFileDoc& document_;
  const ThumbnailCache& thumbnails_;
};
