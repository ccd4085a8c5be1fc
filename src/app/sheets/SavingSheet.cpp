#include "app/sheets/SavingSheet.h"

#include <QCloseEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

SavingSheet::SavingSheet(QWidget* window) : QDialog(window) {
  setObjectName("savingSheet");
  setWindowModality(Qt::WindowModal);
  setWindowTitle(tr("Saving"));
  setAccessibleName(tr("Saving"));
  auto* layout = new QVBoxLayout(this);
  auto* title = new QLabel(tr("Saving..."), this);
  bar_ = new QProgressBar(this);
  bar_->setObjectName("savingProgress");
  bar_->setRange(0, 100);
  bar_->setAccessibleName(tr("Saving..."));
  path_ = new QLabel(this);
  path_->setObjectName("savingPath");
  path_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  path_->setMinimumWidth(360);
  layout->addWidget(title);
  layout->addWidget(bar_);
  layout->addWidget(path_);
}

void SavingSheet::start() {
  setProgress(0, QString());
  open();
}

void SavingSheet::setProgress(double percent, const QString& path) {
  bar_->setValue(static_cast<int>(percent));
  path_->setText(path);
  path_->setAccessibleName(path);
}

void SavingSheet::finish() {
  hide();
  setResult(QDialog::Accepted);
  setProgress(0, QString());
}

int SavingSheet::progress() const { return bar_->value(); }

QString SavingSheet::path() const { return path_->text(); }

void SavingSheet::closeEvent(QCloseEvent* event) {
  if (isVisible()) event->ignore();  // only finish() ends it
}
