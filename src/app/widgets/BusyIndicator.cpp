#include "app/widgets/BusyIndicator.h"

#include <QPainter>

namespace {
constexpr int kStrokes = 12;
}

BusyIndicator::BusyIndicator(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  timer_.setInterval(80);
  connect(&timer_, &QTimer::timeout, this, [this] {
    step_ = (step_ + 1) % kStrokes;
    update();
  });
}

void BusyIndicator::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal side = std::min(width(), height());
  painter.translate(width() / 2.0, height() / 2.0);
  QColor color = palette().color(QPalette::WindowText);
  QPen pen(color, side / 9.0, Qt::SolidLine, Qt::RoundCap);
  for (int i = 0; i < kStrokes; ++i) {
    // The stroke at the current step is solid; the ones behind it fade.
    const int age = (step_ - i + kStrokes) % kStrokes;
    color.setAlphaF(1.0 - 0.8 * age / kStrokes);
    pen.setColor(color);
    painter.setPen(pen);
    painter.drawLine(QPointF(0, -side * 0.25), QPointF(0, -side * 0.45));
    painter.rotate(360.0 / kStrokes);
  }
}

void BusyIndicator::showEvent(QShowEvent* event) {
  timer_.start();
  QWidget::showEvent(event);
}

void BusyIndicator::hideEvent(QHideEvent* event) {
  timer_.stop();
  QWidget::hideEvent(event);
}
