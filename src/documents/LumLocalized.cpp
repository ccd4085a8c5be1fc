#include "documents/LumLocalized.h"

#include <QCoreApplication>
#include <QLocale>

#include "documents/LumLocalizedTable.h"

namespace LumLocalized {

QString text(const char* key) {
  const QString translated = QCoreApplication::translate(kContext, key);
  if (translated != QLatin1String(key)) return translated;
  for (const EnglishFormat& f : kEnglishFormats)
    if (f.key == key) return QString::fromUtf8(f.english.data(), static_cast<qsizetype>(f.english.size()));
  return translated;
}

QString format(const char* key, const QString& a1) {
  const QString f = text(key);
  return f.contains(QLatin1String("%1")) ? f.arg(a1) : f;
}

QString format(const char* key, const QString& a1, const QString& a2) {
  const QString f = text(key);
  if (!f.contains(QLatin1String("%1"))) return f;
  return f.contains(QLatin1String("%2")) ? f.arg(a1, a2) : f.arg(a1);
}

QString count(std::size_t n) { return QLocale().toString(static_cast<qulonglong>(n)); }

}  // namespace LumLocalized
