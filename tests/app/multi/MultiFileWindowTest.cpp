// The multi-file window driven through its widgets on the offscreen
// platform: applying a shift and undoing it, the range warning, typing into
// date cells, sorting with a selection, list sizes, a save with a failure,
// and thumbnails that follow their files through a sort.
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoGroup>
#include <QUndoStack>

#include <future>
#include <set>

#include "app/AppActions.h"
#include "app/multi/BitmapImage.h"
#include "app/multi/FileTableModel.h"
#include "app/multi/FileTableView.h"
#include "app/multi/MultiFileActions.h"
#include "app/multi/MultiFileWindow.h"
#include "app/multi/ThumbnailScheduler.h"
#include "app/preferences/Settings.h"
#include "app/sheets/SavingSheet.h"
#include "documents/LumMultiFileDoc.h"
#include "documents/LumNotificationCenter.h"
#include "documents/PhotoFiles.h"
#include "app/support/FakePrompts.h"

using namespace doctest_support;
namespace fs = std::filesystem;
using Model = FileTableModel;

namespace {

const std::string kA = "2020:01:31 10:00:00";
const std::string kB = "2019:12:31 23:30:00";
const std::string kC = "2021:06:15 08:00:00";

struct Photo {
  std::string name;
  PhotoDates dates;
};

}  // namespace

class MultiFileWindowTest : public QObject {
  Q_OBJECT

  QTemporaryDir dir_;
  std::unique_ptr<QSettings> store_;
  std::unique_ptr<Settings> settings_;
  std::unique_ptr<QUndoGroup> undoGroup_;
  std::unique_ptr<AppActions> actions_;
  FakePrompts prompts_;
  std::unique_ptr<AppContext> context_;
  std::unique_ptr<TempFolder> folder_;
  std::unique_ptr<MultiFileWindow> window_;
  std::unique_ptr<QAbstractItemModelTester> tester_;

  MultiFileWindow& open(const std::vector<Photo>& photos) {
    std::vector<std::unique_ptr<LumFileItemDoc>> items;
    for (const Photo& p : photos) items.push_back(openItem(writePhoto(*folder_, p.name, p.dates)));
    window_ = std::make_unique<MultiFileWindow>(std::make_unique<LumMultiFileDoc>(std::move(items)), *context_);
    undoGroup_->addStack(&window_->undoStack());
    undoGroup_->setActiveStack(&window_->undoStack());
    tester_ = std::make_unique<QAbstractItemModelTester>(&window_->model(),
                                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
    window_->show();
    return *window_;
  }
  LumMultiFileDoc& doc() { return window_->document(); }
  template <typename T>
  T& widget(const char* name) {
    T* found = window_->findChild<T*>(name);
    if (!found) qFatal("no widget %s", name);
    return *found;
  }
  int rowOf(const std::string& name) { return *doc().rowOf(doc().itemForURL(*folder_ / name)); }
  QString cell(int row, int column) { return window_->model().index(row, column).data().toString(); }
  QString cell(const std::string& name, int column) { return cell(rowOf(name), column); }
  // Types text into a date cell through the table's editor and commits it.
  void typeInto(const std::string& name, int column, const QString& text, Qt::KeyboardModifiers modifiers = {}) {
    FileTableView& table = window_->table();
    table.setFocus();
    const QModelIndex index = window_->model().index(rowOf(name), column);
    table.edit(index);
    auto* editor = qobject_cast<QLineEdit*>(table.indexWidget(index));
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return, modifiers);
    QTRY_VERIFY(!table.indexWidget(index));  // the editor commits on its next turn
  }

 private slots:
  void init() {
    store_ = std::make_unique<QSettings>(dir_.filePath("settings.ini"), QSettings::IniFormat);
    store_->clear();
    settings_ = std::make_unique<Settings>(*store_);
    settings_->registerDefaults();
    undoGroup_ = std::make_unique<QUndoGroup>();
    actions_ = std::make_unique<AppActions>(*undoGroup_);
    prompts_ = FakePrompts();
    context_ = std::make_unique<AppContext>(AppContext{*settings_, prompts_, *actions_});
    folder_ = std::make_unique<TempFolder>();
  }
  void cleanup() {
    tester_.reset();
    window_.reset();
    actions_.reset();
    undoGroup_.reset();
  }

  void forwardApplyThroughTheFieldsThenOneUndo() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, std::nullopt, kB}}});
    window_->actions().markAll->trigger();
    auto& apply = widget<QPushButton>("applyButton");
    QVERIFY(!apply.isEnabled());  // all fields zero
    auto& hours = widget<QSpinBox>("hourField");
    QCOMPARE(hours.accessibleName(), QString("Hours"));
    hours.selectAll();
    QTest::keyClicks(&hours, "1");
    QVERIFY(apply.isEnabled());
    QTest::mouseClick(&apply, Qt::LeftButton);
    QCOMPARE(cell("a.jpg", Model::DateTimeOriginal), QString("2020:01:31 11:00:00"));
    QCOMPARE(cell("b.jpg", Model::DateTime), QString("2020:01:01 00:30:00"));
    QCOMPARE(cell("b.jpg", Model::DateTimeDigitized), QString());  // absent stays absent
    QCOMPARE(hours.value(), 0);  // the fields are cleared after an offset
    QCOMPARE(actions_->undo->text(), QString("Undo Forward (null)"));
    actions_->undo->trigger();
    QCOMPARE(cell("a.jpg", Model::DateTimeOriginal), QString::fromStdString(kA));
    QCOMPARE(cell("b.jpg", Model::DateTime), QString::fromStdString(kB));
    QVERIFY(!doc().hasEditedFile());
    // Set Time names the fields for a point in time.
    widget<QComboBox>("modePopup").setCurrentIndex(2);
    QCOMPARE(hours.accessibleName(), QString("Hour"));
    QCOMPARE(widget<QSpinBox>("monthField").maximum(), 12);
  }

  void contextMenuRestoresTheClickedFileOrTheSelection() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
    typeInto("b.jpg", Model::DateTime, "2002:02:02 02:02:02");
    window_->table().selectRow(rowOf("a.jpg"));
    MultiFileActions& actions = window_->actions();
    actions.contextMenuFor(rowOf("b.jpg"));
    QCOMPARE(actions.restoreSelected->text(), QString("Restore Clicked File"));
    QVERIFY(actions.restoreSelected->isEnabled());
    actions.contextMenuFor(rowOf("a.jpg"));
    QCOMPARE(actions.restoreSelected->text(), QString("Restore Selected Files"));
    QVERIFY(!actions.restoreSelected->isEnabled());  // a is not edited
    actions.contextMenuFor(rowOf("b.jpg"));
    actions.restoreSelected->trigger();
    QCOMPARE(cell("b.jpg", Model::DateTime), QString::fromStdString(kB));
  }

  void bitmapsOfEveryLayoutBecomeImages() {
    using A = lum::AlphaInfo;
    struct Case {
      const char* name;
      lum::ColorSpace space;
      A alpha;
      int bits;
      std::vector<std::uint16_t> components;  // one pixel
      QColor expected;
    };
    const Case cases[] = {
        {"grey", lum::ColorSpace::Gray, A::None, 8, {200}, QColor(200, 200, 200)},
        {"RGB", lum::ColorSpace::RGB, A::None, 8, {10, 20, 30}, QColor(10, 20, 30)},
        {"XRGB", lum::ColorSpace::RGB, A::NoneSkipFirst, 8, {0, 10, 20, 30}, QColor(10, 20, 30)},
        {"ARGB straight", lum::ColorSpace::RGB, A::First, 8, {128, 10, 20, 30}, QColor(10, 20, 30, 128)},
        {"RGB 16 bit", lum::ColorSpace::RGB, A::None, 16, {0xFF00, 0x8000, 0x0100}, QColor(255, 128, 1)},
        {"CMYK", lum::ColorSpace::CMYK, A::None, 8, {255, 0, 0, 0}, QColor(0, 255, 255)},
    };
    for (const Case& c : cases) {
      lum::Bitmap b;
      b.width = b.height = 1;
      b.bitsPerComponent = c.bits;
      b.bitmapInfo = static_cast<std::uint32_t>(c.alpha);
      b.colorSpace = c.space;
      b.bytesPerRow = static_cast<int>(c.components.size()) * c.bits / 8;
      for (std::uint16_t v : c.components) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(&v);
        if (c.bits == 8) b.pixels.push_back(static_cast<std::uint8_t>(v));
        else b.pixels.insert(b.pixels.end(), bytes, bytes + 2);  // host order
      }
      const QImage image = imageFromBitmap(b);
      QVERIFY2(!image.isNull(), c.name);
      QVERIFY2(image.pixelColor(0, 0) == c.expected, c.name);
    }
    lum::Bitmap broken;
    broken.width = broken.height = 2;
    broken.bytesPerRow = 8;  // pixels missing
    QVERIFY(imageFromBitmap(broken).isNull());
  }

  void shiftOutOfRangeWarnsAndDisablesApply() {
    open({{"old.jpg", {"0001:06:01 00:00:00", kA, kA}}});
    window_->actions().markAll->trigger();
    QSignalSpy beeps(&doc(), &LumMultiFileDoc::beep);
    widget<QComboBox>("modePopup").setCurrentIndex(0);  // Backward
    auto& years = widget<QSpinBox>("yearField");
    years.selectAll();
    QTest::keyClicks(&years, "1");
    QVERIFY(!widget<QPushButton>("applyButton").isEnabled());
    QVERIFY(widget<QLabel>("rangeWarning").isVisible());
    QCOMPARE(beeps.count(), 1);
    // Without the original date checked the shift stays in range.
    QTest::mouseClick(&widget<QCheckBox>("originalCheck"), Qt::LeftButton);
    QVERIFY(widget<QPushButton>("applyButton").isEnabled());
    QVERIFY(!widget<QLabel>("rangeWarning").isVisible());
  }

  void typingIntoDateCells() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, std::nullopt}}});
    QVERIFY(!(window_->model().flags(window_->model().index(rowOf("b.jpg"), Model::DateTime)) & Qt::ItemIsEditable));
    QCOMPARE(window_->model().index(rowOf("b.jpg"), Model::DateTime).data(Model::PlaceholderRole).toString(),
             QString("No Date-Time"));

    typeInto("a.jpg", Model::DateTimeOriginal, "2021/3/4 5:06:07");
    QCOMPARE(cell("a.jpg", Model::DateTimeOriginal), QString("2021:03:04 05:06:07"));
    QCOMPARE(cell("a.jpg", Model::DateTime), QString::fromStdString(kA));

    typeInto("b.jpg", Model::DateTimeDigitized, "2000-01-02 03:04:05", Qt::ShiftModifier);
    for (int column : {Model::DateTimeOriginal, Model::DateTimeDigitized, Model::DateTime})
      QCOMPARE(cell("b.jpg", column), QString("2000:01:02 03:04:05"));

    QSignalSpy beeps(&doc(), &LumMultiFileDoc::beep);
    typeInto("a.jpg", Model::DateTimeDigitized, "2021/3/4");
    QCOMPARE(beeps.count(), 1);
    QCOMPARE(cell("a.jpg", Model::DateTimeDigitized), QString::fromStdString(kA));
    QCOMPARE(doc().undoStack().count(), 2);
  }

  void sortingByEachColumnKeepsTheSelection() {
    // Each column orders the three files differently.
    open({{"a.jpg", {kC, kB, kA}}, {"b.jpg", {kA, kC, kB}}, {"c.jpg", {kB, kA, kC}}});
    FileTableView& table = window_->table();
    table.selectRow(rowOf("b.jpg"));
    QCOMPARE(doc().selectedRows(), std::vector<int>{rowOf("b.jpg")});
    QCOMPARE(widget<QLineEdit>("pathField").text(), QString::fromStdString((*folder_ / "b.jpg").string()));
    QHeaderView* header = table.horizontalHeader();
    std::set<std::vector<QString>> orders;
    for (int column = Model::FileName; column < Model::ColumnCount; ++column) {
      QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                        QPoint(header->sectionViewportPosition(column) + 5, header->height() / 2));
      QCOMPARE(doc().sortDescriptors().front().key, std::string(Model::columnKey(column)));
      const int row = rowOf("b.jpg");
      QCOMPARE(doc().selectedRows(), std::vector<int>{row});
      const QModelIndexList shown = table.selectionModel()->selectedRows();
      QCOMPARE(shown.size(), 1);
      QCOMPARE(shown.front().row(), row);
      QCOMPARE(cell(row, Model::FileName), QString("b.jpg"));
      orders.insert({cell(0, Model::FileName), cell(1, Model::FileName), cell(2, Model::FileName)});
    }
    QVERIFY(orders.size() >= 3);
    // The same from the keyboard: Edit > Sort By; again turns the order round.
    QMenu* sortMenu = window_->actions().sortMenu;
    sortMenu->actions().at(Model::DateTime - Model::FileName)->trigger();
    QCOMPARE(header->sortIndicatorSection(), int(Model::DateTime));
    sortMenu->actions().at(Model::DateTime - Model::FileName)->trigger();
    QCOMPARE(doc().sortDescriptors().front().ascending, false);
    QCOMPARE(table.selectionModel()->selectedRows().front().row(), rowOf("b.jpg"));
    // The header's state is kept, and a new window sorts as it was left.
    const auto last = doc().sortDescriptors().front();
    QVERIFY(!settings_->tableLayout().isEmpty());
    open({{"a.jpg", {kC, kB, kA}}, {"b.jpg", {kA, kC, kB}}, {"c.jpg", {kB, kA, kC}}});
    QCOMPARE(QString::fromStdString(doc().sortDescriptors().front().key), QString::fromStdString(last.key));
  }

  void listSizeChangesRowsAndThumbnailColumn() {
    open({{"a.jpg", {kA, kA, kA}}});
    QHeaderView* header = window_->table().horizontalHeader();
    const int together = header->sectionSize(Model::Thumbnail) + header->sectionSize(Model::FileName);
    for (const auto& [size, height, thumbnail] : {std::tuple{3, 78, 78}, {1, 18, 48}, {2, 48, 48}}) {
      settings_->setTableViewRowHeight(size);
      LumNotificationCenter::defaultCenter().post(kLumListSizeDidChangeNotification);
      QCOMPARE(window_->table().rowHeight(0), height);
      QCOMPARE(header->sectionSize(Model::Thumbnail), thumbnail);
      QCOMPARE(header->sectionSize(Model::Thumbnail) + header->sectionSize(Model::FileName), together);
    }
  }

  void savingWithOneFailureKeepsItsEditsAndNamesIt() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
    const fs::path failing = *folder_ / "b.jpg";
    // The writes wait until the test has seen the sheet; released however
    // the test ends, so the save's thread never hangs.
    std::promise<void> release;
    const std::shared_future<void> released = release.get_future().share();
    auto releaseOnExit = qScopeGuard([&release] { release.set_value(); });
    doc().setWriteFunction([failing, released](int fd, const void* buffer, std::size_t count, off_t offset) -> ssize_t {
      released.wait();
      std::error_code ec;
      if (fs::read_symlink("/proc/self/fd/" + std::to_string(fd), ec) == failing) return errno = EIO, -1;
      return ::pwrite(fd, buffer, count, offset);
    });
    typeInto("a.jpg", Model::DateTime, "2001:01:01 01:01:01");
    typeInto("b.jpg", Model::DateTime, "2002:02:02 02:02:02");
    QSignalSpy finished(&doc(), &LumMultiFileDoc::saveFinished);
    QVERIFY(window_->actions().saveAll->isEnabled());
    window_->actions().saveAll->trigger();
    QVERIFY(window_->savingSheet().isVisible());
    QCOMPARE(QApplication::activeModalWidget(), &window_->savingSheet());
    QCOMPARE(window_->savingSheet().progress(), 0);
    release.set_value();
    releaseOnExit.dismiss();
    QVERIFY(finished.wait(20000));
    QVERIFY(!window_->savingSheet().isVisible());
    QCOMPARE(prompts_.alerts.size(), std::size_t(1));
    const auto& alert = prompts_.alerts.front();
    QVERIFY(alert.message.contains("b.jpg"));
    QVERIFY(alert.informativeText.contains(QString::fromStdString(std::system_category().message(EIO))));
    QCOMPARE(readBytes(*folder_ / "a.jpg"), photoBytes({kA, kA, "2001:01:01 01:01:01"}));
    QCOMPARE(readBytes(failing), photoBytes({kB, kB, kB}));
    QCOMPARE(cell("b.jpg", Model::DateTime), QString("2002:02:02 02:02:02"));
    QCOMPARE(doc().editedFileCount(), std::size_t(1));
  }

  void thumbnailsArriveKeyedByFile() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}, {"c.jpg", {kC, kC, kC}}});
    const Model& model = window_->model();
    const auto thumbnailIsTheFilesOwn = [&](int row) {
      const QModelIndex index = model.index(row, Model::Thumbnail);
      const QPixmap* cached = window_->thumbnails().find(index.data(Model::PathRole).toString());
      return cached && !cached->isNull() &&
             index.data(Qt::DecorationRole).value<QPixmap>().cacheKey() == cached->cacheKey();
    };
    QTRY_VERIFY(thumbnailIsTheFilesOwn(0) && thumbnailIsTheFilesOwn(1) && thumbnailIsTheFilesOwn(2));
    QVERIFY(!model.index(0, Model::Thumbnail).data(Model::ThumbnailPendingRole).toBool());
    QCOMPARE(window_->thumbnailScheduler().pendingCount(), std::size_t(0));
    // Descending by DateTime: c, a, b. Every row still shows its own file's.
    window_->model().sort(Model::DateTime, Qt::DescendingOrder);
    QCOMPARE(cell(0, Model::FileName), QString("c.jpg"));
    for (int row = 0; row < 3; ++row) QVERIFY(thumbnailIsTheFilesOwn(row));
    QCOMPARE(window_->thumbnailScheduler().pendingCount(), std::size_t(0));
  }

  void thumbnailsAreMadeForTheRowsInView() {
    std::vector<Photo> photos;
    for (int i = 0; i < 300; ++i)
      photos.push_back({QString("p%1.jpg").arg(i, 3, 10, QChar('0')).toStdString(), {kA, kA, kA}});
    open(photos);
    const auto cached = [&](int row) {
      return window_->thumbnails().contains(window_->model().index(row, 0).data(Model::PathRole).toString());
    };
    QTRY_VERIFY(cached(0));
    QTRY_COMPARE(window_->thumbnailScheduler().pendingCount(), std::size_t(0));
    QVERIFY(!cached(299));  // far below the view: never asked for
    window_->table().scrollToBottom();
    QTRY_VERIFY(cached(299));
  }
};

QTEST_MAIN(MultiFileWindowTest)
#include "MultiFileWindowTest.moc"
