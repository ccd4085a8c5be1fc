#pragma once
// Real camera files that carry date texts, copied into a scratch folder, with
// the byte patches of a date change and the bytes the file must hold after
// it, for the save fault tests.

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "documents/DateRewrite.h"
#include "documents/InPlaceWriter.h"
#include "support/TestData.h"

namespace reltest {

struct DatedPhoto {
  std::string name;
  std::vector<std::uint8_t> bytes;                          // as opened
  std::vector<InPlaceWriter::BytePatch> patches;            // every date set to a new text
  std::vector<std::uint8_t> intended;                       // bytes with the patches applied
};

// Every real file whose expected record gives at least one date offset inside
// the file; empty when the real files are absent.
const std::vector<DatedPhoto>& datedPhotos();

// The photos a fault test goes through: every dated photo when
// LUMIDATE_RELIABILITY_FULL is set, else the eight smallest (each save ends
// with an fsync, which makes the full set take half a minute).
std::vector<const DatedPhoto*> photosForFaults();

// Prints a measured figure on its own line, for RELIABILITY.md.
void reportFigure(const std::string& name, double value);

// The date text written by the tests; differs from every real file's dates.
inline const std::string kNewDate = "2031:12:30 23:58:57";

// "as opened", "as intended" or "MIXED (n bytes differ from both)".
std::string stateOf(const std::vector<std::uint8_t>& now, const DatedPhoto& photo);

}  // namespace reltest
