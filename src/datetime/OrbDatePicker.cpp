#include "datetime/OrbDatePicker.h"

#include "datetime/DateAdditions.h"
#include "datetime/NumericText.h"

namespace {

using Control = OrbDatePicker::Control;

constexpr std::array<const char*, 8> kIdentifiers = {"yearField",   "monthField",  "dayField",       "hourField",
                                                     "minuteField", "secondField", "subSecondField", "stepper"};

struct FieldLayout {
  long minimum, maximum;
  int integerDigits;
};
// Year 1 to 9999, month 1 to 12, day 1 to the month's length (set at run
// time), hour 0 to 23, minute and second 0 to 59, milliseconds 0 to 999.
constexpr std::array<FieldLayout, OrbDatePicker::kFieldCount> kLayout = {
    {{1, 9999, 4}, {1, 12, 2}, {1, 31, 2}, {0, 23, 2}, {0, 59, 2}, {0, 59, 2}, {0, 999, 3}}};

}  // namespace

long OrbDatePicker::Field::integerValue() const { return numtext::integerValue(text); }

OrbDatePicker::OrbDatePicker(std::uint8_t style, std::array<bool, kFieldCount> present) {
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    fields_[i].present = present[i];
    fields_[i].minimum = kLayout[i].minimum;
    fields_[i].maximum = kLayout[i].maximum;
    fields_[i].integerDigits = kLayout[i].integerDigits;
  }
  setStyle(style);
}

OrbDatePicker::~OrbDatePicker() {
  if (undo_) undo_->removeAllActionsWithTarget(*this);
}

long OrbDatePicker::daysInMonth(long year, long month) {
  switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    case 2: {
      const auto y = static_cast<std::uint32_t>(year);
      return (y % 400 == 0 || (y % 4 == 0 && y % 100 != 0)) ? 29 : 28;
    }
    default:
      return 31;
  }
}

std::string OrbDatePicker::responderIdentfier(Control control) {
  const auto i = static_cast<std::size_t>(control);
  return i < kIdentifiers.size() ? kIdentifiers[i] : "";
}

std::optional<Control> OrbDatePicker::controlWithIdentfier(std::string_view name) {
  for (std::size_t i = 0; i < kIdentifiers.size(); ++i)
    if (name == kIdentifiers[i]) return static_cast<Control>(i);
  return std::nullopt;
}

const OrbDatePicker::Field& OrbDatePicker::field(Control control) const {
  // The stepper has no text field; it is never asked for, and the index is
  // clamped so that a mistaken call cannot read past the array.
  const auto i = std::min(static_cast<std::size_t>(control), kFieldCount - 1);
  return fields_[i];
}

long* OrbDatePicker::storedValue(Control control) {
  switch (control) {
    case Control::yearField: return &values_.year;
    case Control::monthField: return &values_.month;
    case Control::dayField: return &values_.day;
    case Control::hourField: return &values_.hour;
    case Control::minuteField: return &values_.minute;
    case Control::secondField: return &values_.second;
    case Control::subSecondField: return &values_.subSecond;
    case Control::stepper: return nullptr;
  }
  return nullptr;
}

void OrbDatePicker::setFieldValue(Control control, long value) {
  if (control == Control::stepper) return;
  Field& f = mutableField(control);
  f.text = numtext::format("%.*ld", f.integerDigits, value);
}

void OrbDatePicker::setStyle(std::uint8_t style) {
  style_ = style;
  if (style_ == kStyleDateOnly) {
    for (Control c : {Control::hourField, Control::minuteField, Control::secondField, Control::subSecondField}) {
      setFieldValue(c, 0);
      *storedValue(c) = 0;
    }
  }
  setFieldHidden(mixed_);
}

void OrbDatePicker::setEnabled(bool enabled) {
  enabled_ = enabled;
  for (Field& f : fields_) {
    f.enabled = enabled;
    if (!enabled) f.text.clear();
  }
  if (!enabled) values_ = {};
}

void OrbDatePicker::setMixed(bool mixed) {
  mixed_ = mixed;
  setFieldHidden(mixed);
  stepperEnabled_ = true;
}

void OrbDatePicker::setFieldHidden(bool hidden) {
  for (Control c : {Control::yearField, Control::monthField, Control::dayField}) mutableField(c).hidden = hidden;
  for (Control c : {Control::hourField, Control::minuteField, Control::secondField, Control::subSecondField}) {
    bool h = hidden;
    if (style_ == kStyleDateOnly || (style_ == kStyleSeconds && c == Control::subSecondField)) h = true;
    mutableField(c).hidden = h;
  }
  drawColon_ = !hidden;
}

void OrbDatePicker::updateDayBounds() {
  Field& day = mutableField(Control::dayField);
  day.minimum = 1;
  day.maximum = daysInMonth(field(Control::yearField).integerValue(), field(Control::monthField).integerValue());
  day.integerDigits = 2;
}

void OrbDatePicker::setDateValue(std::optional<Instant> date, const TimeZone& zone) {
  // Leaving "Multiple Values" shows the fields again; the stepper's state
  // is the owner's and stays as it is.
  mixed_ = false;
  setFieldHidden(false);
  if (!date) {
    setEnabled(false);
    return;
  }
  setEnabled(true);
  long y = 0, m = 0, d = 0, h = 0, mi = 0, s = 0, ns = 0;
  if (!DateAdditions::getYear(*date, &y, &m, &d, nullptr, &h, &mi, &s, &ns, &zone, nullptr)) {
    setEnabled(false);
    return;
  }
  // Milliseconds rounded half away from zero, not clamped: 999.6 ms is 1000.
  const long ms = (ns + 500'000) / 1'000'000;
  const std::array<long, kFieldCount> shown = {y, m, d, h, mi, s, ms};
  for (std::size_t i = 0; i < kFieldCount; ++i) {
    setFieldValue(static_cast<Control>(i), shown[i]);
    *storedValue(static_cast<Control>(i)) = shown[i];
  }
  timeZone_ = zone;
  updateDayBounds();
}

std::optional<Instant> OrbDatePicker::dateValueWithTimeZone(const TimeZone& zone) const {
  if (!enabled_) return std::nullopt;
  const auto v = [this](Control c) { return field(c).integerValue(); };
  return DateAdditions::dateWithY(v(Control::yearField), v(Control::monthField), v(Control::dayField),
                                  v(Control::hourField), v(Control::minuteField), v(Control::secondField),
                                  v(Control::subSecondField) * 1'000'000, zone);
}

std::optional<std::string> OrbDatePicker::formatSixFields(const char* pattern) const {
  const std::array<Control, 6> six = {Control::yearField, Control::monthField,  Control::dayField,
                                      Control::hourField, Control::minuteField, Control::secondField};
  for (Control c : six)
    if (field(c).text.empty()) return std::nullopt;
  const auto v = [this](Control c) { return field(c).integerValue(); };
  return numtext::format(pattern, v(six[0]), v(six[1]), v(six[2]), v(six[3]), v(six[4]), v(six[5]));
}

std::optional<std::string> OrbDatePicker::dateTimeString() const {
  return formatSixFields("%.4ld-%.2ld-%.2ld %.2ld:%.2ld:%.2ld");
}

std::optional<std::string> OrbDatePicker::dateTimeStringForTIFF() const {
  return formatSixFields("%.4ld:%.2ld:%.2ld %.2ld:%.2ld:%.2ld");
}

std::optional<std::string> OrbDatePicker::subSecondStringTripleDigit() const {
  if (style_ != kStyleMilliseconds) return std::nullopt;
  return numtext::format("%.3ld", field(Control::subSecondField).integerValue());
}

void OrbDatePicker::setValuesWithDateTimeValues(const DateTimeValues& values, bool undo) {
  const DateTimeValues old = values_;
  const std::array<long, kFieldCount> v = {values.year,   values.month,  values.day,      values.hour,
                                           values.minute, values.second, values.subSecond};
  for (std::size_t i = 0; i < kFieldCount; ++i) setFieldValue(static_cast<Control>(i), v[i]);
  values_ = values;
  updateDayBounds();
  if (undo && undo_) undo_->registerUndo(*this, [this, old] { setValuesWithDateTimeValues(old, true); });
  if (!enabled_ && values_.month == 0) setEnabled(false);
}

void OrbDatePicker::changeFieldValue(Control control) {
  long* stored = storedValue(control);
  if (action_) action_(*this);
  if (!stored) return;
  const long shown = field(control).integerValue();
  if (shown == *stored) return;
  const long old = *stored;
  *stored = shown;
  updateTheDate(control);
  if (undo_) undo_->registerUndo(*this, [this, control, old] { undoChangeFieldValue(control, old); });
  if (poster_) poster_(kValueDidChangeNotification, *this);
  if (delegate_) delegate_->datePickerValueDidChange(*this);
}

void OrbDatePicker::undoChangeFieldValue(Control control, long oldValue) {
  long* stored = storedValue(control);
  if (!stored) return;
  const long current = *stored;
  setFieldValue(control, oldValue);
  *stored = oldValue;
  if (control == Control::yearField || control == Control::monthField) updateDayBounds();
  if (undo_) undo_->registerUndo(*this, [this, control, current] { undoChangeFieldValue(control, current); });
}

void OrbDatePicker::updateTheDate(Control control) {
  if (control != Control::yearField && control != Control::monthField) return;
  updateDayBounds();
  const Field& day = field(Control::dayField);
  if (!day.text.empty() && day.integerValue() > day.maximum) {
    // The stored day follows the shown one, so both read the same date.
    setFieldValue(Control::dayField, day.maximum);
    values_.day = day.maximum;
  }
}
