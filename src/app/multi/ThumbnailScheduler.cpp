#include "app/multi/ThumbnailScheduler.h"

#include <QImage>
#include <QPixmap>

#include <unordered_set>

#include "app/multi/BitmapImage.h"
#include "app/multi/ThumbnailCache.h"
#include "formats/LumImageFile.h"

ThumbnailScheduler::ThumbnailScheduler(ThumbnailCache& cache, WantedFunction wanted, QObject* parent)
    : QObject(parent), cache_(cache), wanted_(std::move(wanted)) {
  pool_.setMaxThreadCount(kMaxJobs);
  debounce_.setSingleShot(true);
  debounce_.setInterval(kDebounceMs);
  connect(&debounce_, &QTimer::timeout, this, &ThumbnailScheduler::schedule);
}

ThumbnailScheduler::~ThumbnailScheduler() {
  // Workers post back to this object: none may outlive it.
  for (auto& [path, cancel] : jobs_) *cancel = true;
  pool_.clear();
  pool_.waitForDone();
}

void ThumbnailScheduler::poke() { debounce_.start(); }

void ThumbnailScheduler::schedule() {
  const Wanted wanted = wanted_();
  std::unordered_set<QString> keep(wanted.nearby.begin(), wanted.nearby.end());
  for (const Request& r : wanted.shown) keep.insert(QString::fromStdString(r.path.string()));
  // Work queued for files far out of view is withdrawn; a job already
  // running finishes (its thumbnail still goes into the cache).
  for (auto it = jobs_.begin(); it != jobs_.end();) {
    if (keep.count(it->first) == 0) {
      *it->second = true;
      it = jobs_.erase(it);
    } else {
      ++it;
    }
  }
  for (const Request& r : wanted.shown) start(r);
}

void ThumbnailScheduler::start(const Request& request) {
  const QString key = QString::fromStdString(request.path.string());
  if (!request.file || cache_.contains(key) || jobs_.count(key)) return;
  const Cancel token = std::make_shared<std::atomic<bool>>(false);
  jobs_.emplace(key, token);
  pool_.start([this, request, key, token] {
    if (*token) return;  // withdrawn while it waited
    const std::shared_ptr<const lum::Bitmap> bitmap = request.file->readThumbnail(request.path);
    QImage image = bitmap ? imageFromBitmap(*bitmap) : QImage();
    QMetaObject::invokeMethod(
        this, [this, key, token, image = std::move(image)] { finished(key, token, image); }, Qt::QueuedConnection);
  });
}

void ThumbnailScheduler::finished(const QString& path, const Cancel& token, const QImage& image) {
  const auto it = jobs_.find(path);
  if (it != jobs_.end() && it->second == token) jobs_.erase(it);
  // A withdrawn job that ran anyway still made a good thumbnail: keep it.
  cache_.insert(path, QPixmap::fromImage(image));
  emit thumbnailReady(path);
}
