// IPTC IIM datasets: the walk and its stop rules, repeats, text encodings,
// presented text, byte-count limits and serialisation.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/OrbIPTCIIM.h"
#include "RecordBytes.h"

namespace {

using namespace recordtest;

std::unique_ptr<OrbIPTCIIM> walk(const Bytes& bytes) { return OrbIPTCIIM::iptcIIMWithBytes(orb::ByteView(bytes)); }

TEST(IPTCIIMWalk, ReadsDatasetsWithTitlesTextAndRepeatIndex) {
  auto iim = walk(dataSet(2, 5, text("Test")) + dataSet(2, 25, text("abc")));
  ASSERT_EQ(iim->dataSets().size(), 2u);
  const OrbIIMDataSet& keyword = *iim->dataSets()[1];
  EXPECT_EQ(keyword.title() + " " + *keyword.stringValue(), "IIM Keywords abc");
  EXPECT_EQ(keyword.index(), 0u);  // the first of its number, whatever came before
  iim->addDataSet(OrbIIMDataSet::dataSetWithRecord(2, 25, text("def")));
  iim->addDataSet(OrbIIMDataSet::dataSetWithRecord(2, 25, text("ghi")));
  EXPECT_EQ(iim->dataSets()[3]->index(), 2u);
  const auto keywords = iim->dataSetsWithRecord(2, 25);
  ASSERT_EQ(keywords.size(), 3u);
  EXPECT_EQ(keywords[2]->stringValue(), "ghi");
}

TEST(IPTCIIMWalk, StopsWithoutReadingOutsideTheBuffer) {
  const Bytes good = dataSet(2, 5, text("Test"));
  struct Case { const char* what; Bytes bytes; std::size_t kept; };
  const Case cases[] = {
      {"empty buffer", {}, 0}, {"wrong marker after a dataset", good + Bytes{0x1D, 2, 25, 0, 1, 'x'}, 1},
      {"zero padding after a dataset", good + Bytes{0, 0, 0}, 1}, {"header cut short", good + Bytes{0x1C, 2, 25, 0}, 1},
      {"data runs past the end", good + Bytes{0x1C, 2, 25, 0, 9, 'a', 'b'}, 1},
      {"extended length bytes past the end", good + Bytes{0x1C, 2, 25, 0x80, 0x04, 0, 0}, 1},
      {"extended data past the end", good + Bytes{0x1C, 2, 25, 0x80, 0x02, 0x00, 0x40, 'a'}, 1},
      {"huge extended count", good + Bytes{0x1C, 2, 25, 0xFF, 0xFF, 1}, 1},
  };
  for (const Case& c : cases) EXPECT_EQ(walk(c.bytes)->dataSets().size(), c.kept) << c.what;
}

TEST(IPTCIIMWalk, ExtendedDatasetStartsOneByteEarlyAndAdvancesBySizeWord) {
  // Size word 0x8002: two length bytes 00 03. The data is taken from the last
  // length byte on (03 'a' 'b'), and the walk moves on by 0x8002 bytes, which
  // here is past the end, so the following dataset is never reached.
  const Bytes bytes = Bytes{0x1C, 2, 120, 0x80, 0x02, 0x00, 0x03, 'a', 'b', 'c'} + dataSet(2, 5, text("Next"));
  auto iim = walk(bytes);
  ASSERT_EQ(iim->dataSets().size(), 1u);
  EXPECT_EQ(Bytes(iim->dataSets()[0]->dataPtr().begin(), iim->dataSets()[0]->dataPtr().end()), (Bytes{0x03, 'a', 'b'}));

  // With no length bytes the data is empty, and the walk still jumps by the
  // size word: 0x8000 bytes on, where this buffer has its next dataset.
  auto empty = walk(Bytes{0x1C, 2, 120, 0x80, 0x00} + Bytes(0x8000, 0xEE) + dataSet(2, 5, text("Next")));
  ASSERT_EQ(empty->dataSets().size(), 2u);
  EXPECT_EQ(empty->dataSets()[0]->length(), 0u);
}

TEST(IPTCIIMEncoding, CodedCharacterSetChoosesUTF8OnlyForEscPercentG) {
  const Bytes cafe{'C', 'a', 'f', 0xC3, 0xA9};  // "Café" in UTF-8
  const std::string asRoman = "Caf\xE2\x88\x9A\xC2\xA9";  // its bytes read as Mac OS Roman
  const std::tuple<Bytes, orb::RecordEncoding, std::string> cases[] = {
      {{0x1B, 0x25, 0x47}, orb::RecordEncoding::UTF8, "Caf\xC3\xA9"}, {{}, orb::RecordEncoding::MacOSRoman, asRoman},
      {{0x1B, 0x2D, 0x41}, orb::RecordEncoding::MacOSRoman, asRoman},
      {{0x1B, 0x25, 0x47, 0x20}, orb::RecordEncoding::MacOSRoman, asRoman}};
  for (const auto& [charset, encoding, shown] : cases) {
    auto iim = walk((charset.empty() ? Bytes{} : dataSet(1, 90, charset)) + dataSet(2, 5, cafe));
    EXPECT_EQ(iim->encodingForRecFrom2To6(), encoding) << charset.size();
    EXPECT_EQ(iim->dataSets().back()->stringValue(), shown) << charset.size();
    EXPECT_EQ(iim->dataSets().back()->value(), asRoman) << charset.size();  // value always reads Mac OS Roman
  }

  const OrbIIMDataSet roman(2, 5, "Caf\xC3\xA9", orb::RecordEncoding::MacOSRoman);
  EXPECT_EQ(Bytes(roman.dataPtr().begin(), roman.dataPtr().end()), (Bytes{'C', 'a', 'f', 0x8E}));
  const OrbIIMDataSet utf8(2, 5, "Caf\xC3\xA9", orb::RecordEncoding::UTF8);
  EXPECT_EQ(utf8.length(), 5u);
  // Malformed UTF-8 gives no text; Mac OS Roman has no CJK characters.
  auto bad = walk(dataSet(1, 90, {0x1B, 0x25, 0x47}) + dataSet(2, 5, {0xFF, 0xFE}));
  EXPECT_EQ(bad->dataSets()[1]->stringValue(), std::nullopt);
  EXPECT_FALSE(OrbIIMDataSet(2, 5, "\xE6\x97\xA5", orb::RecordEncoding::MacOSRoman).hasData());
}

TEST(IIMDataSetText, ShapesDatesTimesAndCodedValues) {
  struct Case { std::uint8_t record, number; std::string data, shown; };
  const Case cases[] = {
      {2, 55, "20230415", "2023-04-15"}, {1, 70, "19991231", "1999-12-31"}, {2, 55, "2023041", "2023041"},
      {2, 60, "101530+0900", "10:15:30 +09:00"}, {2, 35, "101530", "10:15:30"}, {2, 60, "1015", "1015"},
      {2, 42, "02", "Object Replace"}, {2, 42, "07", "07"}, {2, 150, "2M", "Stereo - Music, transmitted by itself"},
      {2, 151, "011025", "11025 Hz"}, {2, 152, "16", "16 bits"}, {2, 153, "000130", "00:01:30"},
      {1, 100, "20230415IPTC:obj1:v2", "[20230415] [IPTC] [obj1] [v2]"}, {2, 105, "20230415", "20230415"},
      {3, 130, std::string(1, '\0'), "Not Allowed"}, {3, 135, "\x08\x08\x10", "8, 8, 16"}, {3, 135, "AB", "AB"},
      {2, 131, "P", "Portrait"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(OrbIIMDataSet(c.record, c.number, text(c.data)).stringValue(), c.shown) << int(c.number) << " " << c.data;
}

TEST(IIMDataSetText, ObjectAttributeNameNeedsThreeDigitsFrom1To22) {
  struct Case { std::uint8_t number; std::string data, name; };
  const Case cases[] = {{4, "005:Feature", "Feature"}, {4, "001", "Current"}, {4, "022:x", "Press Release"},
                        {4, "023:xyz", ""}, {4, "5:Feature", ""}, {4, "000:x", ""}, {4, "0a5", ""}, {5, "005:Feature", ""}};
  for (const Case& c : cases)
    EXPECT_EQ(OrbIIMDataSet(2, c.number, text(c.data)).localizedObjectAttributeName(), c.name) << c.data;
}

TEST(IIMDataSetData, SizeWordFormsAndPaddingToFour) {
  const auto header = [](std::size_t length) {
    const Bytes data(length, 'x');
    const auto out = OrbIIMDataSet(2, 120, data).data();
    return Bytes(out->begin(), out->begin() + static_cast<std::ptrdiff_t>(out->size() - length));
  };
  EXPECT_EQ(header(0), (Bytes{0x1C, 2, 120, 0, 0}));
  EXPECT_EQ(header(32767), (Bytes{0x1C, 2, 120, 0x7F, 0xFF}));
  EXPECT_EQ(header(40000), (Bytes{0x1C, 2, 120, 0x80, 0x02, 0x9C, 0x40}));
  EXPECT_EQ(header(65536), (Bytes{0x1C, 2, 120, 0x80, 0x04, 0x00, 0x01, 0x00, 0x00}));
  EXPECT_EQ(walk(dataSet(2, 5, text("Test")))->data(), (dataSet(2, 5, text("Test")) + Bytes{0, 0, 0}));
}

}  // namespace
