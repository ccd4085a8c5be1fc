// The resources the app embeds: the window icons and the compiled English
// translation, which must carry every user-visible key with the same
// placeholders as the built-in English formats.
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>
#include <vector>

#include "documents/LumLocalized.h"
#include "documents/LumLocalizedTable.h"

namespace {

struct TsMessage {
  QString source;
  QString translation;
};

std::vector<TsMessage> readTsFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  std::vector<TsMessage> messages;
  QXmlStreamReader xml(&file);
  TsMessage current;
  while (xml.readNextStartElement() || !xml.atEnd()) {
    if (!xml.isStartElement()) continue;
    if (xml.name() == u"source") current.source = xml.readElementText();
    else if (xml.name() == u"translation") {
      current.translation = xml.readElementText();
      messages.push_back(current);
    }
  }
  return messages;
}

// The %N markers of a Qt format, as a set ("%1", "%2").
QSet<QString> placeholders(const QString& text) {
  static const QRegularExpression marker(QStringLiteral("%[1-9]"));
  QSet<QString> found;
  for (const QRegularExpressionMatch& m : marker.globalMatch(text)) found.insert(m.captured());
  return found;
}

QString englishFormat(const QString& key) {
  for (const LumLocalized::EnglishFormat& f : LumLocalized::kEnglishFormats)
    if (QString::fromUtf8(f.key.data(), static_cast<qsizetype>(f.key.size())) == key)
      return QString::fromUtf8(f.english.data(), static_cast<qsizetype>(f.english.size()));
  return {};
}

}  // namespace

class DesktopResourcesTest : public QObject {
  Q_OBJECT

 private slots:
  void windowIconsAreEmbedded_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    QTest::newRow("256") << QStringLiteral(":/icons/lumidate-256.png") << 256;
    QTest::newRow("48") << QStringLiteral(":/icons/lumidate-48.png") << 48;
  }
  void windowIconsAreEmbedded() {
    QFETCH(QString, path);
    QFETCH(int, size);
    const QImage icon(path);
    QCOMPARE(icon.size(), QSize(size, size));
    QVERIFY(icon.hasAlphaChannel());
  }

  void everyKeyLoadsWithItsPlaceholders() {
    const std::vector<TsMessage> messages = readTsFile(QStringLiteral(LUMIDATE_TS_FILE));
    QVERIFY2(messages.size() > 30, "the .ts file lists the app's keys");
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translations/lumidate_en.qm")));
    for (const TsMessage& m : messages) {
      const QByteArray key = m.source.toUtf8();
      QCOMPARE(translator.translate(LumLocalized::kContext, key.constData()), m.translation);
      const QString english = englishFormat(m.source);
      if (english.isEmpty()) {
        QVERIFY2(placeholders(m.translation).isEmpty(), key.constData());
        QCOMPARE(m.translation, m.source);
      } else {
        QCOMPARE(placeholders(m.translation), placeholders(english));
        QCOMPARE(m.translation, english);
      }
    }
  }

  void everyEnglishFormatHasAMessage() {
    QSet<QString> sources;
    for (const TsMessage& m : readTsFile(QStringLiteral(LUMIDATE_TS_FILE))) sources.insert(m.source);
    for (const LumLocalized::EnglishFormat& f : LumLocalized::kEnglishFormats)
      QVERIFY2(sources.contains(QString::fromUtf8(f.key.data(), static_cast<qsizetype>(f.key.size()))),
               f.key.data());
  }

  // A key written in the code but missing from the .ts file would show
  // untranslated in every other language.
  void everyKeyInTheCodeIsListed() {
    QSet<QString> sources;
    for (const TsMessage& m : readTsFile(QStringLiteral(LUMIDATE_TS_FILE))) sources.insert(m.source);
    static const QRegularExpression lookup(
        QStringLiteral("LumLocalized::(?:text|format)\\(\"((?:[^\"\\\\]|\\\\.)*)\""));
    int keys = 0;
    QDirIterator files(QStringLiteral(LUMIDATE_SOURCE_DIR "/src"), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
      QFile file(files.next());
      QVERIFY(file.open(QIODevice::ReadOnly));
      const QString code = QString::fromUtf8(file.readAll());
      for (const QRegularExpressionMatch& m : lookup.globalMatch(code)) {
        const QString key = m.captured(1).replace(QLatin1String("\\\""), QLatin1String("\""));
        QVERIFY2(sources.contains(key), qPrintable(files.filePath() + QStringLiteral(": ") + key));
        ++keys;
      }
    }
    QVERIFY(keys > 10);
  }

  // With the translation installed, lookups through the documents layer
  // give the same texts as without it.
  void installedTranslationAgreesWithBuiltInEnglish_data() {
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("a1");
    QTest::addColumn<QString>("a2");
    QTest::addColumn<QString>("expected");
    QTest::newRow("title") << QByteArray("LocalST_ImagesWindowTitle") << "a.jpg" << "3"
                           << "a.jpg (3 images)";
    QTest::newRow("progress") << QByteArray("%@ / %lu") << "7" << "20" << "7 / 20";
    QTest::newRow("question") << QByteArray("You are opening multiple files.") << "4" << QString()
                              << "You are opening 4 files.";
    QTest::newRow("failure") << QByteArray("Could not be opened.") << "x.tif" << QString()
                             << "\"x.tif\" could not be opened.";
    QTest::newRow("plain") << QByteArray("No Date-Time") << QString() << QString() << "No Date-Time";
  }
  void installedTranslationAgreesWithBuiltInEnglish() {
    QFETCH(QByteArray, key);
    QFETCH(QString, a1);
    QFETCH(QString, a2);
    QFETCH(QString, expected);
    auto lookup = [&] {
      return a2.isNull() ? LumLocalized::format(key.constData(), a1)
                         : LumLocalized::format(key.constData(), a1, a2);
    };
    QCOMPARE(lookup(), expected);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translations/lumidate_en.qm")));
    QCoreApplication::installTranslator(&translator);
    const QString translated = lookup();
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(translated, expected);
  }
};

QTEST_GUILESS_MAIN(DesktopResourcesTest)
#include "DesktopResourcesTest.moc"
