// The container scan over the real files of other photo formats: each is
// recognised as its MANIFEST says (or refused), and the TIFF parser reads,
// from the blocks found, the dates exiftool reads, at the offsets it reports.
// Then hand-made files: the eXIf/EXIF/APP1 placements, the PNG CRCs, and
// hostile inputs that must give no block and no crash.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include <nlohmann/json.hpp>

#include "core/IFDItemID.h"
#include "core/OrbTiff.h"
#include "formats/containers/ContainerScan.h"
#include "formats/containers/PngChunks.h"
#include "support/TestData.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
namespace fs = std::filesystem;

std::optional<fs::path> formatsDir() {
  const char* env = std::getenv("LUMIDATE_FORMATS_TESTDATA");
  const fs::path dir = env && *env ? env : LUMIDATE_FORMATS_TESTDATA;
  std::error_code ec;
  if (!fs::is_regular_file(dir / "expected.json", ec)) return std::nullopt;
  return dir;
}

lum::RangeReader readerOver(const Bytes& file) {
  return [&file](std::uint64_t offset, std::uint64_t length) -> std::optional<Bytes> {
    if (offset > file.size()) return std::nullopt;
    const auto end = offset + std::min<std::uint64_t>(length, file.size() - offset);
    return Bytes(file.begin() + static_cast<std::ptrdiff_t>(offset), file.begin() + static_cast<std::ptrdiff_t>(end));
  };
}

lum::ContainerScan scanBytes(const Bytes& file) { return lum::scanContainer(file.size(), readerOver(file)); }

// MANIFEST.tsv: file name -> format column ("CR2", "PNG (eXIf)", "MOV (video)", ...).
std::map<std::string, std::string> manifestFormats(const fs::path& dir) {
  std::map<std::string, std::string> formats;
  std::ifstream in(dir / "MANIFEST.tsv");
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) {
    std::vector<std::string> fields;
    std::stringstream row(line);
    for (std::string field; std::getline(row, field, '\t');) fields.push_back(field);
    if (fields.size() > 6) formats[fields[0]] = fields[6];
  }
  return formats;
}

struct FoundDate {
  std::string text;
  std::uint64_t offset = 0;
};

// The first block that has the entry gives its text and file offset. ORF and
// RW2 headers carry their own magic; the parser is given the standard one.
// A CR3's CMT2 block starts directly with the Exif IFD.
std::optional<FoundDate> dateIn(const Bytes& file, const std::vector<lum::TiffBlock>& blocks, std::uint16_t tag,
                                std::uint32_t ifd) {
  for (const lum::TiffBlock& block : blocks) {
    if (block.offset + block.length > file.size()) continue;
    Bytes bytes(file.begin() + static_cast<std::ptrdiff_t>(block.offset),
                file.begin() + static_cast<std::ptrdiff_t>(block.offset + block.length));
    if (bytes.size() >= 4) {
      bytes[2] = bytes[0] == 'I' ? 0x2A : 0x00;
      bytes[3] = bytes[0] == 'I' ? 0x00 : 0x2A;
    }
    const std::uint64_t location = 0;
    const auto tiff = OrbTiff::exifWithPtr(orb::ByteView(bytes.data(), bytes.size()), &location, bytes.size());
    const bool exifFirst = block.where.rfind("CMT2", 0) == 0;
    const OrbIFDEntry* entry = tiff ? tiff->entryWithIFDTag(tag, exifFirst && ifd == kExifIFDID ? kTIFFIFDID : ifd) : nullptr;
    if (entry && entry->byteCount() > 4) return FoundDate{entry->dataObject().text(), block.offset + entry->data()};
  }
  return std::nullopt;
}

bool isIsoBmff(const std::string& format) {
  for (const char* iso : {"CR3", "HEIC", "HEIF", "AVIF", "MOV", "MP4"})
    if (format.rfind(iso, 0) == 0) return true;
  return false;
}

void checkFile(const fs::path& dir, const nlohmann::json& record, const std::string& format) {
  static constexpr struct { const char* name; std::uint16_t tag; std::uint32_t ifd; } kDates[] = {
      {"DateTimeOriginal", 0x9003, kExifIFDID}, {"CreateDate", 0x9004, kExifIFDID}, {"ModifyDate", 0x0132, kTIFFIFDID}};
  const std::string name = record.at("file");
  SCOPED_TRACE(name);
  const Bytes file = lumtest::readFile(dir / name);
  const lum::ContainerScan scan = scanBytes(file);
  const bool video = format.find("(video)") != std::string::npos;
  EXPECT_EQ(scan.name, format.substr(0, format.find(" (")));
  EXPECT_EQ(scan.refusal.has_value(), video || name.find("header-only") != std::string::npos) << scan.refusal.value_or("");
  if (video) {
    EXPECT_EQ(scan.refusal.value_or(""), "videos are not edited yet");
  }
  for (const auto& d : kDates) {
    const auto& offsets = record.at("date_offsets").at(d.name);
    const auto found = dateIn(file, scan.blocks, d.tag, d.ifd);
    if (offsets.is_null()) {
      EXPECT_FALSE(found) << d.name << " found at " << found->offset;
    } else if (!found) {
      ADD_FAILURE() << d.name << " not found";
    } else {
      EXPECT_EQ(found->text, record.at("exiftool").at(d.name)) << d.name;
      EXPECT_EQ(found->offset, offsets.at(0).get<std::uint64_t>()) << d.name;
    }
  }
  if (format.rfind("PNG", 0) == 0) {
    const bool crcsRight = lum::containers::pngCrcsAreRight(file.size(), readerOver(file));
    EXPECT_EQ(crcsRight, name.find("zero-crc") == std::string::npos);
  }
}

// Checks every file whose MANIFEST format is (or is not) ISO base media.
void checkFiles(bool isoBmff) {
  const auto dir = formatsDir();
  if (!dir) GTEST_SKIP() << "format test files not found (set LUMIDATE_FORMATS_TESTDATA); conformance test skipped";
  const auto formats = manifestFormats(*dir);
  std::ifstream in(*dir / "expected.json");
  const auto expected = nlohmann::json::parse(in);
  ASSERT_EQ(expected.size(), formats.size());
  int checked = 0;
  for (const auto& record : expected) {
    const std::string& format = formats.at(record.at("file").get<std::string>());
    if (isIsoBmff(format) != isoBmff) continue;
    checkFile(*dir, record, format);
    ++checked;
  }
  EXPECT_GT(checked, 0);
}

TEST(ContainerConformance, TiffJpegPngWebpFiles) { checkFiles(false); }
TEST(ContainerConformance, IsoBmffFiles) { checkFiles(true); }

// ---- hand-made files ----

void put32(Bytes& out, std::uint32_t v, bool little = false) {
  for (int i = 0; i < 4; ++i) out.push_back(static_cast<std::uint8_t>(v >> (little ? 8 * i : 24 - 8 * i)));
}
void putText(Bytes& out, const char* text) { out.insert(out.end(), text, text + std::strlen(text)); }

const Bytes kTiff{'M', 'M', 0, 42, 0, 0, 0, 8, 0, 0, 0, 0, 0, 0};  // header and an empty IFD

Bytes pngChunk(const char* type, const Bytes& data) {
  Bytes chunk;
  put32(chunk, static_cast<std::uint32_t>(data.size()));
  putText(chunk, type);
  chunk.insert(chunk.end(), data.begin(), data.end());
  put32(chunk, lum::containers::pngCrcUpdate(0, std::span(chunk).subspan(4)));
  return chunk;
}

Bytes png(const std::vector<Bytes>& chunks) {
  Bytes out{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
  for (const Bytes& c : chunks) out.insert(out.end(), c.begin(), c.end());
  return out;
}

Bytes withPrefix(const Bytes& tiff) {
  Bytes out{'E', 'x', 'i', 'f', 0, 0};
  out.insert(out.end(), tiff.begin(), tiff.end());
  return out;
}

Bytes webp(const std::vector<std::pair<const char*, Bytes>>& chunks) {
  Bytes body;
  putText(body, "WEBP");
  for (const auto& [type, data] : chunks) {
    putText(body, type);
    put32(body, static_cast<std::uint32_t>(data.size()), true);
    body.insert(body.end(), data.begin(), data.end());
    if (data.size() % 2) body.push_back(0);
  }
  Bytes out;
  putText(out, "RIFF");
  put32(out, static_cast<std::uint32_t>(body.size()), true);
  out.insert(out.end(), body.begin(), body.end());
  return out;
}

Bytes jpeg(const Bytes& app1Payload) {
  Bytes out{0xFF, 0xD8, 0xFF, 0xE0, 0, 4, 'J', 'F', 0xFF, 0xE1};
  const auto length = static_cast<std::uint16_t>(app1Payload.size() + 2);
  out.push_back(static_cast<std::uint8_t>(length >> 8));
  out.push_back(static_cast<std::uint8_t>(length));
  out.insert(out.end(), app1Payload.begin(), app1Payload.end());
  out.insert(out.end(), {0xFF, 0xDA, 0, 2, 0xFF, 0xD9});
  return out;
}

Bytes cut(Bytes bytes, std::size_t size) {
  bytes.resize(std::min(size, bytes.size()));
  return bytes;
}

TEST(ContainerScan, FindsTheBlockWhereEachFormatKeepsIt) {
  const struct {
    const char* what;
    Bytes file;
    const char* name;
    std::optional<std::uint64_t> offset;
  } kCases[] = {
      {"PNG eXIf", png({pngChunk("IHDR", Bytes(13)), pngChunk("eXIf", kTiff), pngChunk("IEND", {})}), "PNG", 8 + 25 + 8},
      {"PNG eXIf after IDAT, with Exif prefix",
       png({pngChunk("IDAT", Bytes(3)), pngChunk("eXIf", withPrefix(kTiff)), pngChunk("IEND", {})}), "PNG", 8 + 15 + 8 + 6},
      {"PNG text chunk only", png({pngChunk("tEXt", kTiff), pngChunk("IEND", {})}), "PNG", std::nullopt},
      {"WebP after an odd chunk", webp({{"VP8X", Bytes(10)}, {"ICCP", Bytes(3)}, {"EXIF", kTiff}}), "WebP", 12 + 18 + 12 + 8},
      {"WebP with Exif prefix", webp({{"VP8X", Bytes(10)}, {"EXIF", withPrefix(kTiff)}}), "WebP", 12 + 18 + 8 + 6},
      {"JPEG APP1 after APP0", jpeg(withPrefix(kTiff)), "JPEG", 12 + 6},
      {"JPEG APP1 without Exif", jpeg(kTiff), "JPEG", std::nullopt},
      {"TIFF", kTiff, "TIFF", 0},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    const auto scan = scanBytes(c.file);
    EXPECT_EQ(scan.name, c.name);
    EXPECT_FALSE(scan.refusal);
    ASSERT_EQ(scan.blocks.size(), c.offset ? 1u : 0u);
    if (!c.offset) continue;
    EXPECT_EQ(scan.blocks[0].offset, *c.offset);
    EXPECT_EQ(Bytes(c.file.begin() + static_cast<std::ptrdiff_t>(*c.offset), c.file.begin() + static_cast<std::ptrdiff_t>(*c.offset) + 4),
              Bytes(kTiff.begin(), kTiff.begin() + 4));
    EXPECT_LE(scan.blocks[0].offset + scan.blocks[0].length, c.file.size());
  }
}

TEST(ContainerScan, HostileInputsGiveNoBlock) {
  const Bytes good = png({pngChunk("eXIf", kTiff), pngChunk("IEND", {})});
  Bytes longChunk = good;
  longChunk[11] = 0x40;  // eXIf claims 64 bytes more than the file has
  Bytes hugeChunk = good;
  hugeChunk[8] = hugeChunk[9] = hugeChunk[10] = hugeChunk[11] = 0xFF;
  Bytes webpLong = webp({{"EXIF", kTiff}});
  webpLong[16] = 0x7F;
  Bytes jpegLong = jpeg(withPrefix(kTiff));
  jpegLong[10] = 0x7F;
  Bytes rafFar(100, 0);
  std::memcpy(rafFar.data(), "FUJIFILMCCD-RAW ", 16);
  rafFar[84] = 0x7F;
  const struct {
    const char* what;
    Bytes file;
  } kCases[] = {
      {"empty", {}},
      {"one byte", {0x89}},
      {"PNG cut inside the eXIf chunk", cut(good, 20)},
      {"PNG chunk length past the end", longChunk},
      {"PNG chunk length 4 GB", hugeChunk},
      {"WebP chunk length past the end", webpLong},
      {"WebP cut after its header", cut(webpLong, 14)},
      {"JPEG APP1 length past the end", jpegLong},
      {"JPEG cut inside APP1", cut(jpeg(withPrefix(kTiff)), 16)},
      {"TIFF cut inside its header", cut(kTiff, 6)},
      {"RAF with its JPEG past the end", rafFar},
      {"RAF cut before its JPEG pointer", cut(rafFar, 60)},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.what);
    EXPECT_TRUE(scanBytes(c.file).blocks.empty());
  }
  EXPECT_EQ(scanBytes({}).refusal, "the file is empty");
}

TEST(PngChunks, CrcsAreComputedAndChecked) {
  const Bytes file = png({pngChunk("eXIf", kTiff), pngChunk("IEND", {})});
  const auto read = readerOver(file);
  // IEND's CRC is the same in every PNG.
  EXPECT_EQ(lum::containers::pngChunkCrc(file.size(), read, 8 + 12 + kTiff.size()), 0xAE426082u);
  EXPECT_TRUE(lum::containers::pngCrcsAreRight(file.size(), read));
  for (const std::size_t at : {std::size_t{12}, std::size_t{20}, file.size() - 1}) {
    Bytes broken = file;
    broken[at] ^= 1;
    EXPECT_FALSE(lum::containers::pngCrcsAreRight(broken.size(), readerOver(broken))) << at;
  }
  EXPECT_FALSE(lum::containers::pngCrcsAreRight(file.size() - 12, read));  // no IEND
}

}  // namespace
