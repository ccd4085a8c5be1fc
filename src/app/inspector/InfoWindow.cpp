#include "app/inspector/InfoWindow.h"

InfoWindow::InfoWindow(QWidget* parent) : QWidget(parent, Qt::Window) {}

InfoWindow::~InfoWindow() = default;
