#pragma once
// The image viewer: one window showing the picture of the current file with its pixel size and camera model.

#include <QWidget>

class ImageWindow : public QWidget {
  Q_OBJECT

 public:
  explicit ImageWindow(QWidget* parent = nullptr);
  ~ImageWindow() override;
};
