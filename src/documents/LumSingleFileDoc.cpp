#include "documents/LumSingleFileDoc.h"

#include <cstdio>

#include "datetime/DateAdditions.h"
#include "datetime/TimeZone.h"
#include "documents/DateTextRules.h"
#include "documents/LumCTISheet.h"
#include "documents/LumDateLimits.h"
#include "documents/LumLocalized.h"
#include "documents/LumNotificationCenter.h"
#include "documents/LumSingleFileDateCommand.h"

namespace {

constexpr LumDateField kFileFields[DateTargets::kCount] = {LumDateField::DateTimeOriginal,
                                                           LumDateField::DateTimeDigitized, LumDateField::DateTime};

}  // namespace

LumSingleFileDoc::LumSingleFileDoc(QObject* parent) : QObject(parent) {
  for (auto& picker : pickers_) {
    picker = std::make_unique<OrbDatePicker>(OrbDatePicker::kStyleSeconds);
    picker->setTimeZone(TimeZone::gmt());
    picker->setDateValue(std::nullopt);  // nothing to show before a file is read
    picker->setStepperEnabled(false);
    picker->setDelegate(this);
    picker->setNotificationPoster([](std::string_view name, OrbDatePicker& object) {
      LumNotificationCenter::defaultCenter().post(QString::fromUtf8(name.data(), static_cast<int>(name.size())),
                                                  &object);
    });
  }
}

LumSingleFileDoc::~LumSingleFileDoc() {
  // The commands refer to the document; drop them while it is whole.
  undoStack_.clear();
}

bool LumSingleFileDoc::readFromURL(const std::filesystem::path& url, std::string_view /*type*/, LumError* error) {
  std::unique_ptr<LumImageFile> file = LumImageFile::imageFileWithURL(url, error);
  if (!file) return false;
  readFromImageFile(url, std::move(file));
  return true;
}

void LumSingleFileDoc::readFromImageFile(const std::filesystem::path& url, std::unique_ptr<LumImageFile> file) {
  fileURL_ = url;
  replaceImageFile(std::move(file));
  undoStack_.clear();
  updateUI();
}

void LumSingleFileDoc::replaceImageFile(std::unique_ptr<LumImageFile> file) {
  imageFile_ = std::move(file);
  if (imageFile_) imageFile_->setOwnerDocument(this);
}

bool LumSingleFileDoc::fileHasDate(DateTargets::Index which) const {
  return imageFile_ && imageFile_->originalString(kFileFields[which]).has_value();
}

// --- Pickers ------------------------------------------------------------------

void LumSingleFileDoc::updateUI() {
  updateDateTimeOriginal();
  updateDateTimeDigitized();
  updateDateTime();
  buttonsEnabled_ = false;
  for (const auto& picker : pickers_) buttonsEnabled_ = buttonsEnabled_ || picker->isEnabled();
  rememberShownDates();
  emit datesChanged();
}

void LumSingleFileDoc::rememberShownDates() {
  for (const DateTargets::Target& t : DateTargets::kTargets) shown_[t.index] = picker(t.index).dateTimeString();
}

bool LumSingleFileDoc::pickerChanged(DateTargets::Index which) const {
  return fileHasDate(which) && picker(which).dateTimeString() != shown_[which];
}

void LumSingleFileDoc::updateDate(DateTargets::Index which) {
  const std::optional<std::string> text =
      imageFile_ ? imageFile_->originalString(kFileFields[which]) : std::optional<std::string>();
  const std::optional<Instant> value = text ? DateAdditions::dateWithDateTimeString(*text) : std::nullopt;
  OrbDatePicker& p = picker(which);
  p.setDateValue(value, TimeZone::gmt());
  // A text that does not parse leaves the picker empty but enabled: the
  // file has the date, the user may give it a value.
  p.setEnabled(text.has_value());
  p.setStepperEnabled(text.has_value());
  current_[which] = value;
}

// --- Changes --------------------------------------------------------------------

void LumSingleFileDoc::datePickerValueDidChange(OrbDatePicker& changed) {
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    if (pickers_[t.index].get() != &changed) continue;
    const std::optional<Instant> value = changed.dateValue();
    Dates newDates = current_;
    if (linked_)
      newDates.fill(value);
    else
      newDates[t.index] = value;
    changeDateTimeOriginal(newDates, current_);
    return;
  }
}

void LumSingleFileDoc::pasteWithDateTimeString(const std::string& text) {
  OrbDatePicker::DateTimeValues v;
  char separator = 0;
  if (std::sscanf(text.c_str(), "%ld-%ld-%ld%c%ld:%ld:%ld.%ld", &v.year, &v.month, &v.day, &separator, &v.hour,
                  &v.minute, &v.second, &v.subSecond) != 8 || separator != 'T')
    return;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    OrbDatePicker& p = picker(t.index);
    if (!p.focused() || !p.isEnabled()) continue;
    p.setValuesWithDateTimeValues(v, false);
    datePickerValueDidChange(p);
    return;
  }
}

void LumSingleFileDoc::changeDateTimeOriginal(const Dates& newDates, const Dates& oldDates) {
  // A date that had no value never counts as a change by itself.
  bool changed = false;
  for (int i = 0; i < DateTargets::kCount; ++i) changed = changed || (oldDates[i] && oldDates[i] != newDates[i]);
  if (!changed) return;
  // Pushing runs the command, which puts the new values in place; the stack
  // leaving its clean state is what marks the document edited.
  undoStack_.push(std::make_unique<LumSingleFileDateCommand>(*this, newDates, oldDates).release());
}

void LumSingleFileDoc::applyDates(const Dates& dates) {
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    // A picker of a date the file lacks stays disabled; its value is only
    // kept as the current value.
    if (dates[t.index] && fileHasDate(t.index)) picker(t.index).setDateValue(dates[t.index], TimeZone::gmt());
  }
  current_ = dates;
  emit datesChanged();
}

LumSingleFileDoc::Dates LumSingleFileDoc::valuesForIntervalSheet() const {
  Dates values;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    // An untouched picker stands for the file's text, and a shift passes
    // some texts over whatever the picker makes of them.
    const bool passedOver =
        !pickerChanged(t.index) && imageFile_ &&
        DateTextRules::shiftPassesOver(imageFile_->originalString(kFileFields[t.index]));
    if (picker(t.index).isEnabled() && !passedOver) values[t.index] = picker(t.index).dateValue();
  }
  return values;
}

void LumSingleFileDoc::showChangeByTimeIntervalSheet(LumCTISheet& sheet) const {
  const Dates values = valuesForIntervalSheet();
  sheet.setUpWithOriginalDate(values[DateTargets::Original], values[DateTargets::Digitized],
                              values[DateTargets::Edited]);
}

bool LumSingleFileDoc::changeDateWithYears(long years, long months, long days, long hours, long minutes,
                                           long seconds, bool forward, unsigned targetMask) {
  const DateTextRules::Offsets offsets =
      DateTextRules::directed({years, months, days, hours, minutes, seconds}, forward);
  // The values the sheet previewed, not current_: a disabled picker's date
  // may hold a linked value that no preview showed.
  const Dates from = valuesForIntervalSheet();
  Dates newDates = current_;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    if ((targetMask & t.maskBit) == 0 || !from[t.index]) continue;
    const std::optional<Instant> shifted = DateTextRules::shiftedDate(*from[t.index], offsets);
    if (!shifted || !LumDateLimits::isInRange(*shifted)) return false;
    newDates[t.index] = shifted;
  }
  changeDateTimeOriginal(newDates, current_);
  return true;
}

void LumSingleFileDoc::restore() {
  updateUI();
  undoStack_.clear();  // clean again, and nothing left to undo
}

// --- State and queries ------------------------------------------------------------

bool LumSingleFileDoc::hasEditedFile() const {
  for (const DateTargets::Target& t : DateTargets::kTargets)
    if (pickerChanged(t.index)) return true;
  return false;
}

bool LumSingleFileDoc::validateMenuItem(MenuCommand command) const {
  switch (command) {
    case MenuCommand::Save: return hasEditedFile();
    case MenuCommand::SaveAll: return false;  // one file: nothing beyond Save
    case MenuCommand::SaveAs: return true;
    case MenuCommand::Other: return true;
  }
  return true;
}

std::optional<LumSingleFileDoc::CloseAlertTexts> LumSingleFileDoc::getTitleForAlertWhenCloseDociment() const {
  if (!hasEditedFile()) return std::nullopt;
  const QString name = fileURL_ ? QString::fromStdString(fileURL_->filename().string()) : QString();
  return CloseAlertTexts{
      LumLocalized::format("The document has unsaved changes. Do you want to save the changes before closing?", name),
      LumLocalized::text("Your changes will be lost if you don't save them.")};
}

void LumSingleFileDoc::windowDidBecomeMain() {
  LumNotificationCenter::defaultCenter().post(kLumDocumentDidChangeNotification, this);
}

void LumSingleFileDoc::windowWillClose(bool wasMain, bool onlyDocument) {
  if (wasMain || onlyDocument) LumNotificationCenter::defaultCenter().post(kLumDocumentDidChangeNotification, nullptr);
}
