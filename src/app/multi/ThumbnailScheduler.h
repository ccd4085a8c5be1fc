#pragma once
// Makes the thumbnails a table shows, without ever stalling it.
//
// The table pokes the scheduler whenever what it shows may have changed
// (scrolling, resizing, a sort); after a short pause the scheduler asks the
// table which files it shows and which lie near, starts the shown ones it
// has no thumbnail for (at most eight at once), and withdraws queued work
// for files that went far out of view. Work is keyed by the file's path, not
// its row, so a sort neither restarts it nor hands a thumbnail to the wrong
// row. The image is made off the GUI thread; the pixmap is made on it and
// goes into the cache.

#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

class LumImageFile;
class ThumbnailCache;

class ThumbnailScheduler : public QObject {
  Q_OBJECT

 public:
  struct Request {
    std::filesystem::path path;
    std::shared_ptr<LumImageFile> file;  // kept alive while its work runs
  };
  struct Wanted {
    std::vector<Request> shown;   // in the order they should be made
    std::vector<QString> nearby;  // queued work for these is kept too
  };
  using WantedFunction = std::function<Wanted()>;

  static constexpr int kMaxJobs = 8;
  static constexpr int kDebounceMs = 30;

  ThumbnailScheduler(ThumbnailCache& cache, WantedFunction wanted, QObject* parent = nullptr);
  ~ThumbnailScheduler() override;

  // What the table shows may have changed; looks again after a short pause.
  void poke();
  // True while the thumbnail of path is queued or being made.
  bool isPending(const QString& path) const { return jobs_.count(path) != 0; }
  std::size_t pendingCount() const { return jobs_.size(); }

 signals:
  void thumbnailReady(const QString& path);

 private:
  using Cancel = std::shared_ptr<std::atomic<bool>>;
  void schedule();
  void start(const Request& request);
  void finished(const QString& path, const Cancel& token, const QImage& image);

  ThumbnailCache& cache_;
  WantedFunction wanted_;
  QTimer debounce_;
  QThreadPool pool_;
  std::unordered_map<QString, Cancel> jobs_;
};
