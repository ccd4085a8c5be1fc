#pragma once
// The metadata inspector: one window listing the container (format and the
// place of the Exif), the JFIF fields and the TIFF, Exif, Interoperability
// and GPS entries of the current file. It follows the current file through
// the notification centre; Copy puts the selected rows on the clipboard. Its
// place and size are kept in the settings.

#include <QWidget>

#include <filesystem>
#include <memory>
#include <vector>

#include "app/inspector/InfoFollower.h"

class InfoTableModel;
class QAction;
class QTableView;
class Settings;

class InfoWindow : public QWidget {
  Q_OBJECT

 public:
  static constexpr const char* kGeometryKey = "LumInfoWindowGeometry";

  // settings may be null (no geometry kept); documentFile resolves the
  // document named by a document notification.
  explicit InfoWindow(Settings* settings = nullptr, InfoFollower::DocumentFile documentFile = {},
                      QWidget* parent = nullptr);
  ~InfoWindow() override;

  const LumImageFile* imageFile() const { return follower_.shownFile(); }
  const LumInfoDataSource& rows() const { return follower_.rows(); }
  QTableView& table() const { return *table_; }
  QAction& copyAction() const { return *copy_; }

  // Shows file (null: nothing) when it is not the one shown.
  void setImageFile(const LumImageFile* file);
  // A document window closes: lets go of its files.
  void letGoOf(const std::vector<std::filesystem::path>& files, const LumImageFile* selected);
  // Edit > Copy: the selected rows to the clipboard.
  void copySelection();

 signals:
  void visibilityChanged(bool visible);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void notified(const QString& name, const void* object);
  void reload(bool rebuilt);
  // Reads the shown file's structure on a pool thread when it lies beyond
  // the file's head; the rows are rebuilt when it arrives.
  void readStructureInBackground();
  void saveGeometryToSettings();

  Settings* settings_;
  InfoFollower follower_;
  std::unique_ptr<InfoTableModel> model_;
  QTableView* table_ = nullptr;
  QAction* copy_ = nullptr;
};
