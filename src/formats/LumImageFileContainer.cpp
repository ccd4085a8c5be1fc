// Opening the formats that keep their Exif inside another container: camera
// RAW, HEIC/HEIF/AVIF, CR3, PNG and WebP. The container scan tells the
// format from the bytes and finds the TIFF blocks; the date entries of those
// blocks give the three dates, where each is written and its copies.
//
// Unlike a JPEG or TIFF, such a file is not checked by an image decoder
// when it is opened: RAW and HEIC decoding costs far more than a listing may
// spend, and the dates do not depend on it. A file that cannot be decoded
// shows the placeholder picture instead.
#include "core/OrbTiff.h"
#include "formats/FileRangeReader.h"
#include "formats/LumImageFile.h"
#include "formats/containers/ContainerScan.h"
#include "formats/containers/ExifDateEntries.h"

namespace {

LumError lumError(int code, std::string reason) { return LumError{kLumErrorDomain, code, std::move(reason)}; }

// Formats the JPEG/TIFF opener reads itself, exactly as it always has.
bool isJpegOrTiff(const std::string& name) { return name == "JPEG" || name == "TIFF"; }

// The structure is only for showing; a block larger than this is not parsed.
constexpr std::uint64_t kMaxStructureBytes = std::uint64_t{256} << 20;

}  // namespace

LumImageFile::ContainerOpening LumImageFile::openContainer(const std::filesystem::path& url,
                                                           const std::shared_ptr<const lum::FileData>& head,
                                                           LumError* error, Opening how) {
  lum::FileRangeReader reader(url, head);
  const lum::ContainerScan scan = lum::scanContainer(reader.fileSize(), reader.reader());
  const auto fail = [error](int code, std::string reason) {
    if (error) *error = lumError(code, std::move(reason));
    return ContainerOpening{true, nullptr};
  };
  if (reader.failed()) return fail(-2, lum::kChangedSinceOpenedReason);
  if (scan.name.empty() || isJpegOrTiff(scan.name)) return {};
  if (scan.refusal) return fail(kLumErrorRefused, *scan.refusal);

  auto file = std::make_unique<LumImageFile>();
  file->holding_ = how.holding;
  file->build_ = how.build;
  file->containerName_ = scan.name;
  if (!scan.blocks.empty()) file->exifPlace_ = scan.blocks.front().where;
  file->takeContainerDates(lum::containerDates(reader.fileSize(), reader.reader(), scan.blocks));
  if (how.holding == Holding::Kept && !scan.blocks.empty()) file->checksum_ = scan.blocks.front().checksum;
  if (how.build == Build::Structure) file->tiff_ = containerStructure(reader, scan);
  if (reader.failed()) return fail(-2, lum::kChangedSinceOpenedReason);
  file->stamp_ = reader.stamp();
  file->setEdit(!file->noDateTimes());
  return {true, std::move(file)};
}

std::shared_ptr<OrbTiff> LumImageFile::containerStructure(lum::FileRangeReader& reader,
                                                          const lum::ContainerScan& scan) {
  const auto block = std::find_if(scan.blocks.begin(), scan.blocks.end(),
                                  [](const lum::TiffBlock& b) { return b.role == lum::BlockRole::Main; });
  if (block == scan.blocks.end()) return nullptr;
  auto bytes = reader.read(block->offset, std::min(block->length, kMaxStructureBytes));
  if (!bytes || bytes->size() < 8) return nullptr;
  // ORF and RW2 mark their header with a magic number of their own; the
  // structure under it is plain TIFF.
  const bool little = (*bytes)[0] == 'I';
  (*bytes)[2] = little ? 0x2A : 0x00;
  (*bytes)[3] = little ? 0x00 : 0x2A;
  std::vector<std::string> consoleLines;  // reported by nobody: this parse only feeds the inspector
  const std::uint64_t location = 0;
  return OrbTiff::exifWithPtr(orb::ByteView(bytes->data(), bytes->size()), &location, bytes->size(), &consoleLines);
}
