#include "formats/LumImageFile.h"

#include <cstdio>

#include "core/ConsoleLog.h"
#include "core/ExifDateScan.h"
#include "core/OrbTiff.h"
#include "datetime/DateAdditions.h"
#include "datetime/ExifDateText.h"
#include "formats/ImageDecoder.h"
#include "formats/containers/ExifDateEntries.h"

namespace {

constexpr std::size_t kDateLength = 19;

struct DateEntry {
  std::uint16_t tag;
  std::uint32_t ifdID;
};

constexpr DateEntry dateEntry(LumDateField field) {
  switch (field) {
    case LumDateField::DateTimeOriginal: return {0x9003, kExifIFDID};
    case LumDateField::DateTimeDigitized: return {0x9004, kExifIFDID};
    case LumDateField::DateTime: return {0x0132, kTIFFIFDID};
  }
  return {0, 0};
}

// All three sub-second entries live in the Exif IFD.
constexpr std::uint16_t kSubSecTime = 0x9290;
constexpr std::uint16_t kSubSecTimeOriginal = 0x9291;
constexpr std::uint16_t kSubSecTimeDigitized = 0x9292;

LumError lumError(int code, std::string reason) { return LumError{kLumErrorDomain, code, std::move(reason)}; }

// The entry's value as text; nullopt when absent or not text.
std::optional<std::string> textOf(const OrbTiff& tiff, std::uint16_t tag, std::uint32_t ifdID) {
  const OrbIFDEntry* entry = tiff.entryWithIFDTag(tag, ifdID);
  if (!entry) return std::nullopt;
  const OrbDataObject object = entry->dataObject();
  if (object.isText()) return object.text();
  return object.stringValue();
}

// The first 19 characters of a date text when the date parser accepts
// them; a shorter text is not a date.
std::optional<std::string> validDate(std::string_view text) {
  if (text.size() < kDateLength) return std::nullopt;
  std::string cut(text.substr(0, kDateLength));
  // The common form with every field in range is always a date; only other
  // texts need the general parser, which costs far more per file.
  if (!ExifDateText::secondsOf(cut) && !DateAdditions::dateWithDateTimeString(cut)) return std::nullopt;
  return cut;
}

// Where the structure's entry of a date keeps its value, when out of line.
std::optional<std::uint64_t> valueOffsetIn(const OrbTiff& tiff, LumDateField field) {
  const DateEntry e = dateEntry(field);
  const OrbIFDEntry* entry = tiff.entryWithIFDTag(e.tag, e.ifdID);
  if (!entry || entry->byteCount() <= 4) return std::nullopt;
  return std::uint64_t{entry->data()} + tiff.tiffHeaderLocation();
}

std::optional<std::string> validDate(const OrbTiff& tiff, LumDateField field) {
  const DateEntry e = dateEntry(field);
  const OrbIFDEntry* entry = tiff.entryWithIFDTag(e.tag, e.ifdID);
  if (!entry) return std::nullopt;
  const OrbDataObject object = entry->dataObject();
  if (!object.isText()) return std::nullopt;
  return validDate(object.text());
}

std::optional<std::string> validDate(const ExifDateScan::Value& value) {
  if (value.kind != ExifDateScan::Value::Kind::Text) return std::nullopt;
  return validDate(value.text);
}

std::optional<std::string> textOf(const ExifDateScan::Value& value) {
  if (value.kind != ExifDateScan::Value::Kind::Text) return std::nullopt;
  return std::string(value.text);
}

constexpr std::size_t indexOf(LumDateField field) { return static_cast<std::size_t>(field); }

constexpr LumDateField kDateFields[] = {LumDateField::DateTimeOriginal, LumDateField::DateTimeDigitized,
                                        LumDateField::DateTime};

std::string nextIFDLine(std::uint32_t next, std::uint64_t maxLocation) {
  return "nextIFDLocation: (" + std::to_string(next) + ") maxLocation:(" + std::to_string(maxLocation) + ")";
}

}  // namespace

LumImageFile::LumImageFile() = default;

LumImageFile::~LumImageFile() {
  std::lock_guard lock(jobMutex_);
  thumbnail_.reset();
  if (operation_) operation_->store(true);
  operation_.reset();
}

std::unique_ptr<LumImageFile> LumImageFile::imageFileWithURL(const std::filesystem::path& url, LumError* error,
                                                             Holding holding) {
  return open(url, std::nullopt, error, {holding, Build::Dates});
}

std::unique_ptr<LumImageFile> LumImageFile::imageFileIfUnchanged(const std::filesystem::path& url,
                                                                 const lum::FileStamp& expected, LumError* error) {
  return open(url, expected, error, {Holding::Kept, Build::Dates});
}

std::unique_ptr<LumImageFile> LumImageFile::open(const std::filesystem::path& url,
                                                 std::optional<lum::FileStamp> expected, LumError* error,
                                                 Opening how) {
  auto file = parse(url, std::move(expected), error, how);
  // A kept file reads its structure from here again when asked for it.
  if (file && how.holding == Holding::Kept) file->openedAt_ = url.native();
  return file;
}

std::unique_ptr<LumImageFile> LumImageFile::parse(const std::filesystem::path& url,
                                                  std::optional<lum::FileStamp> expected, LumError* error,
                                                  Opening how) {
  lum::ReadFailure failure;
  const auto read = [&](std::size_t length) {
    return expected ? lum::FileData::readIfUnchanged(url, *expected, length, &failure)
                    : lum::FileData::readHead(url, length, &failure);
  };
  std::shared_ptr<const lum::FileData> first = read(kHeadBytes[0]);
  // Other formats than JPEG and TIFF are told and opened from their bytes.
  if (first && !first->empty() && ImageDecoder::kindOf(first->bytes()) != ImageDecoder::Kind::JPEG) {
    ContainerOpening opened = openContainer(url, first, error, how);
    if (opened.handled) return std::move(opened.file);
  }
  for (const std::size_t length : kHeadBytes) {
    auto data = length == kHeadBytes[0] ? std::move(first) : read(length);
    if (!data || data->holdsWholeFile()) return fromWhole(std::move(data), failure, error, how);
    // Later reads must see the same file as this one.
    expected = data->stampAsOpened();
    // A TIFF's directories may lie anywhere: it is read whole.
    if (ImageDecoder::kindOf(data->bytes()) != ImageDecoder::Kind::JPEG) break;
    if (auto file = fromHead(data, how)) return file;
  }
  return fromWhole(read(lum::FileData::kWholeFile), failure, error, how);
}

std::unique_ptr<LumImageFile> LumImageFile::fromWhole(std::shared_ptr<const lum::FileData> data,
                                                      const lum::ReadFailure& failure, LumError* error,
                                                      Opening how) {
  if (!data || data->empty()) {
    if (error && !data)
      orb::logLine("LumImageFile - NSData error " + failure.reason + ", " + failure.description + ", " +
                   failure.recoverySuggestion);
    if (error) *error = lumError(-2, data ? "the file is empty" : failure.reason);
    return nullptr;
  }
  auto file = std::make_unique<LumImageFile>();
  file->holding_ = how.holding;
  file->build_ = how.build;
  // The structure built again for tiff() printed its lines when opened.
  std::vector<std::string> consoleLines;
  const bool silent = how.build == Build::Structure;
  if (!file->scan(data->bytes(), data->bytes().size(), error, silent ? &consoleLines : nullptr)) return nullptr;
  file->finishOpening(data);
  return file;
}

std::unique_ptr<LumImageFile> LumImageFile::fromHead(const std::shared_ptr<const lum::FileData>& head,
                                                    Opening how) {
  // Every read of the marker walk and of the TIFF structure goes through this
  // view, so a read it never refused lay inside the head and gave the bytes
  // the whole file holds there. The decoder's header check reads the bytes
  // in order up to the first scan; when it accepts, it found all it needed
  // before the head's end. Bounds that compare with the file's size take the
  // whole file's size.
  bool refused = false;
  const orb::ByteView bytes(head->bytes().data(), head->bytes().size(), &refused);
  auto file = std::make_unique<LumImageFile>();
  file->holding_ = how.holding;
  file->build_ = how.build;
  // A failure here is not reported: the whole file gives the same one, or
  // opens when the head was too short to tell. Console lines wait for the
  // same reason: they are printed by the parse that is kept.
  std::vector<std::string> consoleLines;
  if (!file->scan(bytes, head->stampAsOpened()->size, nullptr, &consoleLines) || refused) return nullptr;
  if (how.build == Build::Dates) orb::logLines(consoleLines);
  file->finishOpening(head);
  return file;
}

void LumImageFile::finishOpening(const std::shared_ptr<const lum::FileData>& data) {
  setImageData(data);
  // The scan left the header's offset here; it is cleared on purpose. Date
  // writes take the header location from the TIFF structure instead.
  setTiffHeaderLocation(0);
  setEdit(!noDateTimes());
  // The structure the date scan could not stand in for has given its texts
  // and offsets; tiff() reads it again if it is ever wanted.
  if (build_ == Build::Dates) tiff_.reset();
}

bool LumImageFile::searchImageDataAndMakeExifObject(orb::ByteView data, LumError* error) {
  return scan(data, data.size(), error);
}

bool LumImageFile::scan(orb::ByteView data, std::uint64_t fileSize, LumError* error,
                        std::vector<std::string>* consoleLines) {
  std::optional<std::uint64_t> headerLocation;
  switch (ImageDecoder::kindOf(data)) {
    case ImageDecoder::Kind::TIFF:
      headerLocation = 0;
      containerName_ = "TIFF";
      break;
    case ImageDecoder::Kind::JPEG: {
      std::uint64_t location = 2;
      if (pSearchJPEG(data, &location, fileSize)) headerLocation = location;
      containerName_ = "JPEG";
      if (headerLocation) exifPlace_ = "APP1 segment";
      break;
    }
    case ImageDecoder::Kind::Unknown:
      if (error) *error = lumError(-1, "not a JPEG or TIFF file");
      return false;
  }
  // The decoder must accept the image: a file that only looks like a JPEG
  // or TIFF is refused here.
  const ImageDecoder::HeaderCheck check = ImageDecoder::checkHeader(data);
  if (!check.ok) {
    if (error) *error = lumError(-1, check.message);
    return false;
  }
  if (!headerLocation) return true;
  // An opened file is spared the structure's entry objects whenever the
  // date scan gives what the structure would.
  if (build_ == Build::Dates && takeDates(data, *headerLocation, fileSize, consoleLines)) return true;
  const std::uint64_t location = *headerLocation;
  tiff_ = OrbTiff::exifWithPtr(data, &location, fileSize, consoleLines);
  return true;
}

bool LumImageFile::takeDates(orb::ByteView data, std::uint64_t headerLocation, std::uint64_t fileSize,
                             std::vector<std::string>* consoleLines) {
  const ExifDateScan::Dates dates = ExifDateScan::scan(data, headerLocation, fileSize);
  if (!dates.complete()) return false;
  dateTimeOriginal_ = validDate(dates[ExifDateScan::kDateTimeOriginal]);
  dateTimeDigitized_ = validDate(dates[ExifDateScan::kDateTimeDigitized]);
  dateTime_ = validDate(dates[ExifDateScan::kDateTime]);
  subSecOriginal_ = textOf(dates[ExifDateScan::kSubSecTimeOriginal]);
  subSecDigitized_ = textOf(dates[ExifDateScan::kSubSecTimeDigitized]);
  subSec_ = textOf(dates[ExifDateScan::kSubSecTime]);
  if (holding_ == Holding::Kept) {
    const ExifDateScan::Field scanned[] = {ExifDateScan::kDateTimeOriginal, ExifDateScan::kDateTimeDigitized,
                                           ExifDateScan::kDateTime};
    for (const LumDateField field : kDateFields)
      if (const auto offset = dates[scanned[indexOf(field)]].valueOffset)
        dateOffsets_[indexOf(field)] = headerLocation + *offset;
  }
  if (dates.nextIFDPastLimit) {
    const std::string line = nextIFDLine(*dates.nextIFDPastLimit, fileSize);
    if (consoleLines) consoleLines->push_back(line);
    else orb::logLine(line);
  }
  return true;
}

void LumImageFile::takeContainerDates(const lum::ContainerDates& dates) {
  std::array<std::optional<std::string>*, 3> originals{&dateTimeOriginal_, &dateTimeDigitized_, &dateTime_};
  std::array<std::optional<std::string>*, 3> subSeconds{&subSecOriginal_, &subSecDigitized_, &subSec_};
  for (const LumDateField field : kDateFields) {
    const std::size_t i = indexOf(field);
    const lum::DatePlaces& places = dates.dates[i];
    *originals[i] = places.text ? validDate(*places.text) : std::nullopt;
    *subSeconds[i] = dates.subSeconds[i];
    if (holding_ != Holding::Kept) continue;
    dateOffsets_[i] = places.offset;
    dateCopies_[i] = places.copies;
  }
}

void LumImageFile::setImageData(const std::shared_ptr<const lum::FileData>& data) {
  stamp_ = data ? data->stampAsOpened() : std::nullopt;
  if (!tiff_) return;
  // A date that is not valid leaves the field as it was.
  if (auto d = validDate(*tiff_, LumDateField::DateTimeOriginal)) dateTimeOriginal_ = std::move(d);
  if (auto d = validDate(*tiff_, LumDateField::DateTimeDigitized)) dateTimeDigitized_ = std::move(d);
  if (auto d = validDate(*tiff_, LumDateField::DateTime)) dateTime_ = std::move(d);
  subSecOriginal_ = textOf(*tiff_, kSubSecTimeOriginal, kExifIFDID);
  subSecDigitized_ = textOf(*tiff_, kSubSecTimeDigitized, kExifIFDID);
  subSec_ = textOf(*tiff_, kSubSecTime, kExifIFDID);
  if (holding_ == Holding::Kept)
    for (const LumDateField field : kDateFields) dateOffsets_[indexOf(field)] = valueOffsetIn(*tiff_, field);
}

std::shared_ptr<OrbTiff> LumImageFile::tiff() const {
  std::lock_guard lock(tiffMutex_);
  if (tiff_ || tiffRead_ || holding_ != Holding::Kept || !stamp_) return tiff_;
  tiffRead_ = true;
  // Read and parsed as the open did, so bounded the same way, and only from
  // the file that was opened: one changed since gives no structure at all.
  if (const auto path = pathToRead()) tiff_ = readTiff(*path, *stamp_);
  return tiff_;
}

std::shared_ptr<OrbTiff> LumImageFile::readTiff(const std::filesystem::path& path, const lum::FileStamp& opened) {
  auto again = parse(path, opened, nullptr, {Holding::Kept, Build::Structure});
  return again ? std::move(again->tiff_) : nullptr;
}

bool LumImageFile::tiffPending() const {
  std::lock_guard lock(tiffMutex_);
  return !tiff_ && !tiffRead_ && holding_ == Holding::Kept && stamp_;
}

void LumImageFile::adoptTiff(std::shared_ptr<OrbTiff> tiff) const {
  std::lock_guard lock(tiffMutex_);
  if (tiff_ || tiffRead_) return;
  tiff_ = std::move(tiff);
  tiffRead_ = true;
}

void LumImageFile::setTiff(std::shared_ptr<OrbTiff> tiff) {
  std::lock_guard lock(tiffMutex_);
  tiff_ = std::move(tiff);
  tiffRead_ = true;
}

std::optional<std::filesystem::path> LumImageFile::pathToRead() const {
  if (auto url = fileURL()) return url;
  if (openedAt_.empty()) return std::nullopt;
  return std::filesystem::path(openedAt_);
}

std::vector<std::string> LumImageFile::JFIFKeys() const {
  std::vector<std::string> keys;
  if (jfif_)
    for (const auto& [key, value] : *jfif_) keys.push_back(key);
  return keys;
}

std::optional<std::string> LumImageFile::JFIFValue(std::string_view key) const {
  if (jfif_)
    for (const auto& [k, value] : *jfif_)
      if (k == key) return value;
  return std::nullopt;
}

std::optional<std::uint64_t> LumImageFile::dateValueOffset(LumDateField field) const {
  return dateOffsets_[indexOf(field)];
}

const std::vector<std::uint64_t>& LumImageFile::dateCopies(LumDateField field) const {
  return dateCopies_[indexOf(field)];
}

const std::optional<std::string>& LumImageFile::originalString(LumDateField field) const {
  switch (field) {
    case LumDateField::DateTimeOriginal: return dateTimeOriginal_;
    case LumDateField::DateTimeDigitized: return dateTimeDigitized_;
    case LumDateField::DateTime: break;
  }
  return dateTime_;
}

bool LumImageFile::noDateTimes() const { return !dateTimeOriginal_ && !dateTimeDigitized_ && !dateTime_; }

std::optional<std::filesystem::path> LumImageFile::fileURL() const {
  if (!owner_) return std::nullopt;
  return owner_->fileURL();
}

std::shared_ptr<const lum::Bitmap> LumImageFile::thumbnail() const {
  std::lock_guard lock(jobMutex_);
  return thumbnail_;
}

void LumImageFile::setThumbnail(std::shared_ptr<const lum::Bitmap> thumbnail) {
  std::lock_guard lock(jobMutex_);
  thumbnail_ = std::move(thumbnail);
}

LumImageFile::CancelFlag LumImageFile::operation() const {
  std::lock_guard lock(jobMutex_);
  return operation_;
}

void LumImageFile::setOperation(CancelFlag operation) {
  std::lock_guard lock(jobMutex_);
  operation_ = std::move(operation);
}
