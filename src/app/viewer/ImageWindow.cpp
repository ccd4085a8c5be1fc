#include "app/viewer/ImageWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QThreadPool>
#include <QVBoxLayout>

#include "app/preferences/Settings.h"
#include "app/viewer/ClipView.h"
#include "app/viewer/ViewerImage.h"
#include "documents/LumLocalized.h"
#include "formats/LumImageFile.h"

namespace {

const QString kFrameName = QStringLiteral("LumImageWindow");

}  // namespace

ImageWindow::ImageWindow(Settings& settings, QWidget* parent)
    : QWidget(parent, Qt::Window),
      settings_(settings),
      showInfo_(settings.showInformation()),
      latestRequest_(std::make_shared<std::atomic<std::uint64_t>>(0)) {
  setObjectName(QStringLiteral("LumImageWindowCtr"));
  setWindowTitle(LumLocalized::text("Lumidate"));
  buildLayout();
  buildInformationAction();
  if (!restoreGeometry(settings_.windowFrame(kFrameName))) resize(640, 480);
}

ImageWindow::~ImageWindow() {
  // A read still running finds itself unwanted and skips its decoding.
  latestRequest_->fetch_add(1);
}

void ImageWindow::buildLayout() {
  clip_ = new ClipView(this);
  clip_->setObjectName(QStringLiteral("imageClipView"));
  clip_->setAccessibleName(tr("Picture"));
  picture_ = new QLabel;
  picture_->setObjectName(QStringLiteral("imagePicture"));
  picture_->setAccessibleName(tr("Picture"));
  clip_->setWidget(picture_);
  // Made after the picture so that it stays above it; a child of the
  // viewport that scrolling does not move.
  information_ = new QLabel(clip_->viewport());
  information_->setObjectName(QStringLiteral("imageInformation"));
  information_->setAttribute(Qt::WA_TransparentForMouseEvents);
  information_->setStyleSheet(QStringLiteral("QLabel { color: white; background: transparent; }"));
  // A shadow keeps the white text readable on a bright picture.
  auto* shadow = new QGraphicsDropShadowEffect(information_);
  shadow->setColor(Qt::black);
  shadow->setBlurRadius(4);
  shadow->setOffset(1, 1);
  information_->setGraphicsEffect(shadow);
  information_->move(8, 6);
  information_->hide();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(clip_);
  connect(clip_, &ClipView::clicked, this, &ImageWindow::showOrHideInfomation);
}

void ImageWindow::buildInformationAction() {
  // The keyboard's way to what a click in the picture does; also in the
  // picture's context menu.
  informationAction_ = new QAction(tr("Information Text"), this);
  informationAction_->setObjectName(QStringLiteral("imageInformationAction"));
  informationAction_->setCheckable(true);
  informationAction_->setChecked(showInfo_);
  informationAction_->setShortcut(QKeySequence(Qt::Key_I));
  connect(informationAction_, &QAction::triggered, this, &ImageWindow::showOrHideInfomation);
  clip_->addAction(informationAction_);
  clip_->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ImageWindow::setImageFile(const LumImageFile* file) {
  const std::filesystem::path path = file ? file->fileURL().value_or(std::filesystem::path()) : std::filesystem::path();
  // A freed file's address may come back for another one: the path has to
  // match too.
  if (file == imageFile_ && path == imagePath_) return;
  imageFile_ = file;
  imagePath_ = path;
  if (!file) return showNothing();
  startReading(path);
}

void ImageWindow::startReading(const std::filesystem::path& path) {
  const std::uint64_t request = latestRequest_->fetch_add(1) + 1;
  QPointer<ImageWindow> self(this);
  std::shared_ptr<std::atomic<std::uint64_t>> latest = latestRequest_;
  QThreadPool::globalInstance()->start([self, latest, request, path] {
    if (latest->load() != request) return;
    ViewerImage image = readViewerImage(path);
    // Answered through the application object: the window may be gone.
    QMetaObject::invokeMethod(
        qApp, [self, request, image = std::move(image)] {
          if (self) self->pictureArrived(request, image);
        },
        Qt::QueuedConnection);
  });
}

void ImageWindow::pictureArrived(std::uint64_t request, const ViewerImage& image) {
  if (request != latestRequest_->load()) return;  // another file was asked for since
  setWindowTitle(QString::fromStdString(imagePath_.filename().string()));
  picture_->setPixmap(image.picture.isNull() ? QPixmap() : QPixmap::fromImage(image.picture));
  picture_->adjustSize();
  information_->setText(image.picture.isNull() ? QString() : viewerInformationText(image.picture.size(), image.model));
  information_->adjustSize();
  updateInformationVisibility();
  emit imageShown();
}

void ImageWindow::showNothing() {
  latestRequest_->fetch_add(1);  // a read under way is no longer wanted
  information_->hide();
  information_->clear();
  picture_->setPixmap(QPixmap());
  picture_->adjustSize();
  setWindowTitle(LumLocalized::text("Lumidate"));
  emit imageShown();
}

void ImageWindow::showWindowWithImageFile(const LumImageFile* file) {
  show();
  raise();
  activateWindow();
  if (imageFile_ || file) setImageFile(file);
}

void ImageWindow::showOrHideInfomation() {
  showInfo_ = !settings_.showInformation();
  settings_.setShowInformation(showInfo_);
  informationAction_->setChecked(showInfo_);
  updateInformationVisibility();
}

void ImageWindow::updateInformationVisibility() {
  // Only a shown picture has a text to show.
  information_->setVisible(showInfo_ && !information_->text().isEmpty());
}

void ImageWindow::saveFrame() { settings_.setWindowFrame(kFrameName, saveGeometry()); }

void ImageWindow::closeEvent(QCloseEvent* event) {
  // A closed viewer lets go of its file and opens empty next time.
  setImageFile(nullptr);
  QWidget::closeEvent(event);
}

void ImageWindow::hideEvent(QHideEvent* event) {
  saveFrame();
  QWidget::hideEvent(event);
}
