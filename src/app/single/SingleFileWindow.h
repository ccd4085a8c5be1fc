#pragma once
// A plain window over one photo's document: its name and path, the three
// dates read-only, Save, undo and the close review.

#include <array>
#include <memory>

#include "app/DocumentWindow.h"
#include "documents/DateTargets.h"
#include "documents/LumSingleFileDoc.h"

class QLabel;
class QPushButton;

class SingleFileWindow : public DocumentWindow {
  Q_OBJECT

 public:
  SingleFileWindow(std::unique_ptr<LumSingleFileDoc> document, AppContext& context, QWidget* parent = nullptr);
  ~SingleFileWindow() override;

  LumSingleFileDoc& document() { return *document_; }

  std::vector<std::filesystem::path> openFiles() const override;
  std::size_t editedFileCount() const override { return document_->editedFileCount(); }
  QUndoStack& undoStack() override { return document_->undoStack(); }

 protected:
  std::optional<CloseTexts> closeAlertTexts() const override;
  void saveAllForClose(bool quitting) override;

 private:
  void buildActions();
  void showDates();
  void saveFinished(const LumSingleFileDoc::SaveOutcome& outcome);

  std::unique_ptr<LumSingleFileDoc> document_;
  std::array<QLabel*, DateTargets::kCount> dateLabels_{};
  QPushButton* saveButton_ = nullptr;
  bool savingForClose_ = false;
};
