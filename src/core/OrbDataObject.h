#pragma once
// The display object of an entry's value: nothing, a text, a number, or a
// GPS time of day. The inspector shows it; stringData() turns it into text.

#include <cstdint>
#include <string>
#include <variant>

// A GPS time of day as a display object; the text is what the inspector
// shows for it (for example 13:05:07.25).
struct OrbTimeStampObject {
  std::string stringValue;
  friend bool operator==(const OrbTimeStampObject&, const OrbTimeStampObject&) = default;
};

class OrbDataObject {
 public:
  using Value = std::variant<std::monostate, std::string, std::int64_t, std::uint64_t, double, OrbTimeStampObject>;

  OrbDataObject() = default;
  OrbDataObject(std::string text) : value_(std::move(text)) {}
  OrbDataObject(const char* text) : value_(std::string(text)) {}
  OrbDataObject(std::int64_t number) : value_(number) {}
  OrbDataObject(std::uint64_t number) : value_(number) {}
  OrbDataObject(double number) : value_(number) {}
  OrbDataObject(OrbTimeStampObject stamp) : value_(std::move(stamp)) {}

  bool isNone() const { return std::holds_alternative<std::monostate>(value_); }
  bool isText() const { return std::holds_alternative<std::string>(value_); }
  bool isNumber() const {
    return std::holds_alternative<std::int64_t>(value_) || std::holds_alternative<std::uint64_t>(value_) ||
           std::holds_alternative<double>(value_);
  }
  bool isTimeStamp() const { return std::holds_alternative<OrbTimeStampObject>(value_); }

  // The text of a text object; empty for any other kind.
  const std::string& text() const;
  // A number as a double (0 for anything else).
  double doubleValue() const;
  // Text as shown: a text as it is, a number in its shortest decimal form
  // (integers without a fraction), a time stamp by its stringValue, none empty.
  std::string stringValue() const;

  const Value& value() const { return value_; }
  friend bool operator==(const OrbDataObject&, const OrbDataObject&) = default;

 private:
  Value value_;
};
