#include "ScreenshotSession.h"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

#include <algorithm>

#include "app/Appearance.h"

namespace Screenshots {

namespace {

// Where overlay stands inside window, or centred near the top when the
// platform placed it elsewhere.
QPoint overlayPosition(const QWidget& window, const QWidget& overlay) {
  const QPoint at = overlay.frameGeometry().topLeft() - window.frameGeometry().topLeft();
  const QRect inside(QPoint(0, 0), window.size());
  if (inside.contains(QRect(at, overlay.size()))) return at;
  return {(window.width() - overlay.width()) / 2, std::min(40, std::max(0, window.height() - overlay.height()))};
}

}  // namespace

void useStableLook(bool dark) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSize(9);
  QApplication::setFont(font);
  QApplication::setPalette(dark ? Appearance::darkPalette() : QApplication::style()->standardPalette());
}

Session::Session(QDir outputDir) : outputDir_(std::move(outputDir)) { outputDir_.mkpath(QStringLiteral(".")); }

QString Session::shoot(const QString& name, QWidget& window, QWidget* overlay) {
  QPixmap picture = window.grab();
  if (overlay) {
    QPainter painter(&picture);
    const QPoint at = overlayPosition(window, *overlay);
    painter.fillRect(QRect(QPoint(0, 0), window.size()), QColor(0, 0, 0, 35));  // the window is blocked
    painter.drawPixmap(at, overlay->grab());
  }
  const QString path = outputDir_.filePath(name + QStringLiteral(".png"));
  if (!picture.save(path)) return {};
  ++written_;
  return path;
}

}  // namespace Screenshots
