#pragma once
// Writes pictures of real windows, made on the offscreen platform, as PNG
// files: a window alone, or a window with the sheet or alert it shows drawn
// over it where it stands (a window-modal sheet is a window of its own, so a
// grab of the document window alone would leave it out).

#include <QDir>
#include <QString>

class QWidget;

namespace Screenshots {

// Fusion with a fixed font, light or dark, so pictures do not depend on the
// desktop they are made on.
void useStableLook(bool dark);

class Session {
 public:
  explicit Session(QDir outputDir);

  // Saves window (with overlay on top, when given) as <name>.png; returns
  // the file's path, empty on failure.
  QString shoot(const QString& name, QWidget& window, QWidget* overlay = nullptr);
  int written() const { return written_; }

 private:
  QDir outputDir_;
  int written_ = 0;
};

}  // namespace Screenshots
