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
  // Zone rules change at most once within a day or so: the offsets a day
  // before and after the wall time (read as UTC) are the candidates.
  std::optional<std::int64_t> offsets[3];
  for (int i = 0; i < 3; ++i) {
    offsets[i] = secondsFromGMT(wallSeconds + (i - 1) * 86400);
    if (!offsets[i]) return std::nullopt;
  }
  std::optional<std::int64_t> latest;
  std::int64_t smallestOffset = *offsets[0];
  for (int i = 0; i < 3; ++i) {
    const auto& offset = offsets[i];
    smallestOffset = std::min(smallestOffset, *offset);
    if (i > 0 && (*offset == *offsets[0] || *offset == *offsets[i - 1])) continue;  // already tried
    const std::int64_t candidate = wallSeconds - *offset;
    const auto actual = secondsFromGMT(candidate);
    if (actual && *actual == *offset) latest = latest ? std::max(*latest, candidate) : candidate;
  }
  if (latest) return latest;
  // In a gap the offset before the change is the smaller one; using it
  // lands after the gap, as a clock that was not set forward would read.
  return wallSeconds - smallestOffset;
}
