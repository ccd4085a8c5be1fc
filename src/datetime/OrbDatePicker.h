#pragma once
// The date picker's model: seven numeric fields (year, month, day, hour,
// minute, second, sub-second in milliseconds), a stepper and a "Multiple
// Values" state. It holds every rule of the control (bounds, stepping with
// wrap-around, the day kept inside its month, undo, change reports); a
// widget on top only draws the fields and forwards the user's events.
//
// Change reports go to a Delegate (every operation optional) and, for each
// value change, to the notification poster with the name
// "OrbDatePikerValueDidChangeNotification". Undo goes to an UndoManager
// supplied by the owner.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "datetime/Instant.h"
#include "datetime/TimeZone.h"

class OrbDatePicker {
 public:
  // The seven fields in key-view order, then the stepper.
  enum class Control { yearField, monthField, dayField, hourField, minuteField, secondField, subSecondField, stepper };
  static constexpr std::size_t kFieldCount = 7;

  // Styles: date and time to the second; with milliseconds; date only.
  static constexpr std::uint8_t kStyleSeconds = 0, kStyleMilliseconds = 1, kStyleDateOnly = 2;

  static constexpr std::string_view kValueDidChangeNotification = "OrbDatePikerValueDidChangeNotification";

  // Platform key codes the field editor reacts to, and the Shift flag.
  static constexpr int kKeyLeft = 123, kKeyRight = 124, kKeyDown = 125, kKeyUp = 126, kKeyTab = 48, kKeyDelete = 51;
  static constexpr unsigned long kShiftFlag = 0x20000;

  struct DateTimeValues {
    long year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, subSecond = 0;
    friend bool operator==(const DateTimeValues&, const DateTimeValues&) = default;
  };

  // One text field as the widget shows it.
  struct Field {
    bool present = true;  // the layout has this field
    bool hidden = false;
    bool enabled = true;
    std::string text;  // empty when cleared
    long minimum = 0;
    long maximum = 0;
    int integerDigits = 2;  // shown with leading zeros to this width
    long integerValue() const;
  };

  class Delegate {
   public:
    virtual ~Delegate() = default;
    virtual void datePickerValueDidChange(OrbDatePicker&) {}
    virtual void dateTimeDidChange(OrbDatePicker&, Control /*field*/) {}
    virtual void dateTimeDidEndEditing(OrbDatePicker&, Control /*field*/) {}
    virtual void subSecondDidEndEditing(OrbDatePicker&, Control /*field*/) {}
    virtual void removeUndoAllActionsOfRelatedOrbDatePicker(OrbDatePicker&) {}
    virtual void pasteWithDateTimeString(const std::string& /*text*/) {}
  };

  class UndoManager {
   public:
    virtual ~UndoManager() = default;
    // Records an action that reverses the change just made. The action
    // registers its own reverse when it runs, so undo and redo alternate.
    virtual void registerUndo(OrbDatePicker& target, std::function<void()> action) = 0;
    virtual void removeAllActionsWithTarget(OrbDatePicker& target) = 0;
  };

  using NotificationPoster = std::function<void(std::string_view name, OrbDatePicker& object)>;
  using Action = std::function<void(OrbDatePicker&)>;
  using Clock = std::function<Instant()>;

  // The initial state: enabled, UTC, all values 0, empty fields.
  // Fields whose flag is false are absent from the layout.
  explicit OrbDatePicker(std::uint8_t style = kStyleSeconds, std::array<bool, kFieldCount> present = allPresent());
  // Withdraws its undo actions, which refer to it; an undo manager set on
  // the picker must outlive it or be replaced by none first.
  ~OrbDatePicker();
  OrbDatePicker(const OrbDatePicker&) = delete;
  OrbDatePicker& operator=(const OrbDatePicker&) = delete;

  static constexpr std::array<bool, kFieldCount> allPresent() { return {true, true, true, true, true, true, true}; }

  // Days in a month: 30 for 4, 6, 9, 11; 28 or 29 for 2 (the year read as an
  // unsigned 32-bit number); 31 for every other month number.
  static long daysInMonth(long year, long month);

  // "yearField" ... "subSecondField", "stepper"; and back (none if unknown).
  static std::string responderIdentfier(Control control);
  static std::optional<Control> controlWithIdentfier(std::string_view name);

  // --- Connections -------------------------------------------------------------
  void setDelegate(Delegate* delegate) { delegate_ = delegate; }
  Delegate* delegate() const { return delegate_; }
  void setUndoManager(UndoManager* undo) { undo_ = undo; }
  void setNotificationPoster(NotificationPoster poster) { poster_ = std::move(poster); }
  void setAction(Action action) { action_ = std::move(action); }
  void setClock(Clock clock) { clock_ = std::move(clock); }

  // --- Plain state -------------------------------------------------------------
  const Field& field(Control control) const;
  void setTimeZone(std::optional<TimeZone> zone) { timeZone_ = zone.value_or(TimeZone::gmt()); }
  const TimeZone& timeZone() const { return timeZone_; }
  std::uint8_t style() const { return style_; }
  void setStyle(std::uint8_t style);
  bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool isMixed() const { return mixed_; }
  void setMixed(bool mixed);
  void setFieldHidden(bool hidden);
  bool drawColon() const { return drawColon_; }
  void setDrawColon(bool draw) { drawColon_ = draw; }
  bool mouseIn() const { return mouseIn_; }
  void setMouseIn(bool in) { mouseIn_ = in; }
  bool clicking() const { return clicking_; }
  void setClicking(bool clicking) { clicking_ = clicking; }
  bool isStepperEnabled() const { return stepperEnabled_; }
  void setStepperEnabled(bool enabled) { stepperEnabled_ = enabled; }
  int stepperValue() const { return stepperValue_; }

  long year() const { return values_.year; }
  long month() const { return values_.month; }
  long day() const { return values_.day; }
  long hour() const { return values_.hour; }
  long minute() const { return values_.minute; }
  long second() const { return values_.second; }
  long subSecond() const { return values_.subSecond; }
  void setYear(long v) { values_.year = v; }
  void setMonth(long v) { values_.month = v; }
  void setDay(long v) { values_.day = v; }
  void setHour(long v) { values_.hour = v; }
  void setMinute(long v) { values_.minute = v; }
  void setSecond(long v) { values_.second = v; }
  void setSubSecond(long v) { values_.subSecond = v; }

  // --- Focus and key views -----------------------------------------------------
  std::optional<Control> focused() const { return focused_; }
  void setFocused(std::optional<Control> control) { focused_ = control; }
  // Present fields in order, then the stepper.
  std::vector<Control> keyViewChain() const;
  std::optional<Control> firstKeyView() const;
  std::optional<Control> lastKeyView() const;
  // Neighbours in the chain that can take the focus (present, shown,
  // enabled); none past either end.
  std::optional<Control> nextValidKeyView(Control from) const;
  std::optional<Control> previousValidKeyView(Control from) const;

  // --- Value -------------------------------------------------------------------
  // None disables the picker; an instant enables it and shows the instant
  // split in zone (a BC year shows as its era year).
  void setDateValue(std::optional<Instant> date, const TimeZone& zone);
  void setDateValue(std::optional<Instant> date) { setDateValue(date, timeZone_); }
  std::optional<Instant> dateValue() const { return dateValueWithTimeZone(timeZone_); }
  std::optional<Instant> dateValueWithTimeZone(const TimeZone& zone) const;
  // "2019-03-07 09:05:30"; none when a date or time field is empty.
  std::optional<std::string> dateTimeString() const;
  // "2019:03:07 09:05:30"; none when a date or time field is empty.
  std::optional<std::string> dateTimeStringForTIFF() const;
  // "250" in the millisecond style; none in the others.
  std::optional<std::string> subSecondStringTripleDigit() const;

  void setValuesWithDateTimeValues(const DateTimeValues& values, bool undo);
  const DateTimeValues& dateTimeValues() const { return values_; }

  // --- Edits -------------------------------------------------------------------
  // Takes a field's shown value as its stored value, recording undo and
  // reporting the change when it differs.
  void changeFieldValue(Control field);
  // Puts an old value back (field and stored value) and records the reverse.
  void undoChangeFieldValue(Control field, long oldValue);
  // After a year or month change: new day bounds, the day lowered into them.
  void updateTheDate(Control field);

  // A stepper click with its value (+1 up, -1 down). On a mixed or disabled
  // picker with a delegate, the click means "now" in the local zone.
  void step(int stepperValue);
  // A press on the stepper: focus moves into the picker first.
  void stepperMouseDown(int stepperValue);

  // The text of a field while typing. False refuses it (empty, not digits,
  // too long or above the maximum): the widget keeps the previous text,
  // selects it all and beeps.
  bool controlTextDidChange(Control field, std::string_view text);
  void controlTextDidEndEditing(Control field);
  // A key in the focused field's editor; false lets the widget edit as usual.
  bool keyDown(int keyCode, unsigned long modifierFlags, bool selectionEmpty);
  // A paste into a focused field; true when it went to the delegate as a
  // normalised date-time, false when the widget pastes plain text.
  bool paste(std::string_view text);

 private:
  Field& mutableField(Control control) { return fields_[static_cast<std::size_t>(control)]; }
  long* storedValue(Control control);
  std::optional<std::string> formatSixFields(const char* pattern) const
      __attribute__((format(printf, 2, 0)));
  void setFieldValue(Control control, long value);
  void updateDayBounds();
  bool stepField(Control control, bool up);
  Control stepTarget() const;
  std::optional<Control> validNeighbour(Control from, int direction) const;

  std::array<Field, kFieldCount> fields_;
  DateTimeValues values_;
  TimeZone timeZone_ = TimeZone::gmt();
  std::uint8_t style_ = kStyleSeconds;
  bool enabled_ = true;
  bool mixed_ = false;
  bool drawColon_ = true;
  bool mouseIn_ = false;
  bool clicking_ = false;
  bool stepperEnabled_ = true;
  int stepperValue_ = 0;
  std::optional<Control> focused_;

  Delegate* delegate_ = nullptr;
  UndoManager* undo_ = nullptr;
  NotificationPoster poster_;
  Action action_;
  Clock clock_ = &Instant::now;
};
