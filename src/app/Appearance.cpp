#include "app/Appearance.h"

#include <QGuiApplication>
#include <QPalette>

namespace Appearance {

bool isDark(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  return window.lightness() < palette.color(QPalette::WindowText).lightness();
}

bool isDark() { return isDark(QGuiApplication::palette()); }

}  // namespace Appearance
