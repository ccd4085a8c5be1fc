#pragma once
// A critical alert that lists file paths under its texts; it can grow (so
// long paths can be read) but not shrink below its first size.

#include <QDialog>
#include <QStringList>

class FileListAlert : public QDialog {
  Q_OBJECT

 public:
  FileListAlert(QWidget* parent, const QString& message, const QString& informativeText, const QStringList& paths);

 protected:
  void showEvent(QShowEvent* event) override;
};
