// The picker's answers to what the user does: typing, keys, the stepper,
// paste, undo while editing, and the focus moving in and out of fields.
#include "app/widgets/DatePickerWidget.h"

#include <QApplication>
#include <QScopedValueRollback>

#include "app/widgets/DatePickerFace.h"
#include "app/widgets/DatePickerStepper.h"
#include "app/widgets/DatePickerUndoSession.h"

using Control = OrbDatePicker::Control;

namespace {

std::size_t indexOf(Control field) { return static_cast<std::size_t>(field); }

}  // namespace

// --- Focus ---------------------------------------------------------------------------

void DatePickerWidget::takeFocusFromQt() {
  const QWidget* focus = QApplication::focusWidget();
  std::optional<Control> control;
  for (std::size_t i = 0; i < OrbDatePicker::kFieldCount; ++i)
    if (focus && fields_[i] == focus) control = static_cast<Control>(i);
  if (focus && (focus == stepper_ || stepper_->isAncestorOf(focus))) control = Control::stepper;
  model_.setFocused(control);
}

void DatePickerWidget::giveFocusToQt() {
  const std::optional<Control> control = model_.focused();
  if (!control) return;
  QWidget* target = *control == Control::stepper ? static_cast<QWidget*>(stepper_) : fields_[indexOf(*control)];
  if (target && !target->hasFocus()) target->setFocus(Qt::OtherFocusReason);
}

void DatePickerWidget::endEditing(Control field) {
  editing_.reset();
  model_.controlTextDidEndEditing(field);
}

void DatePickerWidget::fieldFocusIn(Control field) {
  model_.setFocused(field);
  face_->update();
}

void DatePickerWidget::fieldFocusOut(Control field, Qt::FocusReason reason) {
  face_->update();
  // The model's focus says which picker of a window the user is in (a
  // paste reaches the owner without naming its picker).
  const QWidget* focus = QApplication::focusWidget();
  if (!focus || !isAncestorOf(focus)) model_.setFocused(std::nullopt);
  // Another window or a menu taking the focus for a while ends nothing.
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) return;
  if (editing_ == field) endEditing(field);
  const QScopedValueRollback guard(refreshing_, true);
  refreshField(field);  // leading zeros again
}

// --- What the user does --------------------------------------------------------------

void DatePickerWidget::onTextChanged(Control field, const QString& text) {
  if (refreshing_) return;
  const Shown before = shown();
  PickerFieldEditor* editor = fieldEditor(field);
  const QScopedValueRollback typing(typing_, std::optional<Control>(field));
  if (!model_.controlTextDidChange(field, text.toStdString())) {
    // A field is never left empty nor holds what the model refuses: the
    // previous text comes back, all selected, with a beep.
    {
      const QScopedValueRollback guard(refreshing_, true);
      editor->setText(lastText_[indexOf(field)]);
    }
    editor->selectAll();
    QApplication::beep();
    emit textRefused();
    return;
  }
  lastText_[indexOf(field)] = text;
  if (editor->hasFocus()) editing_ = field;
  // The model may have lowered the day after a month or year change.
  refresh();
  finishEdit(before);
}

bool DatePickerWidget::fieldKey(Control field, int keyCode, unsigned long modifierFlags, bool selectionEmpty) {
  model_.setFocused(field);
  const Shown before = shown();
  if (!model_.keyDown(keyCode, modifierFlags, selectionEmpty)) return false;
  // Tab with no neighbour inside the picker: Qt's chain leaves it.
  if (keyCode == OrbDatePicker::kKeyTab && model_.focused() == field) return false;
  if (keyCode == OrbDatePicker::kKeyUp || keyCode == OrbDatePicker::kKeyDown) {
    refresh();
    fieldEditor(field)->selectAll();
    if (shown() != before) editing_ = field;
  }
  giveFocusToQt();
  finishEdit(before);
  return true;
}

void DatePickerWidget::onStepped(int value) {
  const Shown before = shown();
  takeFocusFromQt();
  model_.stepperMouseDown(value);
  refresh();
  giveFocusToQt();
  const std::optional<Control> focused = model_.focused();
  if (PickerFieldEditor* editor = focused ? fieldEditor(*focused) : nullptr) {
    editor->selectAll();
    // A click on "Multiple Values" or an empty picker ends its own editing
    // in the model; only a step of a shown value starts an editing session.
    if (!before.mixed && before.enabled && shown() != before) editing_ = *focused;
  }
  finishEdit(before);
}

bool DatePickerWidget::fieldPaste(Control field, const QString& text) {
  model_.setFocused(field);
  const Shown before = shown();
  if (!model_.paste(text.toStdString())) return false;
  refresh();
  finishEdit(before);
  return true;
}

bool DatePickerWidget::canUndoField(bool redo) const { return redo ? undo_->canRedo() : undo_->canUndo(); }

void DatePickerWidget::undoField(Control field, bool redo) {
  const Shown before = shown();
  if (redo)
    undo_->redo();
  else
    undo_->undo();
  // The model puts the old value back without reporting it; its owner
  // hears of it as of any other change of the value.
  if (shown() != before && model_.delegate()) model_.delegate()->datePickerValueDidChange(model_);
  refresh();
  fieldEditor(field)->selectAll();
  finishEdit(before);
}

void DatePickerWidget::fieldReturn(Control field) {
  if (editing_ == field) endEditing(field);
  fieldEditor(field)->selectAll();
}
