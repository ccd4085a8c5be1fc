#include "core/CodedWords.h"

#include <algorithm>
#include <cstdio>

#include "core/CodedWordTables.h"

namespace orb::codedwords {

namespace {

std::string fallbackText(Fallback fallback, std::uint16_t value) {
  char text[16];
  switch (fallback) {
    case Fallback::Empty: return {};
    case Fallback::Signed: std::snprintf(text, sizeof text, "%d", static_cast<int>(value)); break;
    case Fallback::Unsigned: std::snprintf(text, sizeof text, "%u", static_cast<unsigned>(value)); break;
  }
  return text;
}

std::string subSamplingText(std::span<const std::uint16_t> values) {
  const std::uint16_t h = values[0];
  const std::uint16_t v = values.size() > 1 ? values[1] : 0;
  for (const SubSamplingName& n : kSubSamplingNames)
    if (n.horizontal == h && n.vertical == v) return std::string(n.word);
  char text[32];
  std::snprintf(text, sizeof text, "(%u - %u)", static_cast<unsigned>(h), static_cast<unsigned>(v));
  return text;
}

}  // namespace

bool isCoded(std::uint32_t ifdID, std::uint16_t tag) {
  if (ifdID == kTIFFIFDID && tag == kYCbCrSubSamplingTag) return true;
  return std::any_of(std::begin(kCodedTags), std::end(kCodedTags),
                     [&](const CodedTag& c) { return c.ifdID == ifdID && c.tag == tag; });
}

std::optional<std::string> wordFor(std::uint32_t ifdID, std::uint16_t tag, std::span<const std::uint16_t> values,
                                   std::uint32_t exifVersion) {
  if (values.empty() || !isCoded(ifdID, tag)) return std::nullopt;
  if (ifdID == kTIFFIFDID && tag == kYCbCrSubSamplingTag) return subSamplingText(values);
  const std::uint16_t value = values[0];
  Fallback fallback = Fallback::Signed;
  for (const CodedTag& c : kCodedTags) {
    if (c.ifdID != ifdID || c.tag != tag) continue;
    fallback = c.fallback;
    if (exifVersion < c.fromVersion || exifVersion > c.toVersion) continue;
    for (const CodeWord& w : c.words)
      if (w.code == value) return std::string(w.word);
  }
  return fallbackText(fallback, value);
}

}  // namespace orb::codedwords
