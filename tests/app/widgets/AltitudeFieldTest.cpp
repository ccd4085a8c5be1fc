// The altitude field: its embedded button's place, the text kept out of it,
// focus order and showing or hiding the button.
#include <QHBoxLayout>
#include <QLineEdit>
#include <QTest>

#include "app/widgets/BusyIndicator.h"
#include "app/widgets/OrbAltitudeGetterField.h"

namespace {

// A field in a window between two other fields, shown and active.
struct Stage {
  QWidget window;
  QLineEdit* before = new QLineEdit(&window);
  OrbAltitudeGetterField* field = new OrbAltitudeGetterField(&window);
  QLineEdit* after = new QLineEdit(&window);

  Stage() {
    auto* layout = new QHBoxLayout(&window);
    for (QWidget* w : {static_cast<QWidget*>(before), static_cast<QWidget*>(field), static_cast<QWidget*>(after)})
      layout->addWidget(w);
    window.show();
    window.activateWindow();
  }
};

}  // namespace

class AltitudeFieldTest : public QObject {
  Q_OBJECT

 private slots:
  // One resize after another: the button follows the right edge.
  void buttonStaysAtTheRightEdge() {
    OrbAltitudeGetterField field;
    field.show();
    for (const QSize size : {QSize(80, 24), QSize(300, 40)}) {
      field.resize(size);
      const QRect button = field.getAltitudeButton()->geometry();
      QCOMPARE(button.size(), QSize(20, 20));
      QCOMPARE(button.right(), size.width() - 1 - 2);  // a gap of 2 to the edge
      QCOMPARE(button.center().y(), QRect(QPoint(), size).center().y());
      QCOMPARE(field.indicator()->geometry().center(), button.center());
      QVERIFY(field.indicator()->isHidden());
    }
  }

  // Tab goes from the text to the button and on; typed text stops short of
  // the button.
  void keyViewsAndTextStayClearOfEachOther() {
    Stage s;
    QVERIFY(QTest::qWaitForWindowActive(&s.window));
    QCOMPARE(s.field->firstKeyView(), s.field);
    QCOMPARE(s.field->lastKeyView(), s.field->getAltitudeButton());
    s.field->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(s.field->hasFocus());
    QTest::keyClick(s.field, Qt::Key_Tab);
    QTRY_VERIFY(s.field->getAltitudeButton()->hasFocus());
    QTest::keyClick(s.field->getAltitudeButton(), Qt::Key_Tab);
    QTRY_VERIFY(s.after->hasFocus());

    s.field->setFocus();
    QTRY_VERIFY(s.field->hasFocus());
    QTest::keyClicks(s.field, QString(60, u'8'));
    s.field->end(false);
    s.field->repaint();  // the line edit scrolls its text when it paints
    const QRect cursor = s.field->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    // The caret stands in the middle of the rectangle the field reports.
    QVERIFY2(cursor.center().x() < s.field->getAltitudeButton()->geometry().left(), "the text runs under the button");
  }

  void buttonCanBeHiddenAndWired() {
    Stage s;
    QToolButton* button = s.field->getAltitudeButton();
    QVERIFY(button->isVisible());
    s.field->setButtonAppeared(false);
    QVERIFY(!button->isVisible());
    s.field->setButtonAppeared(true);
    QVERIFY(button->isVisible());
    // Wiring replaces the earlier action: one press, one call of the last.
    int first = 0, second = 0;
    s.field->setButtonAction(&s.window, [&first] { ++first; });
    s.field->setButtonAction(&s.window, [&second] { ++second; });
    button->click();
    QCOMPARE(first, 0);
    QCOMPARE(second, 1);
  }
};

QTEST_MAIN(AltitudeFieldTest)
#include "AltitudeFieldTest.moc"
