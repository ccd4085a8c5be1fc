#pragma once
// The day count calculator: two dates and the whole days between them.

#include <QWidget>

class DayCalculatorWindow : public QWidget {
  Q_OBJECT

 public:
  explicit DayCalculatorWindow(QWidget* parent = nullptr);
  ~DayCalculatorWindow() override;
};
