#pragma once
// What the shell tests share: settings in a temporary file, the fake
// prompts, a document controller, photo files in a scratch folder, and a
// stand-in multi-file window over the real document.

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUndoGroup>

#include <memory>

#include "app/AppActions.h"
#include "app/AppContext.h"
#include "app/DocumentController.h"
#include "app/DocumentWindow.h"
#include "app/preferences/Settings.h"
#include "app/support/FakePrompts.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/PhotoFiles.h"

// The multi-file window as the controller sees it: files, edited state,
// undo and the close review, without a table.
class StandInMultiWindow : public DocumentWindow {
 public:
  StandInMultiWindow(std::unique_ptr<LumMultiFileDoc> document, AppContext& context)
      : DocumentWindow(context), document_(std::move(document)) {
    connect(document_.get(), &LumMultiFileDoc::saveFinished, this,
            [this](const LumSaveOutcome& outcome) { closeSaveFinished(outcome.failures.empty()); });
  }
  LumMultiFileDoc& document() { return *document_; }
  std::vector<std::filesystem::path> openFiles() const override {
    std::vector<std::filesystem::path> files;
    for (int row = 0; row < document_->rowCount(); ++row) files.push_back(document_->item(row).path());
    return files;
  }
  std::size_t editedFileCount() const override { return document_->editedFileCount(); }
  QUndoStack& undoStack() override { return document_->undoStack(); }

 protected:
  std::optional<CloseTexts> closeAlertTexts() const override {
    const auto texts = document_->getTitleForAlertWhenCloseDociment();
    if (!texts) return std::nullopt;
    return CloseTexts{texts->title, texts->message};
  }
  void saveAllForClose(bool quitting) override { document_->saveFileAll(true, true, quitting); }

 private:
  std::unique_ptr<LumMultiFileDoc> document_;
};

struct ShellFixture {
  QTemporaryDir settingsDir;
  QSettings store{settingsDir.filePath("settings.ini"), QSettings::IniFormat};
  Settings settings{store};
  FakePrompts prompts;
  QUndoGroup undoGroup;
  AppActions actions{undoGroup};
  AppContext context{settings, prompts, actions};
  doctest_support::TempFolder folder;
  DocumentController controller{context, undoGroup};

  ShellFixture() {
    settings.registerDefaults();
    controller.setMultiWindowFactory([](std::unique_ptr<LumMultiFileDoc> document, AppContext& context) {
      return new StandInMultiWindow(std::move(document), context);
    });
  }

  std::filesystem::path photo(const std::string& name) {
    return doctest_support::writePhoto(folder, name, {"2020:01:31 10:00:00", "2020:01:31 10:00:00", std::nullopt});
  }
  // Runs an opening and waits until it is over.
  bool waitForOpening(const std::function<void()>& start) {
    QSignalSpy finished(&controller, &DocumentController::openingFinished);
    start();
    return finished.count() > 0 || finished.wait(20000);
  }
  std::vector<StandInMultiWindow*> multiWindows() const {
    std::vector<StandInMultiWindow*> found;
    for (DocumentWindow* window : controller.windows())
      if (auto* multi = dynamic_cast<StandInMultiWindow*>(window)) found.push_back(multi);
    return found;
  }
};
