#pragma once
// The multi-file tables' thumbnails, keyed by file path and bounded by the
// bytes their pixels take: a folder of ten thousand photos keeps the ones
// seen last and makes the others again when they scroll back into view.
// GUI thread only (it holds pixmaps).

#include <QCache>
#include <QPixmap>
#include <QString>

class ThumbnailCache {
 public:
  static constexpr qsizetype kDefaultBytes = 64 * 1024 * 1024;

  explicit ThumbnailCache(qsizetype maxBytes = kDefaultBytes) : cache_(maxBytes) {}

  // The thumbnail of path, or null when it is not (or no longer) held.
  const QPixmap* find(const QString& path) const { return cache_.object(path); }
  bool contains(const QString& path) const { return cache_.contains(path); }
  void insert(const QString& path, const QPixmap& pixmap);
  qsizetype totalBytes() const { return cache_.totalCost(); }

 private:
  QCache<QString, QPixmap> cache_;
};
