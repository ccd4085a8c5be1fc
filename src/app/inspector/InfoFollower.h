#pragma once
// Which file the inspector shows, driven by the application's notifications:
// a document becoming main (its selected file), a new current file, a save.
// Keeps the rows of the shown file.
//
// A save reads the saved file again and replaces the document's file object,
// so the save notification names a new object for the file shown. The
// follower remembers the shown file's path and takes the new object when the
// paths match; the old one is never touched again.

#include <QString>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "formats/FileData.h"
#include "formats/inspector/LumInfoDataSource.h"

class LumImageFile;
class OrbTiff;

class InfoFollower {
 public:
  // The selected file of the document a notification names, or null.
  using DocumentFile = std::function<const LumImageFile*(const void* document)>;

  explicit InfoFollower(DocumentFile documentFile);

  const LumInfoDataSource& rows() const { return source_; }
  const LumImageFile* shownFile() const { return source_.imageFile(); }

  // Handles one posted notification; true when the rows were rebuilt.
  bool notified(const QString& name, const void* object);
  // Shows file (null: nothing) when it is not the one shown; true when rebuilt.
  bool show(const LumImageFile* file);
  // A window with these files goes away: shows nothing if one of them is
  // shown. True when the rows were emptied.
  bool letGoOf(const std::vector<std::filesystem::path>& files, const LumImageFile* selected);

  // The rows are built without waiting for a structure that lies beyond the
  // file's head; this names the file to read it from, when the shown file
  // still needs it.
  struct StructureRead {
    const LumImageFile* file;
    std::filesystem::path path;
    lum::FileStamp opened;
  };
  std::optional<StructureRead> structureToRead() const;
  // The structure read for `read` arrived: the shown file takes it when it
  // is still the one shown. True when the rows were rebuilt.
  bool structureArrived(const StructureRead& read, std::shared_ptr<OrbTiff> tiff);

 private:
  bool saved(const LumImageFile* file);

  DocumentFile documentFile_;
  LumInfoDataSource source_;
  std::optional<std::filesystem::path> shownPath_;
};
