#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "datetime/DateAdditions.h"
#include "datetime/OrbDatePicker.h"
#include "datetime/ZoneGuard.h"

namespace {

using ::testing::Ref;
using C = OrbDatePicker::Control;
using P = OrbDatePicker;
using Values = OrbDatePicker::DateTimeValues;

// An undo stack in the style of the platform's: an action registered while
// undoing goes to the redo stack.
class FakeUndo : public OrbDatePicker::UndoManager {
 public:
  void registerUndo(OrbDatePicker&, std::function<void()> f) override { (undoing_ ? redo_ : undo_).push_back(f); }
  void removeAllActionsWithTarget(OrbDatePicker&) override { undo_.clear(), redo_.clear(); }
  void undo() { run(undo_, true); }
  void redo() { run(redo_, false); }
  std::vector<std::function<void()>> undo_, redo_;

 private:
  void run(std::vector<std::function<void()>>& stack, bool undoing) {
    ASSERT_FALSE(stack.empty());
    auto action = std::move(stack.back());
    stack.pop_back();
    undoing_ = undoing, action(), undoing_ = false;
  }
  bool undoing_ = false;
};

class RecordingDelegate : public OrbDatePicker::Delegate {
 public:
  MOCK_METHOD(void, datePickerValueDidChange, (OrbDatePicker&), (override));
  MOCK_METHOD(void, dateTimeDidChange, (OrbDatePicker&, C), (override));
  MOCK_METHOD(void, dateTimeDidEndEditing, (OrbDatePicker&, C), (override));
  MOCK_METHOD(void, subSecondDidEndEditing, (OrbDatePicker&, C), (override));
  MOCK_METHOD(void, removeUndoAllActionsOfRelatedOrbDatePicker, (OrbDatePicker&), (override));
  MOCK_METHOD(void, pasteWithDateTimeString, (const std::string&), (override));
};

class DatePicker : public ::testing::Test {
 protected:
  DatePicker() {
    picker_.setUndoManager(&undo_);
    picker_.setDelegate(&delegate_);
    picker_.setNotificationPoster([this](std::string_view name, OrbDatePicker&) { posted_.emplace_back(name); });
    picker_.setTimeZone(TimeZone::gmt());
  }
  ~DatePicker() override { picker_.setUndoManager(nullptr); }

  void show(const char* text) { picker_.setDateValue(DateAdditions::dateWithDateTimeString(text), TimeZone::gmt()); }
  std::string text(C c) const { return picker_.field(c).text; }
  std::string tiff() const { return picker_.dateTimeStringForTIFF().value_or("none"); }

  FakeUndo undo_;
  ::testing::NiceMock<RecordingDelegate> delegate_;
  std::vector<std::string> posted_;
  OrbDatePicker picker_{OrbDatePicker::kStyleMilliseconds};
};

TEST(DatePickerDays, FollowTheGregorianRules) {
  const long cases[][3] = {{2024, 2, 29}, {1900, 2, 28}, {2000, 2, 29}, {2023, 4, 30}, {2023, 13, 31}, {-4, 2, 29}};
  for (const auto& c : cases) EXPECT_EQ(OrbDatePicker::daysInMonth(c[0], c[1]), c[2]) << c[0] << "-" << c[1];
}

TEST_F(DatePicker, ShowsAnInstantAndBuildsItBack) {
  show("2019:03:07 09:05:30.250");
  EXPECT_EQ(picker_.dateTimeString(), "2019-03-07 09:05:30");
  EXPECT_EQ(picker_.dateTimeValues(), (Values{2019, 3, 7, 9, 5, 30, 250}));
  // Split in another zone, the fields move with it.
  picker_.setDateValue(picker_.dateValue(), TimeZone::withSecondsFromGMT(-10 * 3600));
  EXPECT_EQ(tiff(), "2019:03:06 23:05:30");
  picker_.setStyle(OrbDatePicker::kStyleSeconds);
  EXPECT_FALSE(picker_.subSecondStringTripleDigit());
  picker_.setValuesWithDateTimeValues({-44, 3, 15, 12, 0, 0, 0}, false);
  EXPECT_EQ(tiff(), "-0044:03:15 12:00:00");
  // Milliseconds are rounded from nanoseconds, not clamped to 999.
  const std::pair<std::int32_t, long> rounding[] = {{999'600'000, 1000}, {500'000, 1}};
  for (const auto& [nanoseconds, milliseconds] : rounding) {
    picker_.setDateValue(Instant{1'000'000'000, nanoseconds}, TimeZone::gmt());
    EXPECT_EQ(picker_.subSecond(), milliseconds) << nanoseconds;
  }
}

// One row per key sequence typed from a focused field: U/D up and down, L/R
// left and right, T/t tab and shift-tab, S/s the stepper's arrows. Each field
// wraps inside its own range and the day is clamped to the month.
TEST_F(DatePicker, KeysAndStepperMoveFocusStepAndWrap) {
  const struct { const char* start; C from; const char* keys; C focus; const char* result; } cases[] = {
      {"2019:12:07 09:05:30", C::monthField, "U", C::monthField, "2019:01:07 09:05:30"},
      {"2019:02:01 09:05:30", C::dayField, "D", C::dayField, "2019:02:28 09:05:30"},
      {"2019:01:31 09:05:30", C::monthField, "S", C::monthField, "2019:02:28 09:05:30"},
      {"2020:02:29 09:05:30", C::dayField, "S", C::dayField, "2020:02:01 09:05:30"},
      {"2019:03:07 23:05:30", C::hourField, "U", C::hourField, "2019:03:07 00:05:30"},
      {"9999:03:07 09:05:30", C::yearField, "U", C::yearField, "0001:03:07 09:05:30"},
      {"0001:03:07 09:05:30", C::yearField, "s", C::yearField, "9999:03:07 09:05:30"},
      {"2019:03:07 09:05:30", C::stepper, "S", C::yearField, "2020:03:07 09:05:30"},  // no field focused: the year
      {"2019:03:07 09:05:30", C::dayField, "R", C::hourField, "2019:03:07 09:05:30"},
      {"2019:03:07 09:05:30", C::hourField, "t", C::dayField, "2019:03:07 09:05:30"},
      {"2019:03:07 09:05:30", C::monthField, "LDT", C::monthField, "2018:03:07 09:05:30"},
      {"2019:03:07 09:05:30", C::secondField, "TT", C::stepper, "2019:03:07 09:05:30"},
  };
  const std::map<char, int> keys = {{'U', P::kKeyUp}, {'D', P::kKeyDown}, {'L', P::kKeyLeft}, {'R', P::kKeyRight},
                                    {'T', P::kKeyTab}, {'t', P::kKeyTab}};
  for (const auto& c : cases) {
    show(c.start);
    picker_.setFocused(c.from);
    for (const char* k = c.keys; *k; ++k)
      if (*k == 'S' || *k == 's')
        picker_.step(*k == 'S' ? 1 : -1);
      else
        EXPECT_TRUE(picker_.keyDown(keys.at(*k), *k == 't' ? P::kShiftFlag : 0, true)) << c.keys;
    EXPECT_EQ(picker_.focused(), c.focus) << c.start << " " << c.keys;
    EXPECT_EQ(picker_.dateValue(), DateAdditions::dateWithDateTimeString(c.result)) << c.start << " " << c.keys;
  }
  // Delete is the field's own unless something is selected; other keys and a focused stepper are not handled.
  picker_.setFocused(C::dayField);
  EXPECT_TRUE(picker_.keyDown(P::kKeyDelete, 0, false));
  EXPECT_FALSE(picker_.keyDown(P::kKeyDelete, 0, true));
  EXPECT_FALSE(picker_.keyDown(18, 0, true));
  picker_.setStyle(P::kStyleSeconds);  // hidden fields are skipped
  picker_.setFocused(C::secondField);
  picker_.keyDown(P::kKeyTab, 0, true);
  EXPECT_EQ(picker_.focused(), C::stepper);
  EXPECT_FALSE(picker_.keyDown(P::kKeyUp, 0, true));
}

// A change is reported once and registers its reverse; typing the value
// already shown is no change at all.
TEST_F(DatePicker, ChangesAreReportedAndUndoAndRedoAlternate) {
  show("2019:03:07 09:05:30.250");
  EXPECT_CALL(delegate_, datePickerValueDidChange(Ref(picker_))).Times(1);
  ASSERT_TRUE(picker_.controlTextDidChange(C::hourField, "9"));
  EXPECT_TRUE(undo_.undo_.empty());
  picker_.setFocused(C::hourField);
  picker_.step(1);
  ::testing::Mock::VerifyAndClearExpectations(&delegate_);
  EXPECT_EQ(posted_, std::vector<std::string>{"OrbDatePikerValueDidChangeNotification"});
  picker_.setValuesWithDateTimeValues({2020, 1, 2, 3, 4, 5, 6}, true);
  undo_.undo();
  EXPECT_EQ(picker_.dateTimeValues(), (Values{2019, 3, 7, 10, 5, 30, 250}));
  undo_.undo();
  EXPECT_EQ(text(C::hourField), "09");
  undo_.redo();
  undo_.redo();
  EXPECT_EQ(picker_.dateTimeValues(), (Values{2020, 1, 2, 3, 4, 5, 6}));
  // The end of editing drops the undo actions and tells which kind of field it was.
  EXPECT_CALL(delegate_, removeUndoAllActionsOfRelatedOrbDatePicker(Ref(picker_))).Times(2);
  EXPECT_CALL(delegate_, dateTimeDidEndEditing(::testing::_, C::hourField)).Times(1);
  EXPECT_CALL(delegate_, subSecondDidEndEditing(::testing::_, C::subSecondField)).Times(1);
  picker_.controlTextDidEndEditing(C::hourField);
  picker_.controlTextDidEndEditing(C::subSecondField);
  EXPECT_TRUE(undo_.undo_.empty());
}

// Typed text is refused when empty or impossible; the day follows the year
// and month down, never up.
TEST_F(DatePicker, TypingRefusesImpossibleTextAndClampsTheDay) {
  show("2024:02:29 00:00:00");
  for (const char* refused : {"", "1a", "-1", "13", "123"})
    EXPECT_FALSE(picker_.controlTextDidChange(C::monthField, refused)) << refused;
  EXPECT_EQ(text(C::monthField), "02");
  EXPECT_CALL(delegate_, dateTimeDidChange(Ref(picker_), C::yearField)).Times(1);
  EXPECT_CALL(delegate_, dateTimeDidChange(Ref(picker_), C::monthField)).Times(1);
  EXPECT_CALL(delegate_, datePickerValueDidChange(Ref(picker_))).Times(2);
  ASSERT_TRUE(picker_.controlTextDidChange(C::yearField, "2023"));
  EXPECT_EQ(text(C::dayField), "28");
  ASSERT_TRUE(picker_.controlTextDidChange(C::monthField, "3"));
  EXPECT_EQ(std::tuple(picker_.field(C::dayField).maximum, picker_.day(), picker_.month()), std::tuple(31L, 28L, 3L));
}

// An empty picker has no value; its stepper, like a mixed picker's, starts
// from now as the machine's clock reads it (India here), shown as a
// wall-clock date: the picker stays in UTC, so the value it answers is that text.
TEST_F(DatePicker, StepperOnMixedOrDisabledPickerMeansNow) {
  picker_.setDateValue(std::nullopt, TimeZone::gmt());
  EXPECT_FALSE(picker_.isEnabled());
  picker_.setValuesWithDateTimeValues({}, false);  // undoing back to month zero clears the fields again
  EXPECT_EQ(text(C::monthField), "");
  lumtest::ZoneGuard zone("Asia/Kolkata");
  const Instant now = *DateAdditions::dateWithDateTimeString("2021:06:01 12:34:56.789");
  picker_.setClock([now] { return now; });
  for (bool mixed : {true, false}) {
    show("2019:03:07 09:05:30");
    mixed ? picker_.setMixed(true) : picker_.setDateValue(std::nullopt);
    EXPECT_CALL(delegate_, dateTimeDidEndEditing(Ref(picker_), C::yearField)).Times(1);
    picker_.step(1);
    ::testing::Mock::VerifyAndClearExpectations(&delegate_);
    EXPECT_TRUE(picker_.isEnabled() && !picker_.isMixed());
    EXPECT_EQ(picker_.dateValue(), (Instant{now.seconds + 19800, 789'000'000}));
  }
}

TEST_F(DatePicker, MixedHidesFieldsAndAValueLeavesItKeepingTheStepperState) {
  show("2019:03:07 09:05:30");
  picker_.setMixed(true);
  for (int i = 0; i < 7; ++i) EXPECT_TRUE(picker_.field(static_cast<C>(i)).hidden) << i;
  picker_.setStepperEnabled(false);
  show("2019:03:07 09:05:30");
  EXPECT_FALSE(picker_.field(C::subSecondField).hidden);
  EXPECT_FALSE(picker_.isStepperEnabled()) << "the owner's choice survives";
  picker_.setStyle(OrbDatePicker::kStyleDateOnly);
  EXPECT_TRUE(picker_.field(C::hourField).hidden);
  EXPECT_EQ(picker_.hour(), 0);
}

TEST(DatePickerLayout, KeyViewChainSkipsAbsentFields) {
  OrbDatePicker timeOnly(OrbDatePicker::kStyleSeconds, {false, false, false, true, true, true, false});
  EXPECT_EQ(std::pair(timeOnly.firstKeyView(), timeOnly.lastKeyView()), std::pair(std::optional(C::hourField), std::optional(C::stepper)));
  OrbDatePicker dateOnly(OrbDatePicker::kStyleDateOnly, {true, true, true, false, false, false, false});
  EXPECT_EQ(dateOnly.keyViewChain(), (std::vector<C>{C::yearField, C::monthField, C::dayField, C::stepper}));
  // Stepping without a focused field falls back to the hour when there is no year.
  timeOnly.setValuesWithDateTimeValues({0, 0, 0, 9, 5, 30, 0}, false);
  timeOnly.step(1);
  EXPECT_EQ(timeOnly.hour(), 10);
}

TEST_F(DatePicker, PasteOfAFullDateTimeWithFractionGoesToTheDelegate) {
  EXPECT_CALL(delegate_, pasteWithDateTimeString("2019-03-07T09:05:30.250")).Times(1);
  EXPECT_TRUE(picker_.paste("2019:03:07 09:05:30.250"));
  EXPECT_FALSE(picker_.paste("2019:03:07 09:05:30"));  // without a fraction the fields take it
  EXPECT_FALSE(picker_.paste("not a date"));
}

}  // namespace
