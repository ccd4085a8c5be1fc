// The keyed archive of an entry (clipboard form).
//
// Layout: the 4 bytes "OIEA", then records until the end. A record is the key
// length (1 byte), the key, a kind byte ('i': a 32-bit integer follows, big-
// endian; 'b': a 32-bit length and that many bytes follow). Unknown keys are
// skipped, so later versions may add keys.

#include <map>
#include <string>

#include "core/ByteHelpers.h"
#include "core/OrbIFDEntry.h"

namespace {

constexpr std::uint8_t kMagic[] = {'O', 'I', 'E', 'A'};

void appendKey(std::vector<std::uint8_t>& out, std::string_view key, std::uint8_t kind) {
  out.push_back(static_cast<std::uint8_t>(key.size()));
  out.insert(out.end(), key.begin(), key.end());
  out.push_back(kind);
}

void append32(std::vector<std::uint8_t>& out, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<std::uint8_t>(value >> shift));
}

void encodeInt(std::vector<std::uint8_t>& out, std::string_view key, std::uint32_t value) {
  appendKey(out, key, 'i');
  append32(out, value);
}

struct Decoded {
  std::map<std::string, std::uint32_t, std::less<>> ints;
  std::optional<std::span<const std::uint8_t>> value;
};

std::optional<Decoded> decodeRecords(orb::ByteView archive) {
  if (!archive.contains(0, 4) || !std::equal(kMagic, kMagic + 4, archive.data())) return std::nullopt;
  Decoded decoded;
  std::uint64_t pos = 4;
  while (pos < archive.size()) {
    const auto keyLength = archive.u8(pos);
    const auto key = archive.bytes(pos + 1, keyLength.value_or(0));
    if (!keyLength || !key) return std::nullopt;
    pos += 1 + *keyLength;
    const auto kind = archive.u8(pos++);
    const std::string name(key->begin(), key->end());
    if (kind == 'i') {
      const auto number = archive.u32(pos);
      if (!number) return std::nullopt;
      decoded.ints[name] = *number;
      pos += 4;
    } else if (kind == 'b') {
      const auto length = archive.u32(pos);
      const auto bytes = archive.bytes(pos + 4, length.value_or(0));
      if (!length || !bytes) return std::nullopt;
      if (name == "value") decoded.value = *bytes;
      pos += 4 + std::uint64_t{*length};
    } else {
      return std::nullopt;
    }
  }
  return decoded;
}

}  // namespace

std::vector<std::uint8_t> OrbIFDEntry::archivedData() const {
  std::vector<std::uint8_t> out(kMagic, kMagic + 4);
  encodeInt(out, "_endian", static_cast<std::uint32_t>(static_cast<std::int32_t>(endian_)));
  encodeInt(out, "_ifdID", ifdID_);
  encodeInt(out, "ifdTag", ifdTag());
  encodeInt(out, "type", type());
  encodeInt(out, "dataCount", dataCount());
  encodeInt(out, "data", data());
  if (hasValue()) {
    const auto bytes = std::span(value_).first(std::min<std::size_t>(byteCount(), value_.size()));
    appendKey(out, "value", 'b');
    append32(out, static_cast<std::uint32_t>(bytes.size()));
    out.insert(out.end(), bytes.begin(), bytes.end());
  }
  encodeInt(out, "_version", version_);
  return out;
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::entryWithArchivedData(std::span<const std::uint8_t> archive) {
  const auto decoded = decodeRecords(orb::ByteView(archive));
  if (!decoded) return nullptr;
  const auto& ints = decoded->ints;
  for (const char* key : {"_endian", "_ifdID", "ifdTag", "type", "dataCount", "data", "_version"})
    if (!ints.contains(key)) return nullptr;
  // Same order as written, through the setters: the byte order first, so
  // the numbers land in the entry's own order.
  auto entry = std::make_unique<OrbIFDEntry>();
  entry->setEndian(static_cast<std::int8_t>(static_cast<std::int32_t>(ints.find("_endian")->second)));
  entry->setIFDID(ints.find("_ifdID")->second);
  entry->setIFDTag(static_cast<std::uint16_t>(ints.find("ifdTag")->second));
  entry->setType(static_cast<std::uint16_t>(ints.find("type")->second));
  entry->setDataCount(ints.find("dataCount")->second);
  entry->setData(ints.find("data")->second);
  if (decoded->value) entry->setValue(*decoded->value);
  entry->setVersion(ints.find("_version")->second);
  return entry;
}

std::span<const std::string_view> OrbIFDEntry::writableTypes() {
  static constexpr std::string_view kTypes[] = {kPasteboardType};
  return kTypes;
}

std::unique_ptr<OrbIFDEntry> OrbIFDEntry::initWithPasteboardPropertyList(std::span<const std::uint8_t> data,
                                                                         std::string_view type) {
  if (type != kPasteboardType) return nullptr;
  return entryWithArchivedData(data);
}
