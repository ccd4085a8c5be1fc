// The date picker control over its model: typing, keys, the stepper, paste,
// undo while editing, "Multiple Values" and what screen readers see.
#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <memory>
#include <string>
#include <vector>

#include "app/widgets/DatePickerStepper.h"
#include "app/widgets/DatePickerWidget.h"
#include "datetime/DateAdditions.h"
#include "datetime/OrbDatePicker.h"

using Control = OrbDatePicker::Control;

namespace {

struct Recorder : OrbDatePicker::Delegate {
  int changes = 0;
  int ended = 0;
  std::vector<std::string> pasted;
  void datePickerValueDidChange(OrbDatePicker&) override { ++changes; }
  void dateTimeDidEndEditing(OrbDatePicker&, Control) override { ++ended; }
  void subSecondDidEndEditing(OrbDatePicker&, Control) override { ++ended; }
  void pasteWithDateTimeString(const std::string& text) override { pasted.push_back(text); }
};

// A shown, active picker over a model set to the given UTC date.
struct Picker {
  OrbDatePicker model{OrbDatePicker::kStyleMilliseconds};
  Recorder recorder;
  std::unique_ptr<DatePickerWidget> widget;

  explicit Picker(long y = 2019, long m = 3, long d = 7, long h = 9, long mi = 5, long s = 30) {
    model.setDateValue(DateAdditions::dateWithY(y, m, d, h, mi, s, 250'000'000, TimeZone::gmt()), TimeZone::gmt());
    model.setDelegate(&recorder);
    widget = std::make_unique<DatePickerWidget>(model, QStringLiteral("Date Time Original"));
    widget->show();
    widget->activateWindow();
  }
  PickerFieldEditor* field(Control c) const { return widget->fieldEditor(c); }
  // Gives a field the keyboard focus with its whole text selected.
  bool focus(Control c) const {
    field(c)->setFocus(Qt::TabFocusReason);
    if (!QTest::qWaitFor([&] { return field(c)->hasFocus(); })) return false;
    field(c)->selectAll();
    return true;
  }
};

}  // namespace

class DatePickerWidgetTest : public QObject {
  Q_OBJECT

 private slots:
  // Each field's editor types into its own field of the model.
  void typingGoesToTheModel() {
    const struct { Control field; const char* typed; long stored; const char* shownAfter; } cases[] = {
        {Control::yearField, "2021", 2021, "2021"}, {Control::monthField, "11", 11, "11"},
        {Control::dayField, "9", 9, "09"},          {Control::hourField, "23", 23, "23"},
        {Control::minuteField, "4", 4, "04"},       {Control::secondField, "59", 59, "59"},
        {Control::subSecondField, "7", 7, "007"},
    };
    for (const auto& c : cases) {
      Picker p;
      QSignalSpy edited(p.widget.get(), &DatePickerWidget::edited);
      QVERIFY(p.focus(c.field));
      QTest::keyClicks(p.field(c.field), c.typed);
      const std::array<long, 7> values = {p.model.year(),   p.model.month(),  p.model.day(),      p.model.hour(),
                                          p.model.minute(), p.model.second(), p.model.subSecond()};
      QCOMPARE(values[static_cast<std::size_t>(c.field)], c.stored);
      QCOMPARE(p.field(c.field)->text(), QString(c.typed));  // as typed while editing
      QVERIFY(edited.count() >= 1 && p.recorder.changes >= 1);
      // Leaving the field ends its editing and shows the leading zeros.
      QTest::keyClick(p.field(c.field), Qt::Key_Return);
      QCOMPARE(p.recorder.ended, 1);
      p.widget->stepper()->setFocus();
      QTRY_COMPARE(p.field(c.field)->text(), QString(c.shownAfter));
    }
  }

  void typingSurvivesTheOwnerResettingTheValue() {
    // An owner that answers each change by setting the picker again, as a
    // document does: month "0" rolls the date back to December meanwhile.
    struct Resetter : OrbDatePicker::Delegate {
      DatePickerWidget* widget = nullptr;
      void datePickerValueDidChange(OrbDatePicker& picker) override {
        picker.setDateValue(picker.dateValue());
        widget->refresh();
      }
    } resetter;
    Picker p;
    resetter.widget = p.widget.get();
    p.model.setDelegate(&resetter);
    QVERIFY(p.focus(Control::monthField));
    QTest::keyClicks(p.field(Control::monthField), "0x");  // "x" is refused
    QCOMPARE(p.field(Control::monthField)->text(), QStringLiteral("0"));
    QCOMPARE(p.field(Control::monthField)->selectedText(), QStringLiteral("0"));
    QTest::keyClick(p.field(Control::monthField), Qt::Key_End);
    QTest::keyClicks(p.field(Control::monthField), "1");
    QCOMPARE(p.field(Control::monthField)->text(), QStringLiteral("01"));
    QCOMPARE(p.model.month(), 1L);
  }

  // Keys reach the model and the fields show its answer: a step that clamps
  // another field's day, and focus moves (the model's own suite covers every
  // step rule, the stepper case a wrap; Tab is also taken in the undo case below).
  void keysStepAndMove() {
    const struct { QDate start; Control field; Qt::Key key; QDate after; Control focusAfter; } cases[] = {
        {QDate(2024, 3, 31), Control::monthField, Qt::Key_Down, QDate(2024, 2, 29), Control::monthField},
        {QDate(2019, 3, 7), Control::yearField, Qt::Key_Right, QDate(2019, 3, 7), Control::monthField},
        {QDate(2019, 3, 7), Control::dayField, Qt::Key_Backtab, QDate(2019, 3, 7), Control::monthField},
    };
    for (const auto& c : cases) {
      Picker p(c.start.year(), c.start.month(), c.start.day());
      QVERIFY(p.focus(c.field));
      QTest::keyClick(p.field(c.field), c.key);
      QCOMPARE(QDate(int(p.model.year()), int(p.model.month()), int(p.model.day())), c.after);
      QTRY_VERIFY(p.field(c.focusAfter)->hasFocus());
      QCOMPARE(p.field(Control::dayField)->text(), QStringLiteral("%1").arg(c.after.day(), 2, 10, QChar(u'0')));
      if (c.after != c.start) QCOMPARE(p.field(c.field)->selectedText(), p.field(c.field)->text());
    }
  }

  void stepperStepsTheFocusedField() {
    Picker p(2019, 12, 31);
    QSignalSpy edited(p.widget.get(), &DatePickerWidget::edited);
    // Nothing in the picker has the focus: the year steps, and takes it.
    QTest::mouseClick(p.widget->stepper()->upButton(), Qt::LeftButton);
    QCOMPARE(p.model.year(), 2020L);
    QTRY_VERIFY(p.field(Control::yearField)->hasFocus());
    QVERIFY(p.focus(Control::monthField));
    QTest::mouseClick(p.widget->stepper()->upButton(), Qt::LeftButton);
    QCOMPARE(p.model.month(), 1L);  // wrapped
    QCOMPARE(p.field(Control::monthField)->text(), QStringLiteral("01"));
    QCOMPARE(edited.count(), 2);
    // Held down, the arrow goes on stepping.
    QTest::mousePress(p.widget->stepper()->downButton(), Qt::LeftButton);
    QTRY_VERIFY(edited.count() >= 5);
    QTest::mouseRelease(p.widget->stepper()->downButton(), Qt::LeftButton);
  }

  // Text a field cannot take, typed or pasted, is refused with a beep and the
  // field keeps its last good text; a pasted date and time with a fraction
  // of a second goes to the delegate instead (which texts are which is the
  // model suite's).
  void refusedTextComesBackWithABeep() {
    Picker p;
    QSignalSpy refused(p.widget.get(), &DatePickerWidget::textRefused);
    QSignalSpy edited(p.widget.get(), &DatePickerWidget::edited);
    QVERIFY(p.focus(Control::monthField));
    QTest::keyClick(p.field(Control::monthField), Qt::Key_Delete);
    QCOMPARE(refused.count(), 1);
    QCOMPARE(p.field(Control::monthField)->text(), QStringLiteral("03"));
    QCOMPARE(p.field(Control::monthField)->selectedText(), QStringLiteral("03"));
    QTest::keyClicks(p.field(Control::monthField), "13");
    QCOMPARE(refused.count(), 2);
    QCOMPARE(p.model.month(), 1L);  // "1" was taken, "13" was not
    QCOMPARE(p.field(Control::monthField)->text(), QStringLiteral("1"));
    QCOMPARE(edited.count(), 1);

    for (const char* text : {"2019:03:07 09:05:30.250", "hello"}) {
      QVERIFY(p.focus(Control::hourField));
      QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
      QTest::keySequence(p.field(Control::hourField), QKeySequence::Paste);
    }
    QCOMPARE(p.recorder.pasted, std::vector<std::string>{"2019-03-07T09:05:30.250"});
    QCOMPARE(refused.count(), 3);
    QCOMPARE(p.model.hour(), 9L);
    QCOMPARE(p.field(Control::hourField)->text(), QStringLiteral("09"));
  }

  void undoWhileEditingEndsWithEditing() {
    Picker p;
    QVERIFY(p.focus(Control::monthField));
    PickerFieldEditor* month = p.field(Control::monthField);
    QTest::keyClick(month, Qt::Key_Up);
    QTest::keyClick(month, Qt::Key_Up);
    QCOMPARE(p.model.month(), 5L);
    const int changes = p.recorder.changes;
    QTest::keySequence(month, QKeySequence::Undo);
    QCOMPARE(p.model.month(), 4L);
    QCOMPARE(month->text(), QStringLiteral("04"));
    QCOMPARE(p.recorder.changes, changes + 1);  // the owner hears of it
    QTest::keySequence(month, QKeySequence::Undo);
    QCOMPARE(p.model.month(), 3L);
    QTest::keySequence(month, QKeySequence::Redo);
    QCOMPARE(p.model.month(), 4L);
    // Leaving the field ends editing: its history is gone.
    QTest::keyClick(month, Qt::Key_Tab);
    QTRY_VERIFY(p.field(Control::dayField)->hasFocus());
    QCOMPARE(p.recorder.ended, 1);
    QVERIFY(p.model.focused() == Control::dayField);
    QTest::keySequence(p.field(Control::dayField), QKeySequence::Undo);
    QTest::keySequence(month, QKeySequence::Undo);
    QCOMPARE(p.model.month(), 4L);
    QCOMPARE(p.model.day(), 7L);
  }

  void stepperOnMixedPickerSetsNow() {
    Picker p;
    p.model.setClock([] { return *DateAdditions::dateWithY(2021, 6, 15, 12, 0, 0, TimeZone::gmt()); });
    p.model.setMixed(true);
    p.widget->refresh();
    QVERIFY(!p.field(Control::yearField)->isVisible());
    QSignalSpy edited(p.widget.get(), &DatePickerWidget::edited);
    QTest::mouseClick(p.widget->stepper()->upButton(), Qt::LeftButton);
    QCOMPARE(edited.count(), 1);  // what "now" becomes is the model suite's
    QVERIFY(p.field(Control::yearField)->isVisible());
    QCOMPARE(p.field(Control::yearField)->text(), QStringLiteral("2021"));
    // "Multiple Values" takes the room of the style's fields, so nothing
    // around the picker moves when a value comes.
    OrbDatePicker seconds, mixed;
    seconds.setDateValue(Instant{});
    mixed.setMixed(true);
    QCOMPARE(DatePickerWidget(mixed, "M").sizeHint(), DatePickerWidget(seconds, "S").sizeHint());
    // A picker without a date has no stepper to click.
    p.model.setDateValue(std::nullopt);
    p.widget->refresh();
    QVERIFY(!p.widget->stepper()->isEnabled());
    QVERIFY(p.field(Control::yearField)->text().isEmpty());
    QVERIFY(!p.field(Control::yearField)->isEnabled());
  }

  void accessibleGroupAndFields() {
    Picker p;
    QAccessibleInterface* group = QAccessible::queryAccessibleInterface(p.widget.get());
    QVERIFY(group);
    QCOMPARE(group->role(), QAccessible::Grouping);
    QCOMPARE(group->text(QAccessible::Name), QStringLiteral("Date Time Original"));
    const QStringList names = {"Year", "Month", "Day", "Hour", "Minute", "Second", "Millisecond"};
    const QStringList values = {"2019", "03", "07", "09", "05", "30", "250"};
    for (int i = 0; i < names.size(); ++i) {
      QAccessibleInterface* field = QAccessible::queryAccessibleInterface(p.field(static_cast<Control>(i)));
      QCOMPARE(field->text(QAccessible::Name), names[i]);
      QCOMPARE(field->text(QAccessible::Value), values[i]);
    }
    // Assistive technology replaces a field's whole text without typing it
    // (AT-SPI's SetTextContents).
    QSignalSpy edited(p.widget.get(), &DatePickerWidget::edited);
    QAccessibleInterface* hour = QAccessible::queryAccessibleInterface(p.field(Control::hourField));
    QVERIFY(hour->editableTextInterface());
    hour->editableTextInterface()->replaceText(0, hour->textInterface()->characterCount(), QStringLiteral("10"));
    QCOMPARE(p.model.hour(), 10L);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(p.model.dateTimeStringForTIFF().value_or(""), std::string("2019:03:07 10:05:30"));
    // The picker goes away while its first field, its focus proxy, has the
    // focus: the field's last focus-out must not reach the dying picker.
    QVERIFY(p.focus(Control::yearField));
  }
};

QTEST_MAIN(DatePickerWidgetTest)
#include "DatePickerWidgetTest.moc"
