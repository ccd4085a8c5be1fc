#include "core/OrbIFDTimeStamp.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "core/FixedNumberFormat.h"
#include "core/OrbIFDEntry.h"

std::optional<OrbIFDTimeStamp> OrbIFDTimeStamp::timeStampWithEntry(const OrbIFDEntry* entry) {
  if (!entry) return std::nullopt;
  const double t = entry->GPSTimeStamp();
  const std::uint64_t whole = orb::truncatedUInt64(t);
  const std::uint64_t hour = whole / 3600;
  const std::uint64_t minute = (whole - hour * 3600) / 60;
  OrbIFDTimeStamp stamp;
  stamp.hour_ = hour;
  stamp.minute_ = minute;
  stamp.second_ = static_cast<float>(static_cast<double>(whole - hour * 3600 - minute * 60) + (t - static_cast<double>(whole)));
  return stamp;
}

std::optional<std::int64_t> OrbIFDTimeStamp::secondWithoutSub() const {
  if (!second_) return std::nullopt;
  return orb::truncatedInt64(std::floor(*second_));
}

std::optional<std::int64_t> OrbIFDTimeStamp::subSecond() const {
  if (!second_) return std::nullopt;
  const std::string text = orb::formatFixed(*second_, 2, 2);
  const auto dot = text.find('.');
  if (dot == std::string::npos || text.find('.', dot + 1) != std::string::npos) return std::nullopt;
  return std::strtoll(text.c_str() + dot + 1, nullptr, 10);
}

std::string OrbIFDTimeStamp::stringValue() const {
  const auto part = [](auto v) { return static_cast<long>(v.value_or(0)); };
  const long second = second_ ? static_cast<long>(orb::truncatedInt64(*second_)) : 0;
  char text[96];
  std::snprintf(text, sizeof text, "%.2ld:%.2ld:%.2ld.%.2ld", part(hour_), part(minute_), second, part(subSecond()));
  return text;
}
