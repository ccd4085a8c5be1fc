#include "core/FixedNumberFormat.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace orb {

std::string formatFixed(double value, int integerDigits, int fractionDigits) {
  if (!std::isfinite(value)) return value != value ? "NaN" : (value < 0 ? "-Inf" : "Inf");
  // printf rounds the exact binary value, ties to even, always with ".".
  // The C library never groups digits for %f, whatever the locale says; the
  // decimal point could differ only under a setlocale() this program never makes.
  char text[400];
  const int width = integerDigits + (fractionDigits > 0 ? fractionDigits + 1 : 0) + (std::signbit(value) ? 1 : 0);
  std::snprintf(text, sizeof text, "%0*.*f", width, fractionDigits, value);
  return text;
}

std::string formatShortDecimal(double value, int maxFractionDigits) {
  std::string text = formatFixed(value, 1, maxFractionDigits);
  if (text.find('.') == std::string::npos) return text;
  while (!text.empty() && text.back() == '0') text.pop_back();
  if (!text.empty() && text.back() == '.') text.pop_back();
  if (text == "-0") text = "0";
  return text;
}

float leadingFloat(const std::string& text) {
  const char* start = text.c_str();
  char* end = nullptr;
  const float value = std::strtof(start, &end);
  return end == start || !std::isfinite(value) ? 0.0f : value;
}

std::int64_t truncatedInt64(double value) {
  if (value != value) return 0;
  if (value <= -9.2e18) return INT64_MIN;
  if (value >= 9.2e18) return INT64_MAX;
  return static_cast<std::int64_t>(value);
}

std::uint64_t truncatedUInt64(double value) {
  if (!(value > 0)) return 0;
  if (value >= 1.8e19) return UINT64_MAX;
  return static_cast<std::uint64_t>(value);
}

}  // namespace orb
