// Thumbnails of the multi-file document's rows, made on the document's own
// queue (at most eight at once) and handed back to the document's thread.
#include <QMetaObject>
#include <QPointer>

#include "documents/LumMultiFileDoc.h"

QThreadPool& LumMultiFileDoc::LumSharedPhotoIconMakerQueue() {
  if (!operationQueue_) {
    operationQueue_ = std::make_unique<QThreadPool>();
    operationQueue_->setMaxThreadCount(kMaxThumbnailJobs);
  }
  return *operationQueue_;
}

void LumMultiFileDoc::requestThumbnail(int row) {
  if (row < 0 || row >= rowCount()) return;
  LumFileItemDoc* item = &this->item(row);
  // The job keeps the image file alive even if a save replaces it meanwhile.
  const std::shared_ptr<LumImageFile> file = item->sharedImageFile();
  if (file->thumbnail() || file->operation()) return;
  const auto cancelled = std::make_shared<std::atomic<bool>>(false);
  file->setOperation(cancelled);
  QPointer<LumMultiFileDoc> self(this);
  LumSharedPhotoIconMakerQueue().start(
      [self, item, file, cancelled] {
        if (*cancelled) return;
        file->makeThumbnail();
        QMetaObject::invokeMethod(
            self.data(),
            [self, item, file] {
              file->setOperation(nullptr);
              if (self && self->rowOf(item)) emit self->thumbnailReady(item);
            },
            Qt::QueuedConnection);
      },
      QThread::HighPriority);
}
