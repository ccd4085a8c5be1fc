#include "core/OrbDataObject.h"

#include <charconv>
#include <cmath>

namespace {

// Shortest text that reads back as the same number; a value that is exactly
// a single-precision float is printed as that float, so 0.1f shows as 0.1.
std::string decimalText(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  char buffer[64];
  std::to_chars_result result;
  const auto asFloat = static_cast<float>(value);
  if (static_cast<double>(asFloat) == value)
    result = std::to_chars(buffer, buffer + sizeof buffer, asFloat);
  else
    result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

}  // namespace

const std::string& OrbDataObject::text() const {
  static const std::string empty;
  if (const auto* s = std::get_if<std::string>(&value_)) return *s;
  return empty;
}

double OrbDataObject::doubleValue() const {
  if (const auto* v = std::get_if<std::int64_t>(&value_)) return static_cast<double>(*v);
  if (const auto* v = std::get_if<std::uint64_t>(&value_)) return static_cast<double>(*v);
  if (const auto* v = std::get_if<double>(&value_)) return *v;
  return 0;
}

std::string OrbDataObject::stringValue() const {
  struct Visitor {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(const std::string& s) const { return s; }
    std::string operator()(std::int64_t v) const { return std::to_string(v); }
    std::string operator()(std::uint64_t v) const { return std::to_string(v); }
    std::string operator()(double v) const { return decimalText(v); }
    std::string operator()(const OrbTimeStampObject& t) const { return t.stringValue; }
  };
  return std::visit(Visitor{}, value_);
}
