#include "app/inspector/InfoFollower.h"

#include <algorithm>

#include "documents/LumNotificationCenter.h"
#include "formats/LumImageFile.h"

InfoFollower::InfoFollower(DocumentFile documentFile) : documentFile_(std::move(documentFile)) {
  source_.setReadsLargeStructures(false);
}

bool InfoFollower::notified(const QString& name, const void* object) {
  if (name == QLatin1String(kLumDocumentDidChangeNotification))
    return show(object && documentFile_ ? documentFile_(object) : nullptr);
  if (name == QLatin1String(kLumImageFileDidChangeNotification))
    return show(static_cast<const LumImageFile*>(object));
  if (name == QLatin1String(kLumImageFileDidSaveNotification))
    return saved(static_cast<const LumImageFile*>(object));
  return false;
}

bool InfoFollower::show(const LumImageFile* file) {
  if (!source_.imageFileDidChange(file)) return false;
  shownPath_ = file ? file->fileURL() : std::nullopt;
  return true;
}

bool InfoFollower::saved(const LumImageFile* file) {
  if (!file) return false;
  if (file == shownFile()) return source_.imageFileDidSave(file);
  // The save replaced the shown file's object by the file read again.
  if (shownPath_ && file->fileURL() == shownPath_) return show(file);
  return false;
}

bool InfoFollower::letGoOf(const std::vector<std::filesystem::path>& files, const LumImageFile* selected) {
  if (!shownFile()) return false;
  const bool ours = (selected && selected == shownFile()) ||
                    (shownPath_ && std::find(files.begin(), files.end(), *shownPath_) != files.end());
  return ours && show(nullptr);
}

std::optional<InfoFollower::StructureRead> InfoFollower::structureToRead() const {
  const LumImageFile* file = shownFile();
  if (!file || !file->structureLiesBeyondHead() || !file->tiffPending()) return std::nullopt;
  const auto path = file->pathToRead();
  const auto& opened = file->stampAsOpened();
  if (!path || !opened) return std::nullopt;
  return StructureRead{file, *path, *opened};
}

bool InfoFollower::structureArrived(const StructureRead& read, std::shared_ptr<OrbTiff> tiff) {
  // The object shown may have been replaced (a save) since the read began;
  // the same path and stamp say it is still that file.
  const LumImageFile* file = shownFile();
  if (file != read.file || file->pathToRead() != read.path || file->stampAsOpened() != read.opened) return false;
  file->adoptTiff(std::move(tiff));
  source_.pMakeIFDDataSources();
  return true;
}
