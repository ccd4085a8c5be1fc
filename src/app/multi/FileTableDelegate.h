#pragma once
// Paints the multi-file table's special cells and edits its dates: the
// thumbnail (or a busy mark while it is made), the greyed placeholder of an
// absent date, and the date editor, which tells the model whether Shift was
// held when the text was committed (then all three dates take it).

#include <QStyledItemDelegate>

class FileTableDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 protected:
  bool eventFilter(QObject* editor, QEvent* event) override;

 private:
  void paintBackground(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintThumbnail(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
  void paintPlaceholder(QPainter* painter, const QStyleOptionViewItem& option, const QString& text) const;

  // Shift held on the key that committed the editor's text.
  mutable bool shiftCommit_ = false;
};
