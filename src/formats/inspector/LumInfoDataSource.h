#pragma once
// The rows of the metadata inspector, without its window: the file's
// container (its format and where the Exif sits in it), the JFIF fields
// and the TIFF, Exif, Interoperability and GPS entries of one image file,
// grouped under headings, each row with the texts of its "TagName" and
// "Value" cells. The window (app layer) shows them and forwards the
// notifications that make it follow the current file.
//
// Date rows show the dates as the file had them when it was opened (or last
// saved), never an unsaved edit.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/OrbIFDEntry.h"
#include "formats/LumImageFile.h"

class OrbTiff;

enum class LumInfoRowKind : std::uint8_t { Heading, Container, JFIFKey, Entry };

struct LumInfoRow {
  LumInfoRowKind kind = LumInfoRowKind::Heading;
  std::string group;    // the heading the row stands under (a heading: its own text)
  std::string tagName;  // text of the "TagName" cell
  std::string value;    // text of the "Value" cell
  std::optional<OrbIFDEntry> entry;  // the entry of an Entry row
};

// The dates of a file as opened, which date rows show.
struct LumInfoOriginalDates {
  std::optional<std::string> dateTimeOriginal, dateTimeDigitized, dateTime;
};

class LumInfoDataSource {
 public:
  static constexpr std::string_view kTagNameColumn = "TagName";
  static constexpr std::string_view kValueColumn = "Value";

  // The file shown; nullptr shows nothing. The caller keeps the file alive
  // while it is shown. Setting it rebuilds the rows.
  const LumImageFile* imageFile() const { return imageFile_; }
  void setImageFile(const LumImageFile* file);

  // Rebuilds the rows from the shown file's current state.
  void pMakeIFDDataSources();
  // Whether building the rows may read a structure that lies beyond the
  // file's head (a RAW read whole); a table on the GUI thread says no, has
  // the structure read elsewhere (LumImageFile::readTiff) and rebuilds once
  // it is adopted.
  void setReadsLargeStructures(bool reads) { readsLargeStructures_ = reads; }
  const std::vector<LumInfoRow>& IFDDataSources() const { return rows_; }

  std::size_t numberOfRows() const { return rows_.size(); }
  // The text of a cell; empty for a heading's value, an unknown column or row.
  std::string objectValue(std::string_view columnIdentifier, std::size_t row) const;
  // Heading rows are drawn on a shaded background.
  bool isHeadingRow(std::size_t row) const;

  // Notification handlers. Each answers whether the rows were rebuilt (the
  // table then reloads).
  // "LumImageFileDidChangeNotification" (and a document's new selected file):
  // shows the file when it differs from the shown one.
  bool imageFileDidChange(const LumImageFile* file);
  // "LumImageFileDidSaveNotification": rebuilds when it is the shown file.
  bool imageFileDidSave(const LumImageFile* file);

  // The rows for a TIFF structure and JFIF fields (either may be absent).
  static std::vector<LumInfoRow> rowsFor(const OrbTiff* tiff, const LumImageFile::JFIFDictionary* jfif,
                                         const LumInfoOriginalDates& dates);

  // The "File" group: one "Container" row such as "HEIC, Exif item", or no
  // rows when the container is not known.
  static std::vector<LumInfoRow> containerRows(std::string_view container, std::string_view exifPlace);

  // The GPS presentation of a GPS entry's value: positions in degrees,
  // minutes and seconds with their reference letter and as signed decimal
  // degrees, altitude in metres above or below sea level, the time of day.
  static std::string pGPSObjectValueForTableColumn(std::string_view columnIdentifier, const OrbIFDEntry& entory,
                                                   const OrbTiff& tiff);

  // The tag lists of the four groups, in display order.
  static std::span<const std::uint16_t> _displayIFDTags_TIFF();
  static std::span<const std::uint16_t> _displayIFDTags_Exif();
  static std::span<const std::uint16_t> _displayIFDTags_Interoperability();
  static std::span<const std::uint16_t> _displayIFDTags_GPS();

  // The shared pseudo-entry shown first in the TIFF group: tag 0 with the
  // text "Little Endian" or "Big Endian".
  static const OrbIFDEntry& byteOrderEntry(std::int8_t endian);

 private:
  bool readsLargeStructures_ = true;
  const LumImageFile* imageFile_ = nullptr;
  std::vector<LumInfoRow> rows_;
};
