#pragma once
// The GPS time of day of a GPSTimeStamp entry: hour, minute and second with
// its fraction, each of which may be absent.

#include <cstdint>
#include <optional>
#include <string>

class OrbIFDEntry;

class OrbIFDTimeStamp {
 public:
  OrbIFDTimeStamp() = default;

  // The time of day of a GPSTimeStamp entry (see OrbIFDEntry::GPSTimeStamp);
  // nullopt when there is no entry.
  static std::optional<OrbIFDTimeStamp> timeStampWithEntry(const OrbIFDEntry* entry);

  std::optional<std::uint64_t> hour() const { return hour_; }
  void setHour(std::optional<std::uint64_t> hour) { hour_ = hour; }
  std::optional<std::uint64_t> minute() const { return minute_; }
  void setMinute(std::optional<std::uint64_t> minute) { minute_ = minute; }
  std::optional<float> second() const { return second_; }
  void setSecond(std::optional<float> second) { second_ = second; }

  // The second rounded down; nullopt without a second.
  std::optional<std::int64_t> secondWithoutSub() const;
  // The hundredths of the second as "00.00" shows them; nullopt without a second.
  std::optional<std::int64_t> subSecond() const;
  // "13:05:07.25"; an absent part counts as 0.
  std::string stringValue() const;

 private:
  std::optional<std::uint64_t> hour_;
  std::optional<std::uint64_t> minute_;
  std::optional<float> second_;
};
