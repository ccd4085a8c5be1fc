// The single-file window over real photo files: the link, restore, the
// interval sheet's previews and OK, the photo and the window's
// notifications. Which dates a save writes is the document suite's; the
// inspector's suite saves through the Save button.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

#include "app/sheets/ChangeByIntervalSheet.h"
#include "app/single/PhotoView.h"
#include "app/support/AppFixture.h"
#include "datetime/DateAdditions.h"
#include "documents/LumNotificationCenter.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kA = "2020:01:31 10:00:00";
constexpr const char* kB = "2019:06:01 08:30:00";

std::string text(const std::optional<Instant>& date) { return date ? DateAdditions::tiffDateString(*date) : "none"; }

}  // namespace

class SingleFileWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void linkOnSetsAllThreeWithOneUndoRestoreAndClose() {
    AppFixture s;
    auto window = s.openSingle("a.jpg", {kA, kB, kA});
    QVERIFY(window);
    auto* link = window->findChild<QPushButton*>("linkButton");
    QCOMPARE(link->text(), QStringLiteral("Synchronize"));
    QCOMPARE(link->accessibleName(), link->text());
    link->click();
    QVERIFY(window->document().isLinked());
    typeHour(window->document().picker(DateTargets::Original), "14");
    for (const auto& date : window->document().currentDates()) QCOMPARE(text(date), std::string("2020:01:31 14:00:00"));
    QVERIFY(window->isWindowModified());
    QCOMPARE(window->undoStack().count(), 1);
    window->undoStack().undo();
    const LumSingleFileDoc::Dates& back = window->document().currentDates();
    QCOMPARE(text(back[0]) + text(back[1]) + text(back[2]), std::string(kA) + kB + kA);
    QVERIFY(!window->isWindowModified());
    // Restore takes the file's values and clears the undo history.
    typeHour(window->document().picker(DateTargets::Original), "03");
    QVERIFY(window->isWindowModified());
    window->findChild<QPushButton*>("restoreButton")->click();
    const LumSingleFileDoc::Dates& restored = window->document().currentDates();
    QCOMPARE(text(restored[0]) + text(restored[1]) + text(restored[2]), std::string(kA) + kB + kA);
    QCOMPARE(window->undoStack().count(), 0);
    QVERIFY(!window->isWindowModified());
    QVERIFY(!window->findChild<QPushButton*>("saveFileButton")->isEnabled());
    // Closing, the window tells the inspector there is no document.
    std::vector<std::pair<QString, const void*>> posted;
    QObject::connect(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted, window.get(),
                     [&](const QString& name, const void* object) { posted.emplace_back(name, object); });
    window->close();
    QVERIFY(!posted.empty());
    QCOMPARE(posted.back().first, QStringLiteral("LumDocumentDidChangeNotification"));
    QVERIFY(posted.back().second == nullptr);
  }

  void sheetPreviewsOKStateAndShift() {
    AppFixture s;
    auto window = s.openSingle("a.jpg", {kA, kB, std::nullopt});
    window->findChild<QPushButton*>("intervalButton")->click();
    ChangeByIntervalSheet& sheet = window->intervalSheet();
    QTRY_VERIFY(sheet.isVisible());
    QCOMPARE(sheet.windowModality(), Qt::WindowModal);
    QVERIFY(!sheet.target(DateTargets::Edited).isEnabled());  // the file has no such date

    auto* mode = sheet.findChild<QComboBox*>("modePopup");
    mode->setCurrentIndex(0);  // Backward
    sheet.field(0).setValue(2020);
    QVERIFY(sheet.preview(DateTargets::Original).text().startsWith(QString::fromUtf8("\xE2\x9D\x97")));
    QCOMPARE(sheet.preview(DateTargets::Original).palette().color(QPalette::WindowText), QColor(Qt::red));
    QVERIFY(!sheet.okButton().isEnabled());
    // Only a checked date counts.
    sheet.target(DateTargets::Original).setChecked(false);
    sheet.target(DateTargets::Digitized).setChecked(false);
    QVERIFY(sheet.okButton().isEnabled());
    QVERIFY(sheet.preview(DateTargets::Original).text().isEmpty());
    sheet.target(DateTargets::Original).setChecked(true);
    sheet.target(DateTargets::Digitized).setChecked(true);

    mode->setCurrentIndex(1);  // Forward
    sheet.field(0).setValue(0);
    sheet.field(2).setValue(1);
    sheet.field(3).setValue(5);
    QCOMPARE(sheet.preview(DateTargets::Original).text(), QStringLiteral("2020:02:01 15:00:00"));
    QCOMPARE(sheet.preview(DateTargets::Digitized).text(), QStringLiteral("2019:06:02 13:30:00"));
    QVERIFY(sheet.okButton().isEnabled());
    QTest::keyClick(&sheet.field(3), Qt::Key_Return);  // OK is the default button
    QTRY_VERIFY(!sheet.isVisible());
    const LumSingleFileDoc::Dates& shifted = window->document().currentDates();
    QCOMPARE(text(shifted[0]) + "|" + text(shifted[1]), std::string("2020:02:01 15:00:00|2019:06:02 13:30:00"));
    QCOMPARE(window->undoStack().count(), 1);
    // The fields are cleared for the next use, and Cancel changes nothing.
    window->findChild<QPushButton*>("intervalButton")->click();
    QTRY_VERIFY(sheet.isVisible());
    for (int i = 0; i < 6; ++i) QCOMPARE(sheet.field(i).value(), 0);
    sheet.field(0).setValue(1);
    sheet.findChild<QPushButton*>("cancelButton")->click();
    QTRY_VERIFY(!sheet.isVisible());
    QCOMPARE(sheet.field(0).value(), 0);
    QCOMPARE(window->undoStack().count(), 1);
  }

  void noDatesDisableTheButtonsAndThePhotoFitsWithoutEnlarging() {
    AppFixture s;
    auto window = s.openSingle("a.jpg", {std::nullopt, std::nullopt, std::nullopt});
    QVERIFY(!window->findChild<QPushButton*>("linkButton")->isEnabled());
    QVERIFY(!window->findChild<QPushButton*>("intervalButton")->isEnabled());
    QTRY_VERIFY(window->photo().hasImage());
    QVERIFY(window->photo().width() > 16);
    QCOMPARE(window->photo().shownSize(), QSize(16, 8));  // the builder's small picture

    // A large photo fits the view, keeping its proportions, and fits again
    // when the window grows.
    const fs::path big = s.folder / "big.jpg";
    doctest_support::writeBytes(big, lumtest::encodeJpeg(1600, 800));
    auto large = s.openSingle(big);
    QVERIFY(large);
    QTRY_VERIFY(large->photo().hasImage());
    for (const QSize size : {QSize(500, 600), QSize(900, 700)}) {
      large->resize(size);
      QTRY_COMPARE(large->size(), size);
      const QSize shown = large->photo().shownSize();
      QVERIFY(shown.width() <= large->photo().width() && shown.height() <= large->photo().height());
      QVERIFY(shown.width() == large->photo().width() || shown.height() == large->photo().height());
      QVERIFY(std::abs(shown.width() - 2 * shown.height()) <= 2);
    }
  }
};

QTEST_MAIN(SingleFileWindowTest)
#include "SingleFileWindowTest.moc"
