// The windows of the shell: the close sheet, the progress window and its
// cancel, the open dialog and the failure list.
#include <QAbstractItemView>
#include <QFileSystemModel>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

#include <fstream>

#include "app/loading/LoadProgressWindow.h"
#include "app/sheets/FileListAlert.h"
#include "app/sheets/OpenFileDialog.h"
#include "app/support/AppFixture.h"

namespace fs = std::filesystem;

class WindowsTest : public QObject {
  Q_OBJECT

 private slots:
  void closeSheetSaveWritesAndCloses() {
    AppFixture f;
    const fs::path a = f.photo("a.jpg");
    QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a}, false); }));
    QPointer<SingleFileWindow> window = qobject_cast<SingleFileWindow*>(f.controller.windows().front());
    QVERIFY(window);
    // The file goes to Open Recent; opening it again raises its window.
    QCOMPARE(f.controller.recentFiles(), QStringList{QString::fromStdString(a.string())});
    QCOMPARE(f.actions.openRecent->actions().size(), 1);
    QVERIFY(f.waitForOpening([&] { f.actions.openRecent->actions().front()->trigger(); }));
    QCOMPARE(f.controller.windows().size(), 1u);

    auto* saveFile = window->findChild<QPushButton*>("saveFileButton");
    QVERIFY(!saveFile->isEnabled());
    QVERIFY(window->document().changeDateWithYears(1, 0, 0, 0, 0, 0, true, 1));
    QVERIFY(saveFile->isEnabled());
    window->close();
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
    QCOMPARE(doctest_support::readBytes(a),
             doctest_support::photoBytes({"2021:01:31 10:00:00", "2020:01:31 10:00:00", std::nullopt}));
  }

  void cancelledLoadOpensNothing() {
    AppFixture f;
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
    QVERIFY(f.controller.windows().empty() && f.prompts.alerts.empty());
    QVERIFY(!f.controller.isDocumentOpening() && !f.controller.progressWindow());
  }

  void progressWindowCountsWithSeparators() {
    const QLocale saved;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    LoadProgressWindow window;
    const auto text = [&window](const char* name) { return window.findChild<QLabel*>(name)->text(); };
    window.show();
    window.startLoading(1234);
    QCOMPARE(text("loadTitle"), QStringLiteral("Loading 1,234 files..."));
    window.setProgress(617, 1234);
    QCOMPARE(text("loadPercent") + " " + text("loadCounts"), QStringLiteral("50 % 617 / 1,234"));
    window.setProgress(1234, 1234);
    QVERIFY(!window.findChild<QLabel*>("loadPercent")->isVisible() && text("loadCounts").isEmpty());
    QCOMPARE(window.findChild<QProgressBar*>()->value(), window.findChild<QProgressBar*>()->maximum());
    QLocale::setDefault(saved);
  }

  void openDialogTakesFilesAndFolders() {
    AppFixture f;
    f.photo("a.jpg");
    f.photo("sub/b.jpg");
    OpenFileDialog dialog(nullptr, true);
    const QList<QRadioButton*> choices = dialog.findChildren<QRadioButton*>();
    QVERIFY(choices.size() == 2 && dialog.separateWindows());
    QCOMPARE(choices[1]->accessibleName(), QStringLiteral("Open in Separate Windows"));
    auto* model = dialog.findChild<QFileSystemModel*>();
    QSignalSpy loaded(model, &QFileSystemModel::directoryLoaded);
    dialog.setDirectory(QString::fromStdString(f.folder.path().string()));
    dialog.show();
    QVERIFY(loaded.count() > 0 || loaded.wait(5000));
    // A file and a folder picked together in the view that shows the folder.
    for (QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>()) {
      if (!view->isVisible() || view->model() != model) continue;
      QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
      for (const char* name : {"a.jpg", "sub"})
        view->selectionModel()->select(model->index(QString::fromStdString((f.folder / name).string())),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    dialog.accept();
    std::vector<fs::path> chosen = dialog.chosenPaths();
    std::sort(chosen.begin(), chosen.end());
    QVERIFY(chosen == (std::vector<fs::path>{f.folder / "a.jpg", f.folder / "sub"}));
  }

  // "Photos" and each family take their extensions in either case; a video
  // and an odd spelling of JPEG show only under "All Files".
  void openDialogFiltersPhotoFamiliesInEitherCase() {
    AppFixture f;
    for (const char* name : {"a.CR3", "b.cr3", "c.HEIC", "d.jpg", "e.Jpg", "f.MP4"})
      std::ofstream(f.folder.path() / name) << 'x';
    OpenFileDialog dialog(nullptr, false);
    auto* model = dialog.findChild<QFileSystemModel*>();
    QSignalSpy loaded(model, &QFileSystemModel::directoryLoaded);
    const QString folder = QString::fromStdString(f.folder.path().string());
    dialog.setDirectory(folder);
    dialog.show();
    QVERIFY(loaded.count() > 0 || loaded.wait(5000));
    const auto shown = [&] {
      QStringList names;
      const QModelIndex parent = model->index(folder);
      for (int row = 0; row < model->rowCount(parent); ++row)
        if (const QModelIndex index = model->index(row, 0, parent); model->flags(index) & Qt::ItemIsEnabled)
          names << model->fileName(index);
      names.sort();
      return names.join(' ');
    };
    const QStringList filters = dialog.nameFilters();
    QCOMPARE(filters.size(), 6);
    for (const auto& [filter, names] : {std::pair{0, "a.CR3 b.cr3 c.HEIC d.jpg"}, {1, "a.CR3 b.cr3"}, {2, "c.HEIC"},
                                        {5, "a.CR3 b.cr3 c.HEIC d.jpg e.Jpg f.MP4"}}) {
      dialog.selectNameFilter(filters[filter]);
      QTRY_COMPARE(shown(), QString(names));
    }
  }

  void failureListAlertShowsEveryPath() {
    FileListAlert alert(nullptr, "Not opened.", "Unknown.", {"/photos/a.jpg", "/photos/b.jpg", "/photos/c.jpg"});
    alert.show();
    QCOMPARE(alert.findChild<QListWidget*>("pathList")->count(), 3);
    QCOMPARE(alert.minimumSize(), alert.size());
    QVERIFY(alert.isSizeGripEnabled());
  }
};

int runWindowsTests(int argc, char* argv[]) { WindowsTest test; return QTest::qExec(&test, argc, argv); }

#include "WindowsTest.moc"
