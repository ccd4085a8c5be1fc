// The day count calculator window, driven by typing into its pickers.

#include "app/ToolWindows.h"
#include "app/calculator/DayCalculatorWindow.h"
#include "app/widgets/DatePickerWidget.h"
#include "app/widgets/PickerFieldEditor.h"
#include "app/support/AppFixture.h"
#include "datetime/DateAdditions.h"

using Control = OrbDatePicker::Control;

namespace {

// Types a date into a picker field by field, as a user does; false when a
// field could not take the focus.
bool typeDate(DatePickerWidget& picker, const QDate& date) {
  const std::pair<Control, int> parts[] = {
      {Control::yearField, date.year()}, {Control::monthField, date.month()}, {Control::dayField, date.day()}};
  for (const auto& [field, value] : parts) {
    PickerFieldEditor* editor = picker.fieldEditor(field);
    editor->setFocus(Qt::TabFocusReason);
    if (!QTest::qWaitFor([&] { return editor->hasFocus(); })) return false;
    editor->selectAll();
    QTest::keyClicks(editor, QString::number(value));
    QTest::keyClick(editor, Qt::Key_Return);
  }
  return true;
}

// Noon of 2026-11-24 in the machine's zone: today is that date everywhere.
Instant fixedNow() { return *DateAdditions::dateWithY(2026, 11, 24, 12, 0, 0, 0, TimeZone::local()); }

}  // namespace

class CalculatorTest : public QObject {
  Q_OBJECT

 private slots:
  // Both pickers start at today (dates only); then one window counts the
  // days between each pair of typed dates.
  void countsDaysBetweenTypedDates() {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    DayCalculatorWindow window(nullptr, fixedNow());
    for (DatePickerWidget* picker : {&window.picker1(), &window.picker2()}) {
      const OrbDatePicker& model = picker->model();
      QCOMPARE(QDate(int(model.year()), int(model.month()), int(model.day())), QDate(2026, 11, 24));
      QVERIFY(!picker->fieldEditor(Control::hourField));
    }
    QCOMPARE(window.result(), QStringLiteral("0 days"));
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const struct { QDate first, second; const char* shown; } cases[] = {
        {QDate(2024, 2, 28), QDate(2024, 3, 1), "2 days"},   {QDate(2024, 3, 1), QDate(2024, 2, 28), "2 days"},
        {QDate(2024, 2, 28), QDate(2024, 2, 28), "0 days"},  {QDate(2023, 12, 31), QDate(2024, 1, 1), "1 day"},
        {QDate(1, 1, 1), QDate(9999, 12, 31), "3,652,058 days"},
    };
    for (const auto& c : cases) {
      QVERIFY(typeDate(window.picker1(), c.first) && typeDate(window.picker2(), c.second));
      QCOMPARE(window.result(), QString(c.shown));
    }
  }

  void keepsItsDatesBetweenOpenings() {
    AppFixture app;
    ToolWindows tools(app.context, [] { return nullptr; });
    app.actions.dayCalculator->trigger();
    DayCalculatorWindow& window = tools.dayCalculator();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(typeDate(window.picker1(), QDate(2000, 1, 1)));
    const QString shown = window.result();
    QVERIFY(shown != QStringLiteral("0 days"));
    window.close();
    app.actions.dayCalculator->trigger();
    QCOMPARE(&tools.dayCalculator(), &window);
    QVERIFY(window.isVisible());
    QCOMPARE(window.result(), shown);
    QCOMPARE(window.picker1().model().year(), 2000L);
  }
};

QTEST_MAIN(CalculatorTest)
#include "CalculatorTest.moc"
