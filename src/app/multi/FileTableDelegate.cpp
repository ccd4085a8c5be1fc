#include "app/multi/FileTableDelegate.h"

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

#include <utility>

#include "app/multi/FileTableModel.h"
#include "app/multi/FileTableView.h"


void FileTableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  if (index.column() == FileTableModel::Thumbnail) return paintThumbnail(painter, option, index);
  const QString placeholder = index.data(FileTableModel::PlaceholderRole).toString();
  if (!placeholder.isEmpty()) {
    paintBackground(painter, option, index);
    return paintPlaceholder(painter, option, placeholder);
  }
  QStyledItemDelegate::paint(painter, option, index);
}

void FileTableDelegate::paintThumbnail(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const {
  paintBackground(painter, option, index);
  const QRect box = option.rect.adjusted(2, 2, -2, -2);
  const QVariant decoration = index.data(Qt::DecorationRole);
  painter->save();
  if (decoration.canConvert<QPixmap>()) {
    const QPixmap pixmap = decoration.value<QPixmap>();
    if (!pixmap.isNull()) {
      const QSize size = pixmap.size().scaled(box.size(), Qt::KeepAspectRatio);
      QRect target(QPoint(), size);
      target.moveCenter(box.center());
      painter->setRenderHint(QPainter::SmoothPixmapTransform);
      painter->drawPixmap(target, pixmap);
    }
  } else if (index.data(FileTableModel::ThumbnailPendingRole).toBool()) {
    // Three dots, one lit in turn while the view animates: the thumbnail is
    // on its way.
    const auto* view = qobject_cast<const FileTableView*>(option.widget);
    const int lit = view ? view->busyPhase() % 3 : 1;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    const int dot = std::max(2, std::min(box.width(), box.height()) / 8);
    for (int i = 0; i < 3; ++i) {
      painter->setBrush(option.palette.color(i == lit ? QPalette::Active : QPalette::Disabled, QPalette::Text));
      painter->drawEllipse(QPoint(box.center().x() + (i - 1) * dot * 2, box.center().y()), dot / 2, dot / 2);
    }
  }
  painter->restore();
}

void FileTableDelegate::paintPlaceholder(QPainter* painter, const QStyleOptionViewItem& option,
                                         const QString& text) const {
  painter->save();
  painter->setPen(option.palette.color(QPalette::Disabled, QPalette::Text));
  painter->setFont(option.font);
  const QRect area = option.rect.adjusted(4, 0, -4, 0);
  painter->drawText(area, Qt::AlignVCenter | Qt::AlignLeft,
                    option.fontMetrics.elidedText(text, Qt::ElideRight, area.width()));
  painter->restore();
}

// The cell's own background (selection, alternate rows) without its content.
void FileTableDelegate::paintBackground(QPainter* painter, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
  QStyleOptionViewItem background = option;
  initStyleOption(&background, index);
  background.text.clear();
  background.icon = QIcon();
  const QWidget* widget = option.widget;
  QStyle* style = widget ? widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &background, painter, widget);
}

bool FileTableDelegate::eventFilter(QObject* editor, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
      shiftCommit_ = key->modifiers().testFlag(Qt::ShiftModifier);
  }
  return QStyledItemDelegate::eventFilter(editor, event);
}

void FileTableDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  const auto* line = qobject_cast<QLineEdit*>(editor);
  if (!line) return QStyledItemDelegate::setModelData(editor, model, index);
  // Shift on the committing key, or held when the editor lost the focus.
  const bool shift = std::exchange(shiftCommit_, false) ||
                     QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
  model->setData(index, line->text(), shift ? int{FileTableModel::ShiftEditRole} : int{Qt::EditRole});
}
