#include "app/single/PhotoView.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QThreadPool>

#include "app/multi/BitmapImage.h"
#include "formats/FileData.h"
#include "formats/ImageDecoder.h"

namespace {

// Decoded at about a large screen's size: enough for any window, and a JPEG
// decodes far faster at a reduced scale than at full size.
constexpr int kDecodeBox = 2048;

QImage decodePhoto(const std::filesystem::path& path) {
  const std::shared_ptr<const lum::FileData> data = lum::FileData::readFile(path);
  if (!data) return {};
  const std::shared_ptr<const lum::Bitmap> bitmap = ImageDecoder::decodeForBox(data->bytes(), kDecodeBox, kDecodeBox);
  return bitmap ? imageFromBitmap(*bitmap) : QImage();
}

}  // namespace

PhotoView::PhotoView(QWidget* parent) : QWidget(parent) {
  setObjectName("photoView");
  setAccessibleName(tr("Photo"));
  setMinimumSize(160, 120);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PhotoView::load(const std::filesystem::path& path) {
  // The job answers through the application object: a window closed before
  // the photo arrives leaves a null pointer, and the picture is dropped.
  QPointer<PhotoView> self(this);
  QThreadPool::globalInstance()->start([self, path] {
    QImage image = decodePhoto(path);
    QMetaObject::invokeMethod(
        qApp, [self, image = std::move(image)] {
          if (self) self->imageArrived(image);
        },
        Qt::QueuedConnection);
  });
}

void PhotoView::imageArrived(const QImage& image) {
  image_ = image;
  failed_ = image.isNull();
  fitted_ = QPixmap();
  update();
  emit imageLoaded(!failed_);
}

QSize PhotoView::shownSize() const {
  if (image_.isNull()) return {};
  const QSize full = image_.size();
  if (full.width() <= width() && full.height() <= height()) return full;
  return full.scaled(size(), Qt::KeepAspectRatio);
}

void PhotoView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fitted_ = QPixmap();  // fitted again at the next paint
}

void PhotoView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (image_.isNull()) {
    if (failed_) painter.drawText(rect(), Qt::AlignCenter, tr("The photo cannot be shown."));
    return;
  }
  const QSize shown = shownSize();
  if (fitted_.size() != shown)
    fitted_ = QPixmap::fromImage(image_.scaled(shown, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  const QPoint topLeft((width() - shown.width()) / 2, (height() - shown.height()) / 2);
  painter.drawPixmap(topLeft, fitted_);
}
