#pragma once
// The window of a multi-file document: the change controls, the file table
// and the path of the selected file. It lays the widgets out and binds them
// to the document, which holds every rule; the window owns the document.

#include <memory>
#include <optional>

#include "app/DocumentWindow.h"
#include "app/multi/ThumbnailCache.h"

class ChangeControls;
class FileTableModel;
class FileTableView;
class LumMultiFileDoc;
class MultiFileActions;
class QLineEdit;
class SavingSheet;
class ThumbnailScheduler;
struct LumSaveOutcome;

class MultiFileWindow : public DocumentWindow {
  Q_OBJECT

 public:
  MultiFileWindow(std::unique_ptr<LumMultiFileDoc> document, AppContext& context, QWidget* parent = nullptr);
  ~MultiFileWindow() override;

  LumMultiFileDoc& document() { return *document_; }
  FileTableView& table() const { return *table_; }
  FileTableModel& model() const { return *model_; }
  MultiFileActions& actions() const { return *actions_; }
  SavingSheet& savingSheet() const { return *savingSheet_; }
  const ThumbnailCache& thumbnails() const { return thumbnails_; }
  const ThumbnailScheduler& thumbnailScheduler() const { return *scheduler_; }

  std::vector<std::filesystem::path> openFiles() const override;
  std::size_t editedFileCount() const override;
  QUndoStack& undoStack() override;
  const LumImageFile* selectedImageFile() const override;
  const void* documentObject() const override { return document_.get(); }

 protected:
  std::optional<CloseTexts> closeAlertTexts() const override;
  void saveAllForClose(bool quitting) override;
  void changeEvent(QEvent* event) override;

 private:
  void buildLayout();
  void bindDocument();
  void bindTable();
  void restoreTableLayout();
  void applyListSize();
  void tableSelectionChanged();
  void showDocumentSelection();
  void sortIndicatorChanged(int section, Qt::SortOrder order);
  void showContextMenu(std::optional<int> row, const QPoint& globalPos);
  void saveFinished(const LumSaveOutcome& outcome);

  std::unique_ptr<LumMultiFileDoc> document_;
  ThumbnailCache thumbnails_;
  std::unique_ptr<ThumbnailScheduler> scheduler_;
  FileTableModel* model_ = nullptr;
  FileTableView* table_ = nullptr;
  ChangeControls* controls_ = nullptr;
  QLineEdit* path_ = nullptr;
  MultiFileActions* actions_ = nullptr;
  SavingSheet* savingSheet_ = nullptr;
  bool showingDocumentSelection_ = false;
  bool savingForClose_ = false;
};
