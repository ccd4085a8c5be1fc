// ISO base media files: the name their "ftyp" brands give, and the TIFF
// blocks of their Exif (the Exif item of a HEIF-family file; the CMT1 and
// CMT2 boxes of a CR3).
#include "formats/containers/IsoBmffExif.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "formats/containers/IsoBmffBoxes.h"
#include "formats/containers/IsoBmffItems.h"

namespace lum::isobmff {

namespace {

constexpr std::uint64_t kMaxBrandBytes = 1024;
constexpr std::array<std::uint8_t, 16> kCanonMetadataUUID = {0x85, 0xc0, 0xb6, 0x87, 0x82, 0x0f, 0x11, 0xe0,
                                                             0x81, 0x11, 0xf4, 0xce, 0x46, 0x2b, 0x6a, 0x48};

struct Kind {
  std::string_view brand;
  std::string_view name;
};
// Brands of still images; a file whose brands name none of them is a video.
constexpr Kind kImageBrands[] = {
    {"heic", "HEIC"}, {"heis", "HEIC"}, {"heim", "HEIC"}, {"heix", "HEIF"}, {"hevc", "HEIF"}, {"hevx", "HEIF"},
    {"mif1", "HEIF"}, {"msf1", "HEIF"}, {"avif", "AVIF"}, {"avis", "AVIF"}, {"crx ", "CR3"},
};

std::optional<std::string_view> imageName(std::string_view brand) {
  for (const Kind& kind : kImageBrands)
    if (kind.brand == brand) return kind.name;
  return std::nullopt;
}

// The major brand decides; otherwise the first compatible brand that names
// an image; otherwise a video ("qt  " for QuickTime, any other for MP4).
void nameFromBrands(const std::vector<std::string>& brands, Result& result) {
  const auto named = [&](std::size_t i) { return imageName(brands[i]); };
  for (std::size_t i = 0; i < brands.size(); ++i) {
    if (i == 1) continue;  // the minor version, not a brand
    if (const auto name = named(i)) {
      result.name = std::string(*name);
      return;
    }
  }
  result.isVideo = true;
  result.name = std::find(brands.begin(), brands.end(), "qt  ") != brands.end() ? "MOV" : "MP4";
}

// The brand fields of the "ftyp" box: major, minor version, compatibles.
std::vector<std::string> brandsOf(const RangeReader& read, const Box& ftyp) {
  std::vector<std::string> brands;
  const std::uint64_t length = std::min(ftyp.end - ftyp.payload, kMaxBrandBytes);
  const auto bytes = readExactly(read, ftyp.payload, length - length % 4);
  if (!bytes) return brands;
  for (std::size_t at = 0; at + 4 <= bytes->size(); at += 4)
    brands.emplace_back(bytes->begin() + static_cast<std::ptrdiff_t>(at),
                        bytes->begin() + static_cast<std::ptrdiff_t>(at + 4));
  return brands;
}

bool isByteOrderMark(const std::vector<std::uint8_t>& b) {
  static constexpr std::array<std::uint8_t, 4> kLittle = {'I', 'I', 42, 0}, kBig = {'M', 'M', 0, 42};
  return b.size() >= 4 && (std::equal(kLittle.begin(), kLittle.end(), b.begin()) ||
                           std::equal(kBig.begin(), kBig.end(), b.begin()));
}

bool tiffHeaderAt(const RangeReader& read, std::uint64_t offset) {
  const auto bytes = readExactly(read, offset, 4);
  return bytes && isByteOrderMark(*bytes);
}

// The Exif item begins with the offset of the TIFF header past that field,
// or (in some files) with the TIFF header itself.
void heifBlocks(const RangeReader& read, const Boxes& top, std::uint64_t fileSize, Result& result) {
  const auto meta = firstOfType(top, "meta");
  if (!meta) {
    result.problem = "the file has no meta box";
    return;
  }
  const auto found = exifItemRange(read, *meta, fileSize);
  if (const auto* why = std::get_if<std::string>(&found)) {
    result.problem = *why;
    return;
  }
  const ItemRange item = std::get<ItemRange>(found);
  std::uint64_t header = item.offset;
  if (!tiffHeaderAt(read, header)) {
    const auto field = item.length >= 4 ? readExactly(read, item.offset, 4) : std::nullopt;
    const std::uint64_t skip = field ? std::uint64_t(orb::ByteView(*field).u32(0).value_or(0)) : 0;
    if (!field || skip > item.length - 4) {
      result.problem = "the Exif item holds no TIFF header";
      return;
    }
    header = item.offset + 4 + skip;
  }
  if (!tiffHeaderAt(read, header) || item.offset + item.length - header < 8) {
    result.problem = "the Exif item holds no TIFF header";
    return;
  }
  result.blocks.push_back({header, item.offset + item.length - header, "Exif item", BlockRole::Main, std::nullopt});
}

// moov -> uuid (Canon metadata) -> CMT1 (IFD0) and CMT2 (Exif IFD).
void canonBlocks(const RangeReader& read, const Boxes& top, Result& result) {
  const auto moov = firstOfType(top, "moov");
  if (!moov) {
    result.problem = "the file has no movie box";
    return;
  }
  const Boxes inMoov = readBoxes(read, moov->payload, moov->end);
  const auto uuid = std::find_if(inMoov.boxes.begin(), inMoov.boxes.end(), [](const Box& box) {
    return box.type == "uuid" && box.userType == kCanonMetadataUUID;
  });
  if (uuid == inMoov.boxes.end()) {
    result.problem = "the file has no Canon metadata box";
    return;
  }
  const Boxes inUuid = readBoxes(read, uuid->payload, uuid->end);
  for (const std::string_view type : {"CMT1", "CMT2"}) {
    const auto box = firstOfType(inUuid, type);
    if (box && box->end - box->payload >= 8 && tiffHeaderAt(read, box->payload))
      result.blocks.push_back({box->payload, box->end - box->payload, std::string(type) + " box",
                               type == "CMT2" ? BlockRole::ExifIFDFirst : BlockRole::Main, std::nullopt});
  }
  if (result.blocks.empty()) result.problem = "the Canon metadata box holds no TIFF block";
}

}  // namespace

bool looksLikeIsoBmff(orb::ByteView head) {
  const auto size = head.u32(0);
  const auto type = head.bytes(4, 4);
  return size && type && *size >= 16 && std::string_view(reinterpret_cast<const char*>(type->data()), 4) == "ftyp";
}

Result locateExif(std::uint64_t fileSize, const RangeReader& read) {
  Result result;
  const Boxes top = readBoxes(read, 0, fileSize);
  const auto ftyp = firstOfType(top, "ftyp");
  if (!ftyp || top.boxes.front().type != "ftyp") {
    result.problem = "the file does not begin with a file type box";
    return result;
  }
  const auto brands = brandsOf(read, *ftyp);
  if (brands.empty()) {
    result.problem = "the file type box names no brand";
    return result;
  }
  nameFromBrands(brands, result);
  if (result.isVideo) {
    result.problem = "video files are not supported";
  } else if (result.name == "CR3") {
    canonBlocks(read, top, result);
  } else {
    heifBlocks(read, top, fileSize, result);
  }
  return result;
}

}  // namespace lum::isobmff
