#pragma once
// The program-wide limits of date changes, read by every range check: the
// earliest and latest date a change may produce, and the limits of the three
// shared integer fields of interval counts (years; months, hours, minutes and
// seconds; days). The values themselves live with the date rules and the
// field limits; this header gives them their application-wide names.

#include "datetime/Instant.h"
#include "documents/DateTextRules.h"
#include "documents/FieldLimits.h"

namespace LumDateLimits {

// 0001-01-01 00:00:00 UTC and 9999-12-31 23:59:59 UTC.
constexpr Instant miniDate() { return DateTextRules::kMiniDate; }
constexpr Instant maxDate() { return DateTextRules::kMaxDate; }

constexpr bool isInRange(const Instant& date) { return date >= miniDate() && date <= maxDate(); }

// The three shared integer formatters: no fractions, minimum 0.
inline constexpr LumFieldLimit kYearFormatter = kOffsetFieldLimits[0];     // 0 ... 9999
inline constexpr LumFieldLimit kGeneralFormatter = kOffsetFieldLimits[1];  // 0 ... 99999
inline constexpr LumFieldLimit kDayFormatter = kOffsetFieldLimits[2];      // 0 ... 3652058

// Which formatter serves each interval count: years, months, days, hours,
// minutes, seconds.
inline constexpr LumFieldLimits kIntervalFieldLimits{{
    kYearFormatter, kGeneralFormatter, kDayFormatter, kGeneralFormatter, kGeneralFormatter, kGeneralFormatter,
}};

}  // namespace LumDateLimits
