#pragma once
// The window of one photo's document: the photo, the three date pickers,
// the link, change-by-interval and restore buttons, and Save. It lays the
// widgets out and binds them to the document, which holds every rule; the
// window owns the document and, for now, the interval sheet's model.

#include <array>
#include <memory>

#include "app/DocumentWindow.h"
#include "documents/DateTargets.h"
#include "documents/LumCTISheet.h"
#include "documents/LumSingleFileDoc.h"

class ChangeByIntervalSheet;
class DatePickerWidget;
class PhotoView;
class QAction;
class QPushButton;

class SingleFileWindow : public DocumentWindow {
  Q_OBJECT

 public:
  SingleFileWindow(std::unique_ptr<LumSingleFileDoc> document, AppContext& context, QWidget* parent = nullptr);
  ~SingleFileWindow() override;

  LumSingleFileDoc& document() { return *document_; }
  PhotoView& photo() const { return *photo_; }
  DatePickerWidget& picker(DateTargets::Index which) const { return *pickers_[which]; }
  ChangeByIntervalSheet& intervalSheet() const { return *sheet_; }

  std::vector<std::filesystem::path> openFiles() const override;
  std::size_t editedFileCount() const override { return document_->editedFileCount(); }
  QUndoStack& undoStack() override { return document_->undoStack(); }
  const LumImageFile* selectedImageFile() const override;
  const void* documentObject() const override { return document_.get(); }

 protected:
  std::optional<CloseTexts> closeAlertTexts() const override;
  void saveAllForClose(bool quitting) override;
  void changeEvent(QEvent* event) override;

 private:
  QWidget* buildDates(QWidget* parent);
  QLayout* buildButtons(QWidget* parent);
  void buildActions();
  void showIntervalSheet();
  // Pickers, buttons and menu states as the document now stands.
  void showDocument();
  void showStates();
  void saveFinished(const LumSingleFileDoc::SaveOutcome& outcome);
  void windowClosing();

  std::unique_ptr<LumSingleFileDoc> document_;
  LumCTISheet sheetModel_;
  PhotoView* photo_ = nullptr;
  std::array<DatePickerWidget*, DateTargets::kCount> pickers_{};
  QPushButton* link_ = nullptr;
  QPushButton* interval_ = nullptr;
  QPushButton* restore_ = nullptr;
  QPushButton* saveButton_ = nullptr;
  QAction* save_ = nullptr;
  QAction* revert_ = nullptr;
  ChangeByIntervalSheet* sheet_ = nullptr;
  bool savingForClose_ = false;
};
