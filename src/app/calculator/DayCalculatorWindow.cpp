#include "app/calculator/DayCalculatorWindow.h"

DayCalculatorWindow::DayCalculatorWindow(QWidget* parent) : QWidget(parent, Qt::Window) {}

DayCalculatorWindow::~DayCalculatorWindow() = default;
