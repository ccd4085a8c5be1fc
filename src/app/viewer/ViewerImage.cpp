#include "app/viewer/ViewerImage.h"

#include <memory>
#include <string>
#include <vector>

#include "app/multi/BitmapImage.h"
#include "core/IFDItemID.h"
#include "core/OrbTiff.h"
#include "documents/LumLocalized.h"
#include "formats/ByteViewReader.h"
#include "formats/FileData.h"
#include "formats/ImageDecoder.h"
#include "formats/LumImageFile.h"
#include "formats/containers/ContainerScan.h"

namespace {

constexpr std::uint16_t kModelTag = 0x0110;

// Where the TIFF header of the bytes starts: 0 for a TIFF file, after the
// Exif APP1's preamble for a JPEG, and for the other formats the start of
// the main block the container scan finds (a HEIF's Exif item, a CR3's
// CMT1 box, a PNG's eXIf chunk, ...); none for a file without Exif.
std::optional<std::uint64_t> tiffHeaderLocation(orb::ByteView bytes) {
  switch (ImageDecoder::kindOf(bytes)) {
    case ImageDecoder::Kind::TIFF:
      return 0;
    case ImageDecoder::Kind::JPEG: {
      LumImageFile walker;
      std::uint64_t location = 2;
      if (walker.pSearchJPEG(bytes, &location, bytes.size())) return location;
      return std::nullopt;
    }
    case ImageDecoder::Kind::Unknown: {
      const lum::ContainerScan scan = lum::scanContainer(bytes.size(), lum::readerOver(bytes));
      if (!scan.blocks.empty()) return scan.blocks.front().offset;
      break;
    }
  }
  return std::nullopt;
}

QString modelOf(orb::ByteView bytes) {
  const std::optional<std::uint64_t> location = tiffHeaderLocation(bytes);
  if (!location) return {};
  // The document already reported anything odd about this structure when
  // it was opened; what this second parse finds is not printed again.
  std::vector<std::string> consoleLines;
  const std::unique_ptr<OrbTiff> tiff = OrbTiff::exifWithPtr(bytes, &*location, bytes.size(), &consoleLines);
  const OrbIFDEntry* model = tiff ? tiff->entryWithIFDTag(kModelTag, kTIFFIFDID) : nullptr;
  return model ? QString::fromStdString(model->localizedDataObject().stringValue()) : QString();
}

}  // namespace

ViewerImage readViewerImage(const std::filesystem::path& path) {
  const std::shared_ptr<const lum::FileData> data = lum::FileData::readFile(path);
  if (!data) return {};
  const std::shared_ptr<const lum::Bitmap> bitmap = ImageDecoder::decodeFull(data->bytes());
  if (!bitmap) return {};
  ViewerImage image{imageFromBitmap(*bitmap), {}};
  if (!image.picture.isNull()) image.model = modelOf(data->bytes());
  return image;
}

QString viewerInformationText(QSize pixelSize, const QString& model) {
  QString text = LumLocalized::format("%ld x %ld", QString::number(pixelSize.width()),
                                      QString::number(pixelSize.height()));
  if (!model.isEmpty()) text += LumLocalized::format(", %@", model);
  return text;
}
