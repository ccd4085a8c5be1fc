#pragma once
// The metadata inspector: one window listing the JFIF fields and the TIFF, Exif, Interoperability and GPS entries of the current file.

#include <QWidget>

class InfoWindow : public QWidget {
  Q_OBJECT

 public:
  explicit InfoWindow(QWidget* parent = nullptr);
  ~InfoWindow() override;
};
