#pragma once
// A small spinning busy indicator (a ring of fading strokes), for a wait of
// unknown length. It turns only while shown.

#include <QTimer>
#include <QWidget>

class BusyIndicator : public QWidget {
  Q_OBJECT

 public:
  explicit BusyIndicator(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {16, 16}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QTimer timer_;
  int step_ = 0;
};
