#pragma once
// The text editor of one date picker field. It turns Qt's key, paste and
// undo events into the picker model's terms (platform key codes, the Shift
// flag, the pasted text) and hands them to its host, the picker widget;
// what a key means is the model's business.

#include <QLineEdit>

#include <optional>

#include "datetime/OrbDatePicker.h"

class QKeyEvent;

// What the picker widget answers to its field editors.
class PickerFieldHost {
 public:
  using Control = OrbDatePicker::Control;
  // True when the key was taken (the editor does nothing more with it).
  virtual bool fieldKey(Control field, int keyCode, unsigned long modifierFlags, bool selectionEmpty) = 0;
  // True when the text went elsewhere than into the field as text.
  virtual bool fieldPaste(Control field, const QString& text) = 0;
  virtual bool canUndoField(bool redo) const = 0;
  virtual void undoField(Control field, bool redo) = 0;
  virtual void fieldReturn(Control field) = 0;
  virtual void fieldFocusIn(Control field) = 0;
  virtual void fieldFocusOut(Control field, Qt::FocusReason reason) = 0;

 protected:
  ~PickerFieldHost() = default;
};

class PickerFieldEditor : public QLineEdit {
  Q_OBJECT

 public:
  // digits: how many digits the field shows (its width follows).
  PickerFieldEditor(PickerFieldHost& host, OrbDatePicker::Control field, int digits, QWidget* parent);

  OrbDatePicker::Control field() const { return field_; }
  // The host is going away: from now on the editor is a plain line edit
  // (a last focus-out may still come while the widgets are torn down).
  void detachHost() { host_ = nullptr; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  // The model's code for a Qt key (arrows, Tab, Backspace), none for others.
  static std::optional<int> platformKeyCode(int qtKey);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  // True when the host took the key.
  bool offerKey(QKeyEvent* event);

  PickerFieldHost* host_;
  OrbDatePicker::Control field_;
  int digits_;
};
