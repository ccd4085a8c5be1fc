// Text values: ASCII and UTF-8 setters, the character-code form of
// UNDEFINED text in its three encodings, and reading those forms back.

#include <gtest/gtest.h>

#include "core/EntryCatalogueHooks.h"
#include "core/OrbIFDEntry.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes vec(std::span<const std::uint8_t> s) { return {s.begin(), s.end()}; }
Bytes operator+(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const Bytes kASCII = {'A', 'S', 'C', 'I', 'I', 0, 0, 0};
const Bytes kJIS = {'J', 'I', 'S', 0, 0, 0, 0, 0};
const Bytes kUNICODE = {'U', 'N', 'I', 'C', 'O', 'D', 'E', 0};
const char* const kNihon = "\xE6\x97\xA5\xE6\x9C\xAC";  // two kanji: sun, book

class TextTest : public testing::Test {
 protected:
  void SetUp() override { entryCatalogueHooks() = OrbEntryCatalogueHooks{}; }
  void TearDown() override { entryCatalogueHooks() = saved_; }

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

 private:
  OrbEntryCatalogueHooks saved_ = entryCatalogueHooks();
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
