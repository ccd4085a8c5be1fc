// The resources the app embeds: the window icons and the compiled English
// translation, which must carry every user-visible key with the same text
// as the built-in English formats.
#include <QFile>
#include <QImage>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include "documents/LumLocalized.h"
#include "documents/LumLocalizedTable.h"

namespace {

QString fromView(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

// The source and translation of every message of the "Localizable"
// context in a .ts file.
QMap<QString, QString> readTsFile(const QString& path) {
  QMap<QString, QString> messages;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return messages;
  QXmlStreamReader xml(&file);
  QString context, source;
  while (xml.readNextStartElement() || !xml.atEnd()) {
    if (!xml.isStartElement()) continue;
    if (xml.name() == u"name") context = xml.readElementText();
    else if (xml.name() == u"source") source = xml.readElementText();
    else if (xml.name() == u"translation" && context == QLatin1String(LumLocalized::kContext))
      messages.insert(source, xml.readElementText());
  }
  return messages;
}

}  // namespace

class DesktopResourcesTest : public QObject {
  Q_OBJECT

  QMap<QString, QString> messages_;
  QTranslator translator_;

 private slots:
  void initTestCase() {
    messages_ = readTsFile(QStringLiteral(LUMIDATE_TS_FILE));
    QVERIFY2(messages_.size() > 30, "the .ts file lists the app's keys");
    QVERIFY(translator_.load(QStringLiteral(":/translations/lumidate_en.qm")));
  }

  void windowIconsAreEmbedded() {
    for (int size : {256, 48}) {
      const QImage icon(QStringLiteral(":/icons/lumidate-%1.png").arg(size));
      QCOMPARE(icon.size(), QSize(size, size));
      QVERIFY(icon.hasAlphaChannel());
    }
  }

  // A key with arguments translates to its built-in English format (the
  // same %N markers), any other key to itself. That every key in the code
  // and every format is listed is the translations_complete check's.
  void everyKeyTranslatesToItsEnglish() {
    QMap<QString, QString> english;
    for (const LumLocalized::EnglishFormat& f : LumLocalized::kEnglishFormats)
      english.insert(fromView(f.key), fromView(f.english));
    static const QRegularExpression marker(QStringLiteral("%[1-9]"));
    for (auto m = messages_.cbegin(); m != messages_.cend(); ++m) {
      QCOMPARE(translator_.translate(LumLocalized::kContext, m.key().toUtf8().constData()), m.value());
      QCOMPARE(m.value(), english.value(m.key(), m.key()));
      QVERIFY2(english.contains(m.key()) || !m.key().contains(marker), qPrintable(m.key()));
    }
  }
};

QTEST_GUILESS_MAIN(DesktopResourcesTest)
#include "DesktopResourcesTest.moc"
