#pragma once
// Reads photo files on a few worker threads for an opening, so that the
// window that asked never waits on the disk.
//
// expand() turns the chosen files and folders into the photo files to open
// (FileExpansion) and reports expanded(). load() reads each file into a
// LumImageFile, reports progress(done, total) at most about 30 times a
// second and finished() once every worker stopped; the results are then
// taken with takeResult(). cancel() makes the workers stop at their next
// file: nothing read is handed over and the result says cancelled.
//
// Signals arrive on the loader's own thread. The destructor cancels and
// waits for the workers (each finishes at most the file it is reading).

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <memory>
#include <vector>

#include "core/LumError.h"
#include "formats/FileExpansion.h"
#include "formats/LumImageFile.h"

class QThreadPool;

// A file that could not be opened, with the error of its failure.
struct LumErrorInfo {
  std::filesystem::path url;
  LumError error;
};

class LumFileLoader : public QObject {
  Q_OBJECT

 public:
  struct LoadedFile {
    std::filesystem::path url;
    std::unique_ptr<LumImageFile> file;
  };
  struct Result {
    std::vector<LoadedFile> files;  // in completion order
    std::vector<LumErrorInfo> failures;
    bool cancelled = false;
  };

  static constexpr int kMaxWorkers = 4;
  static constexpr int kProgressIntervalMs = 33;

  explicit LumFileLoader(QObject* parent = nullptr);
  ~LumFileLoader() override;

  void expand(std::vector<std::filesystem::path> paths);
  void load(std::vector<std::filesystem::path> paths);
  void cancel();
  bool isCancelled() const;
  // Files read so far (a cancelled load stops short of all).
  std::size_t doneCount() const;
  // The files read, once finished() arrived (taken: a second call is empty).
  Result takeResult();

 signals:
  void expanded(const FileExpansion::Expansion& expansion);
  void progress(std::size_t done, std::size_t total);
  void finished();

 private:
  struct Shared;
  void reportProgress();
  void workersDone();

  std::shared_ptr<Shared> shared_;
  std::unique_ptr<QThreadPool> pool_;
  QTimer progressTimer_;
  std::size_t lastReported_ = static_cast<std::size_t>(-1);
};
