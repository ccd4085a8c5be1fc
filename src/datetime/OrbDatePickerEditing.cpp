// The picker's interaction rules: key views, stepping, typing, keys, paste.
#include <algorithm>

#include "datetime/DateAdditions.h"
#include "datetime/NumericText.h"
#include "datetime/OrbDatePicker.h"

using Control = OrbDatePicker::Control;

std::vector<Control> OrbDatePicker::keyViewChain() const {
  std::vector<Control> chain;
  for (std::size_t i = 0; i < kFieldCount; ++i)
    if (fields_[i].present) chain.push_back(static_cast<Control>(i));
  chain.push_back(Control::stepper);
  return chain;
}

std::optional<Control> OrbDatePicker::firstKeyView() const { return keyViewChain().front(); }

std::optional<Control> OrbDatePicker::lastKeyView() const { return keyViewChain().back(); }

std::optional<Control> OrbDatePicker::validNeighbour(Control from, int direction) const {
  const std::vector<Control> chain = keyViewChain();
  auto at = std::find(chain.begin(), chain.end(), from);
  if (at == chain.end()) return std::nullopt;
  auto index = at - chain.begin();
  for (index += direction; index >= 0 && index < static_cast<long>(chain.size()); index += direction) {
    const Control c = chain[static_cast<std::size_t>(index)];
    if (c == Control::stepper) {
      if (stepperEnabled_) return c;
      continue;
    }
    const Field& f = field(c);
    if (!f.hidden && f.enabled) return c;
  }
  return std::nullopt;
}

std::optional<Control> OrbDatePicker::nextValidKeyView(Control from) const { return validNeighbour(from, 1); }

std::optional<Control> OrbDatePicker::previousValidKeyView(Control from) const { return validNeighbour(from, -1); }

// Up: below the maximum adds 1, otherwise wraps to the minimum; down the
// mirror image. The value is read as an unsigned 32-bit number, so a
// negative value counts as above every bound.
bool OrbDatePicker::stepField(Control control, bool up) {
  if (control == Control::stepper) return false;
  const Field& f = field(control);
  const long old = f.integerValue();
  const auto value = static_cast<std::uint32_t>(old);
  long next = 0;
  if (up)
    next = value < static_cast<unsigned long>(std::max(f.maximum, 0L)) ? static_cast<long>(value) + 1 : f.minimum;
  else
    next = f.minimum < 0 || value > static_cast<unsigned long>(f.minimum) ? static_cast<long>(value) - 1 : f.maximum;
  setFieldValue(control, next);
  return next != old;
}

Control OrbDatePicker::stepTarget() const {
  if (focused_ && *focused_ != Control::stepper && field(*focused_).present) return *focused_;
  return field(Control::yearField).present ? Control::yearField : Control::hourField;
}

void OrbDatePicker::step(int stepperValue) {
  stepperValue_ = stepperValue;
  if (!mixed_ && enabled_) {
    const Control target = stepTarget();
    focused_ = target;
    if (stepperValue != 0 && stepField(target, stepperValue > 0)) changeFieldValue(target);
    stepperValue_ = 0;
    return;
  }
  if (!delegate_) return;
  // A click on "Multiple Values" or an empty picker starts from now, as the
  // machine's clock reads it; the picker keeps its own zone, so the value it
  // answers is that wall-clock time and nothing shifts it later.
  setDateValue(DateAdditions::wallClockIn(clock_(), TimeZone::local(), timeZone_), timeZone_);
  focused_ = firstKeyView();
  stepperValue_ = 0;
  delegate_->dateTimeDidEndEditing(*this, *focused_);
}

void OrbDatePicker::stepperMouseDown(int stepperValue) {
  if (!focused_) focused_ = firstKeyView();
  step(stepperValue);
}

bool OrbDatePicker::controlTextDidChange(Control control, std::string_view text) {
  if (control == Control::stepper || text.empty()) return false;
  if (text.find_first_not_of("0123456789") != std::string_view::npos) return false;
  const Field& f = field(control);
  const std::size_t width = std::to_string(f.maximum).size();
  if (text.size() > std::max<std::size_t>(width, static_cast<std::size_t>(f.integerDigits)) ||
      numtext::integerValue(text) > f.maximum)
    return false;
  mutableField(control).text = std::string(text);
  changeFieldValue(control);
  if (action_) action_(*this);
  if (delegate_) delegate_->dateTimeDidChange(*this, control);
  return true;
}

void OrbDatePicker::controlTextDidEndEditing(Control control) {
  if (undo_) undo_->removeAllActionsWithTarget(*this);
  if (!delegate_) return;
  delegate_->removeUndoAllActionsOfRelatedOrbDatePicker(*this);
  if (control == Control::subSecondField)
    delegate_->subSecondDidEndEditing(*this, control);
  else
    delegate_->dateTimeDidEndEditing(*this, control);
}

bool OrbDatePicker::keyDown(int keyCode, unsigned long modifierFlags, bool selectionEmpty) {
  if (!focused_ || *focused_ == Control::stepper) return false;
  const Control at = *focused_;
  const auto moveFocus = [this](std::optional<Control> to) {
    if (to) focused_ = to;
    return true;
  };
  const auto stepFocused = [this, at](bool up) {
    if (stepField(at, up)) changeFieldValue(at);
    return true;
  };
  switch (keyCode) {
    case kKeyLeft: return moveFocus(previousValidKeyView(at));
    case kKeyRight: return moveFocus(nextValidKeyView(at));
    case kKeyDown: return stepFocused(false);
    case kKeyUp: return stepFocused(true);
    case kKeyTab: return moveFocus((modifierFlags & kShiftFlag) ? previousValidKeyView(at) : nextValidKeyView(at));
    case kKeyDelete: return !selectionEmpty;
    default: return false;
  }
}

bool OrbDatePicker::paste(std::string_view text) {
  if (!delegate_) return false;
  std::string ymd, hms, subsec;
  if (!DateAdditions::getDateTimeStrings(text, &ymd, &hms, &subsec, nullptr, false)) return false;
  // Without a fraction of a second the text is pasted as it is.
  if (ymd.empty() || hms.empty() || subsec.empty()) return false;
  const auto normalised = DateAdditions::normalizedPasteString(text, false);
  if (!normalised || normalised->empty()) return false;
  delegate_->pasteWithDateTimeString(*normalised);
  return true;
}
