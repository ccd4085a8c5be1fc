#pragma once
// A point in time: whole seconds since 1970-01-01 00:00:00 UTC plus
// nanoseconds. 64-bit nanoseconds since 1970 would overflow after 292 years,
// and photo dates reach from 1 BC to 9999, so seconds and the fraction are
// kept apart.

#include <compare>
#include <cstdint>

struct Instant {
  std::int64_t seconds = 0;      // since 1970-01-01 00:00:00 UTC
  std::int32_t nanoseconds = 0;  // [0, 999'999'999]

  friend constexpr auto operator<=>(const Instant&, const Instant&) = default;

  // The current time of the system clock.
  static Instant now();
};

// Instants built by this layer stay inside astronomical years
// -999'999 .. 999'999, which keeps every sum of calendar fields far from
// 64-bit overflow. Builders refuse anything outside.
inline constexpr std::int64_t kInstantMinSeconds = -31'619'087'596'800;  // -999999-01-01 00:00:00
inline constexpr std::int64_t kInstantMaxSeconds = 31'494'784'780'799;   // 999999-12-31 23:59:59
