// Pictures of the day count calculator (light and dark) and of the altitude
// field on its own.
#include "ToolShots.h"

#include <QFormLayout>
#include <QLocale>
#include <QTest>

#include "ScreenshotSession.h"
#include "app/calculator/DayCalculatorWindow.h"
#include "app/widgets/DatePickerWidget.h"
#include "app/widgets/OrbAltitudeGetterField.h"
#include "app/widgets/PickerFieldEditor.h"

namespace {

// Types a year into a picker, as a user does.
void typeYear(DatePickerWidget& picker, int year) {
  PickerFieldEditor* field = picker.fieldEditor(OrbDatePicker::Control::yearField);
  field->setFocus();
  field->selectAll();
  QTest::keyClicks(field, QString::number(year));
  QTest::keyClick(field, Qt::Key_Return);
  field->deselect();
  field->clearFocus();
}

}  // namespace

void shootToolWindows(Screenshots::Session& session) {
  {
    DayCalculatorWindow calculator;
    calculator.show();
    typeYear(calculator.picker1(), 2000);
    session.shoot(QStringLiteral("calculator"), calculator);
    Screenshots::useStableLook(true);
    (void)QTest::qWaitFor([&] { return calculator.palette().color(QPalette::Window).lightness() < 128; });
    session.shoot(QStringLiteral("calculator-dark"), calculator);
    Screenshots::useStableLook(false);
    (void)QTest::qWaitFor([&] { return calculator.palette().color(QPalette::Window).lightness() >= 128; });
  }
  QWidget frame;
  auto* form = new QFormLayout(&frame);
  auto* field = new OrbAltitudeGetterField(&frame);
  field->setText(QStringLiteral("1234.5 m"));
  form->addRow(QStringLiteral("Altitude:"), field);
  frame.resize(280, frame.sizeHint().height());
  frame.show();
  session.shoot(QStringLiteral("altitude-field"), frame);
}
