#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "datetime/DateAdditions.h"
#include "datetime/OrbDatePicker.h"
#include "datetime/ZoneGuard.h"

namespace {

using Control = OrbDatePicker::Control;
using Values = OrbDatePicker::DateTimeValues;

// An undo stack in the style of the platform's: an action registered while
// undoing goes to the redo stack.
class FakeUndo : public OrbDatePicker::UndoManager {
 public:
  void registerUndo(OrbDatePicker&, std::function<void()> action) override {
    (undoing_ ? redo_ : undo_).push_back(std::move(action));
  }
  void removeAllActionsWithTarget(OrbDatePicker&) override {
    undo_.clear();
    redo_.clear();
  }
  void undo() { run(undo_, true); }
  void redo() { run(redo_, false); }
  std::size_t undoCount() const { return undo_.size(); }

 private:
  void run(std::vector<std::function<void()>>& stack, bool undoing) {
    ASSERT_FALSE(stack.empty());
    auto action = std::move(stack.back());
    stack.pop_back();
    undoing_ = undoing;
    action();
    undoing_ = false;
  }
  std::vector<std::function<void()>> undo_, redo_;
  bool undoing_ = false;
};

class RecordingDelegate : public OrbDatePicker::Delegate {
 public:
  MOCK_METHOD(void, datePickerValueDidChange, (OrbDatePicker&), (override));
  MOCK_METHOD(void, dateTimeDidChange, (OrbDatePicker&, Control), (override));
  MOCK_METHOD(void, dateTimeDidEndEditing, (OrbDatePicker&, Control), (override));
  MOCK_METHOD(void, subSecondDidEndEditing, (OrbDatePicker&, Control), (override));
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
  std::string text(Control c) const { return picker_.field(c).text; }

  FakeUndo undo_;
  ::testing::NiceMock<RecordingDelegate> delegate_;
  std::vector<std::string> posted_;
  OrbDatePicker picker_{OrbDatePicker::kStyleMilliseconds};
};

TEST(DatePickerDays, FollowTheGregorianRules) {
  struct Case {
    long year, month, days;
  } cases[] = {{2024, 2, 29}, {2023, 2, 28}, {1900, 2, 28}, {2000, 2, 29}, {2023, 4, 30}, {2023, 11, 30},
               {2023, 12, 31}, {2023, 0, 31}, {2023, 13, 31}, {-4, 2, 29}, {-1, 2, 28}};
  for (const Case& c : cases) EXPECT_EQ(OrbDatePicker::daysInMonth(c.year, c.month), c.days) << c.year << "-" << c.month;
}

TEST_F(DatePicker, ShowsAnInstantAndBuildsItBack) {
  show("2019:03:07 09:05:30.250");
  EXPECT_EQ(picker_.dateTimeString(), "2019-03-07 09:05:30");
  EXPECT_EQ(picker_.dateTimeStringForTIFF(), "2019:03:07 09:05:30");
  EXPECT_EQ(picker_.subSecondStringTripleDigit(), "250");
  EXPECT_EQ(picker_.dateTimeValues(), (Values{2019, 3, 7, 9, 5, 30, 250}));
  EXPECT_EQ(picker_.dateValue(), DateAdditions::dateWithDateTimeString("2019:03:07 09:05:30.250"));
  // Split in another zone, the fields move with it.
  picker_.setDateValue(picker_.dateValue(), TimeZone::withSecondsFromGMT(-10 * 3600));
  EXPECT_EQ(picker_.dateTimeStringForTIFF(), "2019:03:06 23:05:30");
  picker_.setStyle(OrbDatePicker::kStyleSeconds);
  EXPECT_FALSE(picker_.subSecondStringTripleDigit());
  picker_.setValuesWithDateTimeValues({-44, 3, 15, 12, 0, 0, 0}, false);
  EXPECT_EQ(picker_.dateTimeStringForTIFF(), "-0044:03:15 12:00:00");
  EXPECT_EQ(picker_.dateTimeString(), "-0044-03-15 12:00:00");
}

TEST_F(DatePicker, RoundsNanosecondsToMillisecondsWithoutClamping) {
  struct Case {
    std::int32_t nanoseconds;
    long milliseconds;
  } cases[] = {{123'456'789, 123}, {999'600'000, 1000}, {499'999, 0}, {500'000, 1}, {0, 0}};
  for (const Case& c : cases) {
    picker_.setDateValue(Instant{1'000'000'000, c.nanoseconds}, TimeZone::gmt());
    EXPECT_EQ(picker_.subSecond(), c.milliseconds) << c.nanoseconds;
  }
}

TEST_F(DatePicker, DayBoundsFollowYearAndMonth) {
  show("2024:02:29 00:00:00");
  EXPECT_EQ(picker_.field(Control::dayField).maximum, 29);
  ASSERT_TRUE(picker_.controlTextDidChange(Control::yearField, "2023"));
  EXPECT_EQ(picker_.field(Control::dayField).maximum, 28);
  EXPECT_EQ(text(Control::dayField), "28");
  EXPECT_EQ(picker_.day(), 28);
  ASSERT_TRUE(picker_.controlTextDidChange(Control::monthField, "3"));
  EXPECT_EQ(picker_.field(Control::dayField).maximum, 31);
  EXPECT_EQ(text(Control::dayField), "28") << "a longer month does not raise the day";
}

// Each field wraps inside its own range; the day is clamped to the month.
TEST_F(DatePicker, StepsAndWraps) {
  struct Case {
    const char* start;
    Control field;
    int direction;
    const char* result;
  } cases[] = {
      {"2019:12:07 09:05:30", Control::monthField, 1, "2019:01:07 09:05:30"},
      {"2019:01:07 09:05:30", Control::monthField, -1, "2019:12:07 09:05:30"},
      {"2019:02:01 09:05:30", Control::dayField, -1, "2019:02:28 09:05:30"},
      {"2019:01:31 09:05:30", Control::monthField, 1, "2019:02:28 09:05:30"},
      {"2020:02:29 09:05:30", Control::dayField, 1, "2020:02:01 09:05:30"},
      {"2019:04:30 09:05:30", Control::dayField, 1, "2019:04:01 09:05:30"},
      {"2019:03:07 23:05:30", Control::hourField, 1, "2019:03:07 00:05:30"},
      {"2019:03:07 09:59:30", Control::minuteField, 1, "2019:03:07 09:00:30"},
      {"2019:03:07 09:05:00", Control::secondField, -1, "2019:03:07 09:05:59"},
      {"9999:03:07 09:05:30", Control::yearField, 1, "0001:03:07 09:05:30"},
      {"0001:03:07 09:05:30", Control::yearField, -1, "9999:03:07 09:05:30"},
      {"2019:03:07 09:05:30", Control::yearField, 0, "2019:03:07 09:05:30"},
      {"2019:03:07 09:05:30", Control::stepper, 1, "2020:03:07 09:05:30"},  // no field focused: the year
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.start);
    show(c.start);
    picker_.setFocused(c.field);
    picker_.step(c.direction);
    EXPECT_EQ(picker_.dateTimeStringForTIFF(), c.result);
    EXPECT_EQ(picker_.stepperValue(), 0);
    EXPECT_EQ(picker_.dateValue(), DateAdditions::dateWithDateTimeString(c.result));
  }
}

// A change is reported once and registers its reverse; typing the value
// already shown is no change at all.
TEST_F(DatePicker, ChangesAreReportedAndUndoAndRedoAlternate) {
  show("2019:03:07 09:05:30.250");
  EXPECT_CALL(delegate_, datePickerValueDidChange(::testing::Ref(picker_))).Times(1);
  ASSERT_TRUE(picker_.controlTextDidChange(Control::hourField, "9"));
  EXPECT_EQ(undo_.undoCount(), 0u);
  picker_.setFocused(Control::hourField);
  picker_.step(1);
  ::testing::Mock::VerifyAndClearExpectations(&delegate_);
  EXPECT_EQ(posted_, std::vector<std::string>{"OrbDatePikerValueDidChangeNotification"});
  picker_.setValuesWithDateTimeValues({2020, 1, 2, 3, 4, 5, 6}, true);
  EXPECT_EQ(picker_.dateTimeStringForTIFF(), "2020:01:02 03:04:05");
  undo_.undo();
  EXPECT_EQ(picker_.dateTimeValues(), (Values{2019, 3, 7, 10, 5, 30, 250}));
  undo_.undo();
  EXPECT_EQ(text(Control::hourField), "09");
  undo_.redo();
  undo_.redo();
  EXPECT_EQ(picker_.dateTimeValues(), (Values{2020, 1, 2, 3, 4, 5, 6}));
}

TEST_F(DatePicker, DisabledPickerHasNoValueAndStaysClearedForMonthZero) {
  picker_.setDateValue(std::nullopt, TimeZone::gmt());
  EXPECT_FALSE(picker_.isEnabled());
  EXPECT_FALSE(picker_.dateValue());
  EXPECT_FALSE(picker_.dateTimeString());
  EXPECT_EQ(picker_.dateTimeValues(), Values{});
  EXPECT_EQ(text(Control::yearField), "");
  // Undoing back to the empty values on a disabled picker clears the fields again.
  picker_.setValuesWithDateTimeValues({}, false);
  EXPECT_EQ(text(Control::monthField), "");
}

// Now as the machine's clock reads it (India here), shown as a wall-clock
// date: the picker stays in UTC, so the value it answers is that text.
TEST_F(DatePicker, StepperOnMixedOrDisabledPickerMeansNow) {
  lumtest::ZoneGuard zone("Asia/Kolkata");
  const Instant now = *DateAdditions::dateWithDateTimeString("2021:06:01 12:34:56.789");
  picker_.setClock([now] { return now; });
  for (bool mixed : {true, false}) {
    show("2019:03:07 09:05:30");
    if (mixed)
      picker_.setMixed(true);
    else
      picker_.setDateValue(std::nullopt);
    EXPECT_EQ(picker_.isMixed(), mixed);
    EXPECT_CALL(delegate_, dateTimeDidEndEditing(::testing::Ref(picker_), Control::yearField)).Times(1);
    picker_.step(1);
    ::testing::Mock::VerifyAndClearExpectations(&delegate_);
    EXPECT_FALSE(picker_.isMixed());
    EXPECT_TRUE(picker_.isEnabled());
    EXPECT_EQ(picker_.dateTimeStringForTIFF(), "2021:06:01 18:04:56");
    EXPECT_EQ(picker_.dateValue(), (Instant{now.seconds + 19800, 789'000'000}));
    EXPECT_EQ(picker_.focused(), Control::yearField);
    EXPECT_EQ(picker_.timeZone(), TimeZone::gmt());
  }
}

TEST_F(DatePicker, MixedHidesFieldsAndAValueLeavesItKeepingTheStepperState) {
  show("2019:03:07 09:05:30");
  picker_.setMixed(true);
  for (int i = 0; i < 7; ++i) EXPECT_TRUE(picker_.field(static_cast<Control>(i)).hidden) << i;
  EXPECT_FALSE(picker_.drawColon());
  picker_.setStepperEnabled(false);
  show("2019:03:07 09:05:30");
  EXPECT_FALSE(picker_.isMixed());
  EXPECT_FALSE(picker_.field(Control::subSecondField).hidden);
  EXPECT_FALSE(picker_.isStepperEnabled()) << "the owner's choice survives";
  picker_.setStyle(OrbDatePicker::kStyleSeconds);
  EXPECT_TRUE(picker_.field(Control::subSecondField).hidden);
  picker_.setStyle(OrbDatePicker::kStyleDateOnly);
  EXPECT_TRUE(picker_.field(Control::hourField).hidden);
  EXPECT_EQ(picker_.hour(), 0);
}

TEST_F(DatePicker, TypingRefusesEmptyOrImpossibleTextAndReports) {
  show("2019:03:07 09:05:30");
  for (const char* refused : {"", "1a", "-1", "13", "123"})
    EXPECT_FALSE(picker_.controlTextDidChange(Control::monthField, refused)) << refused;
  EXPECT_EQ(text(Control::monthField), "03");
  EXPECT_CALL(delegate_, dateTimeDidChange(::testing::Ref(picker_), Control::monthField)).Times(1);
  EXPECT_CALL(delegate_, datePickerValueDidChange(::testing::Ref(picker_))).Times(1);
  EXPECT_TRUE(picker_.controlTextDidChange(Control::monthField, "11"));
  EXPECT_EQ(picker_.month(), 11);
}

TEST_F(DatePicker, EndOfEditingDropsUndoAndTellsWhichKindOfField) {
  show("2019:03:07 09:05:30");
  picker_.setFocused(Control::hourField);
  picker_.step(1);
  ASSERT_EQ(undo_.undoCount(), 1u);
  EXPECT_CALL(delegate_, removeUndoAllActionsOfRelatedOrbDatePicker(::testing::Ref(picker_))).Times(2);
  EXPECT_CALL(delegate_, dateTimeDidEndEditing(::testing::_, Control::hourField)).Times(1);
  EXPECT_CALL(delegate_, subSecondDidEndEditing(::testing::_, Control::subSecondField)).Times(1);
  picker_.controlTextDidEndEditing(Control::hourField);
  picker_.controlTextDidEndEditing(Control::subSecondField);
  EXPECT_EQ(undo_.undoCount(), 0u);
}

TEST_F(DatePicker, KeysMoveFocusAndStep) {
  show("2019:03:07 09:05:30");
  picker_.setFocused(Control::dayField);
  EXPECT_TRUE(picker_.keyDown(OrbDatePicker::kKeyRight, 0, true));
  EXPECT_EQ(picker_.focused(), Control::hourField);
  EXPECT_TRUE(picker_.keyDown(OrbDatePicker::kKeyTab, OrbDatePicker::kShiftFlag, true));
  EXPECT_EQ(picker_.focused(), Control::dayField);
  EXPECT_TRUE(picker_.keyDown(OrbDatePicker::kKeyUp, 0, true));
  EXPECT_EQ(picker_.day(), 8);
  EXPECT_TRUE(picker_.keyDown(OrbDatePicker::kKeyDown, 0, true));
  EXPECT_TRUE(picker_.keyDown(OrbDatePicker::kKeyDown, 0, true));
  EXPECT_EQ(picker_.day(), 6);
  EXPECT_TRUE(picker_.keyDown(OrbDatePicker::kKeyDelete, 0, false));
  EXPECT_FALSE(picker_.keyDown(OrbDatePicker::kKeyDelete, 0, true));
  EXPECT_FALSE(picker_.keyDown(18, 0, true));
  // Hidden fields are skipped.
  picker_.setStyle(OrbDatePicker::kStyleSeconds);
  picker_.setFocused(Control::secondField);
  picker_.keyDown(OrbDatePicker::kKeyTab, 0, true);
  EXPECT_EQ(picker_.focused(), Control::stepper);
}

TEST(DatePickerLayout, KeyViewChainSkipsAbsentFields) {
  OrbDatePicker timeOnly(OrbDatePicker::kStyleSeconds, {false, false, false, true, true, true, false});
  EXPECT_EQ(timeOnly.firstKeyView(), Control::hourField);
  EXPECT_EQ(timeOnly.lastKeyView(), Control::stepper);
  OrbDatePicker dateOnly(OrbDatePicker::kStyleDateOnly, {true, true, true, false, false, false, false});
  EXPECT_EQ(dateOnly.keyViewChain(),
            (std::vector<Control>{Control::yearField, Control::monthField, Control::dayField, Control::stepper}));
  // Stepping without a focused field falls back to the hour when there is no year.
  timeOnly.setValuesWithDateTimeValues({0, 0, 0, 9, 5, 30, 0}, false);
  timeOnly.step(1);
  EXPECT_EQ(timeOnly.hour(), 10);
}

TEST_F(DatePicker, PasteOfAFullDateTimeWithFractionGoesToTheDelegate) {
  EXPECT_CALL(delegate_, pasteWithDateTimeString("2019-03-07T09:05:30.250")).Times(1);
  EXPECT_TRUE(picker_.paste("2019:03:07 09:05:30.250"));
  EXPECT_FALSE(picker_.paste("2019:03:07 09:05:30"));  // without a fraction the fields take it
  picker_.setDelegate(nullptr);
  EXPECT_FALSE(picker_.paste("2019:03:07 09:05:30.250"));
}

}  // namespace
