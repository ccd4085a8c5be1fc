// IPTC IIM datasets (tag 0x1C, record, number, length, data).
//
// Must hold: the datasets written out read back as the same datasets in the
// same order, and every text conversion of them returns without harm.
#include <cstdint>
#include <vector>

#include "FuzzCheck.h"
#include "core/ByteView.h"
#include "formats/OrbIPTCIIM.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto read = OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView(data, size));
  if (!read) return 0;
  const std::vector<std::uint8_t> written = read->data();
  FUZZ_CHECK(written.size() % 4 == 0);
  const auto again = OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView(written.data(), written.size()));
  FUZZ_CHECK(again != nullptr);
  const auto& before = read->dataSets();
  const auto& after = again->dataSets();
  FUZZ_CHECK(after.size() == before.size());
  for (std::size_t i = 0; i < before.size(); ++i) {
    FUZZ_CHECK(after[i]->record() == before[i]->record());
    FUZZ_CHECK(after[i]->dataSetNumber() == before[i]->dataSetNumber());
    const auto a = after[i]->dataPtr();
    const auto b = before[i]->dataPtr();
    FUZZ_CHECK(std::vector<std::uint8_t>(a.begin(), a.end()) == std::vector<std::uint8_t>(b.begin(), b.end()));
    (void)before[i]->stringValue();
    (void)before[i]->value();
    (void)before[i]->title();
  }
  (void)read->encodingForRecFrom2To6();
  return 0;
}
