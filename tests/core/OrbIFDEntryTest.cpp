// OrbIFDEntry: raw fields, the date clamp, byte-order swaps, equality,
// display objects, the archive, and text values: the ASCII and UTF-8
// setters and the character-code form of UNDEFINED text. The catalogue is
// switched off here so that the entry's own rules are what is tested.

#include <gtest/gtest.h>

#include <cstring>

#include "core/EntryCatalogueHooks.h"
#include "core/OrbIFDEntry.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }
Bytes vec(std::span<const std::uint8_t> s) { return {s.begin(), s.end()}; }
constexpr std::int8_t B = kOrbBigEndian, L = kOrbLittleEndian;

class EntryTest : public testing::Test {
 protected:
  void SetUp() override { entryCatalogueHooks() = OrbEntryCatalogueHooks{}; }
  void TearDown() override { entryCatalogueHooks() = saved_; }

  // An entry as a parse makes it: raw bytes in the given order, value copied.
  static OrbIFDEntry make(std::int8_t endian, std::uint32_t ifdID, std::uint16_t tag, std::uint16_t type,
                          std::uint32_t count, std::uint32_t data = 0, Bytes value = {}) {
    OrbIFDEntry e;
    e.setEndian(endian);
    e.setIFDID(ifdID);
    e.setIFDTag(tag);
    e.setType(type);
    e.setDataCount(count);
    e.setData(data);
    if (!value.empty()) e.setValue(value);
    return e;
  }

 private:
  OrbEntryCatalogueHooks saved_ = entryCatalogueHooks();
};

TEST_F(EntryTest, NumericFieldsConvertOnEveryAccess) {
  OrbIFDEntry e = make(L, kTIFFIFDID, 0x0112, 3, 1);
  e.setDataShort1(6);
  EXPECT_EQ(vec(e.rawEntry()), (Bytes{0x12, 0x01, 3, 0, 1, 0, 0, 0, 6, 0, 0, 0}));
  e.setEndian(B);  // same bytes, now read big-endian
  EXPECT_EQ(e.ifdTag(), 0x1201);
  EXPECT_EQ(e.type(), 0x0300);
  EXPECT_EQ(e.dataCount(), 0x01000000u);
  EXPECT_EQ(e.shortData1(), 0x0600);
  e.setEndian(5);  // neither order: read as stored
  EXPECT_FALSE(e.isBigEndian() || e.isLittleEndian());
  // The byte count is 32-bit and wraps, like the file's own arithmetic.
  const std::uint32_t counts[][3] = {{2, 20, 20}, {3, 3, 6},  {4, 2, 8},   {5, 3, 24},           {8, 2, 4},
                                     {10, 1, 8},  {11, 1, 4}, {12, 1, 8},  {129, 9, 9},          {13, 5, 5},
                                     {5, 0x20000001, 8},      {3, 0x80000000, 0}};
  for (const auto& [type, count, bytes] : counts)
    EXPECT_EQ(make(B, kTIFFIFDID, 1, std::uint16_t(type), count).byteCount(), bytes) << type << " x " << count;
}

TEST_F(EntryTest, DateClampKeepsTwentyBytesEndingInZero) {
  struct Case { const char* name; std::uint32_t ifdID; std::uint16_t tag; std::string value;
                std::size_t kept; std::uint32_t count; };
  const std::string date24 = std::string("2024:01:02 03:04:05XXXX") + '\0';
  const Case cases[] = {
      {"DateTimeOriginal 24 bytes", kExifIFDID, 0x9003, date24, 20, 20},
      {"DateTimeDigitized 21 bytes", kExifIFDID, 0x9004, std::string("2024:01:02 03:04:05X") + '\0', 20, 20},
      {"DateTime 20 bytes ending in a blank", kTIFFIFDID, 0x0132, "2024:01:02 03:04:05 ", 20, 24},
      {"DateTime 18 bytes", kTIFFIFDID, 0x0132, "2024:01:02 03:04:0", 18, 24},
      {"ImageDescription 24 bytes", kTIFFIFDID, 0x010E, date24, 24, 24},
      {"DateTimeOriginal in IFD0 is no date entry", kTIFFIFDID, 0x9003, date24, 24, 24},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    OrbIFDEntry e = make(L, c.ifdID, c.tag, 2, 24, 0x100);
    e.setValue(bytesOf(c.value));
    ASSERT_EQ(e.value().size(), c.kept);
    EXPECT_EQ(e.dataCount(), c.count);
    EXPECT_EQ(e.data(), 0x100u);  // the clamp never moves the value
    if (c.kept == 20 && e.isDateTimeEntry()) { EXPECT_EQ(e.value()[19], 0); }
  }
  OrbIFDEntry own = make(B, kTIFFIFDID, 0x010E, 2, 8, 0x10, bytesOf(std::string("Picture\0", 8)));
  own.setValue(own.value().subspan(3));  // from its own copy
  EXPECT_EQ(vec(own.value()), bytesOf(std::string("ture\0", 5)));
}

TEST_F(EntryTest, IndexedNumbersReadOnlyTheOutOfLineCopy) {
  EXPECT_EQ(make(B, kTIFFIFDID, 0x0102, 3, 1, 0x00080000).unsignedShortAtIndex(0), 0);
  const OrbIFDEntry shorts = make(L, kTIFFIFDID, 0x0102, 3, 3, 0x20, {8, 0, 9, 0, 10, 0});
  EXPECT_EQ(shorts.unsignedShortAtIndex(0), 8);
  EXPECT_EQ(shorts.unsignedShortAtIndex(2), 10);
  EXPECT_EQ(shorts.unsignedShortAtIndex(3), 0);
  OrbIFDEntry rational = make(B, kExifIFDID, 33437, 5, 1, 0x20, {0, 0, 0, 28, 0, 0, 0, 10});
  EXPECT_EQ(rational.unsignedIntAtIndex(1), 10u);
  EXPECT_EQ(rational.unsignedIntAtIndex(2), 0u);
  rational.setDataCount(100);  // a count claiming more than the copy holds reads nothing past it
  EXPECT_EQ(rational.unsignedIntAtIndex(50), 0u);
}

TEST_F(EntryTest, VersionsAndIFDsOfTheirOwnEntriesOnly) {
  // The four bytes big-endian, then the Exif and GPS versions they give.
  const std::uint32_t cases[][5] = {
      {kExifIFDID, 0x9000, 0x30323330, 230, 0}, {kExifIFDID, 0x9000, 0x30320000, 2, 0},  // "02", zeros end it
      {kExifIFDID, 0x9000, 0x41424344, 0, 0},   {kTIFFIFDID, 0x9000, 0x30323330, 0, 0},  // no digits; wrong IFD
      {kGPSIFDID, 0x0000, 0x02030000, 0, 2300}, {kGPSIFDID, 0x0001, 0x02020000, 0, 0},
  };
  for (const auto& [ifd, tag, field, exif, gps] : cases) {
    const OrbIFDEntry e = make(B, ifd, std::uint16_t(tag), 7, 4, field);
    EXPECT_EQ(e.exifVersion(), exif) << std::hex << field;
    EXPECT_EQ(e.GPSVersion(), gps) << std::hex << field;
  }
  for (std::uint32_t id : {0x10000u, 0x20000u, 0x30000u, 0x40000u, 0x50000u}) {
    auto e = OrbIFDEntry::initWithEndian(L, 0x0132, id);
    ASSERT_NE(e, nullptr) << std::hex << id;
    EXPECT_EQ(e->ifdID(), id);
  }
  for (std::uint32_t id : {0x0u, 0x60000u, 0x18000u, 0x10001u, 0xFFFF0000u})
    EXPECT_EQ(OrbIFDEntry::initWithEndian(B, 1, id), nullptr) << std::hex << id;
}

// Inline fields swap per number of their type; a second swap gives the entry back.
TEST_F(EntryTest, SwapInlineFieldsByType) {
  struct Case { std::uint16_t type; std::uint32_t count; Bytes swapped; };  // of the field {1, 2, 3, 4}
  const Case cases[] = {{4, 1, {4, 3, 2, 1}}, {3, 2, {2, 1, 4, 3}}, {3, 1, {2, 1, 4, 3}},
                        {1, 4, {1, 2, 3, 4}}, {7, 4, {1, 2, 3, 4}}, {13, 4, {1, 2, 3, 4}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << "type " << c.type);
    OrbIFDEntry e = make(B, kTIFFIFDID, 0x0112, c.type, c.count);
    e.setDataPtr(Bytes{1, 2, 3, 4});
    const OrbIFDEntry s = e.swapedEntry();
    EXPECT_EQ(vec(s.dataPtr()), c.swapped);
    EXPECT_EQ(s.endian(), L);
    EXPECT_EQ(s.ifdTag(), 0x0112);
    EXPECT_TRUE(s.swapedEntry().isEqualToEntry(e));
  }
}

TEST_F(EntryTest, SwapOutOfLineValuesByType) {
  const Bytes v16 = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  const Bytes by4 = {4, 3, 2, 1, 8, 7, 6, 5, 12, 11, 10, 9, 16, 15, 14, 13};
  struct Case { std::uint32_t ifdID; std::uint16_t tag, type; std::uint32_t count; Bytes swapped; };
  const Case cases[] = {
      {kTIFFIFDID, 0x0111, 4, 4, by4}, {kExifIFDID, 33437, 5, 2, by4},
      {kTIFFIFDID, 0x0102, 3, 8, {2, 1, 4, 3, 6, 5, 8, 7, 10, 9, 12, 11, 14, 13, 16, 15}},
      {kTIFFIFDID, 0x0100, 12, 2, {8, 7, 6, 5, 4, 3, 2, 1, 16, 15, 14, 13, 12, 11, 10, 9}},
      {kExifIFDID, 37510, 7, 16, v16},  // UserComment: bytes as they are
  };
  for (const auto& c : cases) {
    const OrbIFDEntry s = make(B, c.ifdID, c.tag, c.type, c.count, 0x01020304, v16).swapedEntry();
    EXPECT_EQ(vec(s.value()), c.swapped) << "type " << c.type;
    EXPECT_EQ(s.data(), 0x01020304u);
    EXPECT_EQ(vec(s.dataPtr()), (Bytes{4, 3, 2, 1}));
  }
  // CompositeImageExposureTimes: eight rationals, then two shorts, then a rational.
  Bytes value(64);
  for (std::size_t i = 0; i < value.size(); ++i) value[i] = static_cast<std::uint8_t>(i);
  const auto s = vec(make(L, kExifIFDID, 0xA462, 7, 64, 0x40, value).swapedEntry().value());
  EXPECT_EQ(Bytes(s.begin() + 52, s.end()), (Bytes{55, 54, 53, 52, 57, 56, 59, 58, 63, 62, 61, 60}));
  // Without a copy the swap makes a zero-filled one, but never gigabytes of it.
  EXPECT_EQ(vec(make(B, kTIFFIFDID, 0x0111, 4, 3, 0x200).swapedEntry().value()), Bytes(12, 0));
  EXPECT_LE(make(B, kTIFFIFDID, 0x0111, 4, 0x3FFFFFFF, 0x200).swapedEntry().value().size(), 16u << 20);
}

TEST_F(EntryTest, EqualityByEntryAndByValue) {
  const auto rational = [](std::uint16_t tag, std::uint8_t n, std::uint8_t d) {
    return make(B, kExifIFDID, tag, 5, 1, 0x100, {0, 0, 0, n, 0, 0, 0, d});
  };
  OrbIFDEntry otherOffset = rational(33437, 28, 10);
  otherOffset.setData(0x200);
  const OrbIFDEntry noCopy = make(B, kExifIFDID, 33437, 5, 1, 0x100);
  struct Case { const char* name; OrbIFDEntry a, b; int byValue; bool byEntry; };  // byValue -1: not asked
  const Case cases[] = {
      {"out of line: bytes decide, not the offset", rational(33437, 28, 10), otherOffset, -1, true},
      {"no copy", rational(33437, 28, 10), noCopy, -1, false}, {"no copy on both sides", noCopy, noCopy, -1, true},
      {"byte order differs", rational(33437, 28, 10), rational(33437, 28, 10).swapedEntry(), -1, false},
      {"the whole inline field counts", make(B, kTIFFIFDID, 0x0112, 3, 1, 0x00010000),
       make(B, kTIFFIFDID, 0x0112, 3, 1, 0x00010001), -1, false},
      {"FNumber 28/10 vs 14/5", rational(33437, 28, 10), rational(33437, 14, 5), true, false},
      {"0/0 is equal to nothing", rational(33437, 0, 0), rational(33437, 0, 0), false, true},
      {"not a rational tag", rational(0x9999, 28, 10), rational(0x9999, 14, 5), false, false},
      {"ImageWidth SHORT 640 vs LONG 640", make(B, kTIFFIFDID, 256, 3, 1, 640u << 16),
       make(B, kTIFFIFDID, 256, 4, 1, 640), true, false},
      {"PixelXDimension LE SHORT vs BE LONG", make(L, kExifIFDID, 40962, 3, 1, 640),
       make(B, kExifIFDID, 40962, 4, 1, 640), true, false},
      {"Orientation SHORT vs LONG", make(B, kTIFFIFDID, 0x0112, 3, 1, 1u << 16),
       make(B, kTIFFIFDID, 0x0112, 4, 1, 1), false, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    if (c.byValue >= 0) { EXPECT_EQ(c.a.isEqualToValue(c.b), c.byValue == 1); }
    EXPECT_EQ(c.a.isEqualToEntry(c.b), c.byEntry);
  }
}

TEST_F(EntryTest, EqualityByValueOfTexts) {
  OrbIFDEntry comment1 = make(B, kExifIFDID, 37510, 7, 0);
  comment1.setVersion(230);
  OrbIFDEntry comment2 = comment1.swapedEntry();
  comment1.setString("Hello", kOrbStringEncodingTypeASCII);
  comment2.setString("Hello", kOrbStringEncodingTypeUnicode);
  EXPECT_TRUE(comment1.isEqualToValue(comment2));
  EXPECT_FALSE(comment1.isEqualToEntry(comment2));
  comment2.setString("Other", kOrbStringEncodingTypeASCII);
  EXPECT_FALSE(comment1.isEqualToValue(comment2));
  // A receiver with no value at all is equal to anything.
  OrbIFDEntry empty = make(B, kExifIFDID, 37510, 7, 20, 0x100);
  entryCatalogueHooks().dataObject = [](const OrbIFDEntry&) -> std::optional<OrbDataObject> { return OrbDataObject(); };
  EXPECT_TRUE(empty.isEqualToValue(comment2));
}

TEST_F(EntryTest, DisplayObjectsByType) {
  struct Case { const char* name; OrbIFDEntry entry; std::string text; };
  const Case cases[] = {
      {"BYTE x4", make(B, kGPSIFDID, 0, 1, 4, 0x02030000), "2, 3, 0, 0"},
      {"SBYTE", make(B, kTIFFIFDID, 1, 6, 1, 0xFF000000), "-1"},
      {"SHORT LE", make(L, kTIFFIFDID, 0x0112, 3, 1, 6), "6"},
      {"SHORT x3", make(B, kTIFFIFDID, 0x0102, 3, 3, 0x10, {0, 8, 0, 8, 0, 8}), "8, 8, 8"},
      {"SLONG", make(B, kTIFFIFDID, 1, 9, 1, 0xFFFFFFFD), "-3"},
      {"RATIONAL", make(B, kExifIFDID, 33437, 5, 1, 0x10, {0, 0, 0, 28, 0, 0, 0, 10}), "2.8"},
      {"RATIONAL 72/1", make(B, kTIFFIFDID, 0x011A, 5, 1, 0x10, {0, 0, 0, 72, 0, 0, 0, 1}), "72"},
      {"RATIONAL n/0", make(B, kTIFFIFDID, 0x011A, 5, 1, 0x10, {0, 0, 0, 7, 0, 0, 0, 0}), "7/0"},
      {"SRATIONAL", make(B, kExifIFDID, 37380, 10, 1, 0x10, {0xFF, 0xFF, 0xFF, 0xFD, 0, 0, 0, 3}), "-1"},
      {"FLOAT", make(B, kTIFFIFDID, 1, 11, 1, 0x3DCCCCCD), "0.1"},
      {"DOUBLE", make(B, kTIFFIFDID, 1, 12, 1, 0x10, {0x3F, 0xF8, 0, 0, 0, 0, 0, 0}), "1.5"},
      {"ASCII inline", make(B, kInteroperabilityIFDID, 1, 2, 4, 0x52393800), "R98"},
      {"ASCII stops at zero", make(B, kTIFFIFDID, 0x010F, 2, 8, 0x10, bytesOf(std::string("Abc\0Def\0", 8))), "Abc"},
      {"UTF-8", make(B, kTIFFIFDID, 0x010E, 129, 7, 0x10, bytesOf("caf\xC3\xA9s\0")), "caf\xC3\xA9s"},
      {"ASCII Latin-1 byte", make(B, kTIFFIFDID, 0x010E, 2, 6, 0x10, bytesOf(std::string("caf\xE9s\0", 6))), "caf\xC3\xA9s"},
      {"UNDEFINED version", make(B, kExifIFDID, 0x9000, 7, 4, 0x30323330), "0230"},
      {"UNDEFINED bytes", make(B, kExifIFDID, 0x9101, 7, 4, 0x01020300), "01 02 03 00"},
      {"UNDEFINED long binary", make(B, kExifIFDID, 0x927C, 7, 40, 0x10, Bytes(40, 1)), "(40 bytes)"},
      {"unknown type", make(B, kTIFFIFDID, 1, 99, 1, 5), ""},
  };
  for (const auto& c : cases) EXPECT_EQ(c.entry.stringData(), c.text) << c.name;
}

TEST_F(EntryTest, OffsetTimeBlanksAreUnknown) {
  const std::tuple<std::uint16_t, std::string, std::string> cases[] = {
      {0x9011, "   :  ", "Unknown"}, {0x9011, "      ", "Unknown"}, {0x9011, "", "Unknown"},
      {0x9011, "+09:00", "+09:00"},   {0x9013, "      ", "      "},  // not an offset-time tag
  };
  for (const auto& [tag, text, shown] : cases) {
    OrbIFDEntry e = make(B, kExifIFDID, tag, 2, 0);
    e.setASCIIString(text);
    EXPECT_EQ(e.stringData(), shown) << '"' << text << '"';
    EXPECT_EQ(e.localizedDataObject().text(), shown) << '"' << text << '"';
  }
}

TEST_F(EntryTest, ArchiveRoundTrips) {
  const OrbIFDEntry entries[] = {
      make(L, kExifIFDID, 0x9003, 2, 20, 0x1A2, bytesOf(std::string("2024:01:02 03:04:05\0", 20))),
      make(B, kTIFFIFDID, 0x0112, 3, 1, 6u << 16),
      make(B, kGPSIFDID, 2, 5, 3, 0x300),  // out of line, no copy
  };
  for (OrbIFDEntry e : entries) {
    e.setVersion(230);
    const auto archive = e.archivedData();
    auto back = OrbIFDEntry::entryWithArchivedData(archive);
    ASSERT_NE(back, nullptr);
    EXPECT_TRUE(back->isEqualToEntry(e));
    EXPECT_EQ(vec(back->rawEntry()), vec(e.rawEntry()));
    EXPECT_EQ(back->version(), 230u);
    EXPECT_EQ(back->hasValue(), e.hasValue());
    EXPECT_NE(OrbIFDEntry::initWithPasteboardPropertyList(archive, OrbIFDEntry::kPasteboardType), nullptr);
    EXPECT_EQ(OrbIFDEntry::initWithPasteboardPropertyList(archive, "public.data"), nullptr);
    const std::string text(archive.begin(), archive.end());
    for (const char* key : {"_endian", "_ifdID", "ifdTag", "type", "dataCount", "data", "_version"})
      EXPECT_NE(text.find(key), std::string::npos) << key;
  }
}

TEST_F(EntryTest, MalformedArchivesGiveNoEntry) {
  const auto good = make(B, kExifIFDID, 37510, 7, 10, 0x40, bytesOf("ASCII\0\0\0hi")).archivedData();
  EXPECT_NE(OrbIFDEntry::entryWithArchivedData(good), nullptr);
  for (std::size_t size = 0; size < good.size(); ++size) {
    const Bytes cut(good.begin(), good.begin() + static_cast<long>(size));
    EXPECT_EQ(OrbIFDEntry::entryWithArchivedData(cut), nullptr) << size;
  }
  auto badMagic = good;
  badMagic[0] = 'X';
  EXPECT_EQ(OrbIFDEntry::entryWithArchivedData(badMagic), nullptr);
}

// ---- text values ----

Bytes operator+(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const Bytes kASCII = {'A', 'S', 'C', 'I', 'I', 0, 0, 0};
const Bytes kJIS = {'J', 'I', 'S', 0, 0, 0, 0, 0};
const Bytes kUNICODE = {'U', 'N', 'I', 'C', 'O', 'D', 'E', 0};
const char* const kNihon = "\xE6\x97\xA5\xE6\x9C\xAC";  // two kanji: sun, book

class TextTest : public EntryTest {
 protected:
  static OrbIFDEntry entry(std::uint32_t ifdID, std::uint16_t tag, std::uint32_t version = 0,
                           std::int8_t endian = kOrbBigEndian) {
    OrbIFDEntry e;
    e.setEndian(endian);
    e.setIFDID(ifdID);
    e.setIFDTag(tag);
    e.setVersion(version);
    return e;
  }
  // An entry of the given type holding value out of line, as a parse leaves it.
  static OrbIFDEntry holding(std::uint32_t ifdID, std::uint16_t tag, const Bytes& value, std::uint16_t type = 7,
                             std::uint32_t version = 0, std::int8_t endian = kOrbBigEndian) {
    OrbIFDEntry e = entry(ifdID, tag, version, endian);
    e.setType(type);
    e.setDataCount(static_cast<std::uint32_t>(value.size()));
    e.setValue(value);
    return e;
  }
};

// The ASCII and UTF-8 setters: four bytes stay inline, longer texts get a
// copy; texts the type cannot hold clear the count. A shorter text leaves an
// older copy alone on purpose: the inline field is what counts.
TEST_F(TextTest, ASCIIAndUTF8Setters) {
  struct Case { const char* name; bool utf8; const char* before; std::string text; std::uint32_t count;
                bool hasValue; std::optional<Bytes> stored; };
  const Case cases[] = {
      {"inline", false, nullptr, "abc", 4, false, Bytes{'a', 'b', 'c', 0}},
      {"date out of line", false, nullptr, "2024:01:02 03:04:05", 20, true,
       Bytes{'2', '0', '2', '4', ':', '0', '1', ':', '0', '2', ' ', '0', '3', ':', '0', '4', ':', '0', '5', 0}},
      {"empty", false, "a longer description", "", 0, false, {}},
      {"not ASCII", false, "a longer description", "caf\xC3\xA9", 0, false, {}},
      {"short after long", false, "a longer description", "ab", 3, true, {}},
      {"UTF-8", true, nullptr, "caf\xC3\xA9", 6, true, Bytes{'c', 'a', 'f', 0xC3, 0xA9, 0}},
      {"not UTF-8", true, nullptr, "\xFF\xFE", 0, false, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    OrbIFDEntry e = entry(kTIFFIFDID, 0x010E);
    if (c.before) e.setASCIIString(c.before);
    c.utf8 ? e.setUTF8String(c.text) : e.setASCIIString(c.text);
    EXPECT_EQ(e.type(), c.utf8 ? 129 : 2);
    EXPECT_EQ(e.dataCount(), c.count);
    EXPECT_EQ(e.hasValue(), c.hasValue);
    if (c.count > 4) { EXPECT_EQ(e.data(), 0u); }  // a new copy has no offset yet
    if (c.stored) { EXPECT_EQ(vec(c.hasValue ? e.value() : e.dataPtr()), *c.stored); }
    if (c.count) { EXPECT_EQ(e.stringData(), c.text); }
  }
}

TEST_F(TextTest, CharacterCodeForms) {
  struct Case { const char* name; std::uint32_t ifdID; std::uint16_t tag; std::uint32_t version; std::string text;
                std::uint32_t type; Bytes value; };
  const Bytes utf16Hi = kUNICODE + Bytes{0, 'H', 0, 'i'}, utf8Hi = kUNICODE + Bytes{'H', 'i'};
  const Case cases[] = {
      {"ASCII", kExifIFDID, 37510, 230, "Hello", 1, kASCII + Bytes{'H', 'e', 'l', 'l', 'o'}},
      {"UNICODE before 3.0: UTF-16 big-endian", kExifIFDID, 37510, 230, "Hi", 2, utf16Hi},
      {"UNICODE from 3.0: UTF-8", kExifIFDID, 37510, 300, "Hi", 2, utf8Hi},
      {"JIS before 3.0: Shift JIS", kExifIFDID, 37510, 230, kNihon, 3, kJIS + Bytes{0x93, 0xFA, 0x96, 0x7B}},
      {"JIS from 3.0: ISO-2022-JP", kExifIFDID, 37510, 300, kNihon, 3,
       kJIS + Bytes{0x1B, 0x24, 0x42, 0x46, 0x7C, 0x4B, 0x5C, 0x1B, 0x28, 0x42}},
      {"no version in Exif counts as 2.32", kExifIFDID, 37510, 0, "Hi", 2, utf16Hi},
      {"GPS without version counts as 2.3", kGPSIFDID, 27, 0, "Hi", 2, utf16Hi},
      {"GPS 2.4 takes UTF-8", kGPSIFDID, 28, 2400, "Hi", 2, utf8Hi},
      {"Interoperability takes UTF-8", kInteroperabilityIFDID, 1, 0, "Hi", 2, utf8Hi},
      {"ASCII that cannot be: UNICODE", kExifIFDID, 37510, 230, kNihon, 1, kUNICODE + Bytes{0x65, 0xE5, 0x67, 0x2C}},
      {"ASCII that cannot be, 3.0: UTF-8", kExifIFDID, 37510, 300, "\xC3\xA9", 1, kUNICODE + Bytes{0xC3, 0xA9}},
      {"Shift JIS that cannot be: UNICODE", kExifIFDID, 37510, 230, "\xF0\x9F\x98\x80", 3,
       kUNICODE + Bytes{0xD8, 0x3D, 0xDE, 0x00}},
      {"empty ASCII", kExifIFDID, 37510, 230, "", 1, kASCII},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    OrbIFDEntry e = entry(c.ifdID, c.tag, c.version);
    e.setString(c.text, c.type);
    EXPECT_EQ(e.type(), 7);
    EXPECT_EQ(e.dataCount(), c.value.size());
    EXPECT_EQ(vec(e.value()), c.value);
    EXPECT_EQ(e.stringData(), c.text);  // and the display reads it back
  }
  // An unknown code with an empty text leaves no value but the old count.
  OrbIFDEntry e = entry(kExifIFDID, 37510, 230);
  e.setString("old text", 1);
  e.setString("", 4);
  EXPECT_EQ(e.dataCount(), 8u);
  EXPECT_FALSE(e.hasValue());
}

TEST_F(TextTest, CharacterCodeOfAnUndefinedEntry) {
  struct Case { const char* name; std::uint16_t type; Bytes value; std::uint32_t code; };
  const Case cases[] = {
      {"ASCII", 7, kASCII + Bytes{'x'}, 1}, {"JIS", 7, kJIS + Bytes{'x'}, 3}, {"UNICODE", 7, kUNICODE + Bytes{0, 'x'}, 2},
      {"undefined", 7, Bytes(12, 0), 4},    {"unknown prefix", 7, Bytes{'X', 'S', 'C', 'I', 'I', 0, 0, 0, 'x'}, 0},
      {"not UNDEFINED", 2, kASCII + Bytes{'x'}, 0},
  };
  for (const auto& c : cases) {
    const OrbIFDEntry e = holding(kExifIFDID, 37510, c.value, c.type);
    EXPECT_EQ(OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(&e), c.code) << c.name;
  }
  EXPECT_EQ(OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(nullptr), 0u);
  OrbIFDEntry inlineOnly = entry(kExifIFDID, 37510);
  inlineOnly.setType(7);
  inlineOnly.setDataCount(4);
  EXPECT_EQ(OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(&inlineOnly), 0u);
}

TEST_F(TextTest, UnicodeFormInEitherByteOrder) {
  struct Case { const char* name; std::uint32_t ifdID; std::uint16_t tag; Bytes value; bool reversed; Bytes after; };
  const Case cases[] = {
      {"UserComment", kExifIFDID, 37510, kUNICODE + Bytes{'H', 0, 'i', 0}, true, kUNICODE + Bytes{0, 'H', 0, 'i'}},
      {"odd last byte stays", kGPSIFDID, 27, kUNICODE + Bytes{1, 2, 3}, true, kUNICODE + Bytes{2, 1, 3}},
      {"prefix only", kExifIFDID, 37510, kUNICODE, false, kUNICODE},
      {"ASCII form", kExifIFDID, 37510, kASCII + Bytes{'H', 'i'}, false, kASCII + Bytes{'H', 'i'}},
      {"other tag", kExifIFDID, 37511, kUNICODE + Bytes{1, 2}, false, kUNICODE + Bytes{1, 2}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    OrbIFDEntry e = holding(c.ifdID, c.tag, c.value);
    EXPECT_EQ(e.reverseUnicodeString(), c.reversed);
    EXPECT_EQ(vec(e.value()), c.after);
  }
  // Cameras write the UNICODE form in their own byte order.
  for (const Bytes& payload : {Bytes{'H', 0, 'i', 0}, Bytes{0, 'H', 0, 'i'}, Bytes{0xFF, 0xFE, 'H', 0, 'i', 0}})
    EXPECT_EQ(holding(kExifIFDID, 37510, kUNICODE + payload, 7, 220, kOrbLittleEndian).stringData(), "Hi");
}

TEST(TextAllowance, UTF8AllowedTagsByIFD) {
  const std::tuple<std::uint32_t, std::uint16_t, bool> cases[] = {
      {kTIFFIFDID, 270, true}, {kTIFFIFDID, 306, false}, {kExifIFDID, 0xA430, true}, {kExifIFDID, 270, false},
      {kGPSIFDID, 28, true},   {kGPSIFDID, 29, false},   {kInteroperabilityIFDID, 1, false}};
  for (const auto& [ifd, tag, allowed] : cases)
    EXPECT_EQ(OrbIFDEntry::allowedUTF8WithItemID({ifd, tag}), allowed) << std::hex << ifd << " " << tag;
}

}  // namespace
