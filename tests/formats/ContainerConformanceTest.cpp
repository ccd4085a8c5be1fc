// The container scan over the real files of other photo formats: each is
// recognised as its format says (or refused), and the TIFF parser reads,
// from the blocks found, the dates exiftool reads, at the offsets it reports.
// Then hand-made files: where each format keeps its block, the PNG CRCs, and
// hostile inputs that must give no block and no crash.
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <set>

#include <nlohmann/json.hpp>

#include "core/IFDItemID.h"
#include "core/NSDataOrbAdditions.h"
#include "core/OrbTiff.h"
#include "formats/ByteViewReader.h"
#include "formats/containers/ContainerScan.h"
#include "formats/containers/ExifDateEntries.h"
#include "formats/containers/PngChunks.h"
#include "support/TestData.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using lum::containers::pngCrcsAreRight;

Bytes slice(const Bytes& file, std::uint64_t offset, std::uint64_t length) {
  const auto at = [&file](std::uint64_t i) { return file.begin() + static_cast<std::ptrdiff_t>(i); };
  return Bytes(at(offset), at(offset + std::min<std::uint64_t>(length, file.size() - offset)));
}

lum::RangeReader readerOver(const Bytes& file) { return lum::readerOver(orb::ByteView(file.data(), file.size())); }

lum::ContainerScan scanBytes(const Bytes& file) { return lum::scanContainer(file.size(), readerOver(file)); }

using FoundDate = std::pair<std::string, std::uint64_t>;  // text, file offset

// The first block that has the entry gives its text and file offset. ORF and
// RW2 headers carry their own magic; the parser is given the standard one.
// A CR3's CMT2 block starts directly with the Exif IFD.
std::optional<FoundDate> dateIn(const Bytes& file, const std::vector<lum::TiffBlock>& blocks, std::uint16_t tag,
                                std::uint32_t ifd) {
  for (const lum::TiffBlock& block : blocks) {
    if (block.length < 8 || block.offset + block.length > file.size() || block.role == lum::BlockRole::EmbeddedPreview)
      continue;
    Bytes bytes = slice(file, block.offset, block.length);
    bytes[2] = bytes[0] == 'I' ? 0x2A : 0x00;
    bytes[3] = bytes[0] == 'I' ? 0x00 : 0x2A;
    const std::uint64_t location = 0;
    const auto tiff = OrbTiff::exifWithPtr(orb::ByteView(bytes.data(), bytes.size()), &location, bytes.size());
    const bool exifFirst = block.where.rfind("CMT2", 0) == 0;
    const auto* entry = tiff ? tiff->entryWithIFDTag(tag, exifFirst && ifd == kExifIFDID ? kTIFFIFDID : ifd) : nullptr;
    if (entry && entry->byteCount() > 4) return FoundDate{entry->dataObject().text(), block.offset + entry->data()};
  }
  return std::nullopt;
}

void checkFile(const std::filesystem::path& path, const nlohmann::json& record) {
  static constexpr struct { const char* name; std::uint16_t tag; std::uint32_t ifd; } kDates[] = {
      {"DateTimeOriginal", 0x9003, kExifIFDID}, {"CreateDate", 0x9004, kExifIFDID}, {"ModifyDate", 0x0132, kTIFFIFDID}};
  const std::string name = path.filename().string(), format = record.at("format");
  SCOPED_TRACE(name);
  const Bytes file = lumtest::readFile(path);
  const lum::ContainerScan scan = scanBytes(file);
  const bool video = format.find("(video)") != std::string::npos;
  EXPECT_EQ(scan.name, format.substr(0, format.find(" (")));
  EXPECT_EQ(scan.refusal.has_value(), video || name.find("header-only") != std::string::npos)
      << scan.refusal.value_or("");
  if (video) {
    EXPECT_EQ(scan.refusal.value_or(""), "videos are not edited yet");
  }
  for (const auto& d : kDates) {
    const auto& offsets = record.at("date_offsets").at(d.name);
    const auto found = dateIn(file, scan.blocks, d.tag, d.ifd);
    if (offsets.is_null()) {
      EXPECT_FALSE(found) << d.name << " found at " << found->second;
    } else if (!found) {
      ADD_FAILURE() << d.name << " not found";
    } else {
      const FoundDate want(record.at("exiftool").at(d.name).get<std::string>(), offsets.at(0).get<std::uint64_t>());
      EXPECT_EQ(*found, want) << d.name;
    }
  }
  // Every other entry of a date is a copy written with it, except where the
  // main entries lack the date and the copy stands in for it (RW2).
  const lum::ContainerDates dates = lum::containerDates(file.size(), readerOver(file), scan.blocks);
  std::set<std::uint64_t> copies, want;
  for (const auto& e : record.at("date_offsets").at("secondary_entries")) want.insert(e.at("value_offset").get<std::uint64_t>());
  for (std::size_t i = 0; i < std::size(kDates); ++i) {
    copies.insert(dates.dates[i].copies.begin(), dates.dates[i].copies.end());
    if (record.at("date_offsets").at(kDates[i].name).is_null() && dates.dates[i].offset) {
      EXPECT_EQ(want.erase(*dates.dates[i].offset), 1u) << kDates[i].name;
    }
  }
  EXPECT_EQ(copies, want);
  if (format.rfind("PNG", 0) == 0) {
    EXPECT_EQ(pngCrcsAreRight(file.size(), readerOver(file)), name.find("zero-crc") == std::string::npos);
  }
}

// Checks every listed file whose format is (or is not) ISO base media.
void checkFiles(bool isoBmff) {
  const char* env = std::getenv("LUMIDATE_FORMATS_TESTDATA");
  const std::filesystem::path dir = env && *env ? env : LUMIDATE_FORMATS_TESTDATA;
  std::ifstream in(dir / "expected.json");
  if (!in) GTEST_SKIP() << "format test files not found (set LUMIDATE_FORMATS_TESTDATA); conformance test skipped";
  int checked = 0;
  for (const auto& record : nlohmann::json::parse(in)) {
    const std::string format = record.at("format");
    static const std::set<std::string> kIsoBmff{"CR3", "HEIC", "HEIF", "AVIF", "MOV (video)", "MP4 (video)"};
    if ((kIsoBmff.count(format) > 0) != isoBmff) continue;
    checkFile(dir / record.at("file").get<std::string>(), record);
    ++checked;
  }
  EXPECT_GT(checked, 0);
}

TEST(ContainerConformance, TiffJpegPngWebpFiles) { checkFiles(false); }
TEST(ContainerConformance, IsoBmffFiles) { checkFiles(true); }

// ---- hand-made files ----

void put32(Bytes& out, std::size_t v, bool little = false) {
  for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>(v >> (little ? 8 * i : 24 - 8 * i)));
}
Bytes join(Bytes out, const Bytes& more) {
  out.insert(out.end(), more.begin(), more.end());
  return out;
}
Bytes text(const char* s) { return Bytes(s, s + std::strlen(s)); }
Bytes cut(const Bytes& bytes, std::size_t size) { return slice(bytes, 0, size); }

const Bytes kTiff{'M', 'M', 0, 42, 0, 0, 0, 8, 0, 0, 0, 0, 0, 0};  // header and an empty IFD
const Bytes kExifTiff = join({'E', 'x', 'i', 'f', 0, 0}, kTiff);

Bytes pngChunk(const char* type, const Bytes& data) {
  Bytes chunk;
  put32(chunk, data.size());
  chunk = join(join(chunk, text(type)), data);
  put32(chunk, NSDataOrbAdditions::CRC_32(std::span(chunk).subspan(4)));
  return chunk;
}
Bytes png(const std::vector<Bytes>& chunks) {
  Bytes out{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
  for (const Bytes& c : chunks) out = join(out, c);
  return out;
}

Bytes webp(const std::vector<std::pair<const char*, Bytes>>& chunks) {
  Bytes body = text("WEBP");
  for (const auto& [type, data] : chunks) {
    body = join(body, text(type));
    put32(body, data.size(), true);
    body = join(body, data);
    if (data.size() % 2) body.push_back(0);  // chunks are padded to even sizes
  }
  Bytes out = text("RIFF");
  put32(out, body.size(), true);
  return join(out, body);
}

Bytes jpeg(const Bytes& app1Payload) {
  Bytes out{0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 'J', 'F', 0xFF, 0xE1, 0, static_cast<std::uint8_t>(app1Payload.size() + 2)};
  return join(join(out, app1Payload), {0xFF, 0xDA, 0, 2, 0xFF, 0xD9});
}

TEST(ContainerScan, FindsTheBlockWhereEachFormatKeepsIt) {
  const struct { const char* what; Bytes file; const char* name; std::uint64_t offset; } kCases[] = {
      {"PNG eXIf", png({pngChunk("IHDR", Bytes(13)), pngChunk("eXIf", kTiff), pngChunk("IEND", {})}), "PNG",
       8 + 25 + 8},
      {"PNG eXIf after IDAT, with Exif prefix",
       png({pngChunk("IHDR", Bytes(13)), pngChunk("IDAT", Bytes(3)), pngChunk("eXIf", kExifTiff)}), "PNG",
       8 + 25 + 15 + 8 + 6},
      {"WebP after an odd chunk", webp({{"VP8X", Bytes(10)}, {"ICCP", Bytes(3)}, {"EXIF", kTiff}}), "WebP",
       12 + 18 + 12 + 8},
      {"WebP with Exif prefix", webp({{"VP8X", Bytes(10)}, {"EXIF", kExifTiff}}), "WebP", 12 + 18 + 8 + 6},
      {"JPEG APP1 after APP0", jpeg(kExifTiff), "JPEG", 12 + 6},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    const auto scan = scanBytes(c.file);
    EXPECT_EQ(scan.name, c.name);
    EXPECT_EQ(scan.blocks.size(), 1u);
    if (scan.blocks.size() != 1) continue;
    EXPECT_EQ(scan.blocks[0].offset, c.offset);
    EXPECT_EQ(scan.blocks[0].offset + scan.blocks[0].length, c.offset + kTiff.size());
  }
}

TEST(ContainerScan, HostileInputsGiveNoBlock) {
  const Bytes good = png({pngChunk("IHDR", Bytes(13)), pngChunk("eXIf", kTiff), pngChunk("IEND", {})});
  constexpr std::size_t kExifChunk = 8 + 25;
  const auto patched = [](Bytes bytes, std::size_t at, std::uint8_t value) { return (bytes[at] = value, bytes); };
  const Bytes raf = join(text("FUJIFILMCCD-RAW "), Bytes(84, 0));
  const struct { const char* what; Bytes file; } kCases[] = {
      {"empty", {}},
      {"one byte", {0x89}},
      {"PNG cut inside the eXIf chunk", cut(good, kExifChunk + 12)},
      {"PNG chunk length past the end", patched(good, kExifChunk + 3, 0x40)},
      {"PNG chunk length 4 GB", patched(patched(good, kExifChunk, 0xFF), kExifChunk + 1, 0xFF)},
      {"WebP chunk length past the end", patched(webp({{"EXIF", kTiff}}), 16, 0x7F)},
      {"WebP cut after its header", cut(webp({{"EXIF", kTiff}}), 14)},
      {"JPEG APP1 length past the end", patched(jpeg(kExifTiff), 10, 0x7F)},
      {"JPEG cut inside APP1", cut(jpeg(kExifTiff), 16)},
      {"TIFF cut inside its header", cut(kTiff, 6)},
      {"RAF with its JPEG past the end", patched(raf, 84, 0x7F)},
      {"RAF cut before its JPEG pointer", cut(raf, 60)},
  };
  for (const auto& c : kCases) EXPECT_TRUE(scanBytes(c.file).blocks.empty()) << c.what;
  EXPECT_EQ(scanBytes({}).refusal, "the file is empty");
  EXPECT_TRUE(scanBytes(png({pngChunk("IDAT", Bytes(3))})).refusal) << "a PNG that does not begin with its header";
}

TEST(PngChunks, CrcsAreComputedAndChecked) {
  const Bytes file = png({pngChunk("eXIf", kTiff), pngChunk("IEND", {})});
  // IEND's CRC is the same in every PNG.
  EXPECT_EQ(lum::containers::pngChunkCrc(file.size(), readerOver(file), 8 + 12 + kTiff.size()), 0xAE426082u);
  EXPECT_TRUE(pngCrcsAreRight(file.size(), readerOver(file)));
  for (const std::size_t at : {std::size_t{12}, std::size_t{20}, file.size() - 1}) {
    Bytes broken = file;
    broken[at] ^= 1;
    EXPECT_FALSE(pngCrcsAreRight(broken.size(), readerOver(broken))) << at;
  }
  EXPECT_FALSE(pngCrcsAreRight(file.size() - 12, readerOver(file)));  // no IEND
}

}  // namespace
