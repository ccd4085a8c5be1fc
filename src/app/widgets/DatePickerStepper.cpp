#include "app/widgets/DatePickerStepper.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolButton>
#include <QVBoxLayout>

DatePickerStepper::DatePickerStepper(QWidget* parent) : QWidget(parent) {
  setAccessibleName(tr("Stepper"));
  setFocusPolicy(Qt::TabFocus);
  auto* layout = new QVBoxLayout(this);
  // A one-pixel rim around the arrows shows the keyboard focus.
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(0);
  up_ = makeArrow(Qt::UpArrow, tr("Step Up"), 1);
  down_ = makeArrow(Qt::DownArrow, tr("Step Down"), -1);
  layout->addWidget(up_);
  layout->addWidget(down_);
}

void DatePickerStepper::setHeight(int height) {
  const int arrows = height - 2;
  up_->setFixedSize(arrows / 2 + 4, arrows - arrows / 2);
  down_->setFixedSize(arrows / 2 + 4, arrows / 2);
  setFixedHeight(height);
}

QToolButton* DatePickerStepper::makeArrow(Qt::ArrowType arrow, const QString& name, int value) {
  auto* button = new QToolButton(this);
  button->setArrowType(arrow);
  button->setAccessibleName(name);
  button->setToolTip(name);
  // The stepper as a whole takes the keyboard focus, not each arrow.
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoRepeat(true);
  // pressed comes once on the press and again on every repeat while the
  // arrow is held; clicked would come only on the release.
  connect(button, &QToolButton::pressed, this, [this, value] { emit stepped(value); });
  return button;
}

void DatePickerStepper::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
    emit stepped(event->key() == Qt::Key_Up ? 1 : -1);
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

void DatePickerStepper::paintEvent(QPaintEvent* /*event*/) {
  if (!hasFocus()) return;
  // The arrows cannot show the focus themselves: they never take it.
  QStylePainter painter(this);
  QStyleOptionFocusRect option;
  option.initFrom(this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
