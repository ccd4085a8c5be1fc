// ISO base media files: names from brands, the TIFF blocks of the real
// HEIF-family and CR3 files, and built files with hostile boxes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <nlohmann/json.hpp>

#include "formats/ByteViewReader.h"
#include "formats/containers/IsoBmffBoxes.h"
#include "formats/containers/IsoBmffExif.h"
#include "support/TestData.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using namespace lum::isobmff;

Bytes num(std::uint64_t value, int width) {
  Bytes out;
  for (int i = width - 1; i >= 0; --i) out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
  return out;
}
Bytes text(std::string_view s) { return Bytes(s.begin(), s.end()); }
Bytes cat(std::initializer_list<Bytes> parts) {
  Bytes out;
  for (const Bytes& p : parts) out.insert(out.end(), p.begin(), p.end());
  return out;
}
Bytes box(std::string_view type, const Bytes& payload) { return cat({num(payload.size() + 8, 4), text(type), payload}); }
Bytes fullV(std::string_view type, int version, const Bytes& payload) { return box(type, cat({num(version, 1), num(0, 3), payload})); }

Result locate(const Bytes& bytes) { return locateExif(bytes.size(), lum::readerOver(orb::ByteView(bytes))); }

const Bytes kTiff = cat({text("MM"), num(42, 2), num(8, 4), num(0, 2), num(0, 4)});
const Bytes kFtyp = box("ftyp", cat({text("heic"), num(0, 4), text("mif1heic")}));

// ftyp, mdat (the Exif item), meta; or the item inside meta's idat.
struct Heif {
  int ilocVersion = 0, fieldSize = 4, repeats = 1;
  bool inIdat = false, prefix = true;
};
Bytes heif(const Heif& h) {
  const Bytes item = h.prefix ? cat({num(6, 4), text("Exif"), num(0, 2), kTiff}) : kTiff;
  const Bytes mdat = box("mdat", h.inIdat ? Bytes{} : item);
  const int v = h.ilocVersion, s = h.fieldSize;
  Bytes extents = num(h.repeats, 2);
  for (int i = 0; i < h.repeats; ++i)
    extents = cat({extents, num(h.inIdat ? 0 : kFtyp.size() + 8, s), num(item.size(), s)});
  const Bytes iloc = fullV("iloc", v, cat({num(s << 4 | s, 1), num(0, 1), num(1, v < 2 ? 2 : 4), num(1, v < 2 ? 2 : 4),
                                           v >= 1 ? num(h.inIdat ? 1 : 0, 2) : Bytes{}, num(0, 2), extents}));
  const Bytes iinf = fullV("iinf", 0, cat({num(1, 2), fullV("infe", 2, cat({num(1, 2), num(0, 2), text("Exif"), num(0, 1)}))}));
  return cat({kFtyp, mdat, fullV("meta", 0, cat({iinf, iloc, h.inIdat ? box("idat", item) : Bytes{}}))});
}
std::size_t find(const Bytes& b, std::string_view s) {
  return std::search(b.begin(), b.end(), s.begin(), s.end()) - b.begin();
}
void put(Bytes& b, std::size_t at, std::uint64_t value, int width) {
  const Bytes n = num(value, width);
  std::copy(n.begin(), n.end(), b.begin() + static_cast<std::ptrdiff_t>(at));
}

TEST(IsoBmffExif, NamesFromBrands) {
  const struct { const char* brands; const char* name; bool video; } cases[] = {
      {"heic\0\0\0\0mif1", "HEIC", false}, {"heix\0\0\0\0mif1", "HEIF", false}, {"mif1\0\0\0\0heic", "HEIF", false},
      {"avif\0\0\0\0mif1", "AVIF", false}, {"crx \0\0\0\0isom", "CR3", false}, {"qt  \0\0\0\0qt  ", "MOV", true},
      {"isom\0\0\0\0mp41", "MP4", true},   {"XAVC\0\0\0\0iso6", "MP4", true},  {"abcd\0\0\0\0avif", "AVIF", false}};
  for (const auto& c : cases) {
    const Result r = locate(box("ftyp", Bytes(c.brands, c.brands + 12)));
    EXPECT_EQ(r.name, c.name) << c.brands;
    EXPECT_EQ(r.isVideo, c.video) << c.brands;
    EXPECT_TRUE(r.blocks.empty() && r.problem) << c.brands;
  }
  for (const auto& [head, isIso] : {std::pair{kFtyp, true}, {kTiff, false}, {Bytes(kFtyp.begin(), kFtyp.begin() + 7), false}})
    EXPECT_EQ(looksLikeIsoBmff(orb::ByteView(head)), isIso);
}

TEST(IsoBmffExif, BuiltFiles) {
  const struct { const char* what; Heif h; std::function<void(Bytes&)> edit; bool found; } cases[] = {
      {"plain", {}, nullptr, true},
      {"no offset field", {.prefix = false}, nullptr, true},
      {"version 1, 8-byte fields", {.ilocVersion = 1, .fieldSize = 8}, nullptr, true},
      {"version 2, in idat", {.ilocVersion = 2, .inIdat = true}, nullptr, true},
      {"same extent again and again", {.repeats = 500}, nullptr, true},
      {"meta size 0: to the end", {}, [](Bytes& b) { put(b, find(b, "meta") - 4, 0, 4); }, true},
      {"meta 64-bit size", {}, [](Bytes& b) {
         const std::size_t at = find(b, "meta") - 4;
         b.insert(b.begin() + static_cast<std::ptrdiff_t>(at) + 8, 8, 0);
         put(b, at, 1, 4);
         put(b, at + 8, b.size() - at, 8);
       }, true},
      {"meta past the file", {}, [](Bytes& b) { put(b, find(b, "meta") - 4, b.size(), 4); }, false},
      {"64-bit size below header", {}, [](Bytes& b) { b.insert(b.end(), {0, 0, 0, 1, 'f', 'r', 'e', 'e', 0, 0, 0, 0, 0, 0, 0, 8}); }, true},
      {"ftyp size 0 hides meta", {}, [](Bytes& b) { put(b, 0, 0, 4); }, false},
      {"iinf cut before its entries", {}, [](Bytes& b) { put(b, find(b, "iinf") - 4, 12, 4); }, false},
      {"infe past iinf", {}, [](Bytes& b) { put(b, find(b, "infe") - 4, 200, 4); }, false},
      {"iloc version 3", {}, [](Bytes& b) { b[find(b, "iloc") + 4] = 3; }, false},
      {"iloc field size 3", {}, [](Bytes& b) { b[find(b, "iloc") + 8] = 0x33; }, false},
      {"offset field past the item", {}, [](Bytes& b) { put(b, find(b, "Exif") - 4, 0xfffffff0, 4); }, false},
      {"extent past the file", {}, [](Bytes& b) { put(b, find(b, "iloc") + 14, 1000, 4); }, false},
  };
  for (const auto& c : cases) {
    Bytes bytes = heif(c.h);
    if (c.edit) c.edit(bytes);
    const Result r = locate(bytes);
    EXPECT_EQ(r.name, "HEIC") << c.what;
    ASSERT_EQ(r.blocks.size(), c.found ? 1u : 0u) << c.what << ": " << r.problem.value_or("");
    if (c.found) {
      EXPECT_EQ(r.blocks[0].offset, find(bytes, "MM")) << c.what;
      EXPECT_EQ(r.blocks[0].length, kTiff.size()) << c.what;
    }
    // Every cut of the file is read without error.
    for (std::size_t n = 0; n < bytes.size(); n += 7) (void)locate(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(n)));
  }
}

std::optional<std::filesystem::path> formatsDir() {
  const char* env = std::getenv("LUMIDATE_FORMATS_TESTDATA");
  const std::filesystem::path dir = env && *env ? env : LUMIDATE_FORMATS_TESTDATA;
  if (!std::filesystem::is_regular_file(dir / "expected.json")) return std::nullopt;
  return dir;
}

TEST(IsoBmffExif, RealFiles) {
  const auto dir = formatsDir();
  if (!dir) GTEST_SKIP() << "format test files not found (set LUMIDATE_FORMATS_TESTDATA); skipped";
  const auto records = nlohmann::json::parse(std::ifstream(*dir / "expected.json"));
  int checked = 0;
  for (const auto& record : records) {
    const std::string format = record.at("format"), file = record.at("file");
    const bool video = format.ends_with(" (video)");
    const std::string name = video ? format.substr(0, format.size() - 8) : format;
    if (!std::set<std::string>{"HEIC", "HEIF", "AVIF", "CR3", "MOV", "MP4"}.count(name)) continue;
    SCOPED_TRACE(file);
    ++checked;
    const Bytes bytes = lumtest::readFile(*dir / file);
    const Result r = locate(bytes);
    EXPECT_EQ(r.name, name);
    EXPECT_EQ(r.isVideo, video);
    EXPECT_EQ(r.blocks.size(), video ? 0u : name == "CR3" ? 2u : 1u) << r.problem.value_or("");
    for (const lum::TiffBlock& block : r.blocks) {
      ASSERT_LE(block.offset + block.length, bytes.size());
      const std::string mark(bytes.begin() + static_cast<std::ptrdiff_t>(block.offset), bytes.begin() + static_cast<std::ptrdiff_t>(block.offset) + 4);
      EXPECT_TRUE(mark == std::string("II*\0", 4) || mark == std::string("MM\0*", 4)) << block.where;
    }
    for (const char* date : {"DateTimeOriginal", "CreateDate", "ModifyDate"}) {
      const auto& offsets = record.at("date_offsets").at(date);
      if (offsets.is_null()) continue;
      const std::uint64_t at = offsets.at(0);
      EXPECT_TRUE(std::any_of(r.blocks.begin(), r.blocks.end(), [&](const lum::TiffBlock& b) {
        return at >= b.offset && at + 20 <= b.offset + b.length;
      })) << date << " at " << at;
    }
  }
  EXPECT_EQ(checked, 13);
}

}  // namespace
