#include "formats/OrbIPTCIIM.h"

#include <algorithm>

namespace {

constexpr std::uint8_t kTagMarker = 0x1C;

// Reads `count` bytes big-endian; bytes beyond 8 push the first ones out.
std::optional<std::uint64_t> readLength(orb::ByteView bytes, std::uint64_t at, std::uint64_t count) {
  const auto raw = bytes.bytes(at, count);
  if (!raw) return std::nullopt;
  std::uint64_t value = 0;
  for (std::uint8_t b : *raw) value = (value << 8) | b;
  return value;
}

}  // namespace

OrbIPTCIIM::~OrbIPTCIIM() {
  for (auto& dataSet : dataSets_) dataSet->setOwner(nullptr);
}

std::unique_ptr<OrbIPTCIIM> OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView bytes) {
  auto iim = std::make_unique<OrbIPTCIIM>();
  std::uint64_t p = 0;
  while (p < bytes.size()) {
    if (bytes.u8(p) != kTagMarker) break;
    const auto record = bytes.u8(p + 1);
    const auto number = bytes.u8(p + 2);
    const auto sizeWord = bytes.u16(p + 3);
    if (!record || !number || !sizeWord) break;
    p += 5;
    std::optional<std::span<const std::uint8_t>> data;
    if (*sizeWord < 0x8000) {
      data = bytes.bytes(p, *sizeWord);
      p += *sizeWord;
    } else {
      // Extended dataset: the low 15 bits count the length bytes. The data
      // is taken from one byte before the end of those length bytes, and the
      // walk moves on by the size word itself; both kept as the format's
      // readers have always done it.
      const std::uint64_t count = *sizeWord & 0x7FFFu;
      const auto length = count == 0 ? std::optional<std::uint64_t>(0) : readLength(bytes, p, count);
      if (!length) break;
      data = bytes.bytes(p + count - 1, *length);
      p += *sizeWord;
    }
    if (!data) break;  // the dataset would leave the buffer
    iim->addDataSet(std::make_unique<OrbIIMDataSet>(*record, *number, *data));
  }
  return iim;
}

void OrbIPTCIIM::addDataSet(std::unique_ptr<OrbIIMDataSet> dataSet) {
  if (!dataSet) return;
  dataSet->setIndex(dataSetsWithRecord(dataSet->record(), dataSet->dataSetNumber()).size());
  dataSet->setOwner(this);
  dataSets_.push_back(std::move(dataSet));
}

std::vector<const OrbIIMDataSet*> OrbIPTCIIM::dataSetsWithRecord(std::uint8_t record,
                                                                 std::uint8_t dataSetNumber) const {
  std::vector<const OrbIIMDataSet*> out;
  for (const auto& dataSet : dataSets_)
    if (dataSet->record() == record && dataSet->dataSetNumber() == dataSetNumber) out.push_back(dataSet.get());
  return out;
}

orb::RecordEncoding OrbIPTCIIM::encodingForRecFrom2To6() const {
  static constexpr std::uint8_t kEscPercentG[] = {0x1B, 0x25, 0x47};
  for (const OrbIIMDataSet* charset : dataSetsWithRecord(1, 90)) {
    const auto bytes = charset->dataPtr();
    if (std::ranges::equal(bytes, kEscPercentG)) return orb::RecordEncoding::UTF8;
  }
  return orb::RecordEncoding::MacOSRoman;
}

std::vector<std::uint8_t> OrbIPTCIIM::data() const {
  std::vector<std::uint8_t> out;
  for (const auto& dataSet : dataSets_)
    if (auto bytes = dataSet->data()) out.insert(out.end(), bytes->begin(), bytes->end());
  out.resize((out.size() + 3) / 4 * 4, 0);
  return out;
}

void OrbIPTCIIM::setDataSets(std::vector<std::unique_ptr<OrbIIMDataSet>> dataSets) {
  for (auto& dataSet : dataSets_) dataSet->setOwner(nullptr);
  dataSets_ = std::move(dataSets);
  std::erase(dataSets_, nullptr);
  for (auto& dataSet : dataSets_) dataSet->setOwner(this);
}
