#pragma once
// One opened photo file (JPEG with Exif, TIFF, or a format that keeps its
// Exif inside another container: camera RAW, HEIC/HEIF/AVIF, CR3, PNG,
// WebP): its JFIF fields, its dates as they stood when it was opened and
// where their values lie, and the file's identity at that moment. The full
// TIFF structure (an object per entry, several KB a photo) is built only
// when asked for.
//
// A file is accepted by content, never by name: FF D8 is a JPEG, "II"/"MM"
// a TIFF unless its first directory shows a camera's RAW, and for JPEG and
// TIFF the decoder must accept the image's header; the other formats are
// told by the container scan (LumImageFileContainer.cpp). A JPEG without
// Exif opens too; it simply has no TIFF structure and no dates.
//
// The bytes the scan read are let go once it is done: everything kept is a
// copy. Whatever needs the file later (a thumbnail, saving, reading it again
// after a save) reads it anew and first checks that it is still the file
// that was opened. Every read of the marker walk and of the JFIF fields is
// bounded by the bytes read; a cut or malformed file is taken as having
// nothing there, never read past.

#include <array>
#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ByteView.h"
#include "core/LumError.h"
#include "formats/FileData.h"
#include "formats/containers/ContainerTypes.h"
#include "tools/Bitmap.h"

class OrbTiff;
namespace lum {
class FileRangeReader;
struct ContainerDates;
struct ContainerScan;
}  // namespace lum

// A byte range in the file: location of a segment's marker and its length
// (length field + 2, so the range covers marker, length and body).
struct LumRange {
  std::uint64_t location = 0;
  std::uint64_t length = 0;
  friend bool operator==(const LumRange&, const LumRange&) = default;
};

// The three dates the program edits.
enum class LumDateField { DateTimeOriginal, DateTimeDigitized, DateTime };

// What holds an image file (a document); it knows the file's path, the image
// file itself keeps none.
class LumImageFileOwner {
 public:
  virtual ~LumImageFileOwner() = default;
  virtual std::optional<std::filesystem::path> fileURL() const = 0;
};

class LumImageFile {
 public:
  // JFIF fields in the order they were set: "JFIF Version", "Density Unit",
  // "X Density", "Y Density", "Thumbnail Width", "Thumbnail Height".
  using JFIFDictionary = std::vector<std::pair<std::string, std::string>>;
  // Set to true to cancel the pending background job of this file.
  using CancelFlag = std::shared_ptr<std::atomic<bool>>;

  static constexpr std::uint32_t kEditFlag = 1u << 0;
  static constexpr double kThumbnailBox = 150.0;

  // Opens the file. Answers nullptr on failure with *error (when given) in
  // "LumErrorDomain": -2 for an empty or unreadable file (the read failure is
  // logged (orb::logLine) as "LumImageFile - NSData error ..."), -1 for a file
  // of no format read here or that the decoder refuses, kLumErrorRefused with
  // the reason for a known format that is not edited (a video, a stub).
  //
  // A JPEG is parsed from the file's first kHeadBytes[0] bytes alone
  // whenever the scan provably found everything it looked for there, else
  // from the first kHeadBytes[1]; only a file whose scan wanted more, and a
  // TIFF, whose directories may lie anywhere, are read whole.
  //
  // Either way the dates are read without building the TIFF structure
  // wherever that gives the same texts. Holding::DatesOnly is for a caller
  // that reads the dates and lets the file go at once (listing a folder):
  // tiff() is then null and dateValueOffset() answers nothing.
  // Holding::Kept (a document) keeps where each date lies, and tiff()
  // builds the structure from the file when first asked.
  enum class Holding { Kept, DatesOnly };
  static std::unique_ptr<LumImageFile> imageFileWithURL(const std::filesystem::path& url, LumError* error,
                                                        Holding holding = Holding::Kept);
  // Most cameras' headers (Exif with its thumbnail, tables, frame header)
  // fit in the first; those with large maker notes in the second.
  static constexpr std::size_t kHeadBytes[] = {16 * 1024, 64 * 1024};

  // The same, only while the file at url is still the one stamped
  // `expected` (the stamp a save left): opening a saved file again never
  // picks up what another program put there meanwhile. Nullptr, with -2 and
  // the reason, when the file changed.
  static std::unique_ptr<LumImageFile> imageFileIfUnchanged(const std::filesystem::path& url,
                                                            const lum::FileStamp& expected,
                                                            LumError* error = nullptr);

  LumImageFile();
  ~LumImageFile();
  LumImageFile(const LumImageFile&) = delete;
  LumImageFile& operator=(const LumImageFile&) = delete;

  // Classifies the bytes, walks the JPEG markers, checks that the image
  // decodes, and builds the TIFF structure (kept: the bytes come from no
  // file that could be read again). False with *error (-1) when the
  // bytes are not an accepted image.
  bool searchImageDataAndMakeExifObject(orb::ByteView data, LumError* error);

  // The JPEG marker walk from *location (2, right after SOI). True when the
  // first APP1 is Exif; *location then stands on its TIFF header, which is
  // also stored in tiffHeaderLocation().
  bool pSearchJPEG(orb::ByteView bytes, std::uint64_t* location, std::uint64_t fileSize);

  // Reads the APP0 whose length field is at *location; fills JFIFSegmentRange
  // and, for a "JFIF" APP0, the JFIF dictionary. Leaves *location where the
  // walk reads its next marker.
  void pSearchJFIF(orb::ByteView bytes, std::uint64_t* location, std::uint64_t fileSize);

  // Takes the identity of the file the bytes were read from (none for bytes
  // that came from no file) and derives the six original strings and the
  // dates' value offsets from the current TIFF structure. The bytes
  // themselves are not kept.
  void setImageData(const std::shared_ptr<const lum::FileData>& data);

  // The file's identity as it was opened: what a save and every later read
  // check the file on disk against.
  const std::optional<lum::FileStamp>& stampAsOpened() const { return stamp_; }

  std::uint64_t tiffHeaderLocation() const { return tiffHeaderLocation_; }
  void setTiffHeaderLocation(std::uint64_t location) { tiffHeaderLocation_ = location; }

  // The photo format as its bytes say it, as a user names it: "JPEG",
  // "TIFF", "DNG", "CR2", "NEF", ..., "RAF", "HEIC", "AVIF", "CR3", "PNG",
  // "WebP"; and where in the file the Exif came from ("APP1 segment",
  // "eXIf chunk", "Exif item", "CMT1 box", ...), empty when it has none.
  const std::string& containerName() const { return containerName_; }
  const std::string& exifPlace() const { return exifPlace_; }

  const std::optional<LumRange>& JFIFSegmentRange() const { return jfifSegmentRange_; }
  const std::optional<LumRange>& exifSegmentRange() const { return exifSegmentRange_; }

  const std::optional<JFIFDictionary>& JFIF() const { return jfif_; }
  std::vector<std::string> JFIFKeys() const;
  // The value of one JFIF key, nullopt when absent.
  std::optional<std::string> JFIFValue(std::string_view key) const;

  // The full TIFF structure. A file opened from a path parses it on first
  // use from the file read again, only while the file is still the one
  // opened (nullptr when it changed or cannot be read); the answer is kept
  // for later calls. Safe to call from any thread.
  std::shared_ptr<OrbTiff> tiff() const;
  void setTiff(std::shared_ptr<OrbTiff> tiff);
  // True while tiff() would still have to read the file.
  bool tiffPending() const;
  // True for a file whose structure lies beyond its head, in another
  // container than a JPEG (a RAW is read whole): a thread that must not
  // wait on the disk reads it elsewhere with readTiff() and hands the result
  // over with adoptTiff().
  bool structureLiesBeyondHead() const { return !containerName_.empty() && containerName_ != "JPEG" && containerName_ != "TIFF"; }
  // The structure tiff() would read from the file at path, only while it is
  // still the one stamped `opened`; touches no image file, so any thread may
  // call it.
  static std::shared_ptr<OrbTiff> readTiff(const std::filesystem::path& path, const lum::FileStamp& opened);
  // Takes a structure readTiff() gave, unless tiff() has answered already.
  void adoptTiff(std::shared_ptr<OrbTiff> tiff) const;
  // The path the structure is read again from: the owner's, else the one
  // the file was opened at.
  std::optional<std::filesystem::path> pathToRead() const;

  // Absolute file offset of a date entry's value (value offset + the TIFF
  // header's location): where a new date is written. Nullopt when the
  // structure holds no such entry or its value is not out of line.
  std::optional<std::uint64_t> dateValueOffset(LumDateField field) const;
  // Other entries of the file stating the same date text (IFD1's DateTime,
  // an IFD0 DateTimeOriginal, a preview JPEG's Exif): absolute offsets where
  // a new date is written too. Empty for JPEG and TIFF files.
  const std::vector<std::uint64_t>& dateCopies(LumDateField field) const;
  // The CRC that guards the Exif's bytes (a PNG's eXIf chunk), rewritten by
  // a save that changes a date.
  const std::optional<lum::ChecksumRange>& exifChecksum() const { return checksum_; }

  // The original strings as they stood at opening (dates: first 19
  // characters, kept only when valid; sub-seconds: as stored).
  const std::optional<std::string>& originalDateTimeOriginalString() const { return dateTimeOriginal_; }
  const std::optional<std::string>& originalDateTimeDigitizedString() const { return dateTimeDigitized_; }
  const std::optional<std::string>& originalDateTimeString() const { return dateTime_; }
  const std::optional<std::string>& originalSubSecDateTimeOriginalString() const { return subSecOriginal_; }
  const std::optional<std::string>& originalSubSecDateTimeDigitizedString() const { return subSecDigitized_; }
  const std::optional<std::string>& originalSubSecDateTimeString() const { return subSec_; }
  void setOriginalDateTimeOriginalString(std::optional<std::string> s) { dateTimeOriginal_ = std::move(s); }
  void setOriginalDateTimeDigitizedString(std::optional<std::string> s) { dateTimeDigitized_ = std::move(s); }
  void setOriginalDateTimeString(std::optional<std::string> s) { dateTime_ = std::move(s); }
  void setOriginalSubSecDateTimeOriginalString(std::optional<std::string> s) { subSecOriginal_ = std::move(s); }
  void setOriginalSubSecDateTimeDigitizedString(std::optional<std::string> s) { subSecDigitized_ = std::move(s); }
  void setOriginalSubSecDateTimeString(std::optional<std::string> s) { subSec_ = std::move(s); }
  // The original string of one date field.
  const std::optional<std::string>& originalString(LumDateField field) const;

  // True when none of the three dates was kept.
  bool noDateTimes() const;

  bool isEdit() const { return (flags_ & kEditFlag) != 0; }
  void setEdit(bool edit) { flags_ = edit ? (flags_ | kEditFlag) : (flags_ & ~kEditFlag); }

  LumImageFileOwner* ownerDocument() const { return owner_; }
  void setOwnerDocument(LumImageFileOwner* owner) { owner_ = owner; }
  // The owner document's path; the image file keeps none of its own.
  std::optional<std::filesystem::path> fileURL() const;

  // Whatever the key, a caller asking for a value by key receives the whole
  // image file and picks what it shows.
  const LumImageFile* valueForKey(std::string_view) const { return this; }

  // The list thumbnail; may be read and set from any thread.
  std::shared_ptr<const lum::Bitmap> thumbnail() const;
  void setThumbnail(std::shared_ptr<const lum::Bitmap> thumbnail);
  // Makes the thumbnail (fitting 150 x 150, never enlarged) when there is
  // none and the file has an owner with a path; the placeholder when the
  // image cannot be decoded.
  void makeThumbnail();
  // The same thumbnail, read from the file at url and handed back without
  // being kept (a long list keeps its thumbnails in a bounded cache
  // instead); the placeholder when the image cannot be decoded. Touches
  // neither the owner nor the stored thumbnail, so any thread may call it.
  std::shared_ptr<const lum::Bitmap> readThumbnail(const std::filesystem::path& url) const;
  // The thumbnail of a file's bytes: its own Exif thumbnail when that comes
  // out at exactly the size the main image would get, else the main image
  // decoded and reduced; nullptr when neither can be made.
  static std::shared_ptr<const lum::Bitmap> thumbnailOfBytes(orb::ByteView bytes);
  // The placeholder shown when no thumbnail can be made.
  static std::shared_ptr<const lum::Bitmap> errorImage();

  CancelFlag operation() const;
  void setOperation(CancelFlag operation);

 private:
  // What an open builds: the dates alone (the structure when the date scan
  // cannot give its texts, then let go), or, for tiff(), the structure,
  // without printing its console lines a second time.
  enum class Build : std::uint8_t { Dates, Structure };
  struct Opening {
    Holding holding;
    Build build;
  };
  // Opens from reads of the file, each made only while the file is still
  // the one stamped *expected when that is given.
  static std::unique_ptr<LumImageFile> open(const std::filesystem::path& url, std::optional<lum::FileStamp> expected,
                                            LumError* error, Opening how);
  // The reads and the parse of open(), without noting where the file was.
  static std::unique_ptr<LumImageFile> parse(const std::filesystem::path& url,
                                             std::optional<lum::FileStamp> expected, LumError* error, Opening how);
  // Opens from the whole file's bytes, or reports why there are none
  // (failure, or an empty file).
  static std::unique_ptr<LumImageFile> fromWhole(std::shared_ptr<const lum::FileData> data,
                                                 const lum::ReadFailure& failure, LumError* error, Opening how);
  // Opens a file of another format than JPEG and TIFF (a RAW, HEIC, PNG,
  // WebP...) from its head and the pieces its container scan asks for.
  // Answers false when the bytes are JPEG or TIFF after all, or of no
  // known format: the JPEG/TIFF opener takes them then.
  struct ContainerOpening {
    bool handled = false;
    std::unique_ptr<LumImageFile> file;
  };
  static ContainerOpening openContainer(const std::filesystem::path& url,
                                        const std::shared_ptr<const lum::FileData>& head, LumError* error,
                                        Opening how);
  void takeContainerDates(const lum::ContainerDates& dates);
  // The TIFF structure of the scan's first main block.
  static std::shared_ptr<OrbTiff> containerStructure(lum::FileRangeReader& reader, const lum::ContainerScan& scan);
  // Opens from the head of a JPEG when its scan provably found all it
  // needed there; nullptr otherwise.
  static std::unique_ptr<LumImageFile> fromHead(const std::shared_ptr<const lum::FileData>& head, Opening how);
  // The work of searchImageDataAndMakeExifObject(), bounded by the size of
  // the whole file, which the bytes may only begin. Console lines of the
  // TIFF parse go to consoleLines when given (see OrbTiff::exifWithPtr).
  bool scan(orb::ByteView data, std::uint64_t fileSize, LumError* error,
            std::vector<std::string>* consoleLines = nullptr);
  void finishOpening(const std::shared_ptr<const lum::FileData>& data);
  // Sets the six original strings (and, for a kept file, where the dates
  // lie) straight from the bytes; false (nothing set) when that cannot give
  // what the TIFF structure would.
  bool takeDates(orb::ByteView data, std::uint64_t headerLocation, std::uint64_t fileSize,
                 std::vector<std::string>* consoleLines);
  std::optional<lum::FileStamp> stamp_;
  std::string containerName_;
  std::string exifPlace_;
  std::optional<LumRange> jfifSegmentRange_;
  std::optional<LumRange> exifSegmentRange_;
  std::uint64_t tiffHeaderLocation_ = 0;
  std::optional<JFIFDictionary> jfif_;
  std::array<std::optional<std::uint64_t>, 3> dateOffsets_;  // by LumDateField
  std::array<std::vector<std::uint64_t>, 3> dateCopies_;      // by LumDateField
  std::optional<lum::ChecksumRange> checksum_;
  std::optional<std::string> dateTimeOriginal_;
  std::optional<std::string> dateTimeDigitized_;
  std::optional<std::string> dateTime_;
  std::optional<std::string> subSecOriginal_;
  std::optional<std::string> subSecDigitized_;
  std::optional<std::string> subSec_;
  LumImageFileOwner* owner_ = nullptr;
  std::uint32_t flags_ = 0;
  Holding holding_ = Holding::Kept;
  Build build_ = Build::Structure;
  // Empty for bytes from no file, and for a listing. Kept as its text: a
  // path object also holds each of its components, some 300 bytes more.
  std::string openedAt_;

  mutable std::mutex tiffMutex_;  // guards tiff_, built on first use
  mutable std::shared_ptr<OrbTiff> tiff_;
  mutable bool tiffRead_ = false;  // tiff() tried the file once; its answer stands

  mutable std::mutex jobMutex_;  // guards thumbnail_ and operation_
  std::shared_ptr<const lum::Bitmap> thumbnail_;
  CancelFlag operation_;
};
