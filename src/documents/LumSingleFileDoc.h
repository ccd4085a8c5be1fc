#pragma once
// The single-file document without its window: one photo's three dates held
// in three date picker models (original, digitized, edited), the link flag
// that makes one change set all three, shifting by an interval, restoring
// the file's values, the edited state, menu states, close-alert texts and
// saving in place.
//
// Date values are UTC instants whose UTC fields are the wall-clock fields of
// the Exif text; the pickers work in UTC, so the machine's zone never enters.
// A picker whose date the file lacks stays disabled for the document's life:
// a linked change still stores a current value for it, but it is never
// written.
//
// The lenient reader rolls texts over ("2019:02:29" shows as March 1st,
// "0000:00:00 00:00:00" as a day in year 2), so what a picker shows may
// differ from the file's text without anyone having touched it. The
// document therefore remembers what each picker showed when the file was
// opened or last saved: only a picker that differs from that is an edit,
// and only such a date is written.

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

#include "core/LumError.h"
#include "datetime/Instant.h"
#include "datetime/OrbDatePicker.h"
#include "documents/DateTargets.h"
#include "documents/LumDocumentAppearance.h"
#include "documents/InPlaceWriter.h"
#include "formats/LumImageFile.h"

class LumCTISheet;

class LumSingleFileDoc : public QObject,
                         public LumImageFileOwner,
                         public LumDocumentAppearance,
                         private OrbDatePicker::Delegate {
  Q_OBJECT

 public:
  // One optional instant per date, in the order original, digitized, edited.
  using Dates = std::array<std::optional<Instant>, DateTargets::kCount>;

  enum class MenuCommand { Save, SaveAll, SaveAs, Other };
  struct CloseAlertTexts {
    QString title;
    QString message;
  };
  struct AlertTexts {
    QString message;
    QString informativeText;
  };
  // What a save reports. On success the window goes on closing or quitting
  // as asked; on failure it shows the alert and does neither.
  struct SaveOutcome {
    bool saved = false;
    std::optional<AlertTexts> alert;
    bool closeDocument = false;
    bool continueQuit = false;
  };

  explicit LumSingleFileDoc(QObject* parent = nullptr);
  ~LumSingleFileDoc() override;

  // Opens the file; false with *error (when given) when it cannot be read as
  // a photo. On success the document owns the file and its pickers show the
  // file's dates (updateUI).
  bool readFromURL(const std::filesystem::path& url, std::string_view type, LumError* error);
  // The same with a file already read elsewhere (an opening reads files in
  // the background).
  void readFromImageFile(const std::filesystem::path& url, std::unique_ptr<LumImageFile> file);

  // --- Pickers and buttons ----------------------------------------------------
  OrbDatePicker& picker(DateTargets::Index which) { return *pickers_[which]; }
  const OrbDatePicker& picker(DateTargets::Index which) const { return *pickers_[which]; }
  bool isLinked() const { return linked_; }
  void setLinked(bool on) { linked_ = on; }
  bool isLinkEnabled() const { return buttonsEnabled_; }
  bool isChangeByIntervalEnabled() const { return buttonsEnabled_; }

  // Every picker takes the file's value again; the link and interval buttons
  // are disabled when no picker is enabled.
  void updateUI();
  void updateDateTimeOriginal() { updateDate(DateTargets::Original); }
  void updateDateTimeDigitized() { updateDate(DateTargets::Digitized); }
  void updateDateTime() { updateDate(DateTargets::Edited); }

  const Dates& currentDates() const { return current_; }
  const std::optional<Instant>& currentDateTimeOriginal() const { return current_[DateTargets::Original]; }
  const std::optional<Instant>& currentDateTimeDigitized() const { return current_[DateTargets::Digitized]; }
  const std::optional<Instant>& currentDateTime() const { return current_[DateTargets::Edited]; }

  // --- Changes ------------------------------------------------------------------
  // A picker's value changed (the pickers report here themselves).
  void datePickerValueDidChange(OrbDatePicker& picker) override;
  // A date and time pasted into a field of the picker that has the focus,
  // as "2019-03-07T09:05:30.250": that picker takes it (and, when linked,
  // the others), as one change that can be undone.
  void pasteWithDateTimeString(const std::string& text) override;
  // Puts the new values in place and records the exchange for undo; nothing
  // happens when every date's old value is none or equal to its new one.
  void changeDateTimeOriginal(const Dates& newDates, const Dates& oldDates);
  void changeDateTimeOriginal(std::optional<Instant> original, std::optional<Instant> digitized,
                              std::optional<Instant> dateTime, std::optional<Instant> oldOriginal,
                              std::optional<Instant> oldDigitized, std::optional<Instant> oldDateTime) {
    changeDateTimeOriginal(Dates{original, digitized, dateTime}, Dates{oldOriginal, oldDigitized, oldDateTime});
  }
  // The values a shift by interval works on, handed to the sheet for its
  // preview: the enabled pickers' values; none for a disabled picker and for
  // a date a shift passes over (the file's zero date, still untouched).
  Dates valuesForIntervalSheet() const;
  // Hands those values to the application's sheet before it is shown.
  void showChangeByTimeIntervalSheet(LumCTISheet& sheet) const;
  // Shifts the dates in targetMask (bits 1 original, 2 digitized, 4 edited)
  // that valuesForIntervalSheet() gives, by the six counts, backward unless
  // forward: exactly what the sheet previewed. Every other date keeps its
  // current value. False, with nothing changed, when a result would leave
  // the program's range of dates.
  bool changeDateWithYears(long years, long months, long days, long hours, long minutes, long seconds, bool forward,
                           unsigned targetMask);
  // The file's values again; this cannot be undone and clears the history.
  void restore();

  // --- State and queries --------------------------------------------------------
  // True when some picker shows a date other than it showed when the file
  // was opened or last saved.
  bool hasEditedFile() const;
  std::size_t editedFileCount() const { return hasEditedFile() ? 1 : 0; }
  LumImageFile* selectedImageFile() const { return imageFile_.get(); }
  std::optional<std::filesystem::path> fileURL() const override { return fileURL_; }
  bool validateMenuItem(MenuCommand command) const;
  std::optional<CloseAlertTexts> getTitleForAlertWhenCloseDociment() const;
  QUndoStack& undoStack() { return undoStack_; }

  // The window became main: the inspector follows this document.
  void windowDidBecomeMain();
  // The window is closing; wasMain / onlyDocument as the controller sees it.
  void windowWillClose(bool wasMain, bool onlyDocument);

  // --- Saving ---------------------------------------------------------------------
  // The dates of the pickers changed since opening or the last save, none
  // for the others: what a save writes.
  Dates pickerDatesToWrite() const;
  // The file's bytes with the picker dates written in (a copy).
  std::vector<std::uint8_t> pMakeNewDateWithData(orb::ByteView data) const;
  // Writes the picker dates in place; true when the write succeeded. The
  // first flag has no meaning for one file. The outcome follows as
  // saveFinished (also kept in lastSaveOutcome()).
  bool saveFileAll(bool all, bool closeAfterSave, bool quitApp);
  bool saveDocument() { return saveFileAll(false, false, false); }
  const SaveOutcome& lastSaveOutcome() const { return lastSaveOutcome_; }
  // Replaces the system write (tests make it fail).
  void setWriteFunction(InPlaceWriter::WriteFunction write) { writeFunction_ = std::move(write); }

  // Used by the undo command: the values put in place, nothing recorded.
  void applyDates(const Dates& dates);

 signals:
  void datesChanged();  // pickers or current values changed
  void saveFinished(const LumSingleFileDoc::SaveOutcome& outcome);

 private:
  void updateDate(DateTargets::Index which);
  // The file has this date (so its picker may be enabled and written).
  bool fileHasDate(DateTargets::Index which) const;
  void replaceImageFile(std::unique_ptr<LumImageFile> file);
  // The picker shows something else than when the file was opened or saved.
  bool pickerChanged(DateTargets::Index which) const;
  // What the pickers show now becomes the unchanged state.
  void rememberShownDates();

  std::array<std::unique_ptr<OrbDatePicker>, DateTargets::kCount> pickers_;
  std::unique_ptr<LumImageFile> imageFile_;
  std::optional<std::filesystem::path> fileURL_;
  Dates current_{};
  // Each picker's rendering when the file was opened or last saved.
  std::array<std::optional<std::string>, DateTargets::kCount> shown_{};
  bool linked_ = false;
  bool buttonsEnabled_ = false;
  QUndoStack undoStack_;
  InPlaceWriter::WriteFunction writeFunction_;
  SaveOutcome lastSaveOutcome_;
};
