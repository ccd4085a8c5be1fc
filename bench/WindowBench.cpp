// lumidate-bench-window: drives the real multi-file window on the offscreen
// platform over a set of photos and prints one JSON object for bench/run.
//
//   lumidate-bench-window --set DIR
//
// The set is opened through the document controller, as File > Open does:
// loaded in the background into one multi-file window. Measured: the time
// from the program's start and from the opening to the first rows painted,
// the longest stall of the GUI thread while loading and during a fast
// scroll from top to bottom, an apply of one hour, its undo and a sort by
// each column including the view's repaint, Save All of the shifted files,
// and the peak RSS after every thumbnail was seen once. DIR is changed by
// the save: bench/run hands a copy.
#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QUndoGroup>

#include <nlohmann/json.hpp>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "app/AppActions.h"
#include "app/AppContext.h"
#include "app/DocumentController.h"
#include "app/Prompts.h"
#include "app/multi/FileTableView.h"
#include "app/multi/MultiFileWindow.h"
#include "app/multi/ThumbnailCache.h"
#include "app/multi/ThumbnailScheduler.h"
#include "app/preferences/Settings.h"
#include "documents/LumMultiFileDoc.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
const Clock::time_point programStart = Clock::now();

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "lumidate-bench-window: %s\n", what.c_str());
  std::exit(1);
}

// The bench answers no question: everything opens in one window.
class QuietPrompts : public Prompts {
 public:
  std::optional<OpenRequest> chooseFilesToOpen(QWidget*, bool) override { return std::nullopt; }
  OpenStyle askHowToOpen(std::size_t) override { return OpenStyle::OneWindow; }
  void showCriticalAlert(QWidget*, const Alert& alert) override { fail("alert: " + alert.message.toStdString()); }
};

// The longest time the GUI thread went without serving a 1 ms timer.
class StallMonitor : public QObject {
 public:
  StallMonitor() {
    timer_.setInterval(1);
    connect(&timer_, &QTimer::timeout, this, [this] {
      longest_ = std::max(longest_, secondsSince(last_));
      last_ = Clock::now();
    });
  }
  void start() {
    longest_ = 0;
    last_ = Clock::now();
    timer_.start();
  }
  double stop() {
    timer_.stop();
    return longest_;
  }

 private:
  QTimer timer_;
  Clock::time_point last_;
  double longest_ = 0;
};

long peakRssKiB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

// Runs events until the queue is empty, then paints the table once, as the
// screen would show the result of a step.
void settleAndPaint(MultiFileWindow& window) {
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  window.table().viewport()->repaint();
}

template <typename Step>
double timedStep(MultiFileWindow& window, Step step) {
  const auto start = Clock::now();
  step();
  settleAndPaint(window);
  return secondsSince(start);
}

std::string firstOriginal(LumMultiFileDoc& doc) { return doc.item(0).dateTimeOriginalString().value_or(""); }

// Scrolls from top to bottom a page at a time, one step per frame, as a
// fast drag of the scroll bar does; the longest step is the stall.
double fastScroll(MultiFileWindow& window) {
  QScrollBar* bar = window.table().verticalScrollBar();
  double longest = 0;
  for (int value = 0; value <= bar->maximum(); value += std::max(1, bar->pageStep() * 3)) {
    const auto start = Clock::now();
    bar->setValue(value);
    QCoreApplication::processEvents();
    window.table().viewport()->repaint();
    longest = std::max(longest, secondsSince(start));
  }
  return longest;
}

// Scrolls a page at a time and waits for each page's thumbnails.
void seeEveryThumbnail(MultiFileWindow& window) {
  QScrollBar* bar = window.table().verticalScrollBar();
  for (int value = 0;; value += bar->pageStep()) {
    bar->setValue(std::min(value, bar->maximum()));
    QCoreApplication::processEvents();
    const auto waitStart = Clock::now();
    while (window.thumbnailScheduler().pendingCount() > 0 || secondsSince(waitStart) < 0.05) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
      if (secondsSince(waitStart) > 30) fail("thumbnails did not arrive");
    }
    if (value >= bar->maximum()) break;
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  if (argc != 3 || std::string(argv[1]) != "--set") fail("usage: lumidate-bench-window --set DIR");
  const fs::path set = argv[2];

  QTemporaryDir home;
  QSettings store(home.filePath("settings.ini"), QSettings::IniFormat);
  Settings settings(store);
  settings.registerDefaults();
  QuietPrompts prompts;
  QUndoGroup undoGroup;
  AppActions actions(undoGroup);
  AppContext context{settings, prompts, actions};
  DocumentController controller(context, undoGroup);
  controller.setMultiWindowFactory([](std::unique_ptr<LumMultiFileDoc> doc, AppContext& ctx) -> DocumentWindow* {
    return new MultiFileWindow(std::move(doc), ctx);  // the controller gives it its lifetime
  });

  nlohmann::json out;
  StallMonitor stalls;
  QSignalSpy opened(&controller, &DocumentController::openingFinished);
  const auto openStart = Clock::now();
  stalls.start();
  controller.openFiles({set}, false);
  if (!opened.wait(600000)) fail("the opening did not finish");
  auto windows = controller.windows();
  if (windows.size() != 1) fail("expected one window");
  auto* window = dynamic_cast<MultiFileWindow*>(windows.front());
  if (!window) fail("the window is not a multi-file window");
  settleAndPaint(*window);
  out["first_rows_s"] = secondsSince(openStart);
  out["first_rows_from_start_s"] = secondsSince(programStart);
  out["load_stall_s"] = stalls.stop();
  LumMultiFileDoc& doc = window->document();
  out["files"] = doc.rowCount();

  out["scroll_stall_s"] = fastScroll(*window);
  seeEveryThumbnail(*window);
  out["peak_rss_thumbs_mib"] = peakRssKiB() / 1024.0;

  doc.setEditStateOnAllFiles();
  doc.changeActionMode(LumActionMode::Forward);
  doc.setFieldValue(LumMultiFileDoc::Hour, 1);
  const std::string before = firstOriginal(doc);
  out["apply_s"] = timedStep(*window, [&] { doc.applyToAllFiles(); });
  if (firstOriginal(doc) == before) fail("the apply changed nothing");
  out["undo_s"] = timedStep(*window, [&] { doc.undoStack().undo(); });
  if (firstOriginal(doc) != before) fail("the undo did not restore the dates");
  double slowestSort = 0;
  for (int column = 1; column < window->table().model()->columnCount(); ++column) {
    slowestSort = std::max(slowestSort, timedStep(*window, [&] {
      window->table().sortByColumn(column, Qt::DescendingOrder);
    }));
  }
  out["sort_max_s"] = slowestSort;

  doc.setFieldValue(LumMultiFileDoc::Hour, 1);
  doc.applyToAllFiles();
  QSignalSpy saved(&doc, &LumMultiFileDoc::saveFinished);
  const auto saveStart = Clock::now();
  doc.saveAllDocuments();
  if (!saved.wait(600000)) fail("the save did not finish");
  out["save_all_s"] = secondsSince(saveStart);
  if (doc.hasEditedFile()) fail("files are still edited after Save All");
  out["peak_rss_mib"] = peakRssKiB() / 1024.0;
  std::printf("%s\n", out.dump().c_str());
  return 0;
}
