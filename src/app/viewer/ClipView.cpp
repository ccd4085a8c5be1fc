#include "app/viewer/ClipView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "app/Appearance.h"

ClipView::ClipView(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignCenter);
  // The backdrop is painted here; the viewport's own fill would only be
  // painted over.
  viewport()->setAutoFillBackground(false);
}

QColor ClipView::backdropColor(bool dark) {
  return dark ? QColor::fromRgbF(0.1f, 0.1f, 0.1f, 1.0f) : QColor::fromRgbF(2.0f / 3, 2.0f / 3, 2.0f / 3, 1.0f);
}

void ClipView::paintEvent(QPaintEvent*) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), backdropColor(Appearance::isDark()));
}

void ClipView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QScrollArea::mousePressEvent(event);
  didDragged_ = false;
  pressedAt_ = event->globalPosition().toPoint();
  scrolledAt_ = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
  event->accept();
}

void ClipView::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return QScrollArea::mouseMoveEvent(event);
  // Measured on the screen: the picture moves under the pointer as it pans.
  const QPoint moved = event->globalPosition().toPoint() - pressedAt_;
  if (moved.isNull()) return;
  didDragged_ = true;
  horizontalScrollBar()->setValue(scrolledAt_.x() - moved.x());
  verticalScrollBar()->setValue(scrolledAt_.y() - moved.y());
  event->accept();
}

void ClipView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QScrollArea::mouseReleaseEvent(event);
  const bool click = !didDragged_;
  didDragged_ = false;
  event->accept();
  if (click) emit clicked();
}
