#pragma once
// The date picker control: draws an OrbDatePicker model (seven numeric
// fields with separators and a stepper) and forwards what the user does to
// it. Every rule (bounds, stepping, paste, undo) stays in the model.

#include <QString>
#include <QWidget>

class OrbDatePicker;

class DatePickerWidget : public QWidget {
  Q_OBJECT

 public:
  // label: what the picker is called ("Date Time Original"); screen readers
  // read the fields inside a group of that name.
  DatePickerWidget(OrbDatePicker& model, const QString& label, QWidget* parent = nullptr);
  ~DatePickerWidget() override;

  OrbDatePicker& model() const { return model_; }
  // Shows the model's state again after a change made elsewhere.
  void refresh();

 signals:
  // The user changed the value through this control.
  void edited();

 private:
  OrbDatePicker& model_;
  class QLabel* text_ = nullptr;
};
