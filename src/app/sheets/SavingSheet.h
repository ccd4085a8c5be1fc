#pragma once
// The sheet a document window shows while it saves two or more files: a
// progress bar and the path of the file being written. Window-modal, shown
// with open(); it cannot be dismissed by the user (a save is not cancelled
// half way), only by finish().

#include <QDialog>

class QLabel;
class QProgressBar;

class SavingSheet : public QDialog {
  Q_OBJECT

 public:
  explicit SavingSheet(QWidget* window);

  // Shows the sheet at 0 % with no path.
  void start();
  void setProgress(double percent, const QString& path);
  // Hides the sheet and puts the bar back to 0.
  void finish();

  int progress() const;
  QString path() const;

 protected:
  void reject() override {}  // Escape does not end a save
  void closeEvent(QCloseEvent* event) override;

 private:
  QProgressBar* bar_ = nullptr;
  QLabel* path_ = nullptr;
};
