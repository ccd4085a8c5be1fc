#pragma once
// One IPTC IIM dataset: record number, dataset number and its data bytes,
// with its title, its presented text and its serialised form.

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/RecordText.h"

class OrbIPTCIIM;

class OrbIIMDataSet {
 public:
  // Record 0, dataset 0, index 0, no owner, no data.
  OrbIIMDataSet() = default;
  // The data is copied; an empty span leaves the dataset without data.
  OrbIIMDataSet(std::uint8_t record, std::uint8_t dataSetNumber, std::span<const std::uint8_t> data);
  // The data is the text's bytes in `encoding`, without a terminator; text
  // the encoding cannot carry leaves the dataset without data.
  OrbIIMDataSet(std::uint8_t record, std::uint8_t dataSetNumber, std::string_view text, orb::RecordEncoding encoding);

  static std::unique_ptr<OrbIIMDataSet> dataSetWithRecord(std::uint8_t record, std::uint8_t dataSetNumber,
                                                          std::span<const std::uint8_t> data);
  static std::unique_ptr<OrbIIMDataSet> dataSetWithRecord(std::uint8_t record, std::uint8_t dataSetNumber,
                                                          std::string_view text, orb::RecordEncoding encoding);

  std::uint8_t record() const { return record_; }
  void setRecord(std::uint8_t record) { record_ = record; }
  std::uint8_t dataSetNumber() const { return dataSetNumber_; }
  void setDataSetNumber(std::uint8_t number) { dataSetNumber_ = number; }
  // Datasets with the same record and number its owner held before it.
  std::size_t index() const { return index_; }
  void setIndex(std::size_t index) { index_ = index; }
  // The collection that holds this dataset, or null.
  const OrbIPTCIIM* owner() const { return owner_; }
  void setOwner(const OrbIPTCIIM* owner) { owner_ = owner; }

  std::uint64_t length() const { return data_.size(); }
  bool hasData() const { return !data_.empty(); }
  std::span<const std::uint8_t> dataPtr() const { return data_; }
  // Replaces the data with a copy (none when empty).
  void setDataPtr(std::span<const std::uint8_t> data) { data_.assign(data.begin(), data.end()); }

  // "IIM Object Name" and so on; empty text for datasets without a title.
  std::string title() const;
  // The data decoded as Mac OS Roman; nullopt without data.
  std::optional<std::string> value() const;
  // The data decoded in the owner's encoding (Mac OS Roman without owner) and
  // shaped for display; nullopt without data or when the bytes do not decode.
  std::optional<std::string> stringValue() const;
  // The same with an explicit encoding (Unspecified reads as Mac OS Roman).
  std::optional<std::string> stringValue(orb::RecordEncoding encoding) const;
  // Dataset 2:4 only: the object attribute name its first three digits
  // select (1 to 22), localized through the "IPTC" table; otherwise empty.
  std::string localizedObjectAttributeName() const;

  // 0x1C, record, number, size word (extended for 32768 bytes and more), data;
  // nullopt for data longer than 4294967295 bytes.
  std::optional<std::vector<std::uint8_t>> data() const;

  static std::uint64_t minimumByteCountWithRecord(std::uint8_t record, std::uint8_t dataSetNumber);
  static std::uint64_t maximumByteCountWithRecord(std::uint8_t record, std::uint8_t dataSetNumber);
  std::uint64_t minimumByteCount() const { return minimumByteCountWithRecord(record_, dataSetNumber_); }
  std::uint64_t maximumByteCount() const { return maximumByteCountWithRecord(record_, dataSetNumber_); }

  // Same record, number and bytes; index and owner are not compared.
  bool isEqualToDataSet(const OrbIIMDataSet& other) const;
  // By record, then dataset number: -1, 0 or 1.
  int compare(const OrbIIMDataSet& other) const;

 private:
  std::vector<std::uint8_t> data_;
  std::uint8_t record_ = 0;
  std::uint8_t dataSetNumber_ = 0;
  const OrbIPTCIIM* owner_ = nullptr;
  std::size_t index_ = 0;
};
