#include "documents/LumFileLoader.h"

#include <QMetaObject>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <mutex>

// What the workers share with the loader. Items and failures each have a
// lock; the counters and the cancel flag are atomics the workers poll.
struct LumFileLoader::Shared {
  std::vector<std::filesystem::path> paths;
  std::atomic<std::size_t> next{0};
  std::atomic<std::size_t> done{0};
  std::atomic<int> running{0};
  std::atomic<bool> cancelled{false};
  std::mutex filesLock;
  std::vector<LoadedFile> files;
  std::mutex failuresLock;
  std::vector<LumErrorInfo> failures;

  // One worker: takes the next path until none is left or the load is cancelled.
  void work() {
    for (;;) {
      if (cancelled.load()) return;
      const std::size_t index = next.fetch_add(1);
      if (index >= paths.size()) return;
      LumError error;
      std::unique_ptr<LumImageFile> file = LumImageFile::imageFileWithURL(paths[index], &error);
      if (file) {
        const std::lock_guard lock(filesLock);
        files.push_back({paths[index], std::move(file)});
      } else {
        const std::lock_guard lock(failuresLock);
        failures.push_back({paths[index], error});
      }
      done.fetch_add(1);
    }
  }
};

LumFileLoader::LumFileLoader(QObject* parent)
    : QObject(parent), shared_(std::make_shared<Shared>()), pool_(std::make_unique<QThreadPool>()) {
  pool_->setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, kMaxWorkers));
  progressTimer_.setInterval(kProgressIntervalMs);
  connect(&progressTimer_, &QTimer::timeout, this, &LumFileLoader::reportProgress);
}

LumFileLoader::~LumFileLoader() {
  cancel();
  pool_->waitForDone();
}

void LumFileLoader::expand(std::vector<std::filesystem::path> paths) {
  pool_->start([this, paths = std::move(paths)] {
    auto expansion = std::make_shared<FileExpansion::Expansion>(FileExpansion::allPhotoPaths(paths));
    // The destructor waits for this task, so the loader is alive here; the
    // queued call is dropped if it is deleted before the call runs.
    QMetaObject::invokeMethod(
        this, [this, expansion] { emit expanded(*expansion); }, Qt::QueuedConnection);
  });
}

void LumFileLoader::load(std::vector<std::filesystem::path> paths) {
  shared_->paths = std::move(paths);
  const int workers = std::max(1, std::min(pool_->maxThreadCount(), static_cast<int>(shared_->paths.size())));
  shared_->running = workers;
  progressTimer_.start();
  for (int i = 0; i < workers; ++i) {
    pool_->start([this, shared = shared_] {
      shared->work();
      if (shared->running.fetch_sub(1) == 1)
        QMetaObject::invokeMethod(this, &LumFileLoader::workersDone, Qt::QueuedConnection);
    });
  }
}

void LumFileLoader::cancel() { shared_->cancelled = true; }

bool LumFileLoader::isCancelled() const { return shared_->cancelled.load(); }

std::size_t LumFileLoader::doneCount() const { return shared_->done.load(); }

void LumFileLoader::reportProgress() {
  const std::size_t done = shared_->done.load();
  if (done == lastReported_) return;
  lastReported_ = done;
  emit progress(done, shared_->paths.size());
}

void LumFileLoader::workersDone() {
  progressTimer_.stop();
  if (!isCancelled()) reportProgress();
  emit finished();
}

LumFileLoader::Result LumFileLoader::takeResult() {
  Result result;
  result.cancelled = isCancelled();
  if (result.cancelled) return result;
  // The workers are over (finished() came), so the locks are free.
  result.files = std::move(shared_->files);
  result.failures = std::move(shared_->failures);
  return result;
}
