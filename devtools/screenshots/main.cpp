// lumidate-screenshots SAMPLES OUTPUT_DIR [FORMATS]: pictures of the real
// windows in their main states, made on the offscreen platform. FORMATS, a
// folder of photo files of other formats, adds the multi-file window
// listing a camera RAW, a HEIC and a PNG. The files are opened
// through the document controller as the program does; alerts come from
// the program's own dialogs and are pictured the moment they show.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUndoGroup>

#include <cstdio>
#include <filesystem>
#include <functional>

#include "InspectorShots.h"
#include "JapaneseShots.h"
#include "ScreenshotSession.h"
#include "ViewerShots.h"
#include "ToolShots.h"
#include "app/AppActions.h"
#include "app/DialogPrompts.h"
#include "app/DocumentController.h"
#include "app/multi/MultiFileActions.h"
#include "app/multi/MultiFileWindow.h"
#include "app/preferences/Settings.h"
#include "app/sheets/ChangeByIntervalSheet.h"
#include "app/sheets/SavingSheet.h"
#include "app/single/PhotoView.h"
#include "app/single/SingleFileWindow.h"
#include "app/widgets/DatePickerWidget.h"
#include "datetime/OrbDatePicker.h"
#include "documents/LumMultiFileDoc.h"

namespace fs = std::filesystem;

namespace {

constexpr int kWaitMs = 20000;
constexpr int kPictures = 23;
// From the folder of other formats: a RAW with its camera's preview, a HEIC
// of tiles, a PNG whose Exif is only a text chunk (no dates to edit).
constexpr const char* kOtherFormats[] = {"fujifilm-finepix-s5pro-raf-stripped.raf", "apple-iphone11pro-heic.HEIC",
                                         "png-rawprofile-text-only-nikon-d70.png"};

// The program's dialogs, except that a handed-over folder opens in one
// window without asking.
class OneWindowPrompts : public DialogPrompts {
 public:
  OpenStyle askHowToOpen(std::size_t) override { return OpenStyle::OneWindow; }
};

// Runs shoot on the next application-modal dialog the moment it shows, then
// accepts it, so a dialog run with exec() does not block the pictures.
void whenModalShows(std::function<void(QWidget&)> shoot) {
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, poll, [poll, shoot] {
    QWidget* modal = QApplication::activeModalWidget();
    auto* box = qobject_cast<QMessageBox*>(modal);
    if (!box || !box->isVisible()) return;
    poll->deleteLater();
    shoot(*box);
    box->accept();
  });
  poll->start(20);
}

bool waitFor(const std::function<bool()>& done, const char* what) {
  if (QTest::qWaitFor(done, kWaitMs)) return true;
  std::fprintf(stderr, "lumidate-screenshots: gave up waiting for %s\n", what);
  return false;
}

bool thumbnailsShown(const MultiFileWindow& window) {
  MultiFileWindow& w = const_cast<MultiFileWindow&>(window);
  for (int row = 0; row < w.document().rowCount(); ++row) {
    const LumFileItemDoc& item = w.document().item(row);
    if (item.path().filename() == "broken.jpg") continue;
    if (!window.thumbnails().contains(QString::fromStdString(item.path().string()))) return false;
  }
  return true;
}

struct Stage {
  Settings& settings;
  DocumentController& controller;
  MultiFileWindow& window;
  Screenshots::Session& session;
};

void shootListSizes(Stage& s) {
  const std::pair<int, const char*> sizes[] = {{1, "multi-small"}, {3, "multi-large"}, {2, "multi-medium"}};
  for (const auto& [size, name] : sizes) {
    s.controller.changeListSize(size);
    waitFor([&] { return thumbnailsShown(s.window); }, "the thumbnails");
    s.session.shoot(name, s.window);
  }
}

void shootDark(Stage& s) {
  Screenshots::useStableLook(true);
  waitFor([&] { return s.window.palette().color(QPalette::Window).lightness() < 128; }, "dark colours");
  s.session.shoot(QStringLiteral("multi-dark"), s.window);
  Screenshots::useStableLook(false);
  // Widgets take the application's palette on a later turn of the event loop.
  waitFor([&] { return s.window.palette().color(QPalette::Window).lightness() >= 128; }, "light colours");
}

void shootRangeWarning(Stage& s) {
  LumMultiFileDoc& doc = s.window.document();
  doc.changeActionMode(LumActionMode::Backward);
  doc.setFieldValue(LumMultiFileDoc::Year, 2000);
  waitFor([&] { return !doc.validateApllyButton().enabled; }, "the range warning");
  s.session.shoot(QStringLiteral("multi-range-warning"), s.window);
  doc.changeActionMode(LumActionMode::Forward);
  doc.pClearChangeByTimeIntervalFields();
}

void shootSavingSheet(Stage& s) {
  SavingSheet& sheet = s.window.savingSheet();
  sheet.start();
  const LumFileItemDoc& item = s.window.document().item(1);
  sheet.setProgress(40, QString::fromStdString(item.path().string()));
  waitFor([&] { return sheet.isVisible(); }, "the saving sheet");
  s.session.shoot(QStringLiteral("multi-saving-sheet"), s.window, &sheet);
  sheet.finish();
}

// Shifts every file by an hour, takes one file away behind the window's
// back, and saves: the save reports the file it could not write.
void shootSaveFailure(Stage& s) {
  LumMultiFileDoc& doc = s.window.document();
  doc.setFieldValue(LumMultiFileDoc::Hour, 1);
  doc.applyToAllFiles();
  fs::remove(doc.item(1).path());
  bool shown = false;
  whenModalShows([&](QWidget& alert) {
    s.session.shoot(QStringLiteral("multi-save-failure-alert"), s.window, &alert);
    shown = true;
  });
  s.window.actions().saveAll->trigger();
  waitFor([&] { return shown; }, "the save failure alert");
}

void shootCloseSheet(Stage& s) {
  s.window.askToSaveAndQuitApp(false);
  waitFor([&] { return s.window.closeSheet() && s.window.closeSheet()->isVisible(); }, "the close sheet");
  if (QMessageBox* sheet = s.window.closeSheet()) {
    s.session.shoot(QStringLiteral("multi-close-sheet"), s.window, sheet);
    if (auto* cancel = sheet->findChild<QAbstractButton*>(QStringLiteral("cancelButton"))) cancel->click();
  }
}

// The first window of kind W once the opening is over; null if none came.
template <typename W>
W* openedWindow(const DocumentController& controller, const char* what) {
  W* window = nullptr;
  waitFor([&] {
    for (DocumentWindow* w : controller.windows())
      if ((window = qobject_cast<W*>(w))) return !controller.isDocumentOpening();
    return false;
  }, what);
  return window;
}

// One photo without DateTimeDigitized in a window of its own (its picker
// disabled), then its interval sheet shifting a date out of range.
void shootSingleWindow(DocumentController& controller, Screenshots::Session& session, const fs::path& photo) {
  for (DocumentWindow* w : controller.windows()) delete w;
  controller.openFiles({photo}, false);
  auto* window = openedWindow<SingleFileWindow>(controller, "the single-file window");
  if (!window) return;
  waitFor([&] { return window->photo().hasImage(); }, "the photo");
  session.shoot(QStringLiteral("single-window"), *window);

  window->findChild<QAbstractButton*>(QStringLiteral("intervalButton"))->click();
  ChangeByIntervalSheet& sheet = window->intervalSheet();
  waitFor([&] { return sheet.isVisible(); }, "the interval sheet");
  sheet.findChild<QComboBox*>(QStringLiteral("modePopup"))->setCurrentIndex(0);  // backward
  sheet.field(0).setValue(2100);
  session.shoot(QStringLiteral("single-interval-sheet"), *window, &sheet);
  sheet.reject();
}

// The three files of kOtherFormats, copied from formats, in a multi-file
// window of their own with their thumbnails.
void shootOtherFormats(DocumentController& controller, Screenshots::Session& session, const fs::path& formats,
                       const fs::path& scratch) {
  const fs::path folder = scratch / "formats";
  fs::create_directories(folder);
  for (const char* name : kOtherFormats) fs::copy_file(formats / name, folder / name);
  for (DocumentWindow* w : controller.windows()) delete w;
  controller.openFiles({folder}, true);
  auto* window = openedWindow<MultiFileWindow>(controller, "the window of other formats");
  if (!window) return;
  window->resize(1000, 480);
  waitFor([&] { return thumbnailsShown(*window); }, "the thumbnails of other formats");
  session.shoot(QStringLiteral("multi-other-formats"), *window);
}

// A picker showing "Multiple Values" beside a text field of the same row,
// which it should match in height.
void shootMixedPicker(Screenshots::Session& session) {
  OrbDatePicker model;
  model.setDateValue(Instant::now());
  model.setMixed(true);
  QWidget row;
  auto* layout = new QHBoxLayout(&row);
  layout->addWidget(new QLabel(QStringLiteral("Date Time Original:"), &row));
  layout->addWidget(new DatePickerWidget(model, QStringLiteral("Date Time Original"), &row));
  layout->addWidget(new QLineEdit(QStringLiteral("text field"), &row));
  row.show();
  session.shoot(QStringLiteral("picker-mixed"), row);
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const QStringList args = QApplication::arguments();
  if (args.size() != 3 && args.size() != 4) {
    std::fprintf(stderr, "usage: lumidate-screenshots SAMPLES OUTPUT_DIR [FORMATS]\n");
    return 2;
  }
  Screenshots::useStableLook(false);

  QTemporaryDir scratch;
  const fs::path photos = fs::path(scratch.path().toStdString()) / "samples";
  fs::copy(args[1].toStdString(), photos, fs::copy_options::recursive);
  QSettings store(scratch.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
  Settings settings(store);
  QUndoGroup undoGroup;
  AppActions actions(undoGroup);
  OneWindowPrompts prompts;
  AppContext context{settings, prompts, actions};
  DocumentController controller(context, undoGroup);

  Screenshots::Session session{QDir(args[2])};
  // The unreadable sample is reported once the others are read.
  whenModalShows([&](QWidget& alert) { session.shoot(QStringLiteral("open-failure-alert"), alert); });
  controller.openFiles({photos}, true);
  auto* window = openedWindow<MultiFileWindow>(controller, "the multi-file window");
  if (!window) return 1;
  window->resize(1000, 640);

  Stage stage{settings, controller, *window, session};
  shootListSizes(stage);
  shootDark(stage);
  shootRangeWarning(stage);
  shootSavingSheet(stage);
  shootSaveFailure(stage);
  shootCloseSheet(stage);
  shootSingleWindow(controller, session, photos / "only-original.jpg");
  const bool otherFormats = args.size() == 4;
  if (otherFormats) shootOtherFormats(controller, session, args[3].toStdString(), scratch.path().toStdString());
  shootMixedPicker(session);
  Screenshots::shootInspector(controller, context, session, photos / "gps-summit.jpg");
  Screenshots::shootViewer(session, settings, photos);
  shootToolWindows(session);
  for (DocumentWindow* w : controller.windows()) delete w;
  Screenshots::shootInJapanese(photos, session);
  std::printf("%d pictures in %s\n", session.written(), qPrintable(args[2]));
  return session.written() == kPictures + (otherFormats ? 1 : 0) ? 0 : 1;
}
