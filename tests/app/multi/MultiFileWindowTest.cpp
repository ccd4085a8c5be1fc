// The multi-file window driven through its widgets on the offscreen
// platform: applying a shift and undoing it, the range warning, typing into
// date cells, sorting with a selection, list sizes, a save with a failure,
// and thumbnails that follow their files into view.
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScopeGuard>
#include <QSpinBox>
#include <QUndoStack>

#include <future>

#include "app/multi/BitmapImage.h"
#include "app/multi/FileTableModel.h"
#include "app/multi/FileTableView.h"
#include "app/multi/MultiFileActions.h"
#include "app/multi/ThumbnailScheduler.h"
#include "app/sheets/SavingSheet.h"
#include "app/support/AppFixture.h"

using namespace doctest_support;
namespace fs = std::filesystem;
using Model = FileTableModel;

namespace {

const std::string kA = "2020:01:31 10:00:00", kB = "2019:12:31 23:30:00", kC = "2021:06:15 08:00:00";

}  // namespace

class MultiFileWindowTest : public QObject {
  Q_OBJECT

  std::optional<AppFixture> f_;
  std::unique_ptr<MultiFileWindow> window_;
  std::unique_ptr<QAbstractItemModelTester> tester_;

  void open(const std::vector<std::pair<std::string, PhotoDates>>& photos) {
    tester_.reset();
    window_ = std::make_unique<MultiFileWindow>(openPhotos(f_->folder, photos), f_->context);
    f_->undoGroup.addStack(&window_->undoStack());
    f_->undoGroup.setActiveStack(&window_->undoStack());
    tester_ = std::make_unique<QAbstractItemModelTester>(&window_->model(),
                                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
    window_->show();
  }
  LumMultiFileDoc& doc() { return window_->document(); }
  template <typename T>
  T& widget(const char* name) {
    T* found = window_->findChild<T*>(name);
    if (!found) qFatal("no widget %s", name);
    return *found;
  }
  int rowOf(const std::string& name) { return *doc().rowOf(doc().itemForURL(f_->folder / name)); }
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
  void init() { f_.emplace(); }
  void cleanup() {
    tester_.reset();
    window_.reset();  // before the context it refers to
    f_.reset();
  }

  // Forward by an hour and one undo, then a year back would leave the range
  // for one original date, then Set Time's fields.
  void applyThroughTheFieldsUndoAndTheRangeWarning() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, std::nullopt, kB}}, {"old.jpg", {"0001:06:01 00:00:00", kA, kA}}});
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
    QCOMPARE(hours.value(), 0);  // the fields are cleared after an offset
    QCOMPARE(f_->actions.undo->text(), QString("Undo Forward (null)"));
    f_->actions.undo->trigger();
    QCOMPARE(cell("a.jpg", Model::DateTimeOriginal), QString::fromStdString(kA));

    widget<QComboBox>("modePopup").setCurrentIndex(0);  // Backward
    auto& years = widget<QSpinBox>("yearField");
    years.selectAll();
    QTest::keyClicks(&years, "1");
    QVERIFY(!apply.isEnabled());
    QVERIFY(widget<QLabel>("rangeWarning").isVisible());
    // Without the original date checked the shift stays in range.
    QTest::mouseClick(&widget<QCheckBox>("originalCheck"), Qt::LeftButton);
    QVERIFY(apply.isEnabled());
    QVERIFY(!widget<QLabel>("rangeWarning").isVisible());
    // Set Time names the fields for a point in time.
    widget<QComboBox>("modePopup").setCurrentIndex(2);
    QCOMPARE(hours.accessibleName(), QString("Hour"));
    QCOMPARE(widget<QSpinBox>("monthField").maximum(), 12);
  }

  void bitmapsOfEveryLayoutBecomeImages() {
    using A = lum::AlphaInfo;
    using S = lum::ColorSpace;
    // One pixel of each layout, its components as stored.
    const struct { const char* name; S space; A alpha; int bits; std::vector<std::uint16_t> stored; QColor expected; }
        cases[] = {
        {"grey", S::Gray, A::None, 8, {200}, QColor(200, 200, 200)},
        {"RGB", S::RGB, A::None, 8, {10, 20, 30}, QColor(10, 20, 30)},
        {"XRGB", S::RGB, A::NoneSkipFirst, 8, {0, 10, 20, 30}, QColor(10, 20, 30)},
        {"ARGB straight", S::RGB, A::First, 8, {128, 10, 20, 30}, QColor(10, 20, 30, 128)},
        {"RGB 16 bit", S::RGB, A::None, 16, {0xFF00, 0x8000, 0x0100}, QColor(255, 128, 1)},
        {"CMYK", S::CMYK, A::None, 8, {255, 0, 0, 0}, QColor(0, 255, 255)},
    };
    for (const auto& c : cases) {
      lum::Bitmap b;
      b.width = b.height = 1;
      b.bitsPerComponent = c.bits;
      b.bitmapInfo = static_cast<std::uint32_t>(c.alpha);
      b.colorSpace = c.space;
      b.bytesPerRow = static_cast<int>(c.stored.size()) * c.bits / 8;
      for (std::uint16_t v : c.stored) {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(&v);
        if (c.bits == 8) b.pixels.push_back(static_cast<std::uint8_t>(v));
        else b.pixels.insert(b.pixels.end(), bytes, bytes + 2);  // host order
      }
      const QImage image = imageFromBitmap(b);
      QVERIFY2(!image.isNull() && image.pixelColor(0, 0) == c.expected, c.name);
    }
    lum::Bitmap broken;
    broken.width = broken.height = 2;
    broken.bytesPerRow = 8;  // pixels missing
    QVERIFY(imageFromBitmap(broken).isNull());
  }

  void typingIntoDateCellsAndRestoringTheClickedFile() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, std::nullopt}}});
    const QModelIndex absent = window_->model().index(rowOf("b.jpg"), Model::DateTime);
    QVERIFY(!(window_->model().flags(absent) & Qt::ItemIsEditable));
    QCOMPARE(absent.data(Model::PlaceholderRole).toString(), QString("No Date-Time"));

    // With Shift the typed date goes to all three (what a typed text does is
    // the document suite's). Typed last, the Shift would stay down for the
    // next test's clicks.
    typeInto("b.jpg", Model::DateTimeDigitized, "2000-01-02 03:04:05", Qt::ShiftModifier);
    for (int column : {Model::DateTimeOriginal, Model::DateTimeDigitized, Model::DateTime})
      QCOMPARE(cell("b.jpg", column), QString("2000:01:02 03:04:05"));
    typeInto("a.jpg", Model::DateTimeOriginal, "2021/3/4 5:06:07");
    QCOMPARE(cell("a.jpg", Model::DateTimeOriginal), QString("2021:03:04 05:06:07"));

    // The context menu restores the clicked file when it is outside the selection.
    window_->table().selectRow(rowOf("a.jpg"));
    MultiFileActions& actions = window_->actions();
    actions.contextMenuFor(rowOf("b.jpg"));
    QCOMPARE(actions.restoreSelected->text(), QString("Restore Clicked File"));
    actions.restoreSelected->trigger();
    QCOMPARE(cell("b.jpg", Model::DateTimeOriginal), QString::fromStdString(kB));
    QCOMPARE(cell("a.jpg", Model::DateTimeOriginal), QString("2021:03:04 05:06:07"));
  }

  void sortingByEachColumnKeepsTheSelection() {
    // Each column orders the three files differently.
    const std::vector<std::pair<std::string, PhotoDates>> photos{
        {"a.jpg", {kC, kB, kA}}, {"b.jpg", {kA, kC, kB}}, {"c.jpg", {kB, kA, kC}}};
    open(photos);
    FileTableView& table = window_->table();
    table.selectRow(rowOf("b.jpg"));
    QCOMPARE(widget<QLineEdit>("pathField").text(), QString::fromStdString((f_->folder / "b.jpg").string()));
    QHeaderView* header = table.horizontalHeader();
    for (int column = Model::FileName; column < Model::ColumnCount; ++column) {
      QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                        QPoint(header->sectionViewportPosition(column) + 5, header->height() / 2));
      QCOMPARE(doc().sortDescriptors().front().key, std::string(Model::columnKey(column)));
      const int row = rowOf("b.jpg");
      QCOMPARE(doc().selectedRows(), std::vector<int>{row});
      QCOMPARE(table.selectionModel()->selectedRows(), QModelIndexList{window_->model().index(row, 0)});
    }
    // The same from the keyboard: Edit > Sort By; again turns the order round.
    QAction* byDateTime = window_->actions().sortMenu->actions().at(Model::DateTime - Model::FileName);
    byDateTime->trigger();
    QCOMPARE(header->sortIndicatorSection(), int(Model::DateTime));
    byDateTime->trigger();
    QCOMPARE(doc().sortDescriptors().front().ascending, false);
    QCOMPARE(table.selectionModel()->selectedRows().front().row(), rowOf("b.jpg"));
    // The header's state is kept, and a new window sorts as it was left.
    open(photos);
    QCOMPARE(doc().sortDescriptors().front().key, std::string(Model::columnKey(Model::DateTime)));
  }

  // The View menu's list size reaches the open window: its row height and
  // the thumbnail column, the file name column taking up the difference.
  void listSizeChangesRowsAndThumbnailColumn() {
    open({{"a.jpg", {kA, kA, kA}}});
    QHeaderView* header = window_->table().horizontalHeader();
    const int together = header->sectionSize(Model::Thumbnail) + header->sectionSize(Model::FileName);
    const AppActions& sizes = f_->actions;
    for (const auto& [action, height, thumbnail] :
         {std::tuple{sizes.listLarge, 78, 78}, {sizes.listSmall, 18, 48}, {sizes.listMedium, 48, 48}}) {
      action->trigger();
      QCOMPARE(f_->settings.tableViewRowHeight(), action->data().toInt());
      QCOMPARE(window_->table().rowHeight(0), height);
      QCOMPARE(header->sectionSize(Model::Thumbnail), thumbnail);
      QCOMPARE(header->sectionSize(Model::Thumbnail) + header->sectionSize(Model::FileName), together);
    }
  }

  void savingWithOneFailureKeepsItsEditsAndNamesIt() {
    open({{"a.jpg", {kA, kA, kA}}, {"b.jpg", {kB, kB, kB}}});
    const fs::path failing = f_->folder / "b.jpg";
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
    window_->actions().saveAll->trigger();
    QVERIFY(window_->savingSheet().isVisible());
    QCOMPARE(QApplication::activeModalWidget(), &window_->savingSheet());
    release.set_value();
    releaseOnExit.dismiss();
    QVERIFY(finished.wait(20000));
    QVERIFY(!window_->savingSheet().isVisible());
    // The alert comes up; what is saved and reported is the document suite's.
    QCOMPARE(f_->prompts.alerts.size(), std::size_t(1));
    QVERIFY(f_->prompts.alerts.front().message.contains("b.jpg"));
  }

  // Thumbnails are made for the rows in view only, and every row shows its
  // own file's, also after a sort brings other files into view.
  void thumbnailsFollowTheirFilesIntoView() {
    std::vector<std::pair<std::string, PhotoDates>> photos;
    for (int i = 0; i < 300; ++i)
      photos.push_back({QString("p%1.jpg").arg(i, 3, 10, QChar('0')).toStdString(), {kA, kA, kA}});
    open(photos);
    const auto showsItsOwn = [&](int row) {
      const QModelIndex index = window_->model().index(row, Model::Thumbnail);
      const QPixmap* cached = window_->thumbnails().find(index.data(Model::PathRole).toString());
      return cached && !cached->isNull() && !index.data(Model::ThumbnailPendingRole).toBool() &&
             index.data(Qt::DecorationRole).value<QPixmap>().cacheKey() == cached->cacheKey();
    };
    QTRY_VERIFY(showsItsOwn(0) && showsItsOwn(2));
    QTRY_COMPARE(window_->thumbnailScheduler().pendingCount(), std::size_t(0));
    QVERIFY(!window_->thumbnails().contains(QString::fromStdString((f_->folder / "p299.jpg").string())));
    window_->model().sort(Model::FileName, Qt::DescendingOrder);
    QCOMPARE(cell(0, Model::FileName), QString("p299.jpg"));
    QTRY_VERIFY(showsItsOwn(0) && showsItsOwn(2));
    QTRY_COMPARE(window_->thumbnailScheduler().pendingCount(), std::size_t(0));
  }
};

QTEST_MAIN(MultiFileWindowTest)
#include "MultiFileWindowTest.moc"
