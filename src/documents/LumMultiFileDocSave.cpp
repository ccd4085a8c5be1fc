// Saving of the multi-file document: the edited files' date texts are
// written in place on a background thread, with progress and a final report
// handed back to the document's thread in order.
#include <QMetaObject>
#include <QThread>

#include <atomic>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

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
  LumFileItemDoc* item = nullptr;
  std::filesystem::path path;
  bool saved = false;
  std::string reason;
  std::unique_ptr<LumImageFile> reread;  // the file read again after its save
};

std::vector<std::uint8_t> LumMultiFileDoc::_changedDateWithData(orb::ByteView data, const LumFileItemDoc& item) {
  return DateRewrite::applied(data, item.datePatches());
}

namespace {

// Saves run this many files at once. A save waits on the disk, not on a
// core: each file's fsync must reach the disk before it counts as saved, and
// the file system commits the flushes that arrive together in one go, so a
// folder of photos is made durable several times faster than one by one.
constexpr std::size_t kConcurrentSaves = 16;

// The jobs in groups that may run side by side: jobs for the same file
// (one photo opened under two names) share a group and run one after the
// other, so two writes never race inside one file.
std::vector<std::vector<std::size_t>> groupsByFile(const std::vector<lum::FileStamp const*>& stamps) {
  std::vector<std::vector<std::size_t>> groups;
  std::map<std::pair<std::uint64_t, std::uint64_t>, std::size_t> groupOfFile;
  for (std::size_t i = 0; i < stamps.size(); ++i) {
    if (!stamps[i]) {
      groups.push_back({i});
      continue;
    }
    const auto [it, fresh] = groupOfFile.try_emplace({stamps[i]->device, stamps[i]->inode}, groups.size());
    if (fresh) groups.emplace_back();
    groups[it->second].push_back(i);
  }
  return groups;
}

}  // namespace

LumMultiFileDoc::SaveResult LumMultiFileDoc::saveOne(const SaveJob& job, const InPlaceWriter::WriteFunction& write) {
  SaveResult result{job.item, job.path, false, {}, nullptr};
  std::error_code error;
  if (!std::filesystem::exists(job.path, error)) return result;  // a missing file has no reason to give
  const InPlaceWriter::WriteResult written =
      job.opened ? InPlaceWriter::writePatches(job.path, *job.opened, job.patches, write)
                 : InPlaceWriter::WriteResult{false, InPlaceWriter::kChangedOnDiskReason, std::nullopt};
  result.saved = written.ok;
  result.reason = written.reason;
  // The model then holds what is on disk now: the saved file opened again,
  // provided it is still the file this save left.
  if (written.ok && written.stamp) result.reread = LumImageFile::imageFileIfUnchanged(job.path, *written.stamp);
  return result;
}

// Runs on the save thread: saves every job, several files at once, and
// reports progress to the document's thread as each file is done. The
// results keep the order of the jobs.
std::shared_ptr<std::vector<LumMultiFileDoc::SaveResult>> LumMultiFileDoc::saveJobs(
    const std::vector<SaveJob>& jobs, const InPlaceWriter::WriteFunction& write) {
  auto results = std::make_shared<std::vector<SaveResult>>(jobs.size());
  std::vector<const lum::FileStamp*> stamps;
  for (const SaveJob& job : jobs) stamps.push_back(job.opened ? &*job.opened : nullptr);
  const std::vector<std::vector<std::size_t>> groups = groupsByFile(stamps);

  std::mutex progressMutex;
  std::size_t done = 0;
  const auto finished = [&](std::size_t index) {
    if (jobs.size() == 1) return;
    const std::lock_guard lock(progressMutex);  // keeps the bar moving forward
    const double progress = 100.0 * static_cast<double>(++done) / static_cast<double>(jobs.size());
    const QString path = QString::fromStdString(jobs[index].path.string());
    QMetaObject::invokeMethod(this, [this, progress, path] { emit savingProgress(progress, path); },
                              Qt::QueuedConnection);
  };
  std::atomic<std::size_t> nextGroup{0};
  const auto worker = [&] {
    for (std::size_t g = nextGroup++; g < groups.size(); g = nextGroup++)
      for (const std::size_t i : groups[g]) {
        (*results)[i] = saveOne(jobs[i], write);
        finished(i);
      }
  };
  {
    std::vector<std::jthread> workers(std::min(kConcurrentSaves, groups.size()) - 1);
    for (std::jthread& w : workers) w = std::jthread(worker);
    worker();
  }
  return results;
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
    const std::shared_ptr<std::vector<SaveResult>> results = saveJobs(*jobs, write);
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
