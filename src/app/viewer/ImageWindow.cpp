#include "app/viewer/ImageWindow.h"

ImageWindow::ImageWindow(QWidget* parent) : QWidget(parent, Qt::Window) {}

ImageWindow::~ImageWindow() = default;
