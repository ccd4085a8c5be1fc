#pragma once
// The open dialog: Qt's own file dialog (the platform's cannot take files
// and folders in one selection) showing photo files (all of them, or one
// family: camera RAW, HEIC/HEIF/AVIF, PNG, WebP), several at once, folders
// included, with the choice of one window or separate windows below it.

#include <QFileDialog>

#include <filesystem>
#include <vector>

class QRadioButton;

class OpenFileDialog : public QFileDialog {
  Q_OBJECT

 public:
  OpenFileDialog(QWidget* parent, bool separateWindowsPreselected);

  // "Photos (...)", one filter per family of other formats, "All Files (*)".
  static QStringList photoNameFilters();

  std::vector<std::filesystem::path> chosenPaths() const { return chosen_; }
  bool separateWindows() const;

 public slots:
  void accept() override;

 private:
  void addOpenStyleChoice(bool separateWindowsPreselected);
  // The entries selected in the list or the detail view, folders included.
  QStringList selectedEntries() const;

  QRadioButton* oneWindow_ = nullptr;
  QRadioButton* separateWindows_ = nullptr;
  std::vector<std::filesystem::path> chosen_;
};
