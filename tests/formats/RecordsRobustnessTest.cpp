// Damaged input: thousands of mutated and truncated resource and IPTC
// buffers are walked (under the sanitizers this catches any read outside
// them), and whatever was read must serialise and read back the same.

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "formats/OrbIPTCIIM.h"
#include "formats/OrbPhotoshopFF.h"
#include "RecordBytes.h"

namespace {

using namespace recordtest;

// Small deterministic generator, so a failure reproduces.
struct XorShift {
  std::uint64_t state;
  std::uint32_t next() {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    return static_cast<std::uint32_t>(state);
  }
  std::size_t below(std::size_t n) { return n == 0 ? 0 : next() % n; }
};

const Bytes kIPTC{0x1C, 1, 90, 0, 3, 0x1B, 0x25, 0x47, 0x1C, 2, 25, 0, 3, 'a', 'b', 'c',
                  0x1C, 2, 120, 0x80, 0x02, 0x00, 0x04, 'x', 'y', 'z', 0x1C, 2, 55, 0, 8,
                  '2', '0', '2', '3', '0', '4', '1', '5'};

// An IPTC block with an odd name and odd data, then one with odd data.
Bytes blocks() { return block(0x0404, "abc", kIPTC) + block(0x03ED, "", {1, 2, 3}); }

Bytes mutate(Bytes bytes, XorShift& rng) {
  const std::size_t changes = 1 + rng.below(4);
  for (std::size_t i = 0; i < changes && !bytes.empty(); ++i)
    bytes[rng.below(bytes.size())] = static_cast<std::uint8_t>(rng.next());
  bytes.resize(rng.below(bytes.size() + 1));
  return bytes;
}

bool sameBlocks(const OrbPhotoshopFF& a, const OrbPhotoshopFF& b) {
  if (a.IRBs().size() != b.IRBs().size()) return false;
  for (std::size_t i = 0; i < a.IRBs().size(); ++i)
    if (!a.IRBs()[i].isEqualToIRB(b.IRBs()[i]) || a.IRBs()[i].signature() != b.IRBs()[i].signature()) return false;
  return true;
}

TEST(RecordsRobustness, DamagedResourceBlocksWalkAndRoundTrip) {
  XorShift rng{0x9E3779B97F4A7C15ull};
  const Bytes original = blocks();
  for (int round = 0; round < 5000; ++round) {
    const Bytes damaged = mutate(original, rng);
    const OrbPhotoshopFF ff = OrbPhotoshopFF::photoshopFFWithIRBPtr(orb::ByteView(damaged));
    for (const auto& block : ff.IRBs()) {
      (void)block.stringValue();
      if (auto iim = OrbPhotoshopFF::iptcIIMFromIRB(block))
        for (const auto& d : iim->dataSets()) (void)d->stringValue();
    }
    // Names here are short, so the 8-bit name-field rule never wraps.
    const Bytes again = ff.data();
    EXPECT_TRUE(sameBlocks(ff, OrbPhotoshopFF::photoshopFFWithIRBPtr(orb::ByteView(again)))) << "round " << round;
  }
}

TEST(RecordsRobustness, DamagedIPTCWalksAndStandardDatasetsRoundTrip) {
  XorShift rng{0xD1B54A32D192ED03ull};
  for (int round = 0; round < 5000; ++round) {
    const Bytes damaged = mutate(kIPTC, rng);
    const auto iim = OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView(damaged));
    bool standard = true;
    for (const auto& d : iim->dataSets()) {
      (void)d->stringValue();
      (void)d->localizedObjectAttributeName();
      standard = standard && d->length() < 0x8000;
    }
    // Extended datasets are read from one byte early, so only standard ones
    // come back unchanged; the zero padding ends the second walk.
    if (!standard) continue;
    const Bytes again = iim->data();
    const auto reread = OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView(again));
    ASSERT_EQ(reread->dataSets().size(), iim->dataSets().size()) << "round " << round;
    for (std::size_t i = 0; i < iim->dataSets().size(); ++i)
      EXPECT_TRUE(reread->dataSets()[i]->isEqualToDataSet(*iim->dataSets()[i])) << "round " << round;
  }
}

}  // namespace
