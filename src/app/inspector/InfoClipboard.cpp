#include "app/inspector/InfoClipboard.h"

#include <QDataStream>
#include <QIODevice>
#include <QList>

#include "formats/inspector/LumInfoDataSource.h"

namespace InfoClipboard {
namespace {

QByteArray archiveOf(const OrbIFDEntry& entry) {
  const std::vector<std::uint8_t> bytes = entry.archivedData();
  return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

std::unique_ptr<OrbIFDEntry> entryOf(const QByteArray& archive) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(archive.constData());
  return OrbIFDEntry::initWithPasteboardPropertyList({bytes, static_cast<std::size_t>(archive.size())},
                                                     OrbIFDEntry::kPasteboardType);
}

}  // namespace

std::unique_ptr<QMimeData> mimeDataForRows(const std::vector<const LumInfoRow*>& rows) {
  auto data = std::make_unique<QMimeData>();
  QStringList lines;
  QList<QByteArray> archives;
  for (const LumInfoRow* row : rows) {
    lines << QString::fromStdString(row->tagName) + QLatin1Char('\t') + QString::fromStdString(row->value);
    if (row->kind == LumInfoRowKind::Entry && row->entry) archives << archiveOf(*row->entry);
  }
  data->setText(lines.join(QLatin1Char('\n')));
  if (!archives.isEmpty()) {
    data->setData(QString::fromLatin1(kEntryMimeType), archives.front());
    QByteArray list;
    QDataStream out(&list, QIODevice::WriteOnly);
    out << archives;
    data->setData(QString::fromLatin1(kEntryListMimeType), list);
  }
  return data;
}

std::vector<OrbIFDEntry> entriesFromMimeData(const QMimeData& data) {
  QList<QByteArray> archives;
  if (data.hasFormat(QString::fromLatin1(kEntryListMimeType))) {
    QDataStream in(data.data(QString::fromLatin1(kEntryListMimeType)));
    in >> archives;
    if (in.status() != QDataStream::Ok) archives.clear();
  }
  if (archives.isEmpty() && data.hasFormat(QString::fromLatin1(kEntryMimeType)))
    archives << data.data(QString::fromLatin1(kEntryMimeType));
  std::vector<OrbIFDEntry> entries;
  for (const QByteArray& archive : archives)
    if (std::unique_ptr<OrbIFDEntry> entry = entryOf(archive)) entries.push_back(std::move(*entry));
  return entries;
}

}  // namespace InfoClipboard
