#pragma once
// The file dialogs and application-modal alerts of the program, behind an
// interface so that tests answer them without a person. Window-modal sheets
// are real widgets (app/sheets/) shown with open(); tests find them through
// QApplication::activeModalWidget().

#include <QString>
#include <QStringList>

#include <filesystem>
#include <optional>
#include <vector>

class QWidget;

class Prompts {
 public:
  virtual ~Prompts() = default;

  struct OpenRequest {
    std::vector<std::filesystem::path> paths;  // files and folders, as chosen
    bool separateWindows = false;
  };
  // The open dialog: files and folders, several at once, the photo formats
  // offered, and the one-window / separate-windows choice. None when the
  // user cancelled.
  virtual std::optional<OpenRequest> chooseFilesToOpen(QWidget* parent, bool separateWindowsPreselected) = 0;

  enum class OpenStyle { OneWindow, SeparateWindows, Cancel };
  // "You are opening multiple files." for files dropped or handed over.
  virtual OpenStyle askHowToOpen(std::size_t count) = 0;

  // A critical alert with an OK button. When paths is not empty they are
  // listed in a resizable list under the texts.
  struct Alert {
    QString message;
    QString informativeText;
    QStringList paths;
  };
  virtual void showCriticalAlert(QWidget* parent, const Alert& alert) = 0;
};
