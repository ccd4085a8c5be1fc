// The date scan against the full parse, on well-formed, odd and hostile
// structures in both byte orders, whole and cut at every length.
#include <gtest/gtest.h>

#include <functional>

#include "support/DateScanAgreement.h"
#include "support/TiffBuilder.h"

namespace {

using lumtest::TiffBuilder;
using Kind = ExifDateScan::Value::Kind;
using IFD = TiffBuilder::IFD;

constexpr char kDate[] = "2024:01:02 03:04:05";

void dated(IFD& ifd0) {
  ifd0.ascii(0x0132, "2024:05:06 07:08:09");
  ifd0.exif().ascii(0x9003, kDate).ascii(0x9004, "2024:01:02 03:04:06").ascii(0x9291, "12").ascii(0x9290, "345678");
}

struct Case {
  const char* name;
  std::function<void(TiffBuilder&)> build;
  Kind original;            // what DateTimeOriginal is taken as
  const char* originalText;  // its text when Kind::Text
};

// The cases' expectations are independent of both readers: they say what a
// structure holds as its author wrote it.
const Case kCases[] = {
    {"well formed", [](TiffBuilder& b) { dated(b.ifd0()); }, Kind::Text, kDate},
    {"no IFD", [](TiffBuilder& b) { b.noIFD(); }, Kind::Absent, ""},
    {"IFD0 is its own next IFD", [](TiffBuilder& b) { dated(b.ifd0()); b.ifd0().nextOffset(8); }, Kind::Text, kDate},
    {"IFD1 leads back to IFD0",
     [](TiffBuilder& b) { dated(b.ifd0()); b.ifd0().next().shorts(0x0100, {1}).nextOffset(8); }, Kind::Text, kDate},
    {"a chain longer than the scan follows",
     [](TiffBuilder& b) {
       IFD* ifd = &b.ifd0();
       for (std::size_t i = 0; i <= ExifDateScan::kMaxChain; ++i) ifd = &ifd->next().shorts(0x0100, {1});
     },
     Kind::Absent, ""},
    {"next IFD past the end", [](TiffBuilder& b) { dated(b.ifd0()); b.ifd0().nextOffset(0x7FFFFFFF); }, Kind::Text,
     kDate},
    {"Exif pointer past the end", [](TiffBuilder& b) { b.ifd0().raw(0x8769, 4, 1, 0xFFFFFF00); }, Kind::Absent, ""},
    {"Exif IFD is IFD0", [](TiffBuilder& b) { b.ifd0().ascii(0x0132, kDate).raw(0x8769, 4, 1, 8); }, Kind::Absent, ""},
    {"date value past the end", [](TiffBuilder& b) { b.ifd0().exif().raw(0x9003, 2, 20, 0x7FFFFFF0); }, Kind::Absent,
     ""},
    {"date count of 2^32-1", [](TiffBuilder& b) { b.ifd0().exif().raw(0x9003, 2, 0xFFFFFFFF, 8); }, Kind::Absent, ""},
    {"entry count claims more than the table",
     [](TiffBuilder& b) { dated(b.ifd0()); b.ifd0().exif().claimEntryCount(0xFFFF); }, Kind::Text, kDate},
    {"longer date text cut to 19", [](TiffBuilder& b) { b.ifd0().exif().ascii(0x9003, "2024:01:02 03:04:05+01:00"); },
     Kind::Text, kDate},
    {"19 characters, no zero",
     [](TiffBuilder& b) { b.ifd0().exif().bytes(0x9003, 2, std::vector<std::uint8_t>(kDate, kDate + 19)); },
     Kind::Text, kDate},
    {"placeholder text", [](TiffBuilder& b) { b.ifd0().exif().ascii(0x9003, "    :  :     :  :  "); }, Kind::Text,
     "    :  :     :  :  "},
    {"UTF-8 type", [](TiffBuilder& b) { b.ifd0().exif().utf8(0x9003, kDate); }, Kind::Text, kDate},
    {"short text inline", [](TiffBuilder& b) { b.ifd0().exif().ascii(0x9003, "abc"); }, Kind::Text, "abc"},
    {"later entry of a tag wins",
     [](TiffBuilder& b) { b.ifd0().exif().ascii(0x9003, "2000:01:01 00:00:00").ascii(0x9003, kDate); }, Kind::Text,
     kDate},
    {"a dropped later entry leaves the first",
     [](TiffBuilder& b) { b.ifd0().exif().ascii(0x9003, kDate).raw(0x9003, 2, 20, 0x7FFFFFF0); }, Kind::Text, kDate},
    {"date as numbers", [](TiffBuilder& b) { b.ifd0().exif().shorts(0x9003, {2024, 1, 2, 3, 4, 5, 6, 7, 8, 9}); },
     Kind::Other, ""},
    {"bytes that are not ASCII",
     [](TiffBuilder& b) { b.ifd0().exif().ascii(0x9003, "2024:01:02 03:04:0\xB5").undefined(0x9290, {0x31, 0}); },
     Kind::Other, ""},
    {"dates in the wrong IFDs",
     [](TiffBuilder& b) { b.ifd0().ascii(0x9003, kDate).exif().ascii(0x0132, kDate).raw(0x9290, 2, 0, 0); },
     Kind::Absent, ""},
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
        const ExifDateScan::Value& original = dates[ExifDateScan::kDateTimeOriginal];
        EXPECT_EQ(original.kind, c.original);
        if (c.original == Kind::Text) {
          EXPECT_EQ(original.text, c.originalText);
        }
        // Cut at every length: a cut block read with the limit of the whole
        // (a file's head) or with its own, and the whole block with a
        // limit there.
        for (std::size_t n = 0; n <= block.size(); ++n) {
          const orb::ByteView whole(block), cut(block.data(), n);
          const std::pair<orb::ByteView, std::uint64_t> reads[] = {{cut, block.size()}, {cut, n}, {whole, n}};
          for (const auto& [bytes, limit] : reads)
            ASSERT_EQ(lumtest::dateScanDisagreement(bytes, header, limit), "") << bytes.size() << " bytes, limit " << limit;
        }
      }
}

TEST(ExifDateScan, SaysWhatOnlyTheFullParseCanTell) {
  TiffBuilder builder;
  dated(builder.ifd0());
  const auto block = builder.build();
  const auto dates = ExifDateScan::scan(orb::ByteView(block), 0, block.size());
  EXPECT_TRUE(dates.complete());
  EXPECT_EQ(dates[ExifDateScan::kDateTimeOriginal].valueOffset, builder.valueOffset(builder.ifd0().exif(), 0x9003));
  EXPECT_EQ(dates[ExifDateScan::kSubSecTime].text, "345678");
  EXPECT_EQ(dates[ExifDateScan::kSubSecTimeOriginal].valueOffset, std::nullopt);  // "12" lies inline
  auto wrongMagic = block;
  wrongMagic[3] = 43;
  EXPECT_FALSE(ExifDateScan::scan(orb::ByteView(wrongMagic), 0, block.size()).isTiff);

  TiffBuilder numbers;
  numbers.ifd0().exif().shorts(0x9290, {1, 2, 3});
  const auto numbersBlock = numbers.build();
  EXPECT_FALSE(ExifDateScan::scan(orb::ByteView(numbersBlock), 0, numbersBlock.size()).complete());

  TiffBuilder pages;
  IFD* ifd = &pages.ifd0();
  for (std::size_t i = 0; i < ExifDateScan::kMaxChain; ++i) ifd = &ifd->next();
  const auto pagesBlock = pages.build();
  EXPECT_TRUE(ExifDateScan::scan(orb::ByteView(pagesBlock), 0, pagesBlock.size()).chainUnresolved);
}

}  // namespace
