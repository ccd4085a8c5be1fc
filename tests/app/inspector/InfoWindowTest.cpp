// The inspector window over real photo files: following documents, files
// and saves, the Show/Hide Information toggle, Copy, heading colours, and a
// closing document window taking its file out of the inspector.
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QPushButton>
#include <QTableView>

#include "app/Appearance.h"
#include "app/ToolWindows.h"
#include "app/inspector/InfoClipboard.h"
#include "app/inspector/InfoTableModel.h"
#include "app/inspector/InfoWindow.h"
#include "app/support/AppFixture.h"
#include "documents/LumNotificationCenter.h"

using doctest_support::PhotoDates;

namespace {

constexpr const char* kA = "2020:01:31 10:00:00";
constexpr const char* kB = "2019:06:01 08:30:00";
constexpr std::uint16_t kDateTimeOriginal = 36867;

struct Shell : AppFixture {
  SingleFileWindow* front = nullptr;
  ToolWindows tools{context, [this]() -> DocumentWindow* { return front; }};

  std::unique_ptr<SingleFileWindow> open(const std::string& name, const PhotoDates& dates) {
    auto window = openSingle(name, dates);
    QObject::connect(window.get(), &DocumentWindow::windowClosing, &tools, &ToolWindows::documentWindowClosing);
    return window;
  }
  InfoWindow& inspector() { return tools.inspector(); }
};

void post(const char* name, const void* object) { LumNotificationCenter::defaultCenter().post(name, object); }

// The row of an entry, -1 when the inspector shows none.
int rowOfTag(const InfoWindow& info, std::uint16_t tag) {
  const auto& rows = info.rows().IFDDataSources();
  for (std::size_t i = 0; i < rows.size(); ++i)
    if (rows[i].entry && rows[i].entry->ifdTag() == tag && rows[i].kind == LumInfoRowKind::Entry) return int(i);
  return -1;
}

QString originalShown(const InfoWindow& info) {
  const int row = rowOfTag(info, kDateTimeOriginal);
  return row < 0 ? QString() : info.table().model()->index(row, InfoTableModel::Value).data().toString();
}

void selectRows(InfoWindow& info, const std::vector<int>& rows) {
  QItemSelectionModel& selection = *info.table().selectionModel();
  selection.clear();
  for (int row : rows)
    selection.select(info.table().model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

}  // namespace

class InfoWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void followsDocumentsAndFiles() {
    Shell s;
    auto a = s.open("a.jpg", {kA, kA, kA});
    auto b = s.open("b.jpg", {kB, kB, kB});
    InfoWindow& info = s.inspector();
    QCOMPARE(info.objectName(), QStringLiteral("LumInfo"));
    QCOMPARE(info.windowTitle(), QStringLiteral("Information"));
    const struct { const char* notification; const void* object; const LumImageFile* shown; } steps[] = {
        {kLumDocumentDidChangeNotification, a->documentObject(), a->selectedImageFile()},
        {kLumImageFileDidChangeNotification, b->selectedImageFile(), b->selectedImageFile()},
        {kLumImageFileDidChangeNotification, nullptr, nullptr},
        {kLumDocumentDidChangeNotification, b->documentObject(), b->selectedImageFile()},
        {kLumDocumentDidChangeNotification, nullptr, nullptr},
    };
    for (const auto& step : steps) {
      post(step.notification, step.object);
      QCOMPARE(info.imageFile(), step.shown);
      QCOMPARE(info.table().model()->rowCount() > 0, step.shown != nullptr);
    }
    post(kLumDocumentDidChangeNotification, b->documentObject());
    QCOMPARE(originalShown(info), QString::fromLatin1(kB));
  }

  // A RAW's structure is read whole, so it is read on a pool thread; the
  // rows gain its entries when it arrives.
  void aRawsStructureArrivesFromAPoolThread() {
    const std::filesystem::path nef = std::filesystem::path(LUMIDATE_FORMATS_TESTDATA) / "nikon-d70-nef-stripped.nef";
    if (!std::filesystem::exists(nef)) QSKIP("format test files not found; skipped");
    Shell s;
    std::filesystem::copy_file(nef, s.folder / "raw.nef");
    auto window = s.openSingle(s.folder / "raw.nef");
    QVERIFY(window);
    QVERIFY(window->selectedImageFile()->tiffPending());
    post(kLumDocumentDidChangeNotification, window->documentObject());
    QTRY_COMPARE(originalShown(s.inspector()), QStringLiteral("2004:06:09 16:02:35"));
  }

  void anEditShowsOnlyOnceSaved() {
    Shell s;
    auto window = s.open("a.jpg", {kA, kA, kA});
    InfoWindow& info = s.inspector();
    post(kLumDocumentDidChangeNotification, window->documentObject());
    typeHour(window->document().picker(DateTargets::Original), "23");
    QVERIFY(window->isWindowModified());
    QCOMPARE(originalShown(info), QString::fromLatin1(kA));

    QSignalSpy saved(&window->document(), &LumSingleFileDoc::saveFinished);
    window->findChild<QPushButton*>("saveFileButton")->click();
    QVERIFY(saved.count() > 0 || saved.wait());
    QVERIFY(window->document().lastSaveOutcome().saved && !window->isWindowModified());
    // The save read the file again: the inspector shows the new file object.
    QCOMPARE(info.imageFile(), window->selectedImageFile());
    QCOMPARE(originalShown(info), QStringLiteral("2020:01:31 23:00:00"));
  }

  void toggleShowsAndHidesAndRenamesTheMenuItem() {
    Shell s;
    auto window = s.open("a.jpg", {kA, kA, kA});
    s.front = window.get();
    QAction& item = *s.actions.showInformation;
    QCOMPARE(item.text(), QStringLiteral("Show Information"));

    QList<const void*> posted;
    QObject::connect(&LumNotificationCenter::defaultCenter(), &LumNotificationCenter::posted, &item,
                     [&](const QString& name, const void* object) {
                       if (name == QLatin1String(kLumImageFileDidChangeNotification)) posted << object;
                     });
    item.trigger();
    QVERIFY(s.tools.isInspectorVisible());
    QCOMPARE(item.text(), QStringLiteral("Hide Information"));
    QCOMPARE(posted, QList<const void*>{window->selectedImageFile()});  // the notification the inspector follows

    item.trigger();
    QVERIFY(!s.tools.isInspectorVisible());
    QCOMPARE(item.text(), QStringLiteral("Show Information"));
    QCOMPARE(posted.back(), nullptr);

    // The window's own close button counts as hiding it; its frame is kept.
    item.trigger();
    QCOMPARE(item.text(), QStringLiteral("Hide Information"));
    s.inspector().setGeometry(100, 120, 333, 444);
    s.inspector().close();
    QCOMPARE(item.text(), QStringLiteral("Show Information"));
    QCOMPARE(InfoWindow(&s.settings).size(), QSize(333, 444));
  }

  // Copy puts the selected rows on the clipboard as text lines and their
  // entries, in row order, as archives that paste back equal; a heading
  // copies text only.
  void copyPutsTextAndEntriesOnTheClipboard() {
    Shell s;
    auto window = s.open("a.jpg", {kA, kB, kA});
    InfoWindow& info = s.inspector();
    info.setImageFile(window->selectedImageFile());
    const int original = rowOfTag(info, kDateTimeOriginal), digitized = rowOfTag(info, 36868);
    QVERIFY(original > 0 && digitized > 0);
    const auto& rows = info.rows().IFDDataSources();
    const QString originalLine = QStringLiteral("Date Time Original\t") + kA;
    const struct { std::vector<int> selected; QStringList sortedText; std::vector<int> entryRows; } cases[] = {
        {{original}, {originalLine}, {original}},
        {{digitized, original}, {QStringLiteral("Date Time Digitized\t") + kB, originalLine},
         {std::min(original, digitized), std::max(original, digitized)}},
        {{0}, {QString::fromStdString(rows[0].tagName + '\t' + rows[0].value)}, {}},
    };
    for (const auto& c : cases) {
      selectRows(info, c.selected);
      info.copyAction().trigger();
      const QMimeData* data = QGuiApplication::clipboard()->mimeData();
      QVERIFY(data);
      QStringList copied = data->text().split('\n');
      copied.sort();
      QCOMPARE(copied, c.sortedText);
      const std::vector<OrbIFDEntry> entries = InfoClipboard::entriesFromMimeData(*data);
      QCOMPARE(entries.size(), c.entryRows.size());
      for (std::size_t i = 0; i < entries.size(); ++i)
        QVERIFY(entries[i].isEqualToEntry(*rows[std::size_t(c.entryRows[i])].entry));
      QCOMPARE(data->hasFormat(InfoClipboard::kEntryMimeType), !c.entryRows.empty());
    }

    // Ctrl+C in the table copies the entry too, not only the cell's text.
    info.show();
    info.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&info));
    selectRows(info, {original});
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(&info.table(), Qt::Key_C, Qt::ControlModifier);
    QTRY_VERIFY(QGuiApplication::clipboard()->mimeData()->hasFormat(InfoClipboard::kEntryMimeType));
  }

  // Heading rows are shaded for the look in use; entry rows keep the
  // table's own colours.
  void headingsAreShadedForTheLook() {
    Shell s;
    auto window = s.open("a.jpg", {kA, kA, kA});
    s.inspector().setImageFile(window->selectedImageFile());
    const QAbstractItemModel& model = *s.inspector().table().model();
    Appearance::Follower follower(std::nullopt);
    for (const auto& [preference, background, text] :
         {std::tuple{Appearance::Preference::Dark, QColor::fromRgbF(0.95f, 0.95f, 0.95f), QVariant(QBrush(Qt::black))},
          {Appearance::Preference::None, QColor::fromRgbF(0.8f, 0.8f, 0.8f), QVariant()}}) {
      follower.setDesktopPreference(preference);
      QCOMPARE(model.index(0, 0).data(Qt::BackgroundRole).value<QBrush>().color(), background);
      QCOMPARE(model.index(0, 0).data(Qt::ForegroundRole), text);
      // An entry row's value cell is left to the table.
      QVERIFY(!model.index(rowOfTag(s.inspector(), kDateTimeOriginal), 1).data(Qt::BackgroundRole).isValid());
    }
  }

  // A multi-file window posts nothing when it closes: the inspector lets go
  // of its file only through the closing hook.
  void aClosingWindowEmptiesTheInspector() {
    Shell s;
    auto single = s.open("a.jpg", {kA, kA, kA});
    auto multi = std::make_unique<MultiFileWindow>(doctest_support::openDocument({s.photo("m1.jpg"), s.photo("m2.jpg")}),
                                                   s.context);
    QObject::connect(multi.get(), &DocumentWindow::windowClosing, &s.tools, &ToolWindows::documentWindowClosing);
    multi->show();
    InfoWindow& info = s.inspector();
    multi->document().setSelectedRows({1}, true);
    QCOMPARE(info.imageFile(), multi->selectedImageFile());
    QVERIFY(info.imageFile() != nullptr);
    single->close();  // another window's file is not shown: nothing changes
    QCOMPARE(info.imageFile(), multi->selectedImageFile());
    multi->close();
    QCOMPARE(info.imageFile(), nullptr);
    QCOMPARE(info.table().model()->rowCount(), 0);
  }
};

QTEST_MAIN(InfoWindowTest)
#include "InfoWindowTest.moc"
