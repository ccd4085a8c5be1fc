#include "TranslationKeys.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <string_view>

#include "core/CodedWordTables.h"
#include "core/Localization.h"
#include "core/LocalizationKeys.h"
#include "core/TagTableExif.h"
#include "core/TagTableGPS.h"
#include "core/TagTableInteroperability.h"
#include "core/TagTableTiff.h"
#include "documents/LumLocalized.h"
#include "documents/LumLocalizedTable.h"
#include "formats/IIMDataSetTables.h"
#include "formats/ImageResourceTitles.h"
#include "formats/OrbJFIF.h"
#include "formats/inspector/InspectorTagLists.h"

namespace TranslationKeys {
namespace {

QString fromView(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// Empty words (a code shown as nothing) are not keys.
void add(std::vector<Key>& keys, std::string_view context, std::string_view word) {
  if (!word.empty()) keys.push_back({fromView(context), fromView(word), {}});
}

template <typename Table>
void addTitles(std::vector<Key>& keys, const Table& table) {
  for (const orb::TagInfo& info : table) add(keys, Localization::kIFDTable, info.title);
}

void addIFDKeys(std::vector<Key>& keys) {
  addTitles(keys, orb::kTiffTags);
  addTitles(keys, orb::kExifTags);
  addTitles(keys, orb::kInteroperabilityTags);
  addTitles(keys, orb::kGPSTags);
  for (const auto& coded : orb::codedwords::kCodedTags)
    for (const auto& word : coded.words) add(keys, Localization::kIFDTable, word.word);
  for (const auto& name : orb::codedwords::kSubSamplingNames) add(keys, Localization::kIFDTable, name.word);
  for (std::string_view key : inspector::kJFIFKeys) add(keys, Localization::kIFDTable, key);
  for (std::string_view word : OrbJFIF::kDensityUnitWords) add(keys, Localization::kIFDTable, word);
  for (std::string_view word : Localization::keys::kIFDWords) add(keys, Localization::kIFDTable, word);
  for (std::string_view place : Localization::keys::kExifPlaces) add(keys, Localization::kIFDTable, place);
}

void addIPTCKeys(std::vector<Key>& keys) {
  for (unsigned record = 1; record <= 9; ++record)
    for (unsigned dataSet = 0; dataSet <= 255; ++dataSet)
      add(keys, Localization::kIPTCTable,
          IIMDataSetTables::title(static_cast<std::uint8_t>(record), static_cast<std::uint8_t>(dataSet)));
  for (unsigned n = 1; !IIMDataSetTables::objectAttributeName(n).empty(); ++n)
    add(keys, Localization::kIPTCTable, IIMDataSetTables::objectAttributeName(n));
  for (unsigned id = 0; id <= 0xFFFF; ++id)
    add(keys, Localization::kIPTCTable, ImageResourceTitles::title(static_cast<std::uint16_t>(id)));
  for (std::string_view word : Localization::keys::kIPTCWords) add(keys, Localization::kIPTCTable, word);
}

// Every string literal passed straight to LumLocalized::text or ::format.
void addScannedKeys(std::vector<Key>& keys, const QString& sourceDir) {
  static const QRegularExpression lookup(
      QStringLiteral(R"(LumLocalized::(?:text|format)\(\s*"((?:[^"\\]|\\.)*)\")"));
  QDirIterator files(sourceDir, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                     QDirIterator::Subdirectories);
  QStringList paths;
  while (files.hasNext()) paths << files.next();
  paths.sort();  // the same order on every run
  for (const QString& path : paths) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QString code = QString::fromUtf8(file.readAll());
    for (const QRegularExpressionMatch& m : lookup.globalMatch(code)) {
      QString key = m.captured(1);
      key.replace(QLatin1String("\\\""), QLatin1String("\"")).replace(QLatin1String("\\\\"), QLatin1String("\\"));
      keys.push_back({QString::fromLatin1(LumLocalized::kContext), key, {}});
    }
  }
}

void addListedKeys(std::vector<Key>& keys, const QString& tsFile) {
  QFile file(tsFile);
  if (!file.open(QIODevice::ReadOnly)) return;
  QXmlStreamReader xml(&file);
  QString context;
  while (!xml.atEnd()) {
    if (!xml.readNextStartElement()) continue;
    if (xml.name() == u"name") context = xml.readElementText();
    else if (xml.name() == u"source" && context == QLatin1String(LumLocalized::kContext))
      keys.push_back({context, xml.readElementText(), {}});
  }
}

QString quoted(const QString& text) {
  QString out = text;
  out.replace(QLatin1String("\\"), QLatin1String("\\\\")).replace(QLatin1String("\""), QLatin1String("\\\""));
  return QLatin1Char('"') + out + QLatin1Char('"');
}

}  // namespace

std::vector<Key> engineKeys() {
  std::vector<Key> keys;
  addIFDKeys(keys);
  addIPTCKeys(keys);
  return keys;
}

std::vector<Key> localizableKeys(const QString& sourceDir, const QString& tsFile) {
  std::vector<Key> keys;
  for (const LumLocalized::EnglishFormat& f : LumLocalized::kEnglishFormats)
    keys.push_back({QString::fromLatin1(LumLocalized::kContext), fromView(f.key), fromView(f.english)});
  addScannedKeys(keys, sourceDir);
  addListedKeys(keys, tsFile);
  return keys;
}

std::vector<Key> unique(std::vector<Key> keys) {
  std::vector<Key> out;
  QSet<QString> seen;
  for (Key& k : keys) {
    const QString id = k.context + QChar(0) + k.source;
    if (seen.contains(id)) continue;
    seen.insert(id);
    out.push_back(std::move(k));
  }
  return out;
}

QString noopFile(const std::vector<Key>& keys) {
  QString out = QStringLiteral(
      "// Generated by lumidate-translation-keys for lupdate; not compiled.\n"
      "static const char* const kTranslationKeys[] = {\n");
  for (const Key& k : keys)
    out += QStringLiteral("    QT_TRANSLATE_NOOP(%1, %2),\n").arg(quoted(k.context), quoted(k.source));
  return out + QStringLiteral("};\n");
}

QString englishFile(const std::vector<Key>& keys) {
  QString out;
  for (const Key& k : keys)
    if (!k.english.isEmpty() && k.english != k.source)
      out += k.context + QLatin1Char('\t') + k.source + QLatin1Char('\t') + k.english + QLatin1Char('\n');
  return out;
}

}  // namespace TranslationKeys
