#include "app/DocumentWindow.h"

#include <QCloseEvent>
#include <QKeySequence>
#include <QMessageBox>
#include <QPushButton>

#include "app/ToolWindows.h"
#include "documents/LumLocalized.h"

namespace {

QPushButton* addButton(QMessageBox& box, const QString& label, QMessageBox::ButtonRole role) {
  QPushButton* button = box.addButton(label, role);
  button->setAccessibleName(label);
  return button;
}

}  // namespace

DocumentWindow::DocumentWindow(AppContext& context, QWidget* parent) : QMainWindow(parent), context_(context) {
  setAttribute(Qt::WA_DeleteOnClose);
}

DocumentWindow::~DocumentWindow() = default;

void DocumentWindow::askToSaveAndQuitApp(bool quitting) {
  raise();
  activateWindow();
  if (closeSheet_) {
    // Already asking (a close): its answer now also goes on with the quit.
    quitting_ = quitting_ || quitting;
    return;
  }
  const std::optional<CloseTexts> texts = hasEditedFile() ? closeAlertTexts() : std::nullopt;
  if (!texts) {
    if (quitting) emit reviewFinished(true);
    return;
  }
  quitting_ = quitting;
  reviewing_ = true;

  auto* sheet = new QMessageBox(this);
  sheet->setObjectName("closeSheet");
  sheet->setIcon(QMessageBox::Critical);
  sheet->setWindowModality(Qt::WindowModal);
  sheet->setText(texts->title);
  sheet->setInformativeText(texts->message);
  QPushButton* save = addButton(*sheet, LumLocalized::text("Save"), QMessageBox::AcceptRole);
  QPushButton* cancel = addButton(*sheet, LumLocalized::text("Cancel"), QMessageBox::RejectRole);
  QPushButton* dontSave = addButton(*sheet, LumLocalized::text("Don't Save"), QMessageBox::DestructiveRole);
  save->setObjectName("saveButton");
  cancel->setObjectName("cancelButton");
  dontSave->setObjectName("dontSaveButton");
  dontSave->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
  sheet->setDefaultButton(save);
  sheet->setEscapeButton(cancel);
  closeSheet_ = sheet;

  connect(sheet, &QMessageBox::finished, this, [this, sheet, save, dontSave] {
    QAbstractButton* answer = sheet->clickedButton();
    closeSheet_ = nullptr;
    sheet->deleteLater();
    if (answer == save) {
      saveAllForClose(quitting_);
    } else if (answer == dontSave) {
      reviewing_ = false;
      closeAllowed_ = true;
      close();
      if (quitting_) emit reviewFinished(true);
    } else {
      reviewing_ = false;
      if (quitting_) emit reviewFinished(false);
    }
  });
  sheet->open();
}

void DocumentWindow::closeSaveFinished(bool saved) {
  reviewing_ = false;
  if (saved) {
    closeAllowed_ = true;
    close();
  }
  if (quitting_) emit reviewFinished(saved);
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
  if (closeAllowed_ || !hasEditedFile()) {
    event->accept();
    emit windowClosing(this);
    return;
  }
  event->ignore();
  if (!reviewing_) askToSaveAndQuitApp(false);
}

void DocumentWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) showSelectionInImageWindow();
}

void DocumentWindow::showSelectionInImageWindow() {
  if (context_.tools) context_.tools->imageWindowFollow(selectedImageFile());
}
