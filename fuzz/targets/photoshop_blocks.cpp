// Photoshop image resource blocks, as found in an APP13 segment or a TIFF
// tag value, and the IPTC records inside block 1028.
//
// Must hold: the blocks written out read back as the same blocks, and
// writing those out again gives the same bytes (names under 254 bytes).
#include <cstdint>
#include <vector>

#include "FuzzCheck.h"
#include "core/ByteView.h"
#include "formats/OrbIPTCIIM.h"
#include "formats/OrbPhotoshopFF.h"

namespace {

// The writer sizes a name field in 8 bits, so a name of 254 bytes or more is
// written wrapped on purpose (as it always was); such blocks cannot read back.
bool namesFitTheirField(const OrbPhotoshopFF& read) {
  for (const OrbImageResourceBlock& block : read.IRBs())
    if (block.name() && block.name()->size() >= 254) return false;
  return true;
}

void checkRoundTrip(const OrbPhotoshopFF& read) {
  if (!namesFitTheirField(read)) return;
  const std::vector<std::uint8_t> written = read.dataOfIRBs();
  const OrbPhotoshopFF again = OrbPhotoshopFF::photoshopFFWithIRBPtr(orb::ByteView(written.data(), written.size()));
  FUZZ_CHECK(again.IRBs().size() == read.IRBs().size());
  for (std::size_t i = 0; i < read.IRBs().size(); ++i) {
    FUZZ_CHECK(again.IRBs()[i].irbID() == read.IRBs()[i].irbID());
    FUZZ_CHECK(again.IRBs()[i].dataValue() == read.IRBs()[i].dataValue());
  }
  FUZZ_CHECK(again.dataOfIRBs() == written);
}

void touchEverything(const OrbPhotoshopFF& read) {
  for (const OrbImageResourceBlock& block : read.IRBs()) {
    (void)block.title();
    (void)block.stringValue();
  }
  (void)read.thumbnailData();
  if (const auto iptc = read.iptcIIM())
    for (const auto& set : iptc->dataSets()) (void)set->stringValue();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const orb::ByteView bytes(data, size);
  const OrbPhotoshopFF blocks = OrbPhotoshopFF::photoshopFFWithIRBPtr(bytes);
  checkRoundTrip(blocks);
  touchEverything(blocks);
  if (const auto segment = OrbPhotoshopFF::photoshopFFWithAPP13SegmentPtr(bytes)) {
    checkRoundTrip(*segment);
    touchEverything(*segment);
  }
  return 0;
}
