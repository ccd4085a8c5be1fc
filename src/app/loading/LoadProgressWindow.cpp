#include "app/loading/LoadProgressWindow.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include "documents/LumLocalized.h"

LoadProgressWindow::LoadProgressWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
  setObjectName("loadProgressWindow");
  setWindowTitle(LumLocalized::text("Open Files"));
  auto* grid = new QGridLayout(this);
  title_ = new QLabel(LumLocalized::text("Preparing..."), this);
  title_->setObjectName("loadTitle");
  grid->addWidget(title_, 0, 0, 1, 3);
  bar_ = new QProgressBar(this);
  bar_->setObjectName("loadProgress");
  bar_->setRange(0, 1000);
  bar_->setValue(0);
  bar_->setTextVisible(false);
  bar_->setAccessibleName(windowTitle());
  grid->addWidget(bar_, 1, 0, 1, 2);
  cancel_ = new QPushButton(LumLocalized::text("Cancel"), this);
  cancel_->setObjectName("loadCancel");
  cancel_->setAccessibleName(cancel_->text());
  grid->addWidget(cancel_, 1, 2);
  percent_ = new QLabel(this);
  percent_->setObjectName("loadPercent");
  percent_->hide();
  grid->addWidget(percent_, 2, 0);
  counts_ = new QLabel(this);
  counts_->setObjectName("loadCounts");
  grid->addWidget(counts_, 2, 1, Qt::AlignRight);
  setMinimumWidth(360);
  connect(cancel_, &QPushButton::clicked, this, &LoadProgressWindow::cancelRequested);
}

void LoadProgressWindow::startLoading(std::size_t count) {
  title_->setText(LumLocalized::format("Loading files", QLocale().toString(qulonglong(count))));
  percent_->setText(QStringLiteral("0 %"));
  percent_->show();
  counts_->clear();
  bar_->setValue(0);
}

void LoadProgressWindow::setProgress(std::size_t done, std::size_t total) {
  const double fraction = total ? double(done) / double(total) : 1.0;
  bar_->setValue(int(fraction * bar_->maximum()));
  const int percent = int(100 * fraction);
  percent_->setVisible(percent <= 99);
  if (percent > 99) {
    counts_->clear();
    return;
  }
  percent_->setText(QStringLiteral("%1 %").arg(percent));
  const QLocale locale;
  counts_->setText(
      LumLocalized::format("%@ / %lu", locale.toString(qulonglong(done)), locale.toString(qulonglong(total))));
}
