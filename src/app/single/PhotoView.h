#pragma once
// The photo of a single-file window. The file is read and decoded on a pool
// thread (a large photo takes longer than a frame); the view then draws the
// picture fitted into its area, never enlarged, and fits it again whenever
// it is resized.

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <filesystem>

class PhotoView : public QWidget {
  Q_OBJECT

 public:
  explicit PhotoView(QWidget* parent = nullptr);

  // Starts reading the photo at path; the view shows it when it arrives.
  void load(const std::filesystem::path& path);
  bool hasImage() const { return !image_.isNull(); }
  // The size the picture is drawn at in the current area (empty without one).
  QSize shownSize() const;

  QSize sizeHint() const override { return {320, 240}; }

 signals:
  // The decoded picture arrived (null when the file could not be decoded).
  void imageLoaded(bool decoded);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void imageArrived(const QImage& image);

  QImage image_;
  QPixmap fitted_;  // image_ scaled to shownSize(), remade after a resize
  bool failed_ = false;
};
