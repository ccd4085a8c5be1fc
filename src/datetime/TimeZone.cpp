#include "datetime/TimeZone.h"

#include <algorithm>
#include <ctime>

std::optional<std::int64_t> TimeZone::secondsFromGMT(std::int64_t utcSeconds) const {
  if (!local_) return offset_;
  const auto t = static_cast<std::time_t>(utcSeconds);
  std::tm fields{};
  if (localtime_r(&t, &fields) == nullptr) return std::nullopt;
  return static_cast<std::int64_t>(fields.tm_gmtoff);
}

std::optional<std::int64_t> TimeZone::utcFromWall(std::int64_t wallSeconds) const {
  if (!local_) return wallSeconds - offset_;
  // Two guesses cover both offsets around any single transition: the offset
  // at the wall time read as UTC, and the offset at the first guess.
  const auto first = secondsFromGMT(wallSeconds);
  if (!first) return std::nullopt;
  const auto second = secondsFromGMT(wallSeconds - *first);
  if (!second) return std::nullopt;

  std::optional<std::int64_t> earliest;
  for (std::int64_t offset : {*first, *second}) {
    const std::int64_t candidate = wallSeconds - offset;
    const auto actual = secondsFromGMT(candidate);
    if (actual && *actual == offset) earliest = earliest ? std::min(*earliest, candidate) : candidate;
  }
  if (earliest) return earliest;
  // In a gap the offset before the change is the smaller one; using it
  // lands after the gap, as a clock that was not set forward would read.
  return wallSeconds - std::min(*first, *second);
}
