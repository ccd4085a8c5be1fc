// Openings through the document controller: expansion and order, one or
// separate windows, failures, drops of open files, hand-overs, the quit
// review and the list size.
#include "OpeningTest.h"

#include <QAction>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "ShellFixture.h"
#include "app/single/SingleFileWindow.h"
#include "app/startup/OpenQueue.h"
#include "documents/LumNotificationCenter.h"

using doctest_support::writeBytes;
namespace fs = std::filesystem;

namespace {

std::vector<fs::path> rowPaths(LumMultiFileDoc& document) {
  std::vector<fs::path> paths;
  for (int row = 0; row < document.rowCount(); ++row) paths.push_back(document.item(row).path());
  return paths;
}

// Answers the close sheet of window with the button named objectName.
bool answerCloseSheet(DocumentWindow* window, const char* objectName) {
  if (!QTest::qWaitFor([window] { return window->closeSheet() != nullptr; }, 5000)) return false;
  auto* button = window->closeSheet()->findChild<QPushButton*>(objectName);
  if (!button) return false;
  button->click();
  return true;
}

}  // namespace

void OpeningTest::openFolderKeepsPhotosSorted() {
  ShellFixture f;
  f.photo("b.JPG");
  f.photo("a.jpg");
  f.photo("c.png");
  f.photo("sub/d.tif");
  f.prompts.nextOpenRequest = Prompts::OpenRequest{{f.folder.path()}, false};
  QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
  QCOMPARE(f.prompts.openDialogs, 1);
  QCOMPARE(f.controller.windows().size(), 1u);
  QCOMPARE(f.multiWindows().size(), 1u);
  const std::vector<fs::path> expected{f.folder / "a.jpg", f.folder / "b.JPG", f.folder / "sub/d.tif"};
  QVERIFY(rowPaths(f.multiWindows().front()->document()) == expected);
  QVERIFY(f.prompts.alerts.empty());
}

void OpeningTest::separateWindowsStopAtFifty() {
  ShellFixture f;
  for (int i = 1; i <= 60; ++i) f.photo(QStringLiteral("img%1.jpg").arg(i).toStdString());
  f.prompts.nextOpenRequest = Prompts::OpenRequest{{f.folder.path()}, true};
  QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
  QVERIFY(f.settings.useSingleWindow());
  const std::vector<DocumentWindow*> windows = f.controller.windows();
  QCOMPARE(windows.size(), 51u);
  // The first fifty in the file manager's order, each in its own window.
  for (int i = 0; i < 50; ++i) {
    auto* single = qobject_cast<SingleFileWindow*>(windows[std::size_t(i)]);
    QVERIFY(single);
    QCOMPARE(single->openFiles().front(), f.folder / QStringLiteral("img%1.jpg").arg(i + 1).toStdString());
  }
  QCOMPARE(f.multiWindows().size(), 1u);
  QCOMPARE(f.multiWindows().front()->document().rowCount(), 10);
}

void OpeningTest::unreadableFileIsReportedAfterTheWindow() {
  ShellFixture f;
  f.photo("a.jpg");
  writeBytes(f.folder / "b.jpg", {'n', 'o', 't', ' ', 'a', ' ', 'p', 'h', 'o', 't', 'o'});
  f.photo("c.jpg");
  std::size_t windowsAtAlert = 0;
  f.prompts.onAlert = [&] { windowsAtAlert = f.controller.windows().size(); };
  f.prompts.nextOpenRequest = Prompts::OpenRequest{{f.folder.path()}, false};
  QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
  QCOMPARE(f.multiWindows().size(), 1u);
  QCOMPARE(f.multiWindows().front()->document().rowCount(), 2);
  QCOMPARE(f.prompts.alerts.size(), 1u);
  QCOMPARE(windowsAtAlert, 1u);
  QCOMPARE(f.prompts.alerts.front().message, QStringLiteral("\"b.jpg\" could not be opened."));
  QCOMPARE(f.prompts.alerts.front().informativeText,
           QStringLiteral("It uses a file format that Lumidate does not recognize."));
}

void OpeningTest::droppingOpenFilesAsksThenOpensNothing() {
  ShellFixture f;
  const fs::path a = f.photo("a.jpg"), b = f.photo("b.jpg");
  f.settings.setUseSingleWindow(true);
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a, b}, false); }));
  QCOMPARE(f.controller.windows().size(), 2u);
  QCOMPARE(f.prompts.openStyleQuestions, 0);

  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a, b}, true); }));
  QCOMPARE(f.prompts.askedCounts, std::vector<std::size_t>{0});
  QCOMPARE(f.controller.windows().size(), 2u);
}

void OpeningTest::handOversCloseTogetherOpenTogether() {
  ShellFixture f;
  const fs::path a = f.photo("a.jpg"), b = f.photo("b.jpg");
  OpenQueue queue;
  QObject::connect(&queue, &OpenQueue::ready, &f.controller, [&](const QStringList& paths) {
    std::vector<fs::path> files;
    for (const QString& path : paths) files.emplace_back(path.toStdString());
    f.controller.openFiles(files, true);
  });
  QVERIFY(f.waitForOpening([&] {
    queue.add({QString::fromStdString(a.string())});
    QTimer::singleShot(100, &queue, [&] { queue.add({QString::fromStdString(b.string())}); });
  }));
  QCOMPARE(f.prompts.askedCounts, std::vector<std::size_t>{2});
  QCOMPARE(f.multiWindows().size(), 1u);
  QCOMPARE(f.multiWindows().front()->document().rowCount(), 2);
}

void OpeningTest::quitReviewAsksLastOpenedFirst_data() {
  QTest::addColumn<bool>("cancelFirstAsked");
  QTest::newRow("cancel on the last opened") << true;
  QTest::newRow("don't save it, cancel on the first opened") << false;
}

void OpeningTest::quitReviewAsksLastOpenedFirst() {
  QFETCH(bool, cancelFirstAsked);
  ShellFixture f;
  f.settings.setUseSingleWindow(true);
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({f.photo("a.jpg"), f.photo("b.jpg")}, false); }));
  const std::vector<DocumentWindow*> windows = f.controller.windows();
  QCOMPARE(windows.size(), 2u);
  QPointer<DocumentWindow> first = windows[0], last = windows[1];
  for (DocumentWindow* window : windows)
    QVERIFY(static_cast<SingleFileWindow*>(window)->document().changeDateWithYears(1, 0, 0, 0, 0, 0, true, 1));

  QSignalSpy review(&f.controller, &DocumentController::quitReviewFinished);
  f.controller.reviewChangesAndQuit();
  QVERIFY(first->closeSheet() == nullptr);
  if (cancelFirstAsked) {
    QVERIFY(answerCloseSheet(last, "cancelButton"));
    QCOMPARE(review.count(), 1);
    QCOMPARE(review.front().front().toBool(), false);
    QVERIFY(first->closeSheet() == nullptr);
    QCOMPARE(f.controller.windows().size(), 2u);
    return;
  }
  QVERIFY(answerCloseSheet(last, "dontSaveButton"));
  QVERIFY(answerCloseSheet(first, "cancelButton"));
  QCOMPARE(review.count(), 1);
  QCOMPARE(review.front().front().toBool(), false);
  QCOMPARE(f.controller.windows().size(), 1u);
  QVERIFY(first && first->hasEditedFile());
}

void OpeningTest::quitWhileACloseSheetIsUpWaitsForIt() {
  ShellFixture f;
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({f.photo("a.jpg")}, false); }));
  auto* window = static_cast<SingleFileWindow*>(f.controller.windows().front());
  QVERIFY(window->document().changeDateWithYears(0, 1, 0, 0, 0, 0, true, 1));
  window->close();
  QVERIFY(window->closeSheet());
  QSignalSpy review(&f.controller, &DocumentController::quitReviewFinished);
  f.controller.reviewChangesAndQuit();
  QCOMPARE(review.count(), 0);
  QVERIFY(answerCloseSheet(window, "dontSaveButton"));
  QCOMPARE(review.count(), 1);
  QCOMPARE(review.front().front().toBool(), true);
}

void OpeningTest::quitWithNothingEditedQuits() {
  ShellFixture f;
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({f.photo("a.jpg")}, false); }));
  QSignalSpy review(&f.controller, &DocumentController::quitReviewFinished);
  f.controller.reviewChangesAndQuit();
  QCOMPARE(review.count(), 1);
  QCOMPARE(review.front().front().toBool(), true);
  QTRY_VERIFY(f.controller.windows().empty());
}

void OpeningTest::listSizeIsStoredAndAnnounced() {
  ShellFixture f;
  QSignalSpy posted(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted);
  f.actions.listLarge->trigger();
  QCOMPARE(f.settings.tableViewRowHeight(), int(Settings::Large));
  QVERIFY(f.actions.listLarge->isChecked() && !f.actions.listMedium->isChecked());
  QCOMPARE(posted.count(), 1);
  QCOMPARE(posted.front().front().toString(), QString(kLumListSizeDidChangeNotification));
}

void OpeningTest::openedFileGoesToOpenRecent() {
  ShellFixture f;
  const fs::path a = f.photo("a.jpg");
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a}, false); }));
  QCOMPARE(f.controller.recentFiles(), QStringList{QString::fromStdString(a.string())});
  QCOMPARE(f.actions.openRecent->actions().size(), 1);
  // Opening it again raises its window instead of making another.
  QVERIFY(f.waitForOpening([&] { f.actions.openRecent->actions().front()->trigger(); }));
  QCOMPARE(f.controller.windows().size(), 1u);
}
