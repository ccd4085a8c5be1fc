#include "app/widgets/OrbAltitudeGetterField.h"

#include <QIcon>
#include <QMouseEvent>

#include "app/widgets/BusyIndicator.h"
#include "documents/LumLocalized.h"

namespace {
// The text area ends this far from the right edge: the button and its gap.
constexpr int kReserved = OrbAltitudeGetterField::kButtonSize + OrbAltitudeGetterField::kButtonGap;
}  // namespace

OrbAltitudeGetterField::OrbAltitudeGetterField(QWidget* parent) : QLineEdit(parent) {
  setAccessibleName(tr("Altitude"));
  const QString tip = LumLocalized::text("Retrieve altitude value from the Geospatial Information Authority of Japan.");

  button_ = new QToolButton(this);
  button_->setObjectName(QStringLiteral("getAltitudeButton"));
  button_->setAutoRaise(true);  // flat: no frame until the pointer is over it
  button_->setFixedSize(kButtonSize, kButtonSize);
  button_->setIcon(QIcon(QStringLiteral(":/icons/getAltitude.png")));
  button_->setIconSize(QSize(kIndicatorSize, kIndicatorSize));
  button_->setToolTip(tip);
  button_->setAccessibleName(tip);
  button_->setCursor(Qt::ArrowCursor);
  button_->setFocusPolicy(Qt::TabFocus);

  indicator_ = new BusyIndicator(this);
  indicator_->setObjectName(QStringLiteral("indicator"));
  indicator_->setFixedSize(kIndicatorSize, kIndicatorSize);
  indicator_->hide();

  // Typed text never runs under the button.
  setTextMargins(0, 0, kReserved, 0);
  setMouseTracking(true);
  setTabOrder(this, button_);
  placeContentItems();
}

OrbAltitudeGetterField::~OrbAltitudeGetterField() = default;

void OrbAltitudeGetterField::setButtonAppeared(bool appeared) { button_->setVisible(appeared); }

QWidget* OrbAltitudeGetterField::lastKeyView() const { return button_; }

void OrbAltitudeGetterField::placeContentItems() {
  // At the right edge, vertically centred; the indicator in the button's middle.
  const QRect buttonArea(width() - kReserved, (height() - kButtonSize) / 2, kButtonSize, kButtonSize);
  button_->setGeometry(buttonArea);
  QRect spinner(0, 0, kIndicatorSize, kIndicatorSize);
  spinner.moveCenter(buttonArea.center());
  indicator_->setGeometry(spinner);
}

void OrbAltitudeGetterField::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  placeContentItems();
}

void OrbAltitudeGetterField::mouseMoveEvent(QMouseEvent* event) {
  // The I-beam over the text area only: the strip kept for the button
  // (its gap included) shows the arrow.
  const bool overText = event->position().x() < width() - kReserved;
  setCursor(overText ? Qt::IBeamCursor : Qt::ArrowCursor);
  QLineEdit::mouseMoveEvent(event);
}
