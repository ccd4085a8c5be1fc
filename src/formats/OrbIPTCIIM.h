#pragma once
// A collection of IPTC IIM datasets in file order.
//
// The collection owns its datasets and each dataset points back to it (for
// its text encoding), so a collection is neither copied nor moved: it lives
// behind the std::unique_ptr its makers answer.

#include <cstdint>
#include <memory>
#include <vector>

#include "core/ByteView.h"
#include "formats/OrbIIMDataSet.h"
#include "formats/RecordText.h"

class OrbIPTCIIM {
 public:
  OrbIPTCIIM() = default;
  ~OrbIPTCIIM();
  OrbIPTCIIM(const OrbIPTCIIM&) = delete;
  OrbIPTCIIM& operator=(const OrbIPTCIIM&) = delete;

  // Walks the datasets in `bytes`. Each starts with 0x1C; any other byte
  // there ends the walk, as does a dataset that would leave the buffer. The
  // datasets read before the end are kept.
  static std::unique_ptr<OrbIPTCIIM> iptcIIMWithBytes(orb::ByteView bytes);

  // Sets the dataset's index to the number of held datasets with the same
  // record and number, appends it and makes this collection its owner.
  void addDataSet(std::unique_ptr<OrbIIMDataSet> dataSet);
  // Every held dataset with that record and number, in list order.
  std::vector<const OrbIIMDataSet*> dataSetsWithRecord(std::uint8_t record, std::uint8_t dataSetNumber) const;
  // UTF-8 when some dataset 1:90 holds exactly ESC % G, else Mac OS Roman.
  orb::RecordEncoding encodingForRecFrom2To6() const;
  // Every dataset serialised in list order, zero-padded to a multiple of 4.
  std::vector<std::uint8_t> data() const;

  const std::vector<std::unique_ptr<OrbIIMDataSet>>& dataSets() const { return dataSets_; }
  // Takes the datasets as they are (their indexes are kept) and owns them.
  void setDataSets(std::vector<std::unique_ptr<OrbIIMDataSet>> dataSets);

 private:
  std::vector<std::unique_ptr<OrbIIMDataSet>> dataSets_;
};
