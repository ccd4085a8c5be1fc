#pragma once
// A time zone: a fixed offset from GMT in whole seconds, or the local zone
// of the C library (TZ and its daylight-saving rules).

#include <cstdint>
#include <optional>

class TimeZone {
 public:
  static TimeZone local() { return TimeZone(true, 0); }
  static TimeZone gmt() { return TimeZone(false, 0); }
  static TimeZone withSecondsFromGMT(std::int64_t seconds) { return TimeZone(false, seconds); }

  bool isLocal() const { return local_; }

  // The offset in force at the given instant (seconds since 1970 UTC);
  // none when the C library cannot describe that instant.
  std::optional<std::int64_t> secondsFromGMT(std::int64_t utcSeconds) const;

  // The instant whose wall clock in this zone reads wallSeconds (wall-clock
  // fields counted as if they were UTC). A wall time that does not exist
  // (skipped by a daylight-saving change) moves forward by the size of the
  // gap; a wall time that occurs twice gives its later occurrence (after the
  // clocks went back), as common calendar libraries do.
  std::optional<std::int64_t> utcFromWall(std::int64_t wallSeconds) const;

  friend bool operator==(const TimeZone&, const TimeZone&) = default;

 private:
  TimeZone(bool local, std::int64_t offset) : local_(local), offset_(offset) {}
  bool local_;
  std::int64_t offset_;
};
