// Real camera files: every Photoshop APP13 segment and every TIFF tag
// 34377/33723 value is walked, and whether IPTC datasets come out agrees
// with the file's record in expected.json.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/TestData.h"
#include "core/ByteView.h"
#include "formats/OrbIPTCIIM.h"
#include "formats/OrbPhotoshopFF.h"

namespace {

struct Found {
  bool photoshop = false;     // a Photoshop APP13 segment or tag 34377
  std::size_t iptcCount = 0;  // IPTC datasets from block 1028 or tag 33723
};

void addIPTC(Found& found, const OrbPhotoshopFF& ff) {
  found.photoshop = true;
  if (auto iim = ff.iptcIIM()) found.iptcCount += iim->dataSets().size();
}

// The JPEG's segments up to the scan, looking only at APP13.
Found scanJPEG(orb::ByteView file) {
  Found found;
  std::uint64_t at = 2;
  while (true) {
    const auto marker = file.u16(at);
    const auto length = file.u16(at + 2);
    if (!marker || !length || (*marker & 0xFF00) != 0xFF00 || *marker == 0xFFDA || *marker == 0xFFD9) break;
    if (*marker == 0xFFED) {
      if (auto ff = OrbPhotoshopFF::photoshopFFWithAPP13SegmentPtr(file.tail(at))) addIPTC(found, *ff);
    }
    at += 2 + *length;
  }
  return found;
}

// IFD0 of a classic TIFF, looking only at tags 34377 and 33723.
Found scanTIFF(orb::ByteView file) {
  Found found;
  const auto order = file.u16(0) == 0x4949 ? orb::ByteOrder::Little : orb::ByteOrder::Big;
  const auto ifd0 = file.u32(4, order);
  const auto count = ifd0 ? file.u16(*ifd0, order) : std::nullopt;
  if (!count) return found;
  for (std::uint32_t i = 0; i < *count; ++i) {
    const std::uint64_t entry = *ifd0 + 2 + 12ull * i;
    const auto tag = file.u16(entry, order), type = file.u16(entry + 2, order);
    const auto n = file.u32(entry + 4, order), offset = file.u32(entry + 8, order);
    if (!tag || !type || !n || !offset) break;
    const std::uint64_t size = static_cast<std::uint64_t>(*n) * (*type == 4 ? 4 : 1);
    const auto value = file.sub(size <= 4 ? entry + 8 : *offset, size);
    if (!value) continue;
    if (*tag == 34377) addIPTC(found, OrbPhotoshopFF::photoshopFFWithIRBPtr(*value));
    if (*tag == 33723) found.iptcCount += OrbIPTCIIM::iptcIIMWithBytes(*value)->dataSets().size();
  }
  return found;
}

TEST(RecordsConformance, PhotoshopAndIPTCAgreeWithExpected) {
  LUMTEST_REQUIRE_REAL_DATA();
  int checked = 0;
  for (const std::string& name : lumtest::realFileNames()) {
    const auto& record = lumtest::expectedFor(name);
    const auto& structure = record.value("structure", nlohmann::json::object());
    const bool wantsPhotoshop = structure.value("app13_photoshop", false);
    const bool wantsIPTC = structure.value("iptc", false);
    const std::string format = record.value("format", "");
    if (format != "JPEG" && format != "TIFF") continue;

    const auto bytes = lumtest::readFile(*lumtest::realDataDir() / name);
    const orb::ByteView file(bytes);
    const Found found = format == "JPEG" ? scanJPEG(file) : scanTIFF(file);
    if (format == "JPEG") {
      EXPECT_EQ(found.photoshop, wantsPhotoshop) << name;
    }
    if (!wantsPhotoshop && !wantsIPTC) continue;
    ++checked;
    EXPECT_EQ(found.iptcCount > 0, wantsIPTC) << name;
  }
  EXPECT_GE(checked, 16);
}

}  // namespace
