#pragma once
// The only place that makes document windows. It runs the openings (from
// the open dialog, from files dropped on a window, from files handed to the
// program, from Open Recent): expands folders and reads the files in the
// background behind a progress window, puts up to 50 files in windows of
// their own and the rest in one multi-file window, reports the files that
// failed, and raises a window that already shows a file. It keeps the
// windows in opening order, lets undo and redo follow the active window,
// applies the list size, and runs the quit review.

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#include "app/AppContext.h"
#include "documents/LumFileLoader.h"
#include "documents/OpenPlan.h"

class DocumentWindow;
class LoadProgressWindow;
class LumMultiFileDoc;
class LumSingleFileDoc;
class QUndoGroup;

class DocumentController : public QObject {
  Q_OBJECT

 public:
  using MultiWindowFactory = std::function<DocumentWindow*(std::unique_ptr<LumMultiFileDoc>, AppContext&)>;
  using SingleWindowFactory = std::function<DocumentWindow*(std::unique_ptr<LumSingleFileDoc>, AppContext&)>;

  static constexpr int kMaxRecentFiles = 10;

  DocumentController(AppContext& context, QUndoGroup& undoGroup, QObject* parent = nullptr);
  ~DocumentController() override;

  // How windows are made; single-file windows default to SingleFileWindow.
  void setMultiWindowFactory(MultiWindowFactory factory) { makeMultiWindow_ = std::move(factory); }
  void setSingleWindowFactory(SingleWindowFactory factory) { makeSingleWindow_ = std::move(factory); }

  // File > Open...: the open dialog, then the opening of what was chosen.
  void openDocument();
  // Opens files and folders. dropped: they were dropped or handed over, so
  // any number but one asks how to open them (even none left to open).
  // Ignored while another opening runs.
  void openFiles(const std::vector<std::filesystem::path>& paths, bool dropped);
  bool isDocumentOpening() const { return loader_ != nullptr; }
  // The progress window of the running load, null when none is shown.
  LoadProgressWindow* progressWindow() const { return progress_.get(); }

  // The open windows, in the order they were opened.
  std::vector<DocumentWindow*> windows() const;
  // The document window activated last (the tool windows follow it), or null.
  DocumentWindow* frontWindow() const { return front_.data(); }
  bool hasEditedDocuments() const;

  // Asks each window with edited files, from the last opened to the first;
  // quitReviewFinished(true) when every one let go (the windows are closed
  // then), false when one was cancelled.
  void reviewChangesAndQuit();

  void changeListSize(int size);
  QStringList recentFiles() const;

 signals:
  // An opening is over (windows made, failures reported, or nothing done).
  void openingFinished();
  // The files of an opening are being read (the progress window is up for two or more).
  void loadingStarted(std::size_t count);
  void quitReviewFinished(bool quit);
  // A document window closes (its files are about to go away).
  void windowClosing(DocumentWindow* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void startOpening(const std::vector<std::filesystem::path>& paths, bool dropped, bool separateWindows);
  void filesExpanded(const FileExpansion::Expansion& expansion, bool dropped, bool separateWindows);
  void filesLoaded();
  void finishOpening();
  void makeWindows(LumFileLoader::Result& result);
  void reportFailures(std::vector<LumErrorInfo> failures);
  void addWindow(DocumentWindow* window);
  void forgetWindow(QObject* window);
  std::vector<std::filesystem::path> allOpenFiles() const;
  void raiseWindowShowing(const std::filesystem::path& file);
  void addRecentFile(const std::filesystem::path& file);
  void updateRecentMenu();
  void reviewNextWindow();

  AppContext& context_;
  QUndoGroup& undoGroup_;
  MultiWindowFactory makeMultiWindow_;
  SingleWindowFactory makeSingleWindow_;
  std::unique_ptr<LumFileLoader> loader_;
  std::unique_ptr<LoadProgressWindow> progress_;
  OpenPlan::Split split_;
  std::vector<QPointer<DocumentWindow>> windows_;
  QPointer<DocumentWindow> front_;
  std::vector<QPointer<DocumentWindow>> toReview_;  // the quit review's windows left, next last
  bool quitting_ = false;
};
