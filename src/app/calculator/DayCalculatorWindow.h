#pragma once
// The day count calculator: two date-only pickers and the number of whole
// days between them. The count and the choice of format come from
// LumDayCalculator; the window lays the controls out and binds them.
//
// The pickers are the project's own date picker: Qt's date edit stops at
// year 100, and the calculator reaches from 0001-01-01 to 9999-12-31.

#include <QWidget>

#include <cstdint>
#include <memory>

#include "datetime/LumDayCalculator.h"
#include "datetime/OrbDatePicker.h"

class DatePickerWidget;
class QLabel;

class DayCalculatorWindow : public QWidget {
  Q_OBJECT

 public:
  explicit DayCalculatorWindow(QWidget* parent = nullptr, const Instant& now = Instant::now());
  ~DayCalculatorWindow() override;

  // The result as shown: the format of "days" or "day" filled with the
  // count written the locale's way ("3,652,058 days").
  static QString resultText(std::uint64_t days);

  DatePickerWidget& picker1() const { return *picker1_; }
  DatePickerWidget& picker2() const { return *picker2_; }
  QString result() const;

 protected:
  // A press on the background moves the window.
  void mousePressEvent(QMouseEvent* event) override;

 private:
  DatePickerWidget* makePicker(OrbDatePicker& model, const QString& label);
  // Takes both pickers' dates into the model and shows its count.
  void calculate();

  LumDayCalculator calculator_;
  OrbDatePicker model1_, model2_;
  DatePickerWidget* picker1_ = nullptr;
  DatePickerWidget* picker2_ = nullptr;
  QLabel* result_ = nullptr;
};
