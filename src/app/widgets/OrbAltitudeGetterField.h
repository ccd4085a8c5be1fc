#pragma once
// A text field for an altitude with a small button at its right end that
// asks for the ground height of the photo's position, and a busy indicator
// in the same place for while an answer is awaited. The field only provides
// the control: its owner wires the button (setButtonAction) and shows the
// indicator. Typed text stops short of the button.

#include <QLineEdit>
#include <QToolButton>

class BusyIndicator;

class OrbAltitudeGetterField : public QLineEdit {
  Q_OBJECT

 public:
  static constexpr int kButtonSize = 20;
  static constexpr int kButtonGap = 2;
  static constexpr int kIndicatorSize = 16;

  explicit OrbAltitudeGetterField(QWidget* parent = nullptr);
  ~OrbAltitudeGetterField() override;

  QToolButton* getAltitudeButton() const { return button_; }
  BusyIndicator* indicator() const { return indicator_; }

  // Shows or hides the button.
  void setButtonAppeared(bool appeared);
  // Wires the button's press to function, run in receiver's context; a
  // later call replaces the earlier wiring.
  template <typename Function>
  void setButtonAction(const QObject* receiver, Function function) {
    disconnect(action_);
    action_ = connect(button_, &QAbstractButton::clicked, receiver, function);
  }

  // Focus order inside the field: the text, then the button.
  QWidget* firstKeyView() { return this; }
  QWidget* lastKeyView() const;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void placeContentItems();

  QToolButton* button_ = nullptr;
  BusyIndicator* indicator_ = nullptr;
  QMetaObject::Connection action_;
};
