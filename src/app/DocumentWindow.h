#pragma once
// What the document controller needs of every document window (multi-file
// and single-file): the files it has open, its edited state and undo stack,
// and the close review that asks to save edited files.
//
// Closing a window with edited files shows the close sheet ("Save",
// "Cancel", "Don't Save") instead of closing. Save starts the window's save
// of every edited file and closes when it succeeded; Don't Save closes;
// Cancel keeps the window. While quitting the controller asks the windows one
// by one and goes on when reviewFinished(true) arrives.

#include <QMainWindow>
#include <QString>

#include <filesystem>
#include <optional>
#include <vector>

#include "app/AppContext.h"

class LumImageFile;
class QMessageBox;
class QUndoStack;

class DocumentWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit DocumentWindow(AppContext& context, QWidget* parent = nullptr);
  ~DocumentWindow() override;

  // The files the window shows (an opening drops them).
  virtual std::vector<std::filesystem::path> openFiles() const = 0;
  virtual std::size_t editedFileCount() const = 0;
  bool hasEditedFile() const { return editedFileCount() > 0; }
  virtual QUndoStack& undoStack() = 0;
  // The file the inspector and the image viewer follow: the selected file
  // (a multi-file window: the one selected row), or null.
  virtual const LumImageFile* selectedImageFile() const = 0;
  // The document object the window's notifications name (compared by
  // identity), or null.
  virtual const void* documentObject() const { return nullptr; }

  // Brings the window to the front and, when it has edited files, shows the
  // close sheet. quitting: the answer goes on with the quit review.
  // Without edited files a quitting review goes on at once.
  void askToSaveAndQuitApp(bool quitting);
  // The close sheet while it is shown, else null (tests answer it).
  QMessageBox* closeSheet() const { return closeSheet_; }

 signals:
  // A quit review of this window is over: true to go on with the next
  // window, false when the user cancelled or a save failed.
  void reviewFinished(bool goOn);
  // The window is about to be destroyed (after a close that was allowed).
  void windowClosing(DocumentWindow* window);

 protected:
  struct CloseTexts {
    QString title;
    QString message;
  };
  // The close sheet's texts; none when nothing is edited.
  virtual std::optional<CloseTexts> closeAlertTexts() const = 0;
  // The same from a document's own title and message.
  template <typename Texts>
  static std::optional<CloseTexts> closeTextsFrom(const std::optional<Texts>& texts) {
    if (!texts) return std::nullopt;
    return CloseTexts{texts->title, texts->message};
  }
  // Starts saving every edited file for a close (and a quit). The subclass
  // calls closeSaveFinished when the save is over.
  virtual void saveAllForClose(bool quitting) = 0;
  // The save started by saveAllForClose is over: on success the window
  // closes (and a quit goes on); on failure it stays and a quit stops.
  void closeSaveFinished(bool saved);

  void closeEvent(QCloseEvent* event) override;
  // Becoming the active window points a visible image viewer at this
  // window's selected file.
  void changeEvent(QEvent* event) override;
  // A visible image viewer shows selectedImageFile() (nothing when none).
  void showSelectionInImageWindow();

  AppContext& context() const { return context_; }

 private:
  AppContext& context_;
  QMessageBox* closeSheet_ = nullptr;
  bool reviewing_ = false;
  bool quitting_ = false;
  bool closeAllowed_ = false;
};
