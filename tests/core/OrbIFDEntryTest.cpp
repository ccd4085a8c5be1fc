// OrbIFDEntry: raw fields, the date clamp, byte-order swaps, equality,
// display objects, the archive and text values. The catalogue is switched
// off here so that the entry's own rules are what is tested.

#include <gtest/gtest.h>

#include "core/EntryCatalogueHooks.h"
#include "core/OrbIFDEntry.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }
Bytes vec(std::span<const std::uint8_t> s) { return {s.begin(), s.end()}; }
Bytes operator+(Bytes a, const Bytes& b) { a.insert(a.end(), b.begin(), b.end()); return a; }
constexpr std::int8_t B = kOrbBigEndian, L = kOrbLittleEndian;
const Bytes kASCII = bytesOf({"ASCII\0\0\0", 8}), kJIS = bytesOf({"JIS\0\0\0\0\0", 8}),
            kUNICODE = bytesOf({"UNICODE\0", 8});
const char* const kNihon = "\xE6\x97\xA5\xE6\x9C\xAC";  // two kanji: sun, book

// An entry as a parse makes it: raw bytes in the given order, value copied.
OrbIFDEntry make(std::int8_t endian, std::uint32_t ifdID, std::uint16_t tag, std::uint16_t type, std::uint32_t count,
                 std::uint32_t data = 0, Bytes value = {}, std::uint32_t version = 0) {
  OrbIFDEntry e;
  e.setEndian(endian), e.setIFDID(ifdID), e.setIFDTag(tag), e.setType(type), e.setDataCount(count), e.setData(data);
  e.setVersion(version);
  if (!value.empty()) e.setValue(value);
  return e;
}

class EntryTest : public testing::Test {
 protected:
  void SetUp() override { entryCatalogueHooks() = OrbEntryCatalogueHooks{}; }
  void TearDown() override { entryCatalogueHooks() = saved_; }
 private:
  OrbEntryCatalogueHooks saved_ = entryCatalogueHooks();
};

// Raw fields are read and written by every parse and save; the byte count
// is 32-bit and wraps, like the file's own arithmetic.
TEST_F(EntryTest, ByteCounts) {
  const std::uint32_t counts[][3] = {{2, 20, 20}, {5, 3, 24}, {12, 1, 8}, {13, 5, 5}, {5, 0x20000001, 8}, {3, 0x80000000, 0}};
  for (const auto& [type, count, bytes] : counts)
    EXPECT_EQ(make(B, kTIFFIFDID, 1, std::uint16_t(type), count).byteCount(), bytes) << type << " x " << count;
}

TEST_F(EntryTest, DateClampKeepsTwentyBytesEndingInZero) {
  const std::string date24 = std::string("2024:01:02 03:04:05XXXX") + '\0';
  const std::tuple<std::uint32_t, std::uint16_t, std::string, std::size_t, std::uint32_t> cases[] = {
      {kExifIFDID, 0x9003, date24, 20, 20}, {kTIFFIFDID, 0x0132, "2024:01:02 03:04:05 ", 20, 24},
      {kTIFFIFDID, 0x0132, "2024:01:02 03:04:0", 18, 24}, {kTIFFIFDID, 0x010E, date24, 24, 24},
      {kTIFFIFDID, 0x9003, date24, 24, 24}};  // DateTimeOriginal in IFD0 is no date entry
  for (const auto& [ifd, tag, value, kept, count] : cases) {
    OrbIFDEntry e = make(L, ifd, tag, 2, 24, 0x100, bytesOf(value));
    ASSERT_EQ(e.value().size(), kept) << tag;
    EXPECT_EQ(std::tuple(e.dataCount(), e.data()), std::tuple(count, 0x100u)) << tag;
    if (kept == 20) { EXPECT_EQ(e.value()[19], 0) << tag; }
  }
  OrbIFDEntry own = make(B, kTIFFIFDID, 0x010E, 2, 8, 0x10, bytesOf(std::string("Picture\0", 8)));
  own.setValue(own.value().subspan(3));  // from its own copy
  EXPECT_EQ(vec(own.value()), bytesOf(std::string("ture\0", 5)));
}

TEST_F(EntryTest, IndexedNumbersVersionsAndIFDs) {
  EXPECT_EQ(make(B, kTIFFIFDID, 0x0102, 3, 1, 0x00080000).unsignedShortAtIndex(0), 0);  // only the out-of-line copy
  const OrbIFDEntry shorts = make(L, kTIFFIFDID, 0x0102, 3, 3, 0x20, {8, 0, 9, 0, 10, 0});
  EXPECT_EQ(std::tuple(shorts.unsignedShortAtIndex(2), shorts.unsignedShortAtIndex(3)), std::tuple(10, 0));
  OrbIFDEntry rational = make(B, kExifIFDID, 33437, 5, 100, 0x20, {0, 0, 0, 28, 0, 0, 0, 10});
  EXPECT_EQ(std::tuple(rational.unsignedIntAtIndex(1), rational.unsignedIntAtIndex(50)), std::tuple(10u, 0u));
  // The four bytes big-endian, then the Exif and GPS versions they give.
  const std::uint32_t cases[][5] = {
      {kExifIFDID, 0x9000, 0x30323330, 230, 0}, {kExifIFDID, 0x9000, 0x30320000, 2, 0},  // "02", zeros end it
      {kExifIFDID, 0x9000, 0x41424344, 0, 0},   {kTIFFIFDID, 0x9000, 0x30323330, 0, 0},  // no digits; wrong IFD
      {kGPSIFDID, 0x0000, 0x02030000, 0, 2300}, {kGPSIFDID, 0x0001, 0x02020000, 0, 0}};
  for (const auto& [ifd, tag, field, exif, gps] : cases) {
    const OrbIFDEntry e = make(B, ifd, std::uint16_t(tag), 7, 4, field);
    EXPECT_EQ(std::tuple(e.exifVersion(), e.GPSVersion()), std::tuple(exif, gps)) << std::hex << field;
  }
  for (std::uint32_t id : {0x10000u, 0x50000u}) EXPECT_EQ(OrbIFDEntry::initWithEndian(L, 0x0132, id)->ifdID(), id);
  for (std::uint32_t id : {0x0u, 0x60000u, 0x10001u}) EXPECT_EQ(OrbIFDEntry::initWithEndian(B, 1, id), nullptr) << id;
}

// Numbers swap per their type; a second swap gives the entry back.
TEST_F(EntryTest, SwapsByType) {
  const std::tuple<std::uint16_t, std::uint32_t, Bytes> inlineCases[] = {  // of the field {1, 2, 3, 4}
      {4, 1, {4, 3, 2, 1}}, {3, 1, {2, 1, 4, 3}}, {7, 4, {1, 2, 3, 4}}};
  for (const auto& [type, count, swapped] : inlineCases) {
    OrbIFDEntry e = make(B, kTIFFIFDID, 0x0112, type, count);
    e.setDataPtr(Bytes{1, 2, 3, 4});
    const OrbIFDEntry s = e.swapedEntry();
    EXPECT_EQ(vec(s.dataPtr()), swapped) << type;
    EXPECT_EQ(std::tuple(s.endian(), s.ifdTag()), std::tuple(L, 0x0112)) << type;
    EXPECT_TRUE(s.swapedEntry().isEqualToEntry(e)) << type;
  }
  const Bytes v16 = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
  const Bytes by4 = {4, 3, 2, 1, 8, 7, 6, 5, 12, 11, 10, 9, 16, 15, 14, 13};
  const std::tuple<std::uint32_t, std::uint16_t, std::uint16_t, std::uint32_t, Bytes> cases[] = {
      {kTIFFIFDID, 0x0111, 4, 4, by4}, {kExifIFDID, 33437, 5, 2, by4},
      {kTIFFIFDID, 0x0102, 3, 8, {2, 1, 4, 3, 6, 5, 8, 7, 10, 9, 12, 11, 14, 13, 16, 15}},
      {kTIFFIFDID, 0x0100, 12, 2, {8, 7, 6, 5, 4, 3, 2, 1, 16, 15, 14, 13, 12, 11, 10, 9}},
      {kExifIFDID, 37510, 7, 16, v16}};  // UserComment: bytes as they are
  for (const auto& [ifd, tag, type, count, swapped] : cases) {
    const OrbIFDEntry s = make(B, ifd, tag, type, count, 0x01020304, v16).swapedEntry();
    EXPECT_EQ(vec(s.value()), swapped) << "type " << type;
    EXPECT_EQ(vec(s.dataPtr()), (Bytes{4, 3, 2, 1})) << "the offset swaps as a LONG";
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
  const auto rational = [](std::uint16_t tag, std::uint8_t n, std::uint8_t d, std::uint32_t at = 0x100) {
    return make(B, kExifIFDID, tag, 5, 1, at, {0, 0, 0, n, 0, 0, 0, d});
  };
  const OrbIFDEntry fNumber = rational(33437, 28, 10), noCopy = make(B, kExifIFDID, 33437, 5, 1, 0x100);
  struct Case { const char* name; OrbIFDEntry a, b; int byValue; bool byEntry; };  // byValue -1: not asked
  const Case cases[] = {
      {"bytes decide, not the offset", fNumber, rational(33437, 28, 10, 0x200), -1, true},
      {"no copy", fNumber, noCopy, -1, false},
      {"byte order differs", fNumber, fNumber.swapedEntry(), -1, false},
      {"the whole inline field counts", make(B, kTIFFIFDID, 0x0112, 3, 1, 0x00010000),
       make(B, kTIFFIFDID, 0x0112, 3, 1, 0x00010001), -1, false},
      {"28/10 vs 14/5", fNumber, rational(33437, 14, 5), true, false},
      {"0/0 is equal to nothing", rational(33437, 0, 0), rational(33437, 0, 0), false, true},
      {"PixelXDimension LE SHORT vs BE LONG", make(L, kExifIFDID, 40962, 3, 1, 640),
       make(B, kExifIFDID, 40962, 4, 1, 640), true, false},
      {"Orientation SHORT vs LONG", make(B, kTIFFIFDID, 0x0112, 3, 1, 1u << 16),
       make(B, kTIFFIFDID, 0x0112, 4, 1, 1), false, false}};
  for (const auto& c : cases) {
    if (c.byValue >= 0) { EXPECT_EQ(c.a.isEqualToValue(c.b), c.byValue == 1) << c.name; }
    EXPECT_EQ(c.a.isEqualToEntry(c.b), c.byEntry) << c.name;
  }
  // Texts compare as texts, whatever their character code.
  OrbIFDEntry comment1 = make(B, kExifIFDID, 37510, 7, 0, 0, {}, 230), comment2 = comment1.swapedEntry();
  comment1.setString("Hello", kOrbStringEncodingTypeASCII);
  comment2.setString("Hello", kOrbStringEncodingTypeUnicode);
  EXPECT_TRUE(comment1.isEqualToValue(comment2));
  comment2.setString("Other", kOrbStringEncodingTypeASCII);
  EXPECT_FALSE(comment1.isEqualToValue(comment2));
  // A receiver with no value at all is equal to anything.
  entryCatalogueHooks().dataObject = [](const OrbIFDEntry&) -> std::optional<OrbDataObject> { return OrbDataObject(); };
  EXPECT_TRUE(make(B, kExifIFDID, 37510, 7, 20, 0x100).isEqualToValue(comment2));
}

TEST_F(EntryTest, DisplayTexts) {
  const std::pair<OrbIFDEntry, std::string> cases[] = {
      {make(B, kGPSIFDID, 0, 1, 4, 0x02030000), "2, 3, 0, 0"}, {make(B, kTIFFIFDID, 1, 6, 1, 0xFF000000), "-1"},
      {make(L, kTIFFIFDID, 0x0112, 3, 1, 6), "6"}, {make(B, kTIFFIFDID, 1, 9, 1, 0xFFFFFFFD), "-3"},
      {make(B, kTIFFIFDID, 0x0102, 3, 3, 0x10, {0, 8, 0, 8, 0, 8}), "8, 8, 8"},
      {make(B, kExifIFDID, 33437, 5, 1, 0x10, {0, 0, 0, 28, 0, 0, 0, 10}), "2.8"},
      {make(B, kTIFFIFDID, 0x011A, 5, 1, 0x10, {0, 0, 0, 7, 0, 0, 0, 0}), "7/0"},
      {make(B, kExifIFDID, 37380, 10, 1, 0x10, {0xFF, 0xFF, 0xFF, 0xFD, 0, 0, 0, 3}), "-1"},
      {make(B, kTIFFIFDID, 1, 11, 1, 0x3DCCCCCD), "0.1"},
      {make(B, kTIFFIFDID, 1, 12, 1, 0x10, {0x3F, 0xF8, 0, 0, 0, 0, 0, 0}), "1.5"},
      {make(B, kInteroperabilityIFDID, 1, 2, 4, 0x52393800), "R98"},
      {make(B, kTIFFIFDID, 0x010F, 2, 8, 0x10, bytesOf(std::string("Abc\0Def\0", 8))), "Abc"},
      {make(B, kTIFFIFDID, 0x010E, 129, 7, 0x10, bytesOf("caf\xC3\xA9s\0")), "caf\xC3\xA9s"},
      {make(B, kTIFFIFDID, 0x010E, 2, 6, 0x10, bytesOf(std::string("caf\xE9s\0", 6))), "caf\xC3\xA9s"},  // Latin-1
      {make(B, kExifIFDID, 0x9101, 7, 4, 0x01020300), "01 02 03 00"},
      {make(B, kExifIFDID, 0x927C, 7, 40, 0x10, Bytes(40, 1)), "(40 bytes)"}, {make(B, kTIFFIFDID, 1, 99, 1, 5), ""}};
  for (const auto& [entry, text] : cases) EXPECT_EQ(entry.stringData(), text) << entry.type();
  // Blank offset times are unknown, in both display forms.
  for (const auto& [tag, text, shown] : {std::tuple(0x9011, "   :  ", "Unknown"), std::tuple(0x9011, "+09:00", "+09:00"),
                                         std::tuple(0x9013, "      ", "      ")}) {
    OrbIFDEntry e = make(B, kExifIFDID, std::uint16_t(tag), 2, 0);
    e.setASCIIString(text);
    EXPECT_EQ(e.stringData() + "|" + e.localizedDataObject().text(), std::string(shown) + "|" + shown) << tag;
  }
}

TEST_F(EntryTest, ArchiveRoundTripsAndRefusesDamage) {
  for (OrbIFDEntry e : {make(L, kExifIFDID, 0x9003, 2, 20, 0x1A2, bytesOf({"2024:01:02 03:04:05\0", 20}), 230),
                        make(B, kGPSIFDID, 2, 5, 3, 0x300, {}, 230)}) {  // the second: out of line, no copy
    const auto archive = e.archivedData();
    auto back = OrbIFDEntry::entryWithArchivedData(archive);
    ASSERT_NE(back, nullptr);
    EXPECT_TRUE(back->isEqualToEntry(e));
    EXPECT_EQ(std::tuple(back->version(), back->hasValue()), std::tuple(230u, e.hasValue()));
    EXPECT_NE(OrbIFDEntry::initWithPasteboardPropertyList(archive, OrbIFDEntry::kPasteboardType), nullptr);
    EXPECT_EQ(OrbIFDEntry::initWithPasteboardPropertyList(archive, "public.data"), nullptr);
  }
  auto good = make(B, kExifIFDID, 37510, 7, 10, 0x40, bytesOf("ASCII\0\0\0hi")).archivedData();
  for (std::size_t size = 0; size < good.size(); ++size)
    EXPECT_EQ(OrbIFDEntry::entryWithArchivedData(Bytes(good.begin(), good.begin() + long(size))), nullptr) << size;
  good[0] = 'X';
  EXPECT_EQ(OrbIFDEntry::entryWithArchivedData(good), nullptr);
}

// The ASCII and UTF-8 setters: four bytes stay inline, longer texts get a
// copy; texts the type cannot hold clear the count. A shorter text leaves an
// older copy alone on purpose: the inline field is what counts.
TEST_F(EntryTest, ASCIIAndUTF8Setters) {
  struct Case { bool utf8; const char* before; std::string text; std::uint32_t count; bool hasValue;
                std::optional<Bytes> stored; };
  const Case cases[] = {
      {false, nullptr, "abc", 4, false, Bytes{'a', 'b', 'c', 0}},
      {false, nullptr, "2024:01:02 03:04:05", 20, true, bytesOf({"2024:01:02 03:04:05\0", 20})},
      {false, "a longer description", "caf\xC3\xA9", 0, false, {}},
      {false, "a longer description", "ab", 3, true, {}},
      {true, nullptr, "caf\xC3\xA9", 6, true, Bytes{'c', 'a', 'f', 0xC3, 0xA9, 0}}, {true, nullptr, "\xFF\xFE", 0, false, {}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    OrbIFDEntry e = make(B, kTIFFIFDID, 0x010E, 0, 0);
    if (c.before) e.setASCIIString(c.before);
    c.utf8 ? e.setUTF8String(c.text) : e.setASCIIString(c.text);
    EXPECT_EQ(std::tuple(e.type(), e.dataCount(), e.hasValue()), std::tuple(c.utf8 ? 129 : 2, c.count, c.hasValue));
    if (c.count > 4) { EXPECT_EQ(e.data(), 0u); }  // a new copy has no offset yet
    if (c.stored) { EXPECT_EQ(vec(c.hasValue ? e.value() : e.dataPtr()), *c.stored); }
    if (c.count) { EXPECT_EQ(e.stringData(), c.text); }
  }
}

TEST_F(EntryTest, CharacterCodeForms) {
  struct Case { std::uint32_t ifdID; std::uint16_t tag; std::uint32_t version; std::string text; std::uint32_t type;
                Bytes value; };
  const Bytes utf16Hi = kUNICODE + Bytes{0, 'H', 0, 'i'}, utf8Hi = kUNICODE + Bytes{'H', 'i'};
  const Case cases[] = {
      {kExifIFDID, 37510, 230, "Hello", 1, kASCII + bytesOf("Hello")}, {kExifIFDID, 37510, 230, "Hi", 2, utf16Hi},
      {kExifIFDID, 37510, 300, "Hi", 2, utf8Hi},  // UNICODE from 3.0 is UTF-8
      {kExifIFDID, 37510, 230, kNihon, 3, kJIS + Bytes{0x93, 0xFA, 0x96, 0x7B}},  // Shift JIS
      {kExifIFDID, 37510, 300, kNihon, 3, kJIS + Bytes{0x1B, 0x24, 0x42, 0x46, 0x7C, 0x4B, 0x5C, 0x1B, 0x28, 0x42}},
      {kExifIFDID, 37510, 0, "Hi", 2, utf16Hi},  // no version in Exif counts as 2.32
      {kGPSIFDID, 28, 2400, "Hi", 2, utf8Hi}, {kInteroperabilityIFDID, 1, 0, "Hi", 2, utf8Hi},
      {kExifIFDID, 37510, 230, kNihon, 1, kUNICODE + Bytes{0x65, 0xE5, 0x67, 0x2C}},  // not ASCII: UNICODE
      {kExifIFDID, 37510, 230, "\xF0\x9F\x98\x80", 3, kUNICODE + Bytes{0xD8, 0x3D, 0xDE, 0x00}},  // not Shift JIS
      {kExifIFDID, 37510, 230, "", 1, kASCII}};
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.text << " " << c.type << " v" << c.version);
    OrbIFDEntry e = make(B, c.ifdID, c.tag, 0, 0, 0, {}, c.version);
    e.setString(c.text, c.type);
    EXPECT_EQ(std::tuple(e.type(), e.dataCount()), std::tuple(7, c.value.size()));
    EXPECT_EQ(vec(e.value()), c.value);
    EXPECT_EQ(e.stringData(), c.text);  // and the display reads it back
    const Bytes prefix(c.value.begin(), c.value.begin() + 8);
    if (c.value.size() > 8) {
      EXPECT_EQ(OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(&e), prefix == kJIS ? 3u : prefix == kASCII ? 1u : 2u);
    }
  }
  // An unknown code with an empty text leaves no value but the old count.
  OrbIFDEntry e = make(B, kExifIFDID, 37510, 0, 0, 0, {}, 230);
  e.setString("old text", 1);
  e.setString("", 4);
  EXPECT_EQ(std::tuple(e.dataCount(), e.hasValue()), std::tuple(8u, false));
  const auto code = [](std::uint16_t type, const Bytes& v) {
    const OrbIFDEntry u = make(B, kExifIFDID, 37510, type, std::uint32_t(v.size()), 0, v);
    return OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(&u);
  };
  EXPECT_EQ(code(7, Bytes(12, 0)), 4u);
  EXPECT_EQ(code(2, kASCII + Bytes{'x'}), 0u);
  EXPECT_EQ(OrbIFDEntry::stringEncodingTypeWithUndefinedTypeEntry(nullptr), 0u);
}

TEST_F(EntryTest, UnicodeFormInEitherByteOrder) {
  const std::tuple<std::uint32_t, std::uint16_t, Bytes, bool, Bytes> cases[] = {
      {kExifIFDID, 37510, kUNICODE + Bytes{'H', 0, 'i', 0}, true, kUNICODE + Bytes{0, 'H', 0, 'i'}},
      {kGPSIFDID, 27, kUNICODE + Bytes{1, 2, 3}, true, kUNICODE + Bytes{2, 1, 3}},  // odd last byte stays
      {kExifIFDID, 37510, kASCII + Bytes{'H'}, false, kASCII + Bytes{'H'}},
      {kExifIFDID, 37511, kUNICODE + Bytes{1, 2}, false, kUNICODE + Bytes{1, 2}}};
  for (const auto& [ifd, tag, value, reversed, after] : cases) {
    OrbIFDEntry e = make(B, ifd, tag, 7, std::uint32_t(value.size()), 0, value);
    EXPECT_EQ(e.reverseUnicodeString(), reversed) << tag;
    EXPECT_EQ(vec(e.value()), after) << tag;
  }
  // Cameras write the UNICODE form in their own byte order.
  for (const Bytes& payload : {Bytes{'H', 0, 'i', 0}, Bytes{0, 'H', 0, 'i'}, Bytes{0xFF, 0xFE, 'H', 0, 'i', 0}})
    EXPECT_EQ(make(L, kExifIFDID, 37510, 7, std::uint32_t(8 + payload.size()), 0, kUNICODE + payload, 220).stringData(),
              "Hi");
  const std::tuple<std::uint32_t, std::uint16_t, bool> utf8[] = {{kTIFFIFDID, 270, true}, {kTIFFIFDID, 306, false},
                                                                  {kGPSIFDID, 28, true}, {kInteroperabilityIFDID, 1, false}};
  for (const auto& [ifd, tag, allowed] : utf8) EXPECT_EQ(OrbIFDEntry::allowedUTF8WithItemID({ifd, tag}), allowed) << tag;
}

}  // namespace
