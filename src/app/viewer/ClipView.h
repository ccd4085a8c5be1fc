#pragma once
// The scrolling area of the image viewer. It paints the backdrop behind the
// picture (near black in the dark appearance, light grey otherwise) and
// tells a click from a drag: a press and release without the pointer moving
// in between is a click and emits clicked(); moving with the button down
// pans the picture and is no click.

#include <QColor>
#include <QPoint>
#include <QScrollArea>

class ClipView : public QScrollArea {
  Q_OBJECT

 public:
  explicit ClipView(QWidget* parent = nullptr);

  // The backdrop colour for the dark or the light appearance.
  static QColor backdropColor(bool dark);

 signals:
  // A plain click (no drag) in the picture or around it.
  void clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool didDragged_ = false;  // the pointer moved since the last press
  QPoint pressedAt_;         // global position of the press
  QPoint scrolledAt_;        // scroll bar values at the press
};
