#include "formats/OrbIIMDataSet.h"

#include <algorithm>

#include "core/Localization.h"
#include "formats/IIMDataSetTables.h"
#include "formats/IIMTextShaping.h"
#include "formats/OrbIPTCIIM.h"

OrbIIMDataSet::OrbIIMDataSet(std::uint8_t record, std::uint8_t dataSetNumber, std::span<const std::uint8_t> data)
    : data_(data.begin(), data.end()), record_(record), dataSetNumber_(dataSetNumber) {}

OrbIIMDataSet::OrbIIMDataSet(std::uint8_t record, std::uint8_t dataSetNumber, std::string_view text,
                             orb::RecordEncoding encoding)
    : record_(record), dataSetNumber_(dataSetNumber) {
  if (auto bytes = orb::encodeText(text, encoding)) data_ = std::move(*bytes);
}

std::unique_ptr<OrbIIMDataSet> OrbIIMDataSet::dataSetWithRecord(std::uint8_t record, std::uint8_t dataSetNumber,
                                                                std::span<const std::uint8_t> data) {
  return std::make_unique<OrbIIMDataSet>(record, dataSetNumber, data);
}

std::unique_ptr<OrbIIMDataSet> OrbIIMDataSet::dataSetWithRecord(std::uint8_t record, std::uint8_t dataSetNumber,
                                                                std::string_view text,
                                                                orb::RecordEncoding encoding) {
  return std::make_unique<OrbIIMDataSet>(record, dataSetNumber, text, encoding);
}

std::string OrbIIMDataSet::title() const { return std::string(IIMDataSetTables::title(record_, dataSetNumber_)); }

std::optional<std::string> OrbIIMDataSet::value() const {
  if (!hasData()) return std::nullopt;
  return orb::decodeText(data_, orb::RecordEncoding::MacOSRoman);
}

std::optional<std::string> OrbIIMDataSet::stringValue() const {
  return stringValue(owner_ ? owner_->encodingForRecFrom2To6() : orb::RecordEncoding::MacOSRoman);
}

std::optional<std::string> OrbIIMDataSet::stringValue(orb::RecordEncoding encoding) const {
  if (!hasData()) return std::nullopt;
  if (auto binary = IIMTextShaping::shapeBinary(record_, dataSetNumber_, data_)) return binary;
  if (encoding == orb::RecordEncoding::Unspecified) encoding = orb::RecordEncoding::MacOSRoman;
  auto text = orb::decodeText(data_, encoding);
  if (!text) return std::nullopt;
  return IIMTextShaping::shape(record_, dataSetNumber_, *text);
}

std::string OrbIIMDataSet::localizedObjectAttributeName() const {
  if (record_ != 2 || dataSetNumber_ != 4) return {};
  const auto text = stringValue();
  // Exactly three leading digits: "005:Feature" is 5, "5:Feature" is nothing.
  if (!text || text->size() < 3) return {};
  unsigned n = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const char ch = (*text)[i];
    if (ch < '0' || ch > '9') return {};
    n = n * 10 + static_cast<unsigned>(ch - '0');
  }
  const std::string_view name = IIMDataSetTables::objectAttributeName(n);
  if (name.empty()) return {};
  return Localization::localizedString(Localization::kIPTCTable, name);
}

std::optional<std::vector<std::uint8_t>> OrbIIMDataSet::data() const {
  const std::uint64_t length = data_.size();
  if (length > 0xFFFFFFFFull) return std::nullopt;
  std::vector<std::uint8_t> out{0x1C, record_, dataSetNumber_};
  auto put = [&out](std::uint64_t value, int bytes) {
    for (int shift = (bytes - 1) * 8; shift >= 0; shift -= 8) out.push_back(static_cast<std::uint8_t>(value >> shift));
  };
  if (length < 0x8000) {
    put(length, 2);
  } else if (length < 0x10000) {
    put(0x8002, 2);
    put(length, 2);
  } else {
    put(0x8004, 2);
    put(length, 4);
  }
  out.insert(out.end(), data_.begin(), data_.end());
  return out;
}

std::uint64_t OrbIIMDataSet::minimumByteCountWithRecord(std::uint8_t record, std::uint8_t dataSetNumber) {
  return IIMDataSetTables::minimumByteCount(record, dataSetNumber);
}

std::uint64_t OrbIIMDataSet::maximumByteCountWithRecord(std::uint8_t record, std::uint8_t dataSetNumber) {
  return IIMDataSetTables::maximumByteCount(record, dataSetNumber);
}

bool OrbIIMDataSet::isEqualToDataSet(const OrbIIMDataSet& other) const {
  return record_ == other.record_ && dataSetNumber_ == other.dataSetNumber_ && data_ == other.data_;
}

int OrbIIMDataSet::compare(const OrbIIMDataSet& other) const {
  if (record_ != other.record_) return record_ < other.record_ ? -1 : 1;
  if (dataSetNumber_ != other.dataSetNumber_) return dataSetNumber_ < other.dataSetNumber_ ? -1 : 1;
  return 0;
}
