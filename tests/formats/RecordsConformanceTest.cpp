// Real camera files: every Photoshop APP13 segment and every TIFF tag
// 34377/33723 value is walked, and whether IPTC datasets come out agrees
// with the file's record in expected.json.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/TestData.h"
#include "core/ByteView.h"
#include "formats/OrbIPTCIIM.h"
#include "formats/OrbPhotoshopFF.h"
#include "formats/TiffRecords.h"

namespace {

struct Found {
  bool photoshop = false;     // a Photoshop APP13 segment or tag 34377
  std::size_t iptcCount = 0;  // IPTC datasets from block 1028 or tag 33723
  std::string firstKeyword;   // the first 2:25 met, as shown
};

void addIPTC(Found& found, const OrbIPTCIIM* iim) {
  if (!iim) return;
  found.iptcCount += iim->dataSets().size();
  const auto keywords = iim->dataSetsWithRecord(2, 25);
  if (found.firstKeyword.empty() && !keywords.empty()) found.firstKeyword = keywords[0]->stringValue().value_or("");
}

void addPhotoshop(Found& found, const OrbPhotoshopFF& ff) {
  found.photoshop = true;
  addIPTC(found, ff.iptcIIM().get());
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
      if (auto ff = OrbPhotoshopFF::photoshopFFWithAPP13SegmentPtr(file.tail(at))) addPhotoshop(found, *ff);
    }
    at += 2 + *length;
  }
  return found;
}

// IFD0 of a TIFF file: tags 34377 and 33723.
Found scanTIFF(orb::ByteView file) {
  Found found;
  const auto tiff = OrbTiff::exifWithPtr(file, nullptr, file.size());
  if (!tiff) return found;
  if (const auto ff = photoshopFF(*tiff)) addPhotoshop(found, *ff);
  addIPTC(found, iptcIIM(*tiff).get());
  return found;
}

// IPTC datasets of each file as the peer tool exiftool (12.57, -v2 -a) lists
// them: count over all places they are stored, and the first keyword.
struct PeerIPTC { const char* file; std::size_t count; const char* firstKeyword; };
constexpr PeerIPTC kPeerIPTC[] = {
    {"app13-first-no-image.jpg", 13, "Green"}, {"canon-5d3-ii.tif", 16, "DLM_Dalaman"},
    {"canon-mm-datetime-only.tif", 19, "exiftool"}, {"com-first-iso-datetime.jpg", 13, "Green"},
    {"exif-pointer-wrong-type.jpg", 2, ""}, {"exif0231-datetime-only.tif", 16, ""},
    {"fujifilm-dx5-blank-dto.jpg", 0, ""}, {"mwg-no-make-subsec.jpg", 15, "WRONG1of2-IPTC-Keywords"},
    {"nikon-d1x-mm-gps-app13.jpg", 32, "ronald reagan"}, {"nikon-d1x-mm.tif", 31, "ronald reagan"},
    {"nikon-d3s-offsettime-iptc.jpg", 10, "133_Beecroft Claire_Kandora"}, {"nikon-e950-jfif-app13.jpg", 0, ""},
    {"nokia-lumia800-gps-iptc.jpg", 6, "2012"}, {"photomechanic-app13-first-no-exif.jpg", 27, "Keywords"},
    {"photoshop-iso-offset-datetime.jpg", 9, "test keyword 1"}, {"xmp-first-then-exif.jpg", 5, "tag"},
};

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
    const auto peer = std::ranges::find_if(kPeerIPTC, [&](const PeerIPTC& p) { return name == p.file; });
    if (peer == std::end(kPeerIPTC)) {
      ADD_FAILURE() << name << " carries records but has no row in kPeerIPTC";
      continue;
    }
    EXPECT_EQ(found.iptcCount, peer->count) << name;
    EXPECT_EQ(found.firstKeyword, peer->firstKeyword) << name;
  }
  EXPECT_EQ(checked, static_cast<int>(std::size(kPeerIPTC)));
}

}  // namespace
