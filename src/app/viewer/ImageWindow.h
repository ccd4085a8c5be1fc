#pragma once
// The image viewer: one window showing the picture of the current file at
// one image pixel per logical pixel, with its pixel size and camera model
// in a line of text over it. A click in the picture shows or hides that
// text (so do the I key and the context menu), and the choice is kept in
// the settings. The picture is read and decoded on a pool thread; the
// window only ever shows the last file it was asked for.

#include <QImage>
#include <QWidget>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>

class ClipView;
class LumImageFile;
class QAction;
class QLabel;
class Settings;
struct ViewerImage;

class ImageWindow : public QWidget {
  Q_OBJECT

 public:
  explicit ImageWindow(Settings& settings, QWidget* parent = nullptr);
  ~ImageWindow() override;

  // Shows the file, or nothing (title "Lumidate"). Nothing happens when
  // the file is the one already shown. A file that cannot be decoded shows
  // no picture and no text, only its name in the title. The file is only looked at here, on
  // the GUI thread; it need not outlive the decoding.
  void setImageFile(const LumImageFile* file);
  // Brings the window to the front, then shows the file; asked to show
  // nothing while empty, it stays as it is.
  void showWindowWithImageFile(const LumImageFile* file);
  // Flips whether the information text is shown and stores the choice.
  void showOrHideInfomation();

  // The file shown (or being decoded), and its path; compared only, never
  // read: its document may be gone.
  const LumImageFile* imageFile() const { return imageFile_; }
  const std::filesystem::path& imagePath() const { return imagePath_; }
  bool showInfo() const { return showInfo_; }

  // Stores the window's frame in the settings.
  void saveFrame();

 signals:
  // The window shows what the last setImageFile() asked for: the picture
  // arrived, the file could not be decoded, or the window was emptied.
  void imageShown();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void buildLayout();
  void buildInformationAction();
  void startReading(const std::filesystem::path& path);
  void pictureArrived(std::uint64_t request, const ViewerImage& image);
  void showNothing();
  void updateInformationVisibility();

  Settings& settings_;
  ClipView* clip_ = nullptr;
  QLabel* picture_ = nullptr;
  QLabel* information_ = nullptr;
  QAction* informationAction_ = nullptr;
  const LumImageFile* imageFile_ = nullptr;
  std::filesystem::path imagePath_;
  bool showInfo_ = true;
  // The number of the last read asked for; a worker whose read is no
  // longer wanted skips its decoding, and its answer is dropped.
  std::shared_ptr<std::atomic<std::uint64_t>> latestRequest_;
};
