// The program in Japanese: the engine's texts (inspector rows of a sample
// photo, also looked up from a worker thread), a menu title, alert texts of
// the documents layer and Qt's own dialog buttons.
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <QUndoGroup>

#include <future>

#include "app/AppActions.h"
#include "app/MenuBar.h"
#include "app/startup/Translations.h"
#include "core/Localization.h"
#include "documents/LumLocalized.h"
#include "formats/LumImageFile.h"
#include "formats/inspector/LumInfoDataSource.h"

class JapaneseTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    Translations::install(*QCoreApplication::instance(), QLocale(QLocale::Japanese, QLocale::Japan));
  }

  void inspectorRowsShowJapaneseTitlesAndWords() {
    LumError error;
    const auto file = LumImageFile::imageFileWithURL(LUMIDATE_SAMPLES "/IMG_0001.jpg", &error);
    QVERIFY(file);
    LumInfoDataSource source;
    source.setImageFile(file.get());
    QMap<QString, QString> cells;
    for (const LumInfoRow& row : source.IFDDataSources())
      cells.insert(QString::fromStdString(row.tagName), QString::fromStdString(row.value));
    // Tag titles, the byte order pseudo-entry with its word (the sample is
    // big-endian) and a JFIF key.
    QCOMPARE(cells.value(QStringLiteral("撮影日時")), QStringLiteral("2019:07:14 19:42:10"));
    QCOMPARE(cells.value(QStringLiteral("デジタル化日時")), QStringLiteral("2019:07:14 19:42:10"));
    QCOMPARE(cells.value(QStringLiteral("バイトオーダー")), QStringLiteral("ビッグエンディアン"));
    QVERIFY(cells.contains(QStringLiteral("密度単位")));
    QVERIFY2(!cells.contains(QStringLiteral("Date Time Original")), "no English title is left");
  }

  // Decoders and loaders look texts up from pool threads.
  void engineTablesTranslateOnAnyThread() {
    const struct {
      std::string_view table, key;
      const char* japanese;
    } cases[] = {
        {Localization::kIFDTable, "Exposure Time", "露出時間"},
        {Localization::kIFDTable, "Fired, Auto Mode", "発光、オートモード"},
        {Localization::kIFDTable, "Dots per inch", "ドット/インチ"},
        {Localization::kIPTCTable, "IIM Keywords", "キーワード"},
        {Localization::kMainTable, "No Date-Time", "日時なし"},
    };
    for (const auto& c : cases) {
      auto lookup = std::async(std::launch::async, [&c] { return Localization::localizedString(c.table, c.key); });
      QCOMPARE(QString::fromStdString(lookup.get()), QString::fromUtf8(c.japanese));
    }
    QCOMPARE(QString::fromStdString(Localization::localizedString(Localization::kIFDTable, "not a key")),
             QStringLiteral("not a key"));
  }

  void menuTitlesAreJapanese() {
    QUndoGroup undo;
    AppActions actions(undo);
    QMainWindow window;
    buildMenuBar(window, actions, {});
    const QList<QAction*> menus = window.menuBar()->actions();
    QVERIFY(!menus.isEmpty());
    QCOMPARE(menus.first()->text(), QStringLiteral("ファイル(&F)"));
  }

  void alertsAreJapaneseWithTheirArguments() {
    QCOMPARE(LumLocalized::format("Could not be opened.", QStringLiteral("a.jpg")),
             QStringLiteral("“a.jpg”を開けませんでした。"));
    QCOMPARE(LumLocalized::format("LocalST_ImagesWindowTitle", QStringLiteral("写真"), QStringLiteral("3")),
             QStringLiteral("写真（3 枚）"));
    QCOMPARE(LumLocalized::text("Don't Save"), QStringLiteral("保存しない"));
    // Qt's standard dialog buttons come from qtbase_ja.
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("キャンセル"));
  }
};

QTEST_MAIN(JapaneseTest)
#include "JapaneseTest.moc"
