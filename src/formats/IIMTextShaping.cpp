#include "formats/IIMTextShaping.h"

#include <string_view>
#include <vector>

namespace IIMTextShaping {
namespace {

// The text split into characters (UTF-8 sequences), so that lengths and
// positions count characters as the IIM formats define them, not bytes.
std::vector<std::string> characters(const std::string& text) {
  std::vector<std::string> out;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i]);
    std::size_t width = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    if (i + width > text.size()) width = text.size() - i;
    out.push_back(text.substr(i, width));
    i += width;
  }
  return out;
}

std::string join(const std::vector<std::string>& chars, std::size_t from, std::size_t count) {
  std::string out;
  for (std::size_t i = from; i < from + count && i < chars.size(); ++i) out += chars[i];
  return out;
}

bool isDate(std::uint8_t record, std::uint8_t dataSet) {
  if (record == 1) return dataSet == 70;
  return record == 2 && (dataSet == 30 || dataSet == 37 || dataSet == 47 || dataSet == 55 || dataSet == 62);
}

bool isTime(std::uint8_t record, std::uint8_t dataSet) {
  if (record == 1) return dataSet == 80;
  return record == 2 && (dataSet == 35 || dataSet == 38 || dataSet == 60 || dataSet == 63);
}

// CCYYMMDD -> CCYY-MM-DD.
std::string date(const std::string& text) {
  const auto c = characters(text);
  if (c.size() != 8) return text;
  return join(c, 0, 4) + "-" + join(c, 4, 2) + "-" + join(c, 6, 2);
}

// HHMMSS -> HH:MM:SS; HHMMSS+HHMM -> HH:MM:SS +HH:MM.
std::string time(const std::string& text) {
  const auto c = characters(text);
  if (c.size() != 6 && c.size() != 11) return text;
  std::string out = join(c, 0, 2) + ":" + join(c, 2, 2) + ":" + join(c, 4, 2);
  if (c.size() == 11) out += " " + join(c, 6, 3) + ":" + join(c, 9, 2);
  return out;
}

struct Word {
  std::string_view code;
  std::string_view word;
};

constexpr Word kActionAdvised[] = {
    {"01", "Object Kill"}, {"02", "Object Replace"}, {"03", "Object Append"}, {"04", "Object Reference"}};
constexpr Word kObjectCycle[] = {{"a", "Morning"}, {"p", "Evening"}, {"b", "Morning and Evening"}};
constexpr Word kImageOrientation[] = {{"L", "Landscape"}, {"P", "Portrait"}, {"S", "Square"}};
constexpr Word kAudioChannels[] = {{"0", "No Object Data"}, {"1", "Monaural"}, {"2", "Stereo"}};
constexpr Word kAudioContent[] = {
    {"A", "Actuality"}, {"C", "Question and answer session"}, {"M", "Music, transmitted by itself"},
    {"Q", "Response to a question"}, {"R", "Raw sound"}, {"S", "Scener"},
    {"T", "Text only"}, {"V", "Voicer"}, {"W", "Wrap"}};

template <std::size_t N>
std::string wordFor(const Word (&table)[N], const std::string& code) {
  for (const Word& row : table)
    if (row.code == code) return std::string(row.word);
  return code;
}

// Two characters: channel code, then content code, each as its word.
std::string audioType(const std::string& text) {
  const auto c = characters(text);
  if (c.size() != 2) return text;
  return wordFor(kAudioChannels, c[0]) + " - " + wordFor(kAudioContent, c[1]);
}

// The leading decimal digits as a number (0 when there are none).
unsigned leadingNumber(const std::string& text) {
  unsigned value = 0;
  for (char ch : text) {
    if (ch < '0' || ch > '9') break;
    value = value * 10 + static_cast<unsigned>(ch - '0');
  }
  return value;
}

// Unique Name of Object: an 8-character date, then provider:object:version.
std::string uno(const std::string& text) {
  const auto c = characters(text);
  if (c.size() < 8) return text;
  const std::string rest = join(c, 8, c.size() - 8);
  const auto first = rest.find(':');
  if (first == std::string::npos) return text;
  const auto second = rest.find(':', first + 1);
  if (second == std::string::npos) return text;
  return "[" + join(c, 0, 8) + "] [" + rest.substr(0, first) + "] [" +
         rest.substr(first + 1, second - first - 1) + "] [" + rest.substr(second + 1) + "]";
}

}  // namespace

std::optional<std::string> shapeBinary(std::uint8_t record, std::uint8_t dataSet, std::span<const std::uint8_t> data) {
  if (record != 3) return std::nullopt;
  // 3:130, one octet: whether values beyond the end points may occur.
  if (dataSet == 130 && data.size() == 1) return std::string(data[0] ? "Allowed" : "Not Allowed");
  // 3:135, one octet per component; the usual three components as numbers.
  if (dataSet == 135 && data.size() == 3)
    return std::to_string(data[0]) + ", " + std::to_string(data[1]) + ", " + std::to_string(data[2]);
  return std::nullopt;
}

std::string shape(std::uint8_t record, std::uint8_t dataSet, const std::string& text) {
  if (isDate(record, dataSet)) return date(text);
  if (isTime(record, dataSet)) return time(text);
  if (record == 1 && dataSet == 100) return uno(text);
  if (record != 2) return text;
  switch (dataSet) {
    case 42: return wordFor(kActionAdvised, text);
    case 75: return wordFor(kObjectCycle, text);
    case 131: return wordFor(kImageOrientation, text);
    case 150: return audioType(text);
    case 151: return std::to_string(leadingNumber(text)) + " Hz";
    case 152: return std::to_string(leadingNumber(text)) + " bits";
    case 153: {
      const auto c = characters(text);
      return c.size() == 6 ? join(c, 0, 2) + ":" + join(c, 2, 2) + ":" + join(c, 4, 2) : text;
    }
    default: return text;
  }
}

}  // namespace IIMTextShaping
