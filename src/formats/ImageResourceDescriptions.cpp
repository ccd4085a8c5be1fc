#include "formats/ImageResourceDescriptions.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdio>

#include "core/ByteView.h"
#include "core/Localization.h"
#include "core/LocalizationKeys.h"
#include "formats/RecordText.h"

namespace ImageResourceDescriptions {
namespace {

using orb::ByteView;
using Text = std::optional<std::string>;

// printf-style formatting into a string of whatever length the result has
// (a slice name, for one, can be long).
template <typename... Args>
std::string format(const char* pattern, Args... args) {
  const int n = std::snprintf(nullptr, 0, pattern, args...);
  if (n <= 0) return {};
  std::string out(static_cast<std::size_t>(n) + 1, '\0');
  std::snprintf(out.data(), out.size(), pattern, args...);
  out.pop_back();
  return out;
}

std::string yesNo(std::uint8_t flag) { return flag ? "YES" : "NO"; }

// The shortest text that reads back as the same number ("72", "0.5").
template <typename Number>
std::string number(Number value) {
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}

// 16.16 fixed-point resolution.
std::string fixed(std::uint32_t value) { return number(static_cast<double>(value) / 65536.0); }

std::string resolutionUnit(std::uint16_t code) {
  if (code == 1) return "ppi";
  if (code == 2) return "ppc";
  return format("-%d", code);
}

std::string displayUnit(std::uint16_t code) {
  static constexpr const char* kWords[] = {"inches", "cm", "points", "picas", "columns"};
  if (code >= 1 && code <= 5) return kWords[code - 1];
  return format("%d", code);
}

Text resolutionInfo(ByteView d) {
  const auto hRes = d.u32(0), vRes = d.u32(8);
  const auto hUnit = d.u16(4), width = d.u16(6), vUnit = d.u16(12), height = d.u16(14);
  if (!hRes || !vRes || !hUnit || !width || !vUnit || !height) return std::nullopt;
  return fixed(*hRes) + resolutionUnit(*hUnit) + " x " + fixed(*vRes) + resolutionUnit(*vUnit) +
         ", Display width as " + displayUnit(*width) + ", height as " + displayUnit(*height);
}

Text printFlags(ByteView d) {
  if (d.size() < 8) return std::nullopt;
  const std::uint8_t* f = d.data();
  std::string out = "Labels:" + yesNo(f[0]) + ", Crop Marks:" + yesNo(f[1]) + ", Color Bars:" + yesNo(f[2]) +
                    ", Registration Marks:" + yesNo(f[3]) + ", Negative:" + yesNo(f[4]) + ", Flip:" + yesNo(f[5]) +
                    ", Interpolate:" + yesNo(f[6]) + ", Caption:" + yesNo(f[7]);
  if (d.size() > 8) out += ", Print Flags:" + yesNo(f[8]);
  return out;
}

Text printFlagsInfo(ByteView d) {
  const auto version = d.u16(0);
  const auto centerCropMarks = d.u8(2);
  const auto bleedWidth = d.u32(4);
  const auto scale = d.u16(8);
  if (!version || !centerCropMarks || !bleedWidth || !scale) return std::nullopt;
  return format("[Version: %d] [Center Crop Marks: %s] [Bleed Width: %d, Scale %d]", *version,
                yesNo(*centerCropMarks).c_str(), static_cast<int>(*bleedWidth), *scale);
}

std::string colorSpace(std::uint16_t code) {
  static constexpr const char* kNames[] = {"RGB",  "HSB", "CMYK", "Pantone",   "Focoltone", "Trumatch",
                                           "Toyo", "Lab", "Gray", "WideCMYK", "HKS"};
  if (code < std::size(kNames)) return kNames[code];
  return format("%u", code);
}

Text color(ByteView d) {
  const auto space = d.u16(0), c1 = d.u16(2), c2 = d.u16(4), c3 = d.u16(6), c4 = d.u16(8);
  if (!space || !c1 || !c2 || !c3 || !c4) return std::nullopt;
  return format("%s <%u, %u, %u, %u>", colorSpace(*space).c_str(), *c1, *c2, *c3, *c4);
}

Text gridAndGuides(ByteView d) {
  const auto version = d.u32(0), count = d.u32(12);
  const auto cycles = d.bytes(4, 8);
  if (!version || !count || !cycles) return std::nullopt;
  const auto& c = *cycles;
  return format("[Version: %u]  [Grid Cycle: 0x%X%X%X%X 0x%X%X%X%X]  [Guide Count: %u]", *version, c[0], c[1], c[2],
                c[3], c[4], c[5], c[6], c[7], *count);
}

std::string characters(ByteView d) {
  return std::string(reinterpret_cast<const char*>(d.data()), d.size());
}

Text unsigned32(ByteView d) {
  const auto value = d.u32(0);
  if (!value) return std::nullopt;
  return format("%u", *value);
}

void appendUTF8(std::string& out, std::uint32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// A Photoshop Unicode string: a 32-bit count of UTF-16 units, then the units
// (big-endian). Answers the text as UTF-8 and moves `at` past it; a lone
// surrogate becomes U+FFFD and a terminating zero unit is dropped.
std::optional<std::string> unicodeString(ByteView d, std::uint64_t& at) {
  const auto count = d.u32(at);
  if (!count) return std::nullopt;
  const std::uint64_t size = static_cast<std::uint64_t>(*count) * 2;
  const auto units = d.sub(at + 4, size);
  if (!units) return std::nullopt;
  at += 4 + size;
  std::string out;
  for (std::uint64_t i = 0; i < size; i += 2) {
    std::uint32_t c = *units->u16(i);
    if (c == 0) continue;
    if (c >= 0xD800 && c < 0xDC00) {
      const auto low = units->u16(i + 2);
      if (low && *low >= 0xDC00 && *low < 0xE000) {
        c = 0x10000 + ((c - 0xD800) << 10) + (*low - 0xDC00);
        i += 2;
      } else {
        c = 0xFFFD;
      }
    } else if (c >= 0xDC00 && c < 0xE000) {
      c = 0xFFFD;
    }
    appendUTF8(out, c);
  }
  return out;
}

Text slices(ByteView d) {
  const auto version = d.u32(0);
  if (!version) return std::nullopt;
  const auto top = d.u32(4), left = d.u32(8), bottom = d.u32(12), right = d.u32(16);
  std::uint64_t at = 20;
  const auto name = unicodeString(d, at);
  const auto count = name ? d.u32(at) : std::nullopt;
  if (*version != 6 || !top || !left || !bottom || !right || !count) return format("[Version: %u]", *version);
  return format("[Version: %u] [Top: %u Left: %u Bottom: %u Right: %u] [%s] [Slices Count: %u]", *version, *top, *left,
                *bottom, *right, name->c_str(), *count);
}

Text versionInfo(ByteView d) {
  const auto version = d.u32(0);
  const auto merged = d.u8(4);
  std::uint64_t at = 5;
  const auto writer = unicodeString(d, at);
  const auto reader = writer ? unicodeString(d, at) : std::nullopt;
  const auto fileVersion = reader ? d.u32(at) : std::nullopt;
  if (!version || !merged || !fileVersion) return std::nullopt;
  return format("[Version: %u] [Has Real Merged Data: %s] [Writer: %s] [Reader: %s] [File Version: %u]", *version,
                yesNo(*merged).c_str(), writer->c_str(), reader->c_str(), *fileVersion);
}

Text captionDigest(ByteView d) {
  std::string out;
  for (std::size_t i = 0; i < d.size(); ++i) out += format("%.2X", d.data()[i]);
  return out;
}

std::string printStyle(std::uint16_t style) {
  static constexpr const char* kWords[] = {"Centered", "Size to Fit", "User Defined"};
  if (style < std::size(kWords)) return kWords[style];
  return format("%u", style);
}

Text printScale(ByteView d) {
  const auto style = d.u16(0);
  const auto x = d.u32(2), y = d.u32(6), scale = d.u32(10);
  if (!style || !x || !y || !scale) return std::nullopt;
  return "[Style: " + printStyle(*style) + "] [Location: " + number(std::bit_cast<float>(*x)) + ", " +
         number(std::bit_cast<float>(*y)) + "] [Scale: " + number(std::bit_cast<float>(*scale)) + "]";
}

Text pixelAspectRatio(ByteView d) {
  const auto version = d.u32(0);
  const auto ratio = d.u64(4);
  if (!version || !ratio) return std::nullopt;
  return format("[Version: %d] [Aspect Ratio: %.1f]", static_cast<int>(*version), std::bit_cast<double>(*ratio));
}

Text layerSelectionIDs(ByteView d) {
  const auto count = d.u16(0);
  if (!count || !d.contains(2, static_cast<std::uint64_t>(*count) * 4)) return std::nullopt;
  std::string out = format("ID Count %u:", *count);
  for (unsigned i = 0; i < *count; ++i) out += format(i == 0 ? " ID %u" : ", %u", *d.u32(2 + i * 4ull));
  return out;
}

Text layout(std::uint16_t irbID, ByteView d) {
  switch (irbID) {
    case 1005: return resolutionInfo(d);
    case 1010: return color(d);
    case 1011: return printFlags(d);
    case 1024: {
      const auto index = d.u16(0);
      if (!index) return std::nullopt;
      return format("Index of target layer: %u", *index);
    }
    case 1028: {
      using Localization::keys::kIPTCInformationInterchangeModel;
      return Localization::localizedString(Localization::kIPTCTable, kIPTCInformationInterchangeModel);
    }
    case 1032: return gridAndGuides(d);
    case 1034: {
      const auto flag = d.u8(0);
      if (!flag) return std::nullopt;
      return yesNo(*flag);
    }
    case 1035: return d.empty() ? std::nullopt : Text(characters(d));
    case 1037: {
      const auto angle = d.u32(0);
      if (!angle) return std::nullopt;
      return format("%d", static_cast<int>(*angle));
    }
    case 1041: return d.empty() ? std::nullopt : Text("Intentionally Untagged");
    case 1044:
    case 1049: return unsigned32(d);
    case 1050: return slices(d);
    case 1054: {
      const auto count = d.u32(0);
      if (!count) return std::nullopt;
      return format("List Count: %d", static_cast<int>(*count));
    }
    case 1057: return versionInfo(d);
    case 1061: return d.empty() ? std::nullopt : captionDigest(d);
    case 1062: return printScale(d);
    case 1064: return pixelAspectRatio(d);
    case 1069: return layerSelectionIDs(d);
    case 10000: return printFlagsInfo(d);
    default: return std::nullopt;
  }
}

}  // namespace

std::string nameAndSize(const std::optional<std::string>& name, std::size_t size) {
  // The separator comes whether or not a name was written before it.
  std::string out;
  if (name) out = "Name: " + *name;
  out += ", ";
  return out + (size == 1 ? std::string("Data size: 1 byte") : format("Data size: %zu bytes", size));
}

std::string describe(std::uint16_t irbID, const std::optional<std::string>& name, std::span<const std::uint8_t> data) {
  if (auto text = layout(irbID, ByteView(data))) return *text;
  return nameAndSize(name, data.size());
}

}  // namespace ImageResourceDescriptions
