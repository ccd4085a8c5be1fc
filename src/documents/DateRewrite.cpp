#include "documents/DateRewrite.h"

#include <algorithm>

namespace DateRewrite {
namespace {

bool isAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::vector<InPlaceWriter::BytePatch> patchesForTexts(const DateLocations& where, const DateTargets::Texts& texts) {
  std::vector<InPlaceWriter::BytePatch> patches;
  const bool anyEntry = std::any_of(where.valueOffsets.begin(), where.valueOffsets.end(),
                                    [](const auto& offset) { return offset.has_value(); });
  if (!anyEntry) return patches;
  for (const DateTargets::Target& t : DateTargets::kTargets) {
    const std::optional<std::string>& text = texts[t.index];
    const std::optional<std::uint64_t>& offset = where.valueOffsets[t.index];
    // An item has a text only for a date its file has; the entry check is
    // kept anyway so that a broken invariant cannot write at a guessed place.
    if (!text || !offset || text->size() < kDateLength || !isAscii(*text)) continue;
    patches.push_back({where.tiffHeaderLocation + *offset, text->substr(0, kDateLength)});
  }
  return patches;
}

std::vector<std::uint8_t> applied(orb::ByteView data, const std::vector<InPlaceWriter::BytePatch>& patches) {
  std::vector<std::uint8_t> copy(data.data(), data.data() + data.size());
  for (const InPlaceWriter::BytePatch& p : patches) {
    if (!data.contains(p.position, p.bytes.size())) continue;
    std::copy(p.bytes.begin(), p.bytes.end(), copy.begin() + static_cast<std::ptrdiff_t>(p.position));
  }
  return copy;
}

}  // namespace DateRewrite
