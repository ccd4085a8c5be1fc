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
#include <optional>
#include <vector>

#include "formats/inspector/LumInfoDataSource.h"

class LumImageFile;

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

 private:
  bool saved(const LumImageFile* file);

  DocumentFile documentFile_;
  LumInfoDataSource source_;
  std::optional<std::filesystem::path> shownPath_;
};
