#pragma once
// The picker's stepper: an up and a down arrow that repeat while held, and
// Up/Down keys while it has the keyboard focus. It only reports the step
// (+1 or -1); the picker decides what it changes.

#include <QWidget>

class QToolButton;

class DatePickerStepper : public QWidget {
  Q_OBJECT

 public:
  explicit DatePickerStepper(QWidget* parent);

  // The picker's height; the two arrows share it.
  void setHeight(int height);

  QToolButton* upButton() const { return up_; }
  QToolButton* downButton() const { return down_; }

 signals:
  void stepped(int value);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QToolButton* makeArrow(Qt::ArrowType arrow, const QString& name, int value);

  QToolButton* up_ = nullptr;
  QToolButton* down_ = nullptr;
};
