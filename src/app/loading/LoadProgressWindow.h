#pragma once
// The small window an opening of several files shows while they are read:
// "Preparing...", then "Loading files" with the count, a bar, the percent,
// done / total, and Cancel.

#include <QWidget>

#include <cstddef>

class QLabel;
class QProgressBar;
class QPushButton;

class LoadProgressWindow : public QWidget {
  Q_OBJECT

 public:
  explicit LoadProgressWindow(QWidget* parent = nullptr);

  // The load of count files started.
  void startLoading(std::size_t count);
  void setProgress(std::size_t done, std::size_t total);

 signals:
  void cancelRequested();

 private:
  QLabel* title_ = nullptr;
  QProgressBar* bar_ = nullptr;
  QLabel* percent_ = nullptr;
  QLabel* counts_ = nullptr;
  QPushButton* cancel_ = nullptr;
};
