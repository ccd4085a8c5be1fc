#include "app/multi/ThumbnailCache.h"

void ThumbnailCache::insert(const QString& path, const QPixmap& pixmap) {
  const qsizetype bytes = static_cast<qsizetype>(pixmap.width()) * pixmap.height() * ((pixmap.depth() + 7) / 8);
  cache_.insert(path, new QPixmap(pixmap), std::max<qsizetype>(1, bytes));  // QCache owns its entries
}
