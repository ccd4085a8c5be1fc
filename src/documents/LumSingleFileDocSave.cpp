// Saving of the single-file document: the enabled pickers' dates are written
// into the file in place, on the document's thread, through the same writer
// as the multi-file document.
#include "datetime/TimeZone.h"
#include "documents/DateRewrite.h"
#include "documents/LumLocalized.h"
#include "documents/LumNotificationCenter.h"
#include "documents/LumSingleFileDoc.h"

LumSingleFileDoc::Dates LumSingleFileDoc::pickerDatesToWrite() const {
  Dates dates;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    const OrbDatePicker& p = picker(t.index);
    // A disabled picker, one left without a complete value, or one showing
    // what it showed at opening has nothing to write.
    if (p.isEnabled() && pickerChanged(t.index) && p.dateTimeString())
      dates[t.index] = p.dateValueWithTimeZone(TimeZone::gmt());
  }
  return dates;
}

std::vector<std::uint8_t> LumSingleFileDoc::pMakeNewDateWithData(orb::ByteView data) const {
  if (!imageFile_) return {data.data(), data.data() + data.size()};
  return DateRewrite::pMakeNewDateWithData(data, *imageFile_, pickerDatesToWrite());
}

bool LumSingleFileDoc::saveFileAll(bool /*all*/, bool closeAfterSave, bool quitApp) {
  InPlaceWriter::WriteResult written{false, InPlaceWriter::kMissingReason, std::nullopt};
  if (imageFile_ && fileURL_) {
    const std::vector<InPlaceWriter::BytePatch> patches =
        DateRewrite::patchesForPickerDates(DateRewrite::locationsOf(*imageFile_), pickerDatesToWrite());
    const std::optional<lum::FileStamp> opened = imageFile_->stampAsOpened();
    written = opened ? InPlaceWriter::writePatches(*fileURL_, *opened, patches, writeFunction_)
                     : InPlaceWriter::WriteResult{false, InPlaceWriter::kChangedOnDiskReason, std::nullopt};
  }

  SaveOutcome outcome;
  outcome.saved = written.ok;
  if (written.ok) {
    undoStack_.clear();  // clean, and a save cannot be undone
    // Scan the saved file again so the originals and the stamp are what is
    // on disk now, provided it is still the file this save left. Should that
    // fail, the old model stays, and its stamp keeps a later save from
    // writing into a file another program changed.
    if (written.stamp)
      if (std::unique_ptr<LumImageFile> reread = LumImageFile::imageFileIfUnchanged(*fileURL_, *written.stamp))
        replaceImageFile(std::move(reread));
    rememberShownDates();
    outcome.closeDocument = closeAfterSave;
    outcome.continueQuit = quitApp;
  } else {
    const QString name = fileURL_ ? QString::fromStdString(fileURL_->filename().string()) : QString();
    outcome.alert = AlertTexts{LumLocalized::format("Save a file Failed.", name),
                               QString::fromStdString(written.reason)};
  }
  lastSaveOutcome_ = outcome;
  emit saveFinished(outcome);
  if (written.ok && !closeAfterSave && !quitApp)
    LumNotificationCenter::defaultCenter().post(kLumImageFileDidSaveNotification, selectedImageFile());
  return written.ok;
}
