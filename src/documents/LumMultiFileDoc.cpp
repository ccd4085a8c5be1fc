#include "documents/LumMultiFileDoc.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "datetime/DateAdditions.h"
#include "documents/LumDateChangeCommands.h"
#include "documents/LumLocalized.h"
#include "documents/LumNotificationCenter.h"

namespace {

bool anyFieldNonZero(const std::array<long, 6>& fields) {
  return std::any_of(fields.begin(), fields.end(), [](long v) { return v != 0; });
}

std::string setTimeText(const std::array<long, 6>& f) {
  char text[80];
  std::snprintf(text, sizeof text, "%.4lu:%.2lu:%.2lu %.2lu:%.2lu:%.2lu", static_cast<unsigned long>(f[0]),
                static_cast<unsigned long>(f[1]), static_cast<unsigned long>(f[2]), static_cast<unsigned long>(f[3]),
                static_cast<unsigned long>(f[4]), static_cast<unsigned long>(f[5]));
  return text;
}

}  // namespace

LumMultiFileDoc::LumMultiFileDoc(std::vector<std::unique_ptr<LumFileItemDoc>> items, QObject* parent)
    : QObject(parent), items_(std::move(items)), sortDescriptors_(initialSortDescriptors()) {
  _sortTableView();
  updateFileURLAndWindowTitle();
}

LumMultiFileDoc::~LumMultiFileDoc() {
  // Background work and the commands refer to the items; end them first.
  for (const auto& item : items_)
    if (const LumImageFile::CancelFlag flag = item->imageFile().operation()) *flag = true;
  if (operationQueue_) operationQueue_->waitForDone();
  undoStack_.clear();
}

// --- Rows and selection -------------------------------------------------------

std::optional<int> LumMultiFileDoc::rowOf(const LumFileItemDoc* item) const {
  for (std::size_t i = 0; i < items_.size(); ++i)
    if (items_[i].get() == item) return static_cast<int>(i);
  return std::nullopt;
}

LumFileItemDoc* LumMultiFileDoc::itemForURL(const std::filesystem::path& url) const {
  for (const auto& item : items_)
    if (item->path() == url) return item.get();
  return nullptr;
}

void LumMultiFileDoc::setSelectedRows(const std::vector<int>& rows, bool isMainWindow) {
  selection_.clear();
  for (int row : rows)
    if (row >= 0 && row < rowCount() && std::find(selection_.begin(), selection_.end(), &item(row)) == selection_.end())
      selection_.push_back(&item(row));
  clickedRow_.reset();
  updateFileURLAndWindowTitle();
  if (isMainWindow) {
    const LumFileItemDoc* shown = _selectedDocument();
    LumNotificationCenter::defaultCenter().post(kLumImageFileDidChangeNotification,
                                                shown ? &shown->imageFile() : nullptr);
  }
}

std::vector<int> LumMultiFileDoc::selectedRows() const {
  std::vector<int> rows;
  for (const LumFileItemDoc* item : selection_)
    if (const auto row = rowOf(item)) rows.push_back(*row);
  return rows;
}

std::vector<LumFileItemDoc*> LumMultiFileDoc::_selectedDocuments() const { return selection_; }

LumFileItemDoc* LumMultiFileDoc::_selectedDocument() const { return selection_.size() == 1 ? selection_.front() : nullptr; }

std::vector<LumFileItemDoc*> LumMultiFileDoc::pDocumentsByRightCliced(bool* clickedOutsideSelection) const {
  if (clickedRow_ && *clickedRow_ >= 0 && *clickedRow_ < rowCount()) {
    LumFileItemDoc* clicked = &item(*clickedRow_);
    if (std::find(selection_.begin(), selection_.end(), clicked) == selection_.end()) {
      if (clickedOutsideSelection) *clickedOutsideSelection = true;
      return {clicked};
    }
  }
  if (clickedOutsideSelection) *clickedOutsideSelection = false;
  return selection_;
}

std::vector<LumFileItemDoc*> LumMultiFileDoc::_editTargetDocuments() const {
  std::vector<LumFileItemDoc*> result;
  for (const auto& item : items_)
    if (item->isEdit()) result.push_back(item.get());
  return result;
}

std::vector<LumFileItemDoc*> LumMultiFileDoc::pEditedDocuments() const {
  std::vector<LumFileItemDoc*> result;
  for (const auto& item : items_)
    if (item->isEdited()) result.push_back(item.get());
  return result;
}

LumImageFile* LumMultiFileDoc::selectedImageFile() const {
  const LumFileItemDoc* selected = _selectedDocument();
  return selected ? &selected->imageFile() : nullptr;
}

// --- Mode, fields, validity ------------------------------------------------------

LumFieldLimits LumMultiFileDoc::_changeNumberFormatter() const {
  if (actionMode_ != LumActionMode::SetTime) return kOffsetFieldLimits;
  LumFieldLimits limits = kSetTimeFieldLimits;
  limits[Day].maximum = DateTextRules::monthLength(fields_[Year], fields_[Month]);
  return limits;
}

void LumMultiFileDoc::fillSetTimeFieldsWithNow() {
  const Instant now = Instant::now();
  fields_ = {DateAdditions::year(now),  DateAdditions::month(now),  DateAdditions::day(now),
             DateAdditions::hour(now), DateAdditions::minute(now), DateAdditions::second(now)};
}

void LumMultiFileDoc::changeActionMode(LumActionMode mode) {
  if (mode == actionMode_) return;
  if (mode == LumActionMode::SetTime) {
    fillSetTimeFieldsWithNow();
    rememberedYear_ = fields_[Year];
    rememberedMonth_ = fields_[Month];
    rememberedDay_ = fields_[Day];
    illegalResult_ = false;
  } else if (actionMode_ == LumActionMode::SetTime) {
    fields_ = {};
  }
  actionMode_ = mode;
  emit fieldsChanged();
  _checkDateChanged();
}

void LumMultiFileDoc::setFieldValue(Field field, long value) {
  fields_[field] = value;
  emit fieldsChanged();
  _checkDateChanged();
}

void LumMultiFileDoc::setFieldValues(const std::array<long, 6>& values) {
  fields_ = values;
  emit fieldsChanged();
  _checkDateChanged();
}

void LumMultiFileDoc::endSetTimeFieldEditing(Field field, std::optional<long> value) {
  if (actionMode_ != LumActionMode::SetTime) return;
  long* remembered = field == Year ? &rememberedYear_ : field == Month ? &rememberedMonth_ : field == Day ? &rememberedDay_ : nullptr;
  if (!value || !_changeNumberFormatter()[field].accepts(*value)) {
    fields_[field] = remembered ? *remembered : 0;
    emit beep();
  } else {
    fields_[field] = *value;
    if (remembered) *remembered = *value;
  }
  illegalResult_ = false;  // the field holds a value again
  emit fieldsChanged();
  validateApllyButton();
}

void LumMultiFileDoc::pClearChangeByTimeIntervalFields() {
  fields_ = {};
  emit fieldsChanged();
}

void LumMultiFileDoc::setEditTargetMask(unsigned mask) {
  targetMask_ = mask & DateTargets::kAllMask;
  _checkDateChanged();
}

bool LumMultiFileDoc::allFieldsZero() const { return !anyFieldNonZero(fields_); }

DateTextRules::Offsets LumMultiFileDoc::signedOffsets() const {
  return DateTextRules::directed(fields_, actionMode_ != LumActionMode::Backward);
}

void LumMultiFileDoc::_checkDateChanged() {
  if (actionMode_ != LumActionMode::SetTime) {
    illegalResult_ = false;
    if (allFieldsZero()) {
      illegalResult_ = true;  // nothing to apply
    } else {
      const DateTextRules::Offsets offsets = signedOffsets();
      for (const auto& item : items_) {
        if (pIsIllegalChangeDate(offsets, *item)) {
          illegalResult_ = true;
          emit beep();
          break;
        }
      }
    }
  }
  validateApllyButton();
}

bool LumMultiFileDoc::pIsIllegalChangeDate(const DateTextRules::Offsets& offsets, const LumFileItemDoc& item) const {
  if (!item.isEdit()) return false;
  for (const DateTargets::Target& t : DateTargets::kTargets)
    if ((targetMask_ & t.maskBit) && DateTextRules::shiftLeavesRange(item.dateText(t.index), offsets)) return true;
  return false;
}

std::vector<LumMultiFileDoc::IllegalDate> LumMultiFileDoc::illegalChangeDates() const {
  std::vector<IllegalDate> result;
  if (actionMode_ == LumActionMode::SetTime) return result;
  const DateTextRules::Offsets offsets = signedOffsets();
  for (const auto& item : items_) {
    if (!item->isEdit()) continue;
    for (const DateTargets::Target& t : DateTargets::kTargets)
      if ((targetMask_ & t.maskBit) && DateTextRules::shiftLeavesRange(item->dateText(t.index), offsets))
        result.push_back({item.get(), t.index, *item->dateText(t.index)});
  }
  return result;
}

LumMultiFileDoc::ApplyButtonState LumMultiFileDoc::validateApllyButton() {
  ApplyButtonState state;
  state.enabled = !illegalResult_;
  state.warningShown = illegalResult_ && actionMode_ != LumActionMode::SetTime && !allFieldsZero();
  emit applyStateChanged(state.enabled, state.warningShown);
  return state;
}

// --- Changes -------------------------------------------------------------------

void LumMultiFileDoc::applyToAllFiles() {
  if (allFieldsZero() || targetMask_ == 0) return;
  const bool setTime = actionMode_ == LumActionMode::SetTime;
  const std::optional<std::string> setText = setTime ? std::optional(setTimeText(fields_)) : std::nullopt;
  const DateTextRules::Offsets offsets = signedOffsets();

  LumDateSet oldSet, newSet;
  for (LumFileItemDoc* item : _editTargetDocuments()) {
    LumDateMap oldMap, newMap;
    for (const DateTargets::Target& t : DateTargets::kTargets) {
      const std::optional<std::string>& current = item->dateText(t.index);
      if (!(targetMask_ & t.maskBit) || !current) continue;
      oldMap.emplace(t.setKey, *current);
      const std::optional<std::string> changed = setTime ? setText : DateTextRules::shiftedDateTimeString(current, offsets);
      if (changed) newMap.emplace(t.setKey, *changed);
    }
    oldSet.emplace(item->path(), std::move(oldMap));
    if (!newMap.empty()) newSet.emplace(item->path(), std::move(newMap));
  }
  if (newSet.empty() || oldSet.empty()) return;

  // Offset modes have no set text; the name then reads "Forward (null)",
  // as it always has.
  const QString word = LumLocalized::text(kActionModeWords[static_cast<int>(actionMode_)]);
  const QString name = word + " " + (setText ? QString::fromStdString(*setText) : QStringLiteral("(null)"));
  _changeDateWithNewDateTimeSet(std::move(newSet), std::move(oldSet), name);

  if (!setTime) {
    pClearChangeByTimeIntervalFields();
    _checkDateChanged();
  }
}

void LumMultiFileDoc::_changeDateWithNewDateTimeSet(LumDateSet newSet, LumDateSet oldSet, const QString& actionName) {
  if (newSet.empty()) return;
  undoStack_.push(new LumDateSetCommand(*this, std::move(newSet), std::move(oldSet), actionName));  // applies newSet
}

void LumMultiFileDoc::applyDateSet(const LumDateSet& set) {
  if (set.empty()) return;
  for (const auto& item : items_) {
    const auto found = set.find(item->path());
    if (found == set.end()) continue;
    for (const DateTargets::Target& t : DateTargets::kTargets) {
      const auto text = found->second.find(t.setKey);
      if (text != found->second.end()) item->setDateText(t.index, text->second);
    }
  }
  _sortTableView();
  updateFileURLAndWindowTitle();
}

void LumMultiFileDoc::setItemTexts(LumFileItemDoc* item, const DateTargets::Texts& texts) {
  for (const DateTargets::Target& t : DateTargets::kTargets) item->setDateText(t.index, texts[t.index]);
  selection_ = {item};  // the changed row alone is selected
  _sortTableView();
  updateFileURLAndWindowTitle();
}

void LumMultiFileDoc::pRestoreDocuments(const std::vector<LumFileItemDoc*>& items) {
  LumDateSet oldSet, newSet;
  for (LumFileItemDoc* item : items) {
    LumDateMap oldMap, newMap;
    for (const DateTargets::Target& t : DateTargets::kTargets) {
      if (item->dateText(t.index)) oldMap.emplace(t.setKey, *item->dateText(t.index));
      if (item->originalText(t.index)) newMap.emplace(t.setKey, *item->originalText(t.index));
    }
    oldSet.emplace(item->path(), std::move(oldMap));
    newSet.emplace(item->path(), std::move(newMap));
  }
  if (!newSet.empty()) _changeDateWithNewDateTimeSet(std::move(newSet), std::move(oldSet), QString());
}

void LumMultiFileDoc::restoreSelectedFiles() { pRestoreDocuments(pDocumentsByRightCliced(nullptr)); }

void LumMultiFileDoc::restoreAllFiles() {
  std::vector<LumFileItemDoc*> all;
  for (const auto& item : items_) all.push_back(item.get());
  pRestoreDocuments(all);
}

LumMultiFileDoc::TypedResult LumMultiFileDoc::controlTextDidEndEditing(int row, std::string_view column,
                                                                        std::string_view typed, bool shiftHeld) {
  if (row < 0 || row >= rowCount()) return TypedResult::Ignored;
  const std::optional<std::string> text = DateTextRules::normalizedDateTimeString(typed);
  if (!text || text->size() != 19) {
    emit beep();
    emit rowsChanged();  // shows the old value again
    return TypedResult::Refused;
  }
  const std::optional<DateTargets::Target> target = DateTargets::targetForColumn(column);
  if (!target) return TypedResult::Ignored;
  LumFileItemDoc* edited = &item(row);
  const std::optional<Instant> date = DateAdditions::dateWithDateTimeString(*text);
  if (!date || *date < DateTextRules::kMiniDate || *date > DateTextRules::kMaxDate) return TypedResult::Ignored;
  if (edited->dateText(target->index) == text) return TypedResult::Ignored;

  DateTargets::Texts texts = edited->dateTexts();
  if (shiftHeld)
    texts = {text, text, text};
  else
    texts[target->index] = text;
  _changeWithImageFile(edited, texts);
  return TypedResult::Applied;
}

void LumMultiFileDoc::_changeWithImageFile(LumFileItemDoc* item, const DateTargets::Texts& texts) {
  undoStack_.push(new LumItemTextsCommand(*this, item, texts, item->dateTexts()));
}

// --- Edit marks --------------------------------------------------------------------

void LumMultiFileDoc::markEdit(const std::vector<LumFileItemDoc*>& items, bool on, bool onlyWithDates) {
  for (LumFileItemDoc* item : items)
    if (!on || !onlyWithDates || !item->noDateTimes()) item->setEdit(on);
  _sortTableView();
  _checkDateChanged();
}

void LumMultiFileDoc::setEditTarget(int row, bool on) {
  if (row < 0 || row >= rowCount()) return;
  markEdit({&item(row)}, on, false);
}

void LumMultiFileDoc::setEditStateOnAllFiles() {
  std::vector<LumFileItemDoc*> all;
  for (const auto& item : items_) all.push_back(item.get());
  markEdit(all, true, true);
}

void LumMultiFileDoc::setEditStateOffAllFiles() {
  std::vector<LumFileItemDoc*> all;
  for (const auto& item : items_) all.push_back(item.get());
  markEdit(all, false, false);
}

void LumMultiFileDoc::setEditStateOnSelectedFiles() { markEdit(selection_, true, true); }
void LumMultiFileDoc::setEditStateOffSelectedFiles() { markEdit(selection_, false, false); }

// --- Title, queries, menus ---------------------------------------------------------

void LumMultiFileDoc::updateFileURLAndWindowTitle() {
  const LumFileItemDoc* shown = _selectedDocument();
  if (!shown && !items_.empty()) shown = items_.front().get();
  fileURL_ = shown ? std::optional(shown->path()) : std::nullopt;
  const QString name = shown ? QString::fromStdString(shown->fileName()) : QString();
  windowTitle_ = items_.size() >= 2
                     ? LumLocalized::format("LocalST_ImagesWindowTitle", name, LumLocalized::count(items_.size()))
                     : name;
  emit titleChanged(windowTitle_, hasEditedFileSelected());
}

std::optional<LumMultiFileDoc::CloseAlertTexts> LumMultiFileDoc::getTitleForAlertWhenCloseDociment() const {
  const std::vector<LumFileItemDoc*> edited = pEditedDocuments();
  if (edited.empty()) return std::nullopt;
  CloseAlertTexts texts;
  texts.title =
      edited.size() == 1
          ? LumLocalized::format("The document has unsaved changes. Do you want to save the changes before closing?",
                                 QString::fromStdString(edited.front()->fileName()))
          : LumLocalized::format(
                "There are multiple documents with unsaved changes. Do you want to save them before closing?",
                LumLocalized::count(edited.size()));
  texts.message = LumLocalized::text("Your changes will be lost if you don't save them.");
  return texts;
}

std::size_t LumMultiFileDoc::editedFileCount() const { return pEditedDocuments().size(); }

bool LumMultiFileDoc::hasEditedFile() const {
  return std::any_of(items_.begin(), items_.end(), [](const auto& item) { return item->isEdited(); });
}

bool LumMultiFileDoc::hasEditedFileSelected() const {
  return std::any_of(selection_.begin(), selection_.end(), [](const LumFileItemDoc* item) { return item->isEdited(); });
}

LumMultiFileDoc::MenuState LumMultiFileDoc::validateMenuItem(MenuCommand command) const {
  switch (command) {
    case MenuCommand::Save: return {hasEditedFileSelected(), {}};
    case MenuCommand::SaveAll: return {hasEditedFile(), {}};
    case MenuCommand::SaveAs: return {false, {}};
    case MenuCommand::EditOnAll:
    case MenuCommand::EditOffAll: return {true, {}};
    case MenuCommand::EditOnSelected:
    case MenuCommand::EditOffSelected: return {!selection_.empty(), {}};
    case MenuCommand::RestoreSelected: {
      bool outside = false;
      const std::vector<LumFileItemDoc*> items = pDocumentsByRightCliced(&outside);
      const bool edited = std::any_of(items.begin(), items.end(), [](const LumFileItemDoc* i) { return i->isEdited(); });
      return {edited, LumLocalized::text(outside ? "Restore Clicked File" : "Restore Selected Files")};
    }
    case MenuCommand::RestoreAll: return {hasEditedFile(), {}};
  }
  return {};
}
