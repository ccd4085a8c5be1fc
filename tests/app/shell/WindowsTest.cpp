// The windows of the shell: the close sheet, the progress window, drops,
// the open dialog and the failure list.
#include "WindowsTest.h"

#include <QAbstractItemView>
#include <QFileSystemModel>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QUrl>

#include "ShellFixture.h"
#include "app/loading/LoadProgressWindow.h"
#include "app/sheets/FileListAlert.h"
#include "app/sheets/OpenFileDialog.h"
#include "app/single/SingleFileWindow.h"

namespace fs = std::filesystem;

void WindowsTest::closeSheetSaveWritesAndCloses() {
  ShellFixture f;
  const fs::path a = f.photo("a.jpg");
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a}, false); }));
  QPointer<SingleFileWindow> window = qobject_cast<SingleFileWindow*>(f.controller.windows().front());
  QVERIFY(window);
  auto* saveFile = window->findChild<QPushButton*>("saveFileButton");
  QVERIFY(!saveFile->isEnabled());
  QVERIFY(window->document().changeDateWithYears(1, 0, 0, 0, 0, 0, true, 1));
  QVERIFY(saveFile->isEnabled());
  QCOMPARE(window->findChild<QLabel*>("DateTimeOriginal")->text(), QStringLiteral("2021:01:31 10:00:00"));

  window->close();
  QVERIFY(window->isVisible());
  QMessageBox* sheet = window->closeSheet();
  QVERIFY(sheet);
  QCOMPARE(sheet->windowModality(), Qt::WindowModal);
  QCOMPARE(sheet->icon(), QMessageBox::Critical);
  QCOMPARE(sheet->defaultButton()->text(), QStringLiteral("Save"));
  QCOMPARE(sheet->escapeButton()->text(), QStringLiteral("Cancel"));
  auto* dontSave = sheet->findChild<QPushButton*>("dontSaveButton");
  QCOMPARE(dontSave->accessibleName(), QStringLiteral("Don't Save"));
  QCOMPARE(dontSave->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_D));

  sheet->defaultButton()->click();
  QTRY_VERIFY(!window);
  QVERIFY(f.controller.windows().empty());
  LumError error;
  const auto saved = LumImageFile::imageFileWithURL(a, &error);
  QVERIFY(saved);
  QCOMPARE(saved->originalString(LumDateField::DateTimeOriginal).value_or(""), std::string("2021:01:31 10:00:00"));
}

void WindowsTest::cancelledLoadOpensNothing() {
  ShellFixture f;
  for (int i = 0; i < 300; ++i) f.photo("p" + std::to_string(i) + ".jpg");
  bool shown = false;
  QObject::connect(&f.controller, &DocumentController::loadingStarted, &f.controller, [&] {
    LoadProgressWindow* progress = f.controller.progressWindow();
    shown = progress && progress->isVisible() && progress->windowTitle() == "Open Files";
    if (progress) progress->findChild<QPushButton*>("loadCancel")->click();
  });
  f.prompts.nextOpenRequest = Prompts::OpenRequest{{f.folder.path()}, false};
  QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
  QVERIFY(shown);
  QVERIFY(f.controller.windows().empty());
  QVERIFY(f.prompts.alerts.empty());
  QVERIFY(!f.controller.isDocumentOpening() && !f.controller.progressWindow());
}

void WindowsTest::progressWindowCountsWithSeparators() {
  const QLocale saved;
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  LoadProgressWindow window;
  const auto label = [&window](const char* name) { return window.findChild<QLabel*>(name); };
  QCOMPARE(label("loadTitle")->text(), QStringLiteral("Preparing..."));
  window.show();
  window.startLoading(1234);
  QCOMPARE(label("loadTitle")->text(), QStringLiteral("Loading 1,234 files..."));
  window.setProgress(617, 1234);
  QCOMPARE(label("loadPercent")->text(), QStringLiteral("50 %"));
  QCOMPARE(label("loadCounts")->text(), QStringLiteral("617 / 1,234"));
  window.setProgress(1234, 1234);
  QVERIFY(!label("loadPercent")->isVisible());
  QVERIFY(label("loadCounts")->text().isEmpty());
  QCOMPARE(window.findChild<QProgressBar*>()->value(), window.findChild<QProgressBar*>()->maximum());
  QLocale::setDefault(saved);
}

void WindowsTest::filesDroppedOnAWindowOpenAsDropped() {
  ShellFixture f;
  QVERIFY(f.waitForOpening([&] { f.controller.openFiles({f.photo("a.jpg")}, false); }));
  DocumentWindow* window = f.controller.windows().front();
  QMimeData mime;
  mime.setUrls({QUrl::fromLocalFile(QString::fromStdString(f.photo("b.jpg").string())),
                QUrl::fromLocalFile(QString::fromStdString(f.photo("c.jpg").string()))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window, &enter);
  QVERIFY(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QVERIFY(f.waitForOpening([&] { QApplication::sendEvent(window, &drop); }));
  QCOMPARE(f.prompts.askedCounts, std::vector<std::size_t>{2});
  QCOMPARE(f.multiWindows().size(), 1u);
  QCOMPARE(f.controller.windows().size(), 2u);
}

void WindowsTest::openDialogTakesFilesAndFolders() {
  ShellFixture f;
  f.photo("a.jpg");
  f.photo("sub/b.jpg");
  OpenFileDialog dialog(nullptr, true);
  QVERIFY(dialog.findChild<QRadioButton*>()->parentWidget());
  const QList<QRadioButton*> choices = dialog.findChildren<QRadioButton*>();
  QCOMPARE(choices.size(), 2);
  QVERIFY(dialog.separateWindows());
  QCOMPARE(choices[1]->accessibleName(), QStringLiteral("Open in Separate Windows"));

  auto* model = dialog.findChild<QFileSystemModel*>();
  QVERIFY(model);
  QSignalSpy loaded(model, &QFileSystemModel::directoryLoaded);
  dialog.setDirectory(QString::fromStdString(f.folder.path().string()));
  dialog.show();
  QVERIFY(loaded.count() > 0 || loaded.wait(5000));
  QAbstractItemView* view = nullptr;
  for (QAbstractItemView* candidate : dialog.findChildren<QAbstractItemView*>())
    if (candidate->isVisible() && candidate->model() == model) view = candidate;
  QVERIFY(view);
  QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
  for (const char* name : {"a.jpg", "sub"}) {
    const QModelIndex index = model->index(QString::fromStdString((f.folder / name).string()));
    QVERIFY(index.isValid());
    view->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
  }
  dialog.accept();
  QCOMPARE(dialog.result(), int(QDialog::Accepted));
  std::vector<fs::path> chosen = dialog.chosenPaths();
  std::sort(chosen.begin(), chosen.end());
  QVERIFY(chosen == (std::vector<fs::path>{f.folder / "a.jpg", f.folder / "sub"}));
}

void WindowsTest::failureListAlertShowsEveryPath() {
  const QStringList paths{"/photos/a.jpg", "/photos/b.jpg", "/photos/c.jpg"};
  FileListAlert alert(nullptr, "The files could not be opened.", "An unknown cause.", paths);
  alert.show();
  QCOMPARE(alert.findChild<QListWidget*>("pathList")->count(), 3);
  QCOMPARE(alert.findChild<QLabel*>("message")->text(), QStringLiteral("The files could not be opened."));
  QCOMPARE(alert.minimumSize(), alert.size());
  QVERIFY(alert.isSizeGripEnabled());
}
