// A minimal close review: the window closes at once. The document
// controller's full review (the close sheet, saving before closing) replaces
// this file.
#include "app/DocumentWindow.h"

#include <QCloseEvent>

DocumentWindow::DocumentWindow(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {}

DocumentWindow::~DocumentWindow() = default;

void DocumentWindow::askToSaveAndQuitApp(bool quitting) {
  quitting_ = quitting;
  if (quitting) emit reviewFinished(true);
}

void DocumentWindow::closeSaveFinished(bool saved) {
  reviewing_ = false;
  if (quitting_) emit reviewFinished(saved);
  if (saved) {
    closeAllowed_ = true;
    close();
  }
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
  emit windowClosing(this);
  event->accept();
}
