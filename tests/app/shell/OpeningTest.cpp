// Openings through the document controller: expansion and order with a
// failure, separate windows (how many go to their own windows is the open
// plan's suite), drops of open files, hand-overs and the quit
// review.
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <fstream>

#include <nlohmann/json.hpp>

#include "app/multi/FileTableModel.h"
#include "app/startup/OpenQueue.h"
#include "app/support/AppFixture.h"

namespace fs = std::filesystem;

namespace {

// Answers the close sheet of window with the button named objectName.
bool answerCloseSheet(DocumentWindow* window, const char* objectName) {
  if (!QTest::qWaitFor([window] { return window->closeSheet() != nullptr; }, 5000)) return false;
  auto* button = window->closeSheet()->findChild<QPushButton*>(objectName);
  return button && (button->click(), true);
}

}  // namespace

class OpeningTest : public QObject {
  Q_OBJECT

 private slots:
  // A folder opens its photos in the file manager's order, a PNG among them
  // and the video left out; a file that cannot be read is named in an alert
  // once the window with the others is up.
  void openFolderKeepsPhotosSortedAndNamesTheUnreadable() {
    AppFixture f;
    for (const char* name : {"b.JPG", "a.jpg", "c.PNG", "c.mp4", "sub/d.tif"}) f.photo(name);
    doctest_support::writeBytes(f.folder / "e.jpg", {'n', 'o', 't', ' ', 'a', ' ', 'j', 'p', 'e', 'g'});
    std::size_t windowsAtAlert = 0;
    f.prompts.onAlert = [&] { windowsAtAlert = f.controller.windows().size(); };
    f.prompts.nextOpenRequest = Prompts::OpenRequest{{f.folder.path()}, false};
    QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
    QCOMPARE(f.controller.windows().size(), 1u);
    const std::vector expected{f.folder / "a.jpg", f.folder / "b.JPG", f.folder / "c.PNG", f.folder / "sub/d.tif"};
    QVERIFY(f.multiWindowRows() == expected);
    QCOMPARE(f.prompts.alerts.size(), 1u);
    QCOMPARE(windowsAtAlert, 1u);
    // The alert's texts for each kind of failure are the open failure report's suite.
    QCOMPARE(f.prompts.alerts.front().message, QStringLiteral("\"e.jpg\" could not be opened."));
  }

  // The real files of other formats, named one by one (a folder's videos
  // would be passed over), open into one window showing the dates exiftool
  // reads; the videos and the cut-off stub are named in the alert, the
  // videos' reason given.
  void otherFormatsShowTheirDatesAndNameTheRefused() {
    const fs::path source = LUMIDATE_FORMATS_TESTDATA;
    std::ifstream in(source / "expected.json");
    if (!in) QSKIP("format test files not found; conformance test skipped");
    AppFixture f;
    const nlohmann::json records = nlohmann::json::parse(in);
    std::vector<fs::path> named;
    for (const auto& record : records) {
      const std::string name = record.at("file");
      fs::copy_file(source / name, f.folder / name);
      named.push_back(f.folder / name);
    }
    f.prompts.nextOpenRequest = Prompts::OpenRequest{named, false};
    QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
    QCOMPARE(f.prompts.alerts.size(), 1u);
    QCOMPARE(f.prompts.alerts.front().paths.size(), 3);
    auto* window = dynamic_cast<MultiFileWindow*>(f.controller.windows().front());
    QVERIFY(window);
    QCOMPARE(window->document().rowCount(), static_cast<int>(records.size()) - 3);
    const struct { const char* name; int column; } kDates[] = {{"DateTimeOriginal", FileTableModel::DateTimeOriginal},
        {"CreateDate", FileTableModel::DateTimeDigitized}, {"ModifyDate", FileTableModel::DateTime}};
    for (const auto& record : records) {
      const auto row = window->document().rowOf(window->document().itemForURL(f.folder / record.at("file").get<std::string>()));
      if (!row) continue;
      for (const auto& d : kDates) {
        const auto& offsets = record.at("date_offsets");
        bool inEntry = !offsets.at(d.name).is_null();
        for (const auto& copy : offsets.at("secondary_entries")) inEntry |= copy.at("name") == d.name;
        const auto& value = record.at("exiftool").at(d.name);
        const QString want = inEntry && value.is_string() ? QString::fromStdString(value.get<std::string>()) : QString();
        QCOMPARE(window->model().index(*row, d.column).data().toString(), want);
      }
    }
  }

  // A drop always asks how to open, counting only the files not open yet.
  void dropsAskAboutTheFilesNotOpenYet() {
    AppFixture f;
    const fs::path a = f.photo("a.jpg"), b = f.photo("b.jpg"), c = f.photo("c.jpg");
    QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a}, false); }));
    QVERIFY(f.prompts.askedCounts.empty());
    DocumentWindow* window = f.controller.windows().front();
    QMimeData mime;
    for (const fs::path& path : {a, b, c})
      mime.setUrls(mime.urls() << QUrl::fromLocalFile(QString::fromStdString(path.string())));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QVERIFY(f.waitForOpening([&] { QApplication::sendEvent(window, &drop); }));
    QVERIFY(f.multiWindowRows() == (std::vector{b, c}));
    // Every file open already: still asked (with 0), and nothing opens.
    QVERIFY(f.waitForOpening([&] { f.controller.openFiles({a, b}, true); }));
    QCOMPARE(f.prompts.askedCounts, (std::vector<std::size_t>{2, 0}));
    QCOMPARE(f.controller.windows().size(), 2u);
  }

  void handOversCloseTogetherOpenTogether() {
    AppFixture f;
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
    QVERIFY(f.multiWindowRows() == (std::vector{a, b}));
  }

  void quitReviewAsksTheLaterOpenedFirst() {
    AppFixture f;
    // Opened in separate windows from the open dialog, whose choice is kept.
    f.prompts.nextOpenRequest = Prompts::OpenRequest{{f.photo("a.jpg"), f.photo("b.jpg"), f.photo("c.jpg")}, true};
    QVERIFY(f.waitForOpening([&] { f.controller.openDocument(); }));
    QVERIFY(f.settings.useSingleWindow());
    QCOMPARE(f.controller.windows().size(), 3u);
    QPointer<DocumentWindow> earlier = f.controller.windows()[0], later = f.controller.windows()[1];
    for (DocumentWindow* window : {earlier.data(), later.data()})  // c, unedited, is never asked
      QVERIFY(static_cast<SingleFileWindow*>(window)->document().changeDateWithYears(1, 0, 0, 0, 0, 0, true, 1));
    QSignalSpy review(&f.controller, &DocumentController::quitReviewFinished);
    const auto reviewEnded = [&](int count, bool quit) {
      return review.count() == count && review.last()[0].toBool() == quit;
    };

    // Cancel on the later opened stops the quit before the earlier is asked.
    f.controller.reviewChangesAndQuit();
    QVERIFY(!earlier->closeSheet());
    QVERIFY(answerCloseSheet(later, "cancelButton"));
    QVERIFY(reviewEnded(1, false));
    QVERIFY(!earlier->closeSheet());
    QCOMPARE(f.controller.windows().size(), 3u);
    // Don't Save closes the later and asks the earlier; Cancel there stops.
    f.controller.reviewChangesAndQuit();
    QVERIFY(answerCloseSheet(later, "dontSaveButton"));
    QVERIFY(answerCloseSheet(earlier, "cancelButton"));
    QVERIFY(reviewEnded(2, false));
    QCOMPARE(f.controller.windows().size(), 2u);
    QVERIFY(earlier && earlier->hasEditedFile());
    // A close sheet already up is waited for; its answer goes on with the quit.
    earlier->close();
    QVERIFY(earlier->closeSheet());
    f.controller.reviewChangesAndQuit();
    QCOMPARE(review.count(), 2);
    QVERIFY(answerCloseSheet(earlier, "dontSaveButton"));
    QVERIFY(reviewEnded(3, true));
    QTRY_VERIFY(f.controller.windows().empty());
  }
};

int runOpeningTests(int argc, char* argv[]) { OpeningTest test; return QTest::qExec(&test, argc, argv); }

#include "OpeningTest.moc"
