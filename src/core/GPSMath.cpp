#include "core/GPSMath.h"

#include <cmath>
#include <cstdio>

#include "core/FixedNumberFormat.h"

namespace orb::gps {

namespace {
double ratio(const OrbRational& r) { return static_cast<double>(r.numerator) / r.denominator; }
}  // namespace

double totalSeconds(const Triple& r) {
  double s = 0;
  if (r[0].denominator != 0) s = ratio(r[0]) * 3600;
  if (r[1].denominator != 0) {
    // Whole minutes and their fraction are added separately; the order of
    // the additions decides the last bit of the result.
    const double m = ratio(r[1]);
    s = (m - std::floor(m)) * 60 + (std::floor(m) * 60 + s);
  }
  if (r[2].denominator != 0) s += ratio(r[2]);
  return s;
}

double decimalDegrees(const Triple& r) {
  double d = 0;
  if (r[0].denominator != 0) d = ratio(r[0]);
  if (r[1].denominator != 0) d += ratio(r[1]) / 60;
  if (r[2].denominator != 0) d += ratio(r[2]) / 3600;
  return d;
}

std::optional<WholeDegrees> splitDegrees(const Triple& r, double limitSeconds) {
  const double s = totalSeconds(r);
  if (!(s <= limitSeconds)) return std::nullopt;
  const auto degrees = static_cast<std::uint32_t>(s / 3600);
  return WholeDegrees{degrees, (s - degrees * 3600.0) / 3600};
}

std::string degreesMinutesSeconds(double degrees) {
  // Hundredths of a second of arc, so rounding can never show 60 seconds.
  const std::uint64_t hundredths = truncatedUInt64(std::round(std::fabs(degrees) * 360000));
  char text[96];
  std::snprintf(text, sizeof text, "%llu\u00B0 %llu' %llu.%02llu\"", static_cast<unsigned long long>(hundredths / 360000),
                static_cast<unsigned long long>(hundredths % 360000 / 6000),
                static_cast<unsigned long long>(hundredths % 6000 / 100),
                static_cast<unsigned long long>(hundredths % 100));
  return text;
}

}  // namespace orb::gps
