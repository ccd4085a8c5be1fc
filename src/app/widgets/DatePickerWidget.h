#pragma once
// The date picker control: draws an OrbDatePicker model (seven numeric
// fields with separators and a stepper) and forwards what the user does to
// it. Every rule (bounds, stepping, paste, undo) stays in the model.
//
// The widget gives the model its editing-session undo history (the model's
// undo manager) for as long as the widget lives: Ctrl+Z in a field walks
// back that field's changes until editing ends.

#include <QString>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

#include "app/widgets/PickerFieldEditor.h"
#include "datetime/OrbDatePicker.h"

class DatePickerFace;
class DatePickerFieldRow;
class DatePickerStepper;
class DatePickerUndoSession;
class QLabel;
class QStackedLayout;

class DatePickerWidget : public QWidget, private PickerFieldHost {
  Q_OBJECT

 public:
  // label: what the picker is called ("Date Time Original"); screen readers
  // read the fields inside a group of that name.
  DatePickerWidget(OrbDatePicker& model, const QString& label, QWidget* parent = nullptr);
  ~DatePickerWidget() override;

  OrbDatePicker& model() const { return model_; }
  // Shows the model's state again after a change made elsewhere.
  void refresh();

  // The editor of a field; null for a field absent from the model's layout.
  PickerFieldEditor* fieldEditor(OrbDatePicker::Control field) const;
  DatePickerStepper* stepper() const { return stepper_; }

 protected:
  void changeEvent(QEvent* event) override;

 signals:
  // The user changed the value through this control.
  void edited();
  // Typing was refused and the previous text put back (with a beep).
  void textRefused();

 private:
  // What an edit may change; compared before and after to know whether
  // edited() is due.
  struct Shown {
    OrbDatePicker::DateTimeValues values;
    std::array<std::string, OrbDatePicker::kFieldCount> texts;
    bool mixed = false;
    bool enabled = false;
    bool operator==(const Shown&) const = default;
  };
  Shown shown() const;
  void finishEdit(const Shown& before);

  QWidget* buildFace();
  // Heights and gaps from the current font and style.
  void updateMetrics();
  void buildFields();
  void setTabChain();
  void refreshField(Control field);
  // The field belongs to the layout of the model's style (seconds: no
  // milliseconds; date only: no time).
  bool inStyle(Control field) const;
  void onTextChanged(Control field, const QString& text);
  void onStepped(int value);
  // The model's focus from Qt's, and Qt's from the model's.
  void takeFocusFromQt();
  void giveFocusToQt();
  void endEditing(Control field);

  // PickerFieldHost
  bool fieldKey(Control field, int keyCode, unsigned long modifierFlags, bool selectionEmpty) override;
  bool fieldPaste(Control field, const QString& text) override;
  bool canUndoField(bool redo) const override;
  void undoField(Control field, bool redo) override;
  void fieldReturn(Control field) override;
  void fieldFocusIn(Control field) override;
  void fieldFocusOut(Control field, Qt::FocusReason reason) override;

  OrbDatePicker& model_;
  std::unique_ptr<DatePickerUndoSession> undo_;
  std::array<PickerFieldEditor*, OrbDatePicker::kFieldCount> fields_{};
  DatePickerFace* face_ = nullptr;
  QStackedLayout* pages_ = nullptr;
  DatePickerFieldRow* fieldRow_ = nullptr;
  QLabel* mixedText_ = nullptr;
  DatePickerStepper* stepper_ = nullptr;
  // The field changed by the user since it took the focus: its editing
  // ends (in the model's sense) when it loses the focus.
  std::optional<Control> editing_;
  // Each field's last text that the model took or showed: what comes back
  // when typing is refused.
  std::array<QString, OrbDatePicker::kFieldCount> lastText_;
  // The field whose keystroke is being handled: whatever the owner makes
  // of the value meanwhile, the field keeps what was typed until the user
  // leaves it ("0" on the way to "01" may roll the date over).
  std::optional<Control> typing_;
  bool refreshing_ = false;
};
