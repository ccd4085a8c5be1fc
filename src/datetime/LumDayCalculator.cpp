#include "datetime/LumDayCalculator.h"

#include <algorithm>

#include "datetime/CivilCalendar.h"
#include "datetime/DateAdditions.h"

namespace {

constexpr Instant kMiniDate{-62'135'596'800, 0};  // 0001-01-01 00:00:00 UTC
constexpr Instant kMaxDate{253'402'300'799, 0};   // 9999-12-31 23:59:59 UTC

// Replaces the first integer placeholder (%d, %ld, %lu, %llu, %i, %u, %@)
// with the number. Translated formats are data, never handed to printf.
std::string fill(const std::string& format, std::uint64_t number) {
  for (std::size_t at = format.find('%'); at != std::string::npos; at = format.find('%', at + 1)) {
    std::size_t end = at + 1;
    while (end < format.size() && format[end] == 'l') ++end;
    if (end < format.size() && std::string_view("diu@").find(format[end]) != std::string_view::npos)
      return format.substr(0, at) + std::to_string(number) + format.substr(end + 1);
  }
  return format;
}

}  // namespace

std::string LumDayCalculator::englishFormat(std::string_view key) {
  return key == "day" ? "%lu day" : "%lu days";
}

std::uint64_t LumDayCalculator::dayCount(const Instant& a, const Instant& b) {
  const Instant& early = std::min(a, b);
  const Instant& late = std::max(a, b);
  // Unsigned arithmetic: the distance of any two 64-bit values fits.
  std::uint64_t seconds = static_cast<std::uint64_t>(late.seconds) - static_cast<std::uint64_t>(early.seconds);
  if (late.nanoseconds < early.nanoseconds) --seconds;  // borrow: not yet a whole second more
  return seconds / 86400;
}

std::string_view LumDayCalculator::formatKey(std::uint64_t days) { return days == 1 ? "day" : "days"; }

std::string LumDayCalculator::dayCountText(std::uint64_t days, const FormatLookup& lookup) {
  const std::string_view key = formatKey(days);
  return fill(lookup ? lookup(key) : englishFormat(key), days);
}

Instant LumDayCalculator::todayInGMT(const Instant& now) {
  // Today is the machine's own date; the pickers show it as a UTC date.
  const auto today = DateAdditions::wallClockIn(now, TimeZone::local(), TimeZone::gmt());
  if (!today) return kMiniDate;
  return {civil::floorDiv(today->seconds, 86400) * 86400, 0};
}

LumDayCalculator::LumDayCalculator(const Instant& now, FormatLookup lookup)
    : date1_(todayInGMT(now)), date2_(date1_), lookup_(std::move(lookup)) {
  calculate();
}

void LumDayCalculator::setDate1(const Instant& date) {
  date1_ = std::clamp(date, kMiniDate, kMaxDate);
  calculate();
}

void LumDayCalculator::setDate2(const Instant& date) {
  date2_ = std::clamp(date, kMiniDate, kMaxDate);
  calculate();
}

void LumDayCalculator::calculate() { days_ = dayCountText(dayCount(date1_, date2_), lookup_); }
