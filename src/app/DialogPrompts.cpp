#include "app/DialogPrompts.h"

#include <QKeySequence>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include "app/sheets/FileListAlert.h"
#include "app/sheets/OpenFileDialog.h"
#include "documents/LumLocalized.h"

std::optional<Prompts::OpenRequest> DialogPrompts::chooseFilesToOpen(QWidget* parent, bool separateWindowsPreselected) {
  OpenFileDialog dialog(parent, separateWindowsPreselected);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  OpenRequest request;
  request.paths = dialog.chosenPaths();
  request.separateWindows = dialog.separateWindows();
  if (request.paths.empty()) return std::nullopt;
  return request;
}

Prompts::OpenStyle DialogPrompts::askHowToOpen(std::size_t count) {
  QMessageBox box(QMessageBox::Information, QString(),
                  LumLocalized::format("You are opening multiple files.", QLocale().toString(qulonglong(count))));
  box.setInformativeText(LumLocalized::text("How would you like to open them?"));
  const auto add = [&box](const char* key, QMessageBox::ButtonRole role) {
    QPushButton* button = box.addButton(LumLocalized::text(key), role);
    button->setAccessibleName(button->text());
    return button;
  };
  QPushButton* one = add("Open in One Window", QMessageBox::AcceptRole);
  QPushButton* separate = add("Open in Separate Windows", QMessageBox::AcceptRole);
  QPushButton* cancel = add("Cancel", QMessageBox::RejectRole);
  separate->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
  box.setDefaultButton(one);
  box.setEscapeButton(cancel);
  box.exec();
  if (box.clickedButton() == one) return OpenStyle::OneWindow;
  if (box.clickedButton() == separate) return OpenStyle::SeparateWindows;
  return OpenStyle::Cancel;
}

void DialogPrompts::showCriticalAlert(QWidget* parent, const Alert& alert) {
  if (!alert.paths.isEmpty()) {
    FileListAlert list(parent, alert.message, alert.informativeText, alert.paths);
    list.exec();
    return;
  }
  QMessageBox box(QMessageBox::Critical, QString(), alert.message, QMessageBox::Ok, parent);
  box.setInformativeText(alert.informativeText);
  box.button(QMessageBox::Ok)->setAccessibleName(box.button(QMessageBox::Ok)->text());
  box.exec();
}
