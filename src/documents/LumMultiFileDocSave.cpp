// Saving of the multi-file document: the edited files' date texts are
// written in place on a background thread, with progress and a final report
// handed back to the document's thread in order.
#include <QMetaObject>
#include <QThread>

#include "documents/DateRewrite.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/LumNotificationCenter.h"

// Everything the background thread needs of one file, taken on the
// document's thread before it starts: the thread never touches an item.
struct LumMultiFileDoc::SaveJob {
  LumFileItemDoc* item;
  std::filesystem::path path;
  std::vector<InPlaceWriter::BytePatch> patches;
  std::optional<lum::FileStamp> opened;
};

struct LumMultiFileDoc::SaveResult {
  LumFileItemDoc* item;
  std::filesystem::path path;
  bool saved = false;
  std::string reason;
  std::unique_ptr<LumImageFile> reread;  // the file read again after its save
};

std::vector<std::uint8_t> LumMultiFileDoc::_changedDateWithData(orb::ByteView data, const LumFileItemDoc& item) {
  return DateRewrite::applied(data, item.datePatches());
}

bool LumMultiFileDoc::saveFileAll(bool all, bool closeAfterSave, bool quitApp) {
  if (saving_) return true;
  std::vector<LumFileItemDoc*> items = pEditedDocuments();
  if (!all) {
    std::vector<LumFileItemDoc*> selected;
    for (LumFileItemDoc* item : selection_)
      if (std::find(items.begin(), items.end(), item) != items.end()) selected.push_back(item);
    items = std::move(selected);
  }
  if (items.empty()) return true;

  auto jobs = std::make_shared<std::vector<SaveJob>>();
  for (LumFileItemDoc* item : items)
    jobs->push_back({item, item->path(), item->datePatches(), item->imageFile().stampAsOpened()});
  saving_ = true;
  emit savingStarted(static_cast<int>(items.size()));

  const InPlaceWriter::WriteFunction write = writeFunction_;
  QThread* thread = QThread::create([this, jobs, write, closeAfterSave, quitApp] {
    auto results = std::make_shared<std::vector<SaveResult>>();
    const std::size_t n = jobs->size();
    const double step = 100.0 / static_cast<double>(n);
    double progress = 0;
    for (const SaveJob& job : *jobs) {
      if (n != 1) {
        progress += step;
        const QString path = QString::fromStdString(job.path.string());
        QMetaObject::invokeMethod(this, [this, progress, path] { emit savingProgress(progress, path); },
                                  Qt::QueuedConnection);
      }
      SaveResult result{job.item, job.path, false, {}, nullptr};
      std::error_code error;
      if (!std::filesystem::exists(job.path, error)) {
        results->push_back(std::move(result));  // a missing file has no reason to give
        continue;
      }
      const InPlaceWriter::WriteResult written =
          job.opened ? InPlaceWriter::writePatches(job.path, *job.opened, job.patches, write)
                     : InPlaceWriter::WriteResult{false, InPlaceWriter::kChangedOnDiskReason};
      result.saved = written.ok;
      result.reason = written.reason;
      // The saved file is read again, so the model holds what is on disk
      // now (a fresh mapping, not a copy kept in memory).
      if (written.ok) result.reread = LumImageFile::imageFileWithURL(job.path, nullptr);
      results->push_back(std::move(result));
    }
    QMetaObject::invokeMethod(
        this, [this, results, closeAfterSave, quitApp] { afterSaving(results, closeAfterSave, quitApp); },
        Qt::QueuedConnection);
  });
  connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  thread->start();
  return true;
}

void LumMultiFileDoc::afterSaving(const std::shared_ptr<std::vector<SaveResult>>& results, bool closeAfterSave,
                                  bool quitApp) {
  LumSaveOutcome outcome;
  outcome.total = results->size();
  outcome.closeAfterSave = closeAfterSave;
  outcome.quitApp = quitApp;
  for (SaveResult& result : *results) {
    if (!result.saved) {
      outcome.failures.push_back({result.path, result.reason});
      continue;
    }
    // The item may have gone meanwhile only if the document was changed
    // during the save, which the saving sheet prevents; check anyway.
    if (result.reread && rowOf(result.item)) result.item->replaceImageFile(std::move(result.reread));
  }
  undoStack_.clear();  // a save cannot be undone, nor anything before it
  _sortTableView();
  outcome.alert = SaveReport::alertTexts(outcome.total, outcome.failures);
  updateFileURLAndWindowTitle();
  saving_ = false;
  emit saveFinished(outcome);
  if (!closeAfterSave && !quitApp)
    LumNotificationCenter::defaultCenter().post(kLumImageFileDidSaveNotification, selectedImageFile());
}
