#include "app/DocumentController.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QUndoGroup>

#include <algorithm>
#include <map>

#include "app/AppActions.h"
#include "app/DocumentWindow.h"
#include "app/Prompts.h"
#include "app/loading/LoadProgressWindow.h"
#include "app/preferences/Settings.h"
#include "app/multi/MultiFileWindow.h"
#include "app/single/SingleFileWindow.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/LumSingleFileDoc.h"
#include "documents/OpenFailureReport.h"

DocumentController::DocumentController(AppContext& context, QUndoGroup& undoGroup, QObject* parent)
    : QObject(parent), context_(context), undoGroup_(undoGroup) {
  // The windows have no parent: each deletes itself when closed.
  makeSingleWindow_ = [](std::unique_ptr<LumSingleFileDoc> document, AppContext& context) -> DocumentWindow* {
    return new SingleFileWindow(std::move(document), context);
  };
  makeMultiWindow_ = [](std::unique_ptr<LumMultiFileDoc> document, AppContext& context) -> DocumentWindow* {
    return new MultiFileWindow(std::move(document), context);
  };
  AppActions& actions = context_.actions;
  connect(actions.open, &QAction::triggered, this, &DocumentController::openDocument);
  connect(actions.quit, &QAction::triggered, this, &DocumentController::reviewChangesAndQuit);
  connect(actions.listSize, &QActionGroup::triggered, this,
          [this](QAction* action) { changeListSize(action->data().toInt()); });
  actions.checkListSize(context_.settings.tableViewRowHeight());
  updateRecentMenu();
}

DocumentController::~DocumentController() {
  loader_.reset();
  // The windows refer to the context the controller was given; they go first.
  for (const QPointer<DocumentWindow>& window : windows_)
    if (window) std::unique_ptr<DocumentWindow> owned(window.data());
}

// --- Opening --------------------------------------------------------------------

void DocumentController::openDocument() {
  if (isDocumentOpening()) return;
  const bool separate = context_.settings.useSingleWindow();
  const auto request = context_.prompts.chooseFilesToOpen(QApplication::activeWindow(), separate);
  if (!request) return;
  context_.settings.setUseSingleWindow(request->separateWindows);
  startOpening(request->paths, false, request->separateWindows);
}

void DocumentController::openFiles(const std::vector<std::filesystem::path>& paths, bool dropped) {
  startOpening(paths, dropped, context_.settings.useSingleWindow());
}

void DocumentController::startOpening(const std::vector<std::filesystem::path>& paths, bool dropped,
                                      bool separateWindows) {
  if (isDocumentOpening()) return;
  std::vector<std::filesystem::path> absolute;
  for (const std::filesystem::path& path : paths)
    absolute.push_back(std::filesystem::absolute(path).lexically_normal());
  loader_ = std::make_unique<LumFileLoader>();
  connect(loader_.get(), &LumFileLoader::expanded, this,
          [this, dropped, separateWindows](const FileExpansion::Expansion& expansion) {
            filesExpanded(expansion, dropped, separateWindows);
          });
  loader_->expand(std::move(absolute));
}

void DocumentController::filesExpanded(const FileExpansion::Expansion& expansion, bool dropped, bool separateWindows) {
  const std::vector<std::filesystem::path> files = OpenPlan::removeOpen(expansion.files, allOpenFiles());
  if (dropped && files.size() != 1) {
    const Prompts::OpenStyle style = context_.prompts.askHowToOpen(files.size());
    if (style == Prompts::OpenStyle::Cancel) return finishOpening();
    separateWindows = style == Prompts::OpenStyle::SeparateWindows;
  }
  if (files.empty()) {
    if (!expansion.files.empty()) raiseWindowShowing(expansion.files.front());
    return finishOpening();
  }
  context_.settings.setUseSingleWindow(separateWindows);
  split_ = OpenPlan::split(files, separateWindows);
  if (files.size() >= 2) {
    progress_ = std::make_unique<LoadProgressWindow>();
    connect(progress_.get(), &LoadProgressWindow::cancelRequested, loader_.get(), &LumFileLoader::cancel);
    connect(loader_.get(), &LumFileLoader::progress, progress_.get(), &LoadProgressWindow::setProgress);
    progress_->startLoading(files.size());
    progress_->show();
  }
  connect(loader_.get(), &LumFileLoader::finished, this, &DocumentController::filesLoaded);
  loader_->load(files);
  emit loadingStarted(files.size());
}

void DocumentController::filesLoaded() {
  LumFileLoader::Result result = loader_->takeResult();
  // Other openings may start from here on (the alert below waits for a person).
  loader_.release()->deleteLater();
  // The new windows come up before the progress window goes: closing the
  // program's last window would end it.
  if (!result.cancelled) makeWindows(result);
  progress_.reset();
  split_ = {};
  if (!result.cancelled) reportFailures(std::move(result.failures));
  emit openingFinished();
}

void DocumentController::finishOpening() {
  progress_.reset();
  if (loader_) loader_.release()->deleteLater();
  split_ = {};
  emit openingFinished();
}

void DocumentController::makeWindows(LumFileLoader::Result& result) {
  std::map<std::filesystem::path, std::unique_ptr<LumImageFile>> loaded;
  for (LumFileLoader::LoadedFile& file : result.files) loaded.emplace(file.url, std::move(file.file));

  for (const std::filesystem::path& path : split_.separate) {
    const auto found = loaded.find(path);
    if (found == loaded.end()) continue;
    auto document = std::make_unique<LumSingleFileDoc>();
    document->readFromImageFile(path, std::move(found->second));
    addWindow(makeSingleWindow_(std::move(document), context_));
    addRecentFile(path);
  }
  std::vector<std::unique_ptr<LumFileItemDoc>> items;
  for (const std::filesystem::path& path : split_.together) {
    const auto found = loaded.find(path);
    if (found != loaded.end()) items.push_back(std::make_unique<LumFileItemDoc>(path, std::move(found->second)));
  }
  if (items.empty() || !makeMultiWindow_) return;
  addWindow(makeMultiWindow_(std::make_unique<LumMultiFileDoc>(std::move(items)), context_));
}

void DocumentController::reportFailures(std::vector<LumErrorInfo> failures) {
  // The workers finish in any order; the alert lists the files as they were chosen.
  std::sort(failures.begin(), failures.end(), [](const LumErrorInfo& a, const LumErrorInfo& b) {
    return FileExpansion::naturalPathLess(a.url, b.url);
  });
  const auto texts = OpenFailureReport::alertTexts(failures);
  if (!texts) return;
  context_.prompts.showCriticalAlert(QApplication::activeWindow(),
                                     {texts->message, texts->informativeText, texts->paths});
}
