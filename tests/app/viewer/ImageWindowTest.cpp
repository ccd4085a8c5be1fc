// The image viewer over real photo files: the information text (with and
// without a model, hidden by the stored choice, a file that cannot be
// decoded), the same file asked twice, the click/drag rule and the I key,
// the empty state, following a multi-file window and the launch setting.
#include <QAction>
#include <QLabel>
#include <QMouseEvent>

#include "app/ToolWindows.h"
#include "app/multi/FileTableView.h"
#include "app/support/AppFixture.h"
#include "app/viewer/ClipView.h"
#include "app/viewer/ImageWindow.h"
#include "app/viewer/ViewerImage.h"

using namespace doctest_support;
namespace fs = std::filesystem;

namespace {

// 16 x 8 pixels; IFD0 holds a Model when one is given.
std::vector<std::uint8_t> photoWithModel(const std::optional<std::string>& model) {
  std::vector<lumtest::AsciiEntry> ifd0{{0x010F, std::string("Maker\0", 6)}};
  if (model) ifd0.push_back({0x0110, *model + std::string(1, '\0')});
  return lumtest::JpegBuilder().exif(lumtest::exifTiff(ifd0, {})).build();
}

QString textOf(const ImageWindow& window) {
  return window.findChild<QLabel*>("imageInformation")->text();
}
bool textShown(const ImageWindow& window) {
  return window.findChild<QLabel*>("imageInformation")->isVisibleTo(&window);
}
QSize pictureSize(const ImageWindow& window) {
  return window.findChild<QLabel*>("imagePicture")->pixmap().size();
}

// A left-button press, optional move by `by`, and release on the picture.
void clickOrDrag(ImageWindow& window, QPoint by) {
  QWidget* viewport = window.findChild<ClipView*>("imageClipView")->viewport();
  const QPoint at(4, 4);
  const auto send = [&](QEvent::Type type, QPoint pos, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, pos, viewport->mapToGlobal(pos), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(viewport, &event);
  };
  send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  if (!by.isNull()) send(QEvent::MouseMove, at + by, Qt::NoButton, Qt::LeftButton);
  send(QEvent::MouseButtonRelease, at + by, Qt::LeftButton, Qt::NoButton);
}

}  // namespace

class ImageWindowTest : public QObject {
  Q_OBJECT

  std::optional<AppFixture> f_;

  // A photo opened as a row document (its file then knows its path).
  std::unique_ptr<LumFileItemDoc> item(const std::string& name, const std::vector<std::uint8_t>& bytes) {
    const fs::path path = f_->folder / name;
    writeBytes(path, bytes);
    return openItem(path);
  }
  // Shows the file and waits until the window shows it.
  static bool show(ImageWindow& window, const LumImageFile* file) {
    QSignalSpy shown(&window, &ImageWindow::imageShown);
    window.setImageFile(file);
    return shown.count() > 0 || shown.wait(10000);
  }

 private slots:
  void init() { f_.emplace(); }
  void cleanup() { f_.reset(); }

  // The text with and without a model, hidden by the stored choice, and a
  // file that is no image any more when shown.
  void informationText() {
    const std::optional<std::string> camera("Cam X"), none;
    const struct { std::optional<std::string> model; bool spoiled, showInfo; const char* text; QSize picture; } cases[] = {
        {camera, false, true, "16 x 8, Cam X", QSize(16, 8)}, {none, false, true, "16 x 8", QSize(16, 8)},
        {camera, false, false, "16 x 8, Cam X", QSize(16, 8)}, {camera, true, true, "", QSize(0, 0)},
    };
    for (const auto& c : cases) {
      const auto doc = item("a.jpg", photoWithModel(c.model));
      if (c.spoiled) writeBytes(f_->folder / "a.jpg", {0xFF, 0xD8, 0xFF, 0xD9});
      f_->settings.setShowInformation(c.showInfo);
      ImageWindow window(f_->settings);
      QVERIFY(show(window, &doc->imageFile()));
      QCOMPARE(textOf(window), QString(c.text));
      QCOMPARE(textShown(window), c.showInfo && *c.text);
      QCOMPARE(pictureSize(window), c.picture);
      QCOMPARE(window.windowTitle(), QString("a.jpg"));
    }
  }

  // Other photo formats: the picture from its own decoder, the model from
  // the container's main TIFF block (an embedded JPEG, an eXIf chunk, an
  // EXIF chunk, an Exif item).
  void modelOfOtherFormats() {
    const fs::path dir = LUMIDATE_FORMATS_TESTDATA;
    if (!fs::exists(dir / "expected.json")) QSKIP("format test files not found; skipped");
    const struct { const char* file; QSize size; const char* model; } cases[] = {
        {"fujifilm-finepix-s5pro-raf-stripped.raf", {160, 120}, "FinePix S5Pro  "},
        {"png-exif-chunk-after-idat-canon-s40.png", {1, 1}, "Canon PowerShot S40"},
        {"nikon-d1x-webp.webp", {600, 391}, "NIKON D1X"},
        {"apple-iphone11pro-heic.HEIC", {3024, 4032}, "iPhone 11 Pro"},
    };
    for (const auto& c : cases) {
      const ViewerImage image = readViewerImage(dir / c.file);
      QCOMPARE(image.picture.size(), c.size);
      QCOMPARE(image.model, QString(c.model));
    }
  }

  void sameFileTwiceIsNotReadAgain() {
    const auto doc = item("a.jpg", photoWithModel("Cam X"));
    ImageWindow window(f_->settings);
    QVERIFY(show(window, &doc->imageFile()));
    // Read again, the file would now show nothing.
    writeBytes(f_->folder / "a.jpg", {0xFF, 0xD8, 0xFF, 0xD9});
    QSignalSpy shown(&window, &ImageWindow::imageShown);
    window.setImageFile(&doc->imageFile());
    QVERIFY(!shown.wait(300));
    QCOMPARE(textOf(window), QString("16 x 8, Cam X"));
  }

  // A drag pans and leaves the text as it is; a click and the I key toggle
  // it, and the stored choice and the menu item with it.
  void clickTogglesTextDragDoesNot() {
    const auto doc = item("a.jpg", photoWithModel("Cam X"));
    ImageWindow window(f_->settings);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(show(window, &doc->imageFile()));
    const auto toggle = [&](const std::function<void()>& act, bool expected) {
      act();
      QCOMPARE(textShown(window), expected);
      QCOMPARE(f_->settings.showInformation(), expected);
      QCOMPARE(window.findChild<QAction*>("imageInformationAction")->isChecked(), expected);
    };
    toggle([&] { clickOrDrag(window, QPoint(5, 3)); }, true);
    toggle([&] { clickOrDrag(window, QPoint()); }, false);
    toggle([&] { QTest::keyClick(&window, Qt::Key_I); }, true);
    toggle([&] { QTest::keyClick(&window, Qt::Key_I); }, false);
  }

  void askedForNothingWhileEmptyStaysEmpty() {
    ImageWindow window(f_->settings);
    QSignalSpy shown(&window, &ImageWindow::imageShown);
    window.showWindowWithImageFile(nullptr);
    QVERIFY(window.isVisible());
    QCOMPARE(shown.count(), 0);
    QCOMPARE(window.windowTitle(), QString("Lumidate"));
    QVERIFY(pictureSize(window).isEmpty());
  }

  void followsMultiFileSelectionAndLetsGoOnClose() {
    writeBytes(f_->folder / "a.jpg", photoWithModel("Cam A"));
    writeBytes(f_->folder / "b.jpg", photoWithModel(std::nullopt));
    MultiFileWindow window(openDocument({f_->folder / "a.jpg", f_->folder / "b.jpg"}), f_->context);
    ToolWindows tools(f_->context, [&window]() -> DocumentWindow* { return &window; });
    f_->context.tools = &tools;
    window.show();
    tools.showImageWindow();  // nothing selected: the viewer opens empty
    ImageWindow& viewer = tools.imageWindow();

    QSignalSpy shown(&viewer, &ImageWindow::imageShown);
    const int rowB = *window.document().rowOf(window.document().itemForURL(f_->folder / "b.jpg"));
    window.table().selectRow(rowB);
    QVERIFY(shown.wait(10000));
    QCOMPARE(viewer.windowTitle(), QString("b.jpg"));
    QCOMPARE(textOf(viewer), QString("16 x 8"));

    tools.documentWindowClosing(&window);
    QCOMPARE(viewer.imageFile(), nullptr);
    QCOMPARE(viewer.windowTitle(), QString("Lumidate"));
    QVERIFY(!textShown(viewer));
    f_->context.tools = nullptr;
  }

  void launchReopensViewerWhenItWasOpen() {
    for (const bool wasOpen : {true, false}) {
      f_.emplace();  // nothing stored from the case before
      f_->settings.setShowImageView(wasOpen);
      ToolWindows tools(f_->context, [] { return nullptr; });
      tools.restoreImageWindowAtLaunch();
      QCOMPARE(tools.isImageWindowVisible(), wasOpen);
      if (wasOpen) QCOMPARE(tools.imageWindow().imageFile(), nullptr);
      // At quit the viewer's state is what is stored, whatever it was.
      if (wasOpen) tools.imageWindow().close();
      else tools.showImageWindow();
      tools.rememberImageWindow();
      QCOMPARE(f_->settings.showImageView(), !wasOpen);
      QVERIFY(!f_->settings.windowFrame("LumImageWindow").isEmpty());
    }
  }
};

QTEST_MAIN(ImageWindowTest)
#include "ImageWindowTest.moc"
