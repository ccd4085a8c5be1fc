// The date scan against the full parse, on well-formed, odd and hostile
// structures in both byte orders, whole and cut at every length. (On the
// real files the scan is what a listing reads, and the real-file suite checks
// those texts against each file's record.)
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "core/ExifDateScan.h"
#include "core/OrbTiff.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;
using Kind = ExifDateScan::Value::Kind;
using IFD = TiffBuilder::IFD;

// Parses the block both ways; empty when they agree, else what differs.
std::string disagreement(orb::ByteView block, std::uint64_t header, std::uint64_t maxLocation) {
  static constexpr struct { ExifDateScan::Field field; std::uint16_t tag; std::uint32_t ifdID; } kEntries[] = {
      {ExifDateScan::kDateTimeOriginal, 0x9003, kExifIFDID},   {ExifDateScan::kDateTimeDigitized, 0x9004, kExifIFDID},
      {ExifDateScan::kDateTime, 0x0132, kTIFFIFDID},           {ExifDateScan::kSubSecTimeOriginal, 0x9291, kExifIFDID},
      {ExifDateScan::kSubSecTimeDigitized, 0x9292, kExifIFDID}, {ExifDateScan::kSubSecTime, 0x9290, kExifIFDID}};
  std::vector<std::string> lines;
  const auto tiff = OrbTiff::exifWithPtr(block, &header, maxLocation, &lines);
  const ExifDateScan::Dates dates = ExifDateScan::scan(block, header, maxLocation);
  std::string differences;
  if (dates.isTiff != (tiff != nullptr)) differences += "header; ";
  for (const auto& e : kEntries) {
    const OrbIFDEntry* entry = tiff ? tiff->entryWithIFDTag(e.tag, e.ifdID) : nullptr;
    const ExifDateScan::Value& v = dates[e.field];
    bool same = v.kind == Kind::Absent && !v.valueOffset;
    if (entry) {
      const OrbDataObject object = entry->dataObject();
      const auto offset = entry->byteCount() > 4 ? std::optional(entry->data()) : std::nullopt;
      same = v.valueOffset == offset && (v.kind == Kind::Other || (v.kind == Kind::Text && object.isText() &&
                                                                   object.text() == v.text));
    }
    char tag[16];
    std::snprintf(tag, sizeof tag, "0x%04X; ", e.tag);
    if (!same) differences += tag;
  }
  const std::size_t wantedLines = dates.nextIFDPastLimit ? 1 : 0;
  if (!dates.chainUnresolved &&
      (lines.size() != wantedLines ||
       (wantedLines && lines[0].find("(" + std::to_string(*dates.nextIFDPastLimit) + ")") == std::string::npos)))
    differences += "chain end; ";
  return differences;
}

constexpr char kDate[] = "2024:01:02 03:04:05";

void dated(IFD& ifd0) {
  ifd0.ascii(0x0132, "2024:05:06 07:08:09");
  ifd0.exif().ascii(0x9003, kDate).ascii(0x9004, "2024:01:02 03:04:06").ascii(0x9291, "12").ascii(0x9290, "345678");
}
IFD& exif(TiffBuilder& b) { return b.ifd0().exif(); }

struct Case {
  const char* name;
  std::function<void(TiffBuilder&)> build;
  Kind original;                     // what DateTimeOriginal is taken as
  const char* originalText = kDate;  // its text when Kind::Text
  bool complete = true;              // whether the scan alone can stand for the parse
};

// The cases' expectations are independent of both readers: they say what a
// structure holds as its author wrote it.
const Case kCases[] = {
    {"well formed", [](TiffBuilder& b) { dated(b.ifd0()); }, Kind::Text},
    {"no IFD", [](TiffBuilder& b) { b.noIFD(); }, Kind::Absent, ""},
    {"IFD1 leads back to IFD0", [](TiffBuilder& b) { dated(b.ifd0()); b.ifd0().next().shorts(0x0100, {1}).nextOffset(8); },
     Kind::Text},
    {"a chain longer than the scan follows", [](TiffBuilder& b) {
       IFD* ifd = &b.ifd0();
       for (std::size_t i = 0; i <= ExifDateScan::kMaxChain; ++i) ifd = &ifd->next().shorts(0x0100, {1});
     }, Kind::Absent, "", false},
    {"next IFD past the end", [](TiffBuilder& b) { dated(b.ifd0()); b.ifd0().nextOffset(0x7FFFFFFF); }, Kind::Text},
    {"Exif pointer past the end", [](TiffBuilder& b) { b.ifd0().raw(0x8769, 4, 1, 0xFFFFFF00); }, Kind::Absent, ""},
    {"Exif IFD is IFD0", [](TiffBuilder& b) { b.ifd0().ascii(0x0132, kDate).raw(0x8769, 4, 1, 8); }, Kind::Absent, ""},
    {"date value past the end", [](TiffBuilder& b) { exif(b).raw(0x9003, 2, 20, 0x7FFFFFF0); }, Kind::Absent, ""},
    {"date count of 2^32-1", [](TiffBuilder& b) { exif(b).raw(0x9003, 2, 0xFFFFFFFF, 8); }, Kind::Absent, ""},
    {"entry count claims more", [](TiffBuilder& b) { dated(b.ifd0()); exif(b).claimEntryCount(0xFFFF); }, Kind::Text},
    {"longer date text cut to 19", [](TiffBuilder& b) { exif(b).ascii(0x9003, "2024:01:02 03:04:05+01:00"); }, Kind::Text},
    {"19 characters, no zero", [](TiffBuilder& b) { exif(b).bytes(0x9003, 2, {kDate, kDate + 19}); }, Kind::Text},
    {"UTF-8 type", [](TiffBuilder& b) { exif(b).bytes(0x9003, 129, {kDate, kDate + 20}); }, Kind::Text},
    {"short text inline", [](TiffBuilder& b) { exif(b).ascii(0x9003, "abc"); }, Kind::Text, "abc"},
    {"later entry of a tag wins", [](TiffBuilder& b) { exif(b).ascii(0x9003, "2000:01:01 00:00:00").ascii(0x9003, kDate); },
     Kind::Text},
    {"a dropped later entry leaves the first",
     [](TiffBuilder& b) { exif(b).ascii(0x9003, kDate).raw(0x9003, 2, 20, 0x7FFFFFF0); }, Kind::Text},
    {"date as numbers", [](TiffBuilder& b) { exif(b).shorts(0x9003, {2024, 1, 2, 3, 4, 5}); }, Kind::Other, "", false},
    {"bytes that are not ASCII", [](TiffBuilder& b) {
       exif(b).ascii(0x9003, "2024:01:02 03:04:0\xB5").undefined(0x9290, {0x31, 0}); }, Kind::Other, "", false},
    {"dates in the wrong IFDs", [](TiffBuilder& b) {
       b.ifd0().ascii(0x9003, kDate).exif().ascii(0x0132, kDate).raw(0x9290, 2, 0, 0); }, Kind::Absent, ""},
};

TEST(ExifDateScan, AgreesWithTheFullParseWholeAndCut) {
  for (const Case& c : kCases)
    for (const bool little : {TiffBuilder::kBig, TiffBuilder::kLittle})
      for (const std::uint64_t header : {0, 5}) {
        SCOPED_TRACE(std::string(c.name) + (little ? ", II" : ", MM") + ", header at " + std::to_string(header));
        TiffBuilder builder(little);
        c.build(builder);
        const std::vector<std::uint8_t> block = builder.build(header);
        const ExifDateScan::Dates dates = ExifDateScan::scan(orb::ByteView(block), header, block.size());
        EXPECT_EQ(dates[ExifDateScan::kDateTimeOriginal].kind, c.original);
        EXPECT_EQ(dates[ExifDateScan::kDateTimeOriginal].text, c.original == Kind::Text ? c.originalText : "");
        EXPECT_EQ(dates.complete(), c.complete);
        // Cut at every length: a cut block read with the limit of the whole
        // (a file's head) or with its own, and the whole block with a
        // limit there.
        for (std::size_t n = 0; n <= block.size(); ++n) {
          const orb::ByteView whole(block), cut(block.data(), n);
          const std::pair<orb::ByteView, std::uint64_t> reads[] = {{cut, block.size()}, {cut, n}, {whole, n}};
          for (const auto& [bytes, limit] : reads)
            ASSERT_EQ(disagreement(bytes, header, limit), "") << bytes.size() << " bytes, limit " << limit;
        }
      }
}

}  // namespace
