// Display objects of entries whose meaning the catalogue knows: words for
// coded values, GPS positions and times, and readable texts for exposure,
// lens and version values. Every other entry is shown by its field type.

#include <cmath>
#include <cstdio>
#include <vector>

#include "core/ByteView.h"
#include "core/CatalogueHooks.h"
#include "core/CodedWords.h"
#include "core/FixedNumberFormat.h"
#include "core/GPSMath.h"
#include "core/LocalizationKeys.h"
#include "core/OrbIFDEntry.h"
#include "core/OrbIFDTimeStamp.h"

namespace orb::catalogue {

namespace {

std::vector<std::uint16_t> shortValues(const OrbIFDEntry& e) {
  const auto bytes = e.valueBytes();
  const ByteView view(bytes);
  const ByteOrder order = e.isLittleEndian() ? ByteOrder::Little : ByteOrder::Big;
  std::vector<std::uint16_t> values;
  for (std::size_t at = 0; at + 2 <= bytes.size(); at += 2) values.push_back(view.u16(at, order).value_or(0));
  return values;
}

// The index-th rational of the value, nullopt when there is none or its
// denominator is 0 (those are shown by their type, "n/0").
std::optional<OrbRational> rationalAt(const OrbIFDEntry& e, std::uint64_t index) {
  const auto bytes = e.valueBytes();
  const ByteView view(bytes);
  const ByteOrder order = e.isLittleEndian() ? ByteOrder::Little : ByteOrder::Big;
  const auto n = view.u32(8 * index, order), d = view.u32(8 * index + 4, order);
  if (!n || !d || *d == 0) return std::nullopt;
  return OrbRational{*n, *d};
}

std::optional<OrbRational> firstRawRational(const OrbIFDEntry& e) { return rationalAt(e, 0); }

std::optional<double> firstRational(const OrbIFDEntry& e, bool isSigned) {
  const auto r = firstRawRational(e);
  if (!r) return std::nullopt;
  if (isSigned)
    return static_cast<double>(static_cast<std::int32_t>(r->numerator)) / static_cast<std::int32_t>(r->denominator);
  return static_cast<double>(r->numerator) / r->denominator;
}

// 1/250 s for short exposures that are whole fractions, 2.5 s for long ones.
std::optional<std::string> exposureTimeText(const OrbIFDEntry& e) {
  const auto r = firstRawRational(e);
  if (!r) return std::nullopt;
  if (r->numerator != 0 && r->numerator < r->denominator) {
    if (r->denominator % r->numerator == 0) return "1/" + std::to_string(r->denominator / r->numerator) + " s";
    const double inverse = static_cast<double>(r->denominator) / r->numerator;
    if (inverse >= 2) return "1/" + formatShortDecimal(inverse, 1) + " s";
  }
  return formatShortDecimal(static_cast<double>(r->numerator) / r->denominator, 4) + " s";
}

std::optional<std::string> withUnit(std::optional<double> value, int digits, const char* prefix, const char* unit) {
  if (!value) return std::nullopt;
  return prefix + formatShortDecimal(*value, digits) + unit;
}

std::optional<std::string> exposureBiasText(const OrbIFDEntry& e) {
  const auto value = firstRational(e, e.type() == kOrbTypeSRational);
  if (!value) return std::nullopt;
  const std::string number = formatShortDecimal(*value, 2);
  return (*value > 0 ? "+" : "") + number + " EV";
}

std::optional<std::string> subjectDistanceText(const OrbIFDEntry& e) {
  const auto r = firstRawRational(e);
  if (!r) return std::nullopt;
  if (r->numerator == 0xFFFFFFFFu) return "Infinity";
  return formatShortDecimal(static_cast<double>(r->numerator) / r->denominator, 2) + " m";
}

// "24-70mm F2.8-4" from the lens's shortest and longest focal lengths and
// the smallest F-numbers at each; a range whose ends agree is one number,
// an unknown value (0/0) is "?".
std::optional<std::string> lensSpecificationText(const OrbIFDEntry& e) {
  if (e.dataCount() != 4) return std::nullopt;
  const auto part = [&](std::uint64_t i) {
    const auto r = rationalAt(e, i);
    return r ? formatShortDecimal(static_cast<double>(r->numerator) / r->denominator, 1) : std::string("?");
  };
  const auto range = [](const std::string& a, const std::string& b) { return a == b ? a : a + "-" + b; };
  return range(part(0), part(1)) + "mm F" + range(part(2), part(3));
}

// The subject as a point, a circle or a rectangle, by the number of values.
std::optional<std::string> subjectAreaText(const OrbIFDEntry& e) {
  const std::vector<std::uint16_t> v = shortValues(e);
  if (v.size() < 2 || v.size() > 4) return std::nullopt;
  std::string text = "Center Coordinates (" + std::to_string(v[0]) + ", " + std::to_string(v[1]) + ")";
  if (v.size() == 3) text += ", Diameter " + std::to_string(v[2]);
  if (v.size() == 4) text += ", Area Size " + std::to_string(v[2]) + " x " + std::to_string(v[3]);
  return text;
}

// "0231" is version 2.31; anything that is not four digits is left alone.
std::optional<std::string> fourDigitVersionText(const OrbIFDEntry& e) {
  const auto bytes = e.valueBytes();
  if (bytes.size() != 4) return std::nullopt;
  for (const std::uint8_t b : bytes)
    if (b < '0' || b > '9') return std::nullopt;
  std::string text;
  if (bytes[0] != '0') text += static_cast<char>(bytes[0]);
  text += static_cast<char>(bytes[1]);
  text += '.';
  text += static_cast<char>(bytes[2]);
  text += static_cast<char>(bytes[3]);
  return text;
}

// The channels of each pixel in order: 1 2 3 0 is "YCbCr", 4 5 6 0 "RGB".
std::optional<std::string> componentsText(const OrbIFDEntry& e) {
  static constexpr const char* kNames[] = {"", "Y", "Cb", "Cr", "R", "G", "B"};
  std::string text;
  for (const std::uint8_t b : e.valueBytes()) {
    if (b >= std::size(kNames)) return std::nullopt;
    text += kNames[b];
  }
  return text.empty() ? std::nullopt : std::optional(text);
}

// A one-byte UNDEFINED code (FileSource, SceneType) named like its SHORT form.
std::optional<std::string> undefinedCodeText(const OrbIFDEntry& e) {
  const auto bytes = e.valueBytes();
  if (bytes.size() != 1) return std::nullopt;
  const std::uint16_t value[] = {bytes[0]};
  return codedwords::wordFor(kExifIFDID, e.ifdTag(), value, e.version());
}

std::optional<OrbDataObject> exifText(const OrbIFDEntry& e) {
  std::optional<std::string> text;
  switch (e.ifdTag()) {
    case 0x829A: if (e.type() == kOrbTypeRational) text = exposureTimeText(e); break;
    case 0x829D: if (e.type() == kOrbTypeRational) text = withUnit(firstRational(e, false), 1, "f/", ""); break;
    case 0x920A: if (e.type() == kOrbTypeRational) text = withUnit(firstRational(e, false), 1, "", " mm"); break;
    case 0xA405:
      if (e.type() == kOrbTypeShort && e.dataCount() == 1) text = std::to_string(e.shortData1()) + " mm";
      break;
    case 0x9204:
      if (e.type() == kOrbTypeSRational || e.type() == kOrbTypeRational) text = exposureBiasText(e);
      break;
    case 0x9206: if (e.type() == kOrbTypeRational) text = subjectDistanceText(e); break;
    case 0x9000: case 0xA000: if (e.type() == kOrbTypeUndefined) text = fourDigitVersionText(e); break;
    case 0x9101: if (e.type() == kOrbTypeUndefined) text = componentsText(e); break;
    case 0xA432: if (e.type() == kOrbTypeRational) text = lensSpecificationText(e); break;
    case 0x9214: case 0xA214: if (e.type() == kOrbTypeShort) text = subjectAreaText(e); break;
    case 0xA300: case 0xA301: if (e.type() == kOrbTypeUndefined) text = undefinedCodeText(e); break;
    default: break;
  }
  if (!text) return std::nullopt;
  return OrbDataObject(std::move(*text));
}

std::optional<OrbDataObject> gpsText(const OrbIFDEntry& e) {
  switch (e.ifdTag()) {
    case 0: {
      const auto bytes = e.valueBytes();
      if (e.type() != kOrbTypeByte || bytes.size() != 4) return std::nullopt;
      char text[32];
      std::snprintf(text, sizeof text, "%u.%u.%u.%u", bytes[0], bytes[1], bytes[2], bytes[3]);
      return OrbDataObject(text);
    }
    case 2: case 4: case 20: case 22:
      if (e.type() != kOrbTypeRational || e.dataCount() != 3) return std::nullopt;
      return OrbDataObject(gps::degreesMinutesSeconds(e.GPSDegree()));
    case 5: {
      const auto bytes = e.valueBytes();
      if (bytes.size() != 1 || bytes[0] > 1) return std::nullopt;
      return OrbDataObject(std::string(bytes[0] == 0 ? Localization::keys::kAboveSeaLevelReference
                                                      : Localization::keys::kBelowSeaLevelReference));
    }
    case 6:
      if (e.type() != kOrbTypeRational) return std::nullopt;
      if (const auto text = withUnit(firstRational(e, false), 2, "", " m")) return OrbDataObject(*text);
      return std::nullopt;
    case 7:
      if (e.dataCount() != 3 || e.type() != kOrbTypeRational) return std::nullopt;
      return OrbDataObject(OrbTimeStampObject{OrbIFDTimeStamp::timeStampWithEntry(&e)->stringValue()});
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<OrbDataObject> entryDataObject(const OrbIFDEntry& entry) {
  if (entry.type() == kOrbTypeShort && codedwords::isCoded(entry.ifdID(), entry.ifdTag())) {
    if (auto word = codedwords::wordFor(entry.ifdID(), entry.ifdTag(), shortValues(entry), entry.version()))
      return OrbDataObject(std::move(*word));
    return std::nullopt;
  }
  if (entry.ifdID() == kExifIFDID) return exifText(entry);
  if (entry.ifdID() == kGPSIFDID) return gpsText(entry);
  if (entry.ifdID() == kInteroperabilityIFDID && entry.ifdTag() == 2 && entry.type() == kOrbTypeUndefined)
    if (const auto text = fourDigitVersionText(entry)) return OrbDataObject(*text);
  return std::nullopt;
}

}  // namespace orb::catalogue
