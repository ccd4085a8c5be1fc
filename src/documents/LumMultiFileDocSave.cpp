// Saving of the multi-file document: the edited files' date texts are
// written in place on a background thread, with progress and a final report
// handed back to the document's thread in order.
#include <QMetaObject>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <map>
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
  InPlaceWriter::OpenFile unflushed;     // the written file, until its batch is flushed
};

std::vector<std::uint8_t> LumMultiFileDoc::_changedDateWithData(orb::ByteView data, const LumFileItemDoc& item) {
  return DateRewrite::applied(data, item.datePatches());
}

namespace {

// Files are written by at most this many threads at once. Writing into the
// page cache and reading the file again keep a core busy, never the disk.
std::size_t writerCount() { return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, 8); }

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
  SaveResult result{job.item, job.path, false, {}, nullptr, {}};
  std::error_code error;
  if (!std::filesystem::exists(job.path, error)) return result;  // a missing file has no reason to give
  if (!job.opened) {
    result.reason = InPlaceWriter::kChangedOnDiskReason;
    return result;
  }
  // Saved for now; the batch's flush has the last word.
  InPlaceWriter::UnflushedWrite unflushed =
      InPlaceWriter::writeWithoutFlush(job.path, *job.opened, job.patches, write);
  const InPlaceWriter::WriteResult& written = unflushed.result;
  result.saved = written.ok;
  result.reason = written.reason;
  result.unflushed = std::move(unflushed.file);
  // The model then holds what is on disk now: the saved file opened again,
  // provided it is still the file this save left.
  if (written.ok && written.stamp) result.reread = LumImageFile::imageFileIfUnchanged(job.path, *written.stamp);
  return result;
}

// Flushes the files that saveOne wrote for the given jobs: a file whose
// flush fails is not saved after all, and gives the flush's reason.
void LumMultiFileDoc::flushSaved(std::vector<SaveResult>& results, const std::vector<std::size_t>& jobs,
                                 const InPlaceWriter::FlushFunction& flush) {
  std::vector<std::size_t> written;
  std::vector<InPlaceWriter::OpenFile> files;
  for (const std::size_t i : jobs)
    if (results[i].unflushed.isOpen()) {
      written.push_back(i);
      files.push_back(std::move(results[i].unflushed));
    }
  const std::vector<std::string> reasons = InPlaceWriter::flushTogether(files, flush);
  for (std::size_t k = 0; k < written.size(); ++k) {
    if (reasons[k].empty()) continue;
    SaveResult& result = results[written[k]];
    result.saved = false;
    result.reason = reasons[k];
    result.reread.reset();
  }
}

// Runs on the save thread: saves every job, a batch of files at a time. The
// files of a batch are written by several threads, then flushed together,
// while the next batch is written: the disk works while the cores do.
// Progress reaches the document's thread as each batch is flushed, since a
// file counts as saved only once its bytes are on the disk. The results keep
// the order of the jobs.
std::shared_ptr<std::vector<LumMultiFileDoc::SaveResult>> LumMultiFileDoc::saveJobs(const std::vector<SaveJob>& jobs,
                                                                                     const SaveHooks& hooks) {
  auto results = std::make_shared<std::vector<SaveResult>>(jobs.size());
  std::vector<const lum::FileStamp*> stamps;
  for (const SaveJob& job : jobs) stamps.push_back(job.opened ? &*job.opened : nullptr);
  const std::vector<std::vector<std::size_t>> groups = groupsByFile(stamps);

  std::size_t done = 0;
  const auto reportProgress = [&](const std::vector<std::size_t>& batch) {
    if (jobs.size() == 1) return;
    for (const std::size_t i : batch) {
      const double progress = 100.0 * static_cast<double>(++done) / static_cast<double>(jobs.size());
      const QString path = QString::fromStdString(jobs[i].path.string());
      QMetaObject::invokeMethod(this, [this, progress, path] { emit savingProgress(progress, path); },
                                Qt::QueuedConnection);
    }
  };
  // One batch is written while the one before is flushed, so at most two
  // batches of descriptors are open at once. The flushes run one after the
  // other, in order.
  std::jthread flusher;
  const std::size_t perBatch = std::max<std::size_t>(hooks.filesPerFlush, 1);
  for (std::size_t first = 0; first < groups.size(); first += perBatch) {
    const std::size_t end = std::min(groups.size(), first + perBatch);
    std::atomic<std::size_t> nextGroup{first};
    const auto worker = [&] {
      for (std::size_t g = nextGroup++; g < end; g = nextGroup++)
        for (const std::size_t i : groups[g]) (*results)[i] = saveOne(jobs[i], hooks.write);
    };
    {
      std::vector<std::jthread> workers(std::min(writerCount(), end - first) - 1);
      for (std::jthread& w : workers) w = std::jthread(worker);
      worker();
    }
    std::vector<std::size_t> batch;
    for (std::size_t g = first; g < end; ++g) batch.insert(batch.end(), groups[g].begin(), groups[g].end());
    if (flusher.joinable()) flusher.join();
    flusher = std::jthread([&results = *results, &hooks, &reportProgress, batch = std::move(batch)] {
      flushSaved(results, batch, hooks.flush);
      reportProgress(batch);
    });
  }
  if (flusher.joinable()) flusher.join();
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

  const SaveHooks hooks{writeFunction_, flushFunction_, filesPerFlush_};
  QThread* thread = QThread::create([this, jobs, hooks, closeAfterSave, quitApp] {
    const std::shared_ptr<std::vector<SaveResult>> results = saveJobs(*jobs, hooks);
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
