#pragma once
// The multi-file document without its window: the rows, the action mode and
// its six fields, the validity check of the apply button, apply/restore/typed
// changes with undo, edit marks, sorting, titles, menu states and saving.
//
// The window binds to it: it forwards what the user does (field values, the
// target check boxes, selection, typed text) and follows the signals. The
// command-line tool drives the very same operations.

#include <QObject>
#include <QThreadPool>
#include <QString>
#include <QUndoStack>

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "documents/BatchFlush.h"
#include "documents/DateTargets.h"
#include "documents/LumDocumentAppearance.h"
#include "documents/DateTextRules.h"
#include "documents/FieldLimits.h"
#include "documents/InPlaceWriter.h"
#include "documents/LumDateSet.h"
#include "documents/LumFileItemDoc.h"
#include "documents/SaveReport.h"

// What a save reports when it is over (on the document's thread).
struct LumSaveOutcome {
  std::size_t total = 0;
  std::vector<SaveReport::Failure> failures;
  std::optional<SaveReport::AlertTexts> alert;  // none when every file was saved
  bool closeAfterSave = false;
  bool quitApp = false;
};

class LumMultiFileDoc : public QObject, public LumDocumentAppearance {
  Q_OBJECT

 public:
  enum Field { Year = 0, Month, Day, Hour, Minute, Second };

  struct SortDescriptor {
    std::string key;  // "FileName", "DateTime", "DateTimeDigitized", "DateTimeOriginal", "Edited", "Edit"
    bool ascending = true;
  };
  struct ApplyButtonState {
    bool enabled = false;
    bool warningShown = false;
  };
  // A marked file's date that the current offsets would carry out of range.
  struct IllegalDate {
    const LumFileItemDoc* item;
    DateTargets::Index which;
    std::string text;
  };
  enum class TypedResult { Refused, Ignored, Applied };
  enum class MenuCommand {
    Save, SaveAll, SaveAs, EditOnAll, EditOffAll, EditOnSelected, EditOffSelected, RestoreSelected, RestoreAll
  };
  struct MenuState {
    bool enabled = false;
    QString title;  // set only where the command's title depends on the state
  };
  struct CloseAlertTexts {
    QString title;
    QString message;
  };

  // The items are put in the initial sort order.
  explicit LumMultiFileDoc(std::vector<std::unique_ptr<LumFileItemDoc>> items, QObject* parent = nullptr);
  ~LumMultiFileDoc() override;

  // --- Rows and selection ---------------------------------------------------
  int rowCount() const { return static_cast<int>(items_.size()); }
  LumFileItemDoc& item(int row) const { return *items_.at(static_cast<std::size_t>(row)); }
  std::optional<int> rowOf(const LumFileItemDoc* item) const;
  LumFileItemDoc* itemForURL(const std::filesystem::path& url) const;

  // The selected rows, in the order they were selected; invalid rows are
  // dropped. In the main window the inspector is told which file is shown.
  void setSelectedRows(const std::vector<int>& rows, bool isMainWindow = false);
  std::vector<int> selectedRows() const;
  // The row of a context-menu click, none when the menu was not opened on a row.
  void setClickedRow(std::optional<int> row) { clickedRow_ = row; }

  std::vector<LumFileItemDoc*> _selectedDocuments() const;
  LumFileItemDoc* _selectedDocument() const;
  std::vector<LumFileItemDoc*> pDocumentsByRightCliced(bool* clickedOutsideSelection) const;
  std::vector<LumFileItemDoc*> _editTargetDocuments() const;
  std::vector<LumFileItemDoc*> pEditedDocuments() const;
  LumImageFile* selectedImageFile() const;

  // --- Mode, fields, targets, validity --------------------------------------
  LumActionMode actionMode() const { return actionMode_; }
  void changeActionMode(LumActionMode mode);
  // The field limits of the current mode (the Set Time day maximum follows
  // the month in the fields).
  LumFieldLimits _changeNumberFormatter() const;

  long fieldValue(Field field) const { return fields_[field]; }
  std::array<long, 6> fieldValues() const { return fields_; }
  // A field changed by the user; runs the validity check.
  void setFieldValue(Field field, long value);
  // Sets all six at once (one check afterwards).
  void setFieldValues(const std::array<long, 6>& values);
  // End of editing of a Set Time field: value none means the field holds
  // nothing acceptable. The remembered year, month or day comes back then.
  void endSetTimeFieldEditing(Field field, std::optional<long> value);
  void pClearChangeByTimeIntervalFields();

  unsigned _editTargetMask() const { return targetMask_; }
  void setEditTargetMask(unsigned mask);

  void _checkDateChanged();
  bool pIsIllegalChangeDate(const DateTextRules::Offsets& offsets, const LumFileItemDoc& item) const;
  ApplyButtonState validateApllyButton();
  bool illegalResult() const { return illegalResult_; }
  // Every marked date the current offsets would carry out of range, in row
  // order (what the warning is about); empty in Set Time mode.
  std::vector<IllegalDate> illegalChangeDates() const;

  // --- Changes --------------------------------------------------------------
  void applyToAllFiles();
  // Applies newSet and registers the exchange of the two sets for undo.
  // Takes the sets by value: the undo command keeps them, and a change of
  // thousands of files should not copy them.
  void _changeDateWithNewDateTimeSet(LumDateSet newSet, LumDateSet oldSet, const QString& actionName);
  void restoreSelectedFiles();
  void restoreAllFiles();
  void pRestoreDocuments(const std::vector<LumFileItemDoc*>& items);

  // Text typed into a date cell of row; column is the column identifier.
  // Refused: the window beeps and shows the old value again.
  TypedResult controlTextDidEndEditing(int row, std::string_view column, std::string_view typed, bool shiftHeld);
  void _changeWithImageFile(LumFileItemDoc* item, const DateTargets::Texts& texts);

  // --- Edit marks -----------------------------------------------------------
  void setEditTarget(int row, bool on);
  void setEditStateOnAllFiles();
  void setEditStateOffAllFiles();
  void setEditStateOnSelectedFiles();
  void setEditStateOffSelectedFiles();

  // --- Sorting --------------------------------------------------------------
  static const std::vector<SortDescriptor>& initialSortDescriptors();
  const std::vector<SortDescriptor>& sortDescriptors() const { return sortDescriptors_; }
  void tableViewSortDescriptorsDidChange(std::vector<SortDescriptor> descriptors);
  void _sortTableView();

  // --- Title, queries, menus ------------------------------------------------
  const std::optional<std::filesystem::path>& fileURL() const { return fileURL_; }
  const QString& windowTitle() const { return windowTitle_; }
  void updateFileURLAndWindowTitle();
  std::optional<CloseAlertTexts> getTitleForAlertWhenCloseDociment() const;
  std::size_t editedFileCount() const;
  bool hasEditedFile() const;
  bool hasEditedFileSelected() const;
  MenuState validateMenuItem(MenuCommand command) const;

  QUndoStack& undoStack() { return undoStack_; }

  // --- Thumbnails -------------------------------------------------------------
  // Makes the row's thumbnail in the background unless it has one or one is
  // being made; thumbnailReady follows on the document's thread.
  void requestThumbnail(int row);
  // The document's queue of thumbnail work, made on first use.
  QThreadPool& LumSharedPhotoIconMakerQueue();
  static constexpr int kMaxThumbnailJobs = 8;

  // --- Saving ---------------------------------------------------------------
  // The file's bytes with the item's current texts written in (a copy; the
  // save itself writes only the changed bytes in place).
  static std::vector<std::uint8_t> _changedDateWithData(orb::ByteView data, const LumFileItemDoc& item);
  // Saves the edited files (all of them, or the selected ones) on a
  // background thread; always true. The outcome arrives as saveFinished.
  bool saveFileAll(bool all, bool closeAfterSave, bool quitApp);
  // Save: the selected edited files. Save all: every edited file.
  bool saveDocument() { return saveFileAll(false, false, false); }
  bool saveAllDocuments() { return saveFileAll(true, false, false); }
  bool isSaving() const { return saving_; }
  // Replaces the system write (tests make it fail part way). A save calls it
  // from several threads at once.
  void setWriteFunction(InPlaceWriter::WriteFunction write) { writeFunction_ = std::move(write); }
  // A save writes this many files, then flushes them together while it
  // writes the next as many; so it holds at most twice as many descriptors.
  static constexpr std::size_t kFilesPerFlush = 256;
  // Replaces the file system flush (tests make it fail) and the number of
  // files one flush covers.
  void setFlushFunction(InPlaceWriter::FlushFunction flush, std::size_t filesPerFlush = kFilesPerFlush) {
    flushFunction_ = std::move(flush);
    filesPerFlush_ = filesPerFlush;
  }

  // Used by the undo commands: put the texts of a set in place.
  void applyDateSet(const LumDateSet& set);
  void setItemTexts(LumFileItemDoc* item, const DateTargets::Texts& texts);

 signals:
  void rowsChanged();         // rows reordered or their values changed; selectedRows() is current
  void fieldsChanged();       // field values or limits changed
  void applyStateChanged(bool enabled, bool warningShown);
  void beep();
  void titleChanged(const QString& title, bool edited);
  void thumbnailReady(LumFileItemDoc* item);
  void savingStarted(int count);  // show the saving sheet when count is 2 or more
  void savingProgress(double percent, const QString& path);
  void saveFinished(const LumSaveOutcome& outcome);

 private:
  struct SaveJob;
  struct SaveResult;
  struct SaveHooks {
    InPlaceWriter::WriteFunction write;
    InPlaceWriter::FlushFunction flush;
    std::size_t filesPerFlush = kFilesPerFlush;
  };

  DateTextRules::Offsets signedOffsets() const;
  bool allFieldsZero() const;
  void fillSetTimeFieldsWithNow();
  void markEdit(const std::vector<LumFileItemDoc*>& items, bool on, bool onlyWithDates);
  static SaveResult saveOne(const SaveJob& job, const InPlaceWriter::WriteFunction& write);
  static void flushSaved(std::vector<SaveResult>& results, const std::vector<std::size_t>& jobs,
                         const InPlaceWriter::FlushFunction& flush);
  std::shared_ptr<std::vector<SaveResult>> saveJobs(const std::vector<SaveJob>& jobs, const SaveHooks& hooks);
  void afterSaving(const std::shared_ptr<std::vector<SaveResult>>& results, bool closeAfterSave, bool quitApp);

  std::vector<std::unique_ptr<LumFileItemDoc>> items_;
  std::vector<LumFileItemDoc*> selection_;
  std::optional<int> clickedRow_;
  LumActionMode actionMode_ = LumActionMode::Forward;
  std::array<long, 6> fields_{};
  long rememberedYear_ = 0, rememberedMonth_ = 0, rememberedDay_ = 0;
  unsigned targetMask_ = DateTargets::kAllMask;
  bool illegalResult_ = true;  // all-zero fields: nothing to apply
  std::vector<SortDescriptor> sortDescriptors_;
  std::optional<std::filesystem::path> fileURL_;
  QString windowTitle_;
  QUndoStack undoStack_;
  bool saving_ = false;
  InPlaceWriter::WriteFunction writeFunction_;
  InPlaceWriter::FlushFunction flushFunction_;
  std::size_t filesPerFlush_ = kFilesPerFlush;
  std::unique_ptr<QThreadPool> operationQueue_;
};
