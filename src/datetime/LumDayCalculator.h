#pragma once
// The day count calculator's model: two dates and the number of whole days
// between them, shown through the formats with the keys "days" and "day".
// A window only shows the two pickers and the text.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "datetime/Instant.h"

class LumDayCalculator {
 public:
  // Answers the localized format of a key ("days", "day"); each format has
  // one integer placeholder. Empty functions give English.
  using FormatLookup = std::function<std::string(std::string_view key)>;

  // English: "%lu days" and "%lu day".
  static std::string englishFormat(std::string_view key);

  // Whole days between two instants in either order; a partial day does
  // not count.
  static std::uint64_t dayCount(const Instant& a, const Instant& b);
  // "day" for exactly one day, "days" otherwise (0 too).
  static std::string_view formatKey(std::uint64_t days);
  // The format of formatKey(days) filled with days.
  static std::string dayCountText(std::uint64_t days, const FormatLookup& lookup = {});

  // Today's date (in the local zone) at 00:00:00 GMT, as the pickers start.
  static Instant todayInGMT(const Instant& now);

  // The initial state: both dates today, the text for 0 days.
  explicit LumDayCalculator(const Instant& now = Instant::now(), FormatLookup lookup = {});

  const Instant& date1() const { return date1_; }
  const Instant& date2() const { return date2_; }
  // Each date is kept inside 0001-01-01 00:00:00 .. 9999-12-31 23:59:59
  // UTC, like the pickers' limits; setting one recomputes the text.
  void setDate1(const Instant& date);
  void setDate2(const Instant& date);
  const std::string& days() const { return days_; }
  void calculate();

 private:
  Instant date1_, date2_;
  std::string days_;
  FormatLookup lookup_;
};
