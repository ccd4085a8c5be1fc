// The document controller's windows: keeping them in order, undo following
// the active window, drops, raising, Open Recent, the list size and the quit
// review.
#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUndoGroup>

#include <algorithm>

#include "app/AppActions.h"
#include "app/DocumentController.h"
#include "app/DocumentWindow.h"
#include "app/preferences/Settings.h"
#include "documents/LumNotificationCenter.h"

namespace {

constexpr const char* kRecentFilesKey = "RecentFiles";

std::vector<std::filesystem::path> localFiles(const QMimeData* mime) {
  std::vector<std::filesystem::path> paths;
  if (!mime || !mime->hasUrls()) return paths;
  for (const QUrl& url : mime->urls())
    if (url.isLocalFile()) paths.emplace_back(url.toLocalFile().toStdString());
  return paths;
}

}  // namespace

std::vector<DocumentWindow*> DocumentController::windows() const {
  std::vector<DocumentWindow*> open;
  for (const QPointer<DocumentWindow>& window : windows_)
    if (window) open.push_back(window.data());
  return open;
}

bool DocumentController::hasEditedDocuments() const {
  const std::vector<DocumentWindow*> open = windows();
  return std::any_of(open.begin(), open.end(), [](const DocumentWindow* w) { return w->hasEditedFile(); });
}

void DocumentController::addWindow(DocumentWindow* window) {
  if (!window) return;
  windows_.emplace_back(window);
  undoGroup_.addStack(&window->undoStack());
  undoGroup_.setActiveStack(&window->undoStack());
  front_ = window;
  window->setAcceptDrops(true);
  window->installEventFilter(this);
  connect(window, &DocumentWindow::windowClosing, this, [this](DocumentWindow* w) {
    emit windowClosing(w);
    forgetWindow(w);
  });
  window->show();
}

// Called while the window still lives (its close was accepted); a window
// deleted otherwise leaves a null pointer that windows() skips.
void DocumentController::forgetWindow(QObject* window) {
  if (front_.data() == window) front_ = nullptr;
  std::erase_if(windows_, [window](const QPointer<DocumentWindow>& w) { return !w || w.data() == window; });
}

std::vector<std::filesystem::path> DocumentController::allOpenFiles() const {
  std::vector<std::filesystem::path> files;
  for (const DocumentWindow* window : windows()) {
    const std::vector<std::filesystem::path> shown = window->openFiles();
    files.insert(files.end(), shown.begin(), shown.end());
  }
  return files;
}

void DocumentController::raiseWindowShowing(const std::filesystem::path& file) {
  for (DocumentWindow* window : windows()) {
    const std::vector<std::filesystem::path> shown = window->openFiles();
    if (std::find(shown.begin(), shown.end(), file) == shown.end()) continue;
    window->raise();
    window->activateWindow();
    return;
  }
}

bool DocumentController::eventFilter(QObject* watched, QEvent* event) {
  auto* window = qobject_cast<DocumentWindow*>(watched);
  if (!window) return false;
  switch (event->type()) {
    case QEvent::WindowActivate:
      undoGroup_.setActiveStack(&window->undoStack());
      front_ = window;
      return false;
    case QEvent::DragEnter:
    case QEvent::DragMove: {
      auto* drag = static_cast<QDragMoveEvent*>(event);
      if (localFiles(drag->mimeData()).empty()) return false;
      drag->acceptProposedAction();
      return true;
    }
    case QEvent::Drop: {
      auto* drop = static_cast<QDropEvent*>(event);
      const std::vector<std::filesystem::path> paths = localFiles(drop->mimeData());
      if (paths.empty()) return false;
      drop->acceptProposedAction();
      // The drag ends first; the question that may follow is a modal dialog.
      QTimer::singleShot(0, this, [this, paths] { openFiles(paths, true); });
      return true;
    }
    default:
      return false;
  }
}

// --- Open Recent and list size --------------------------------------------------

QStringList DocumentController::recentFiles() const {
  return context_.settings.store().value(kRecentFilesKey).toStringList();
}

void DocumentController::addRecentFile(const std::filesystem::path& file) {
  QStringList recent = recentFiles();
  const QString path = QString::fromStdString(file.string());
  recent.removeAll(path);
  recent.prepend(path);
  while (recent.size() > kMaxRecentFiles) recent.removeLast();
  context_.settings.store().setValue(kRecentFilesKey, recent);
  updateRecentMenu();
}

void DocumentController::updateRecentMenu() {
  QMenu* menu = context_.actions.openRecent;
  menu->clear();
  const QStringList recent = recentFiles();
  for (const QString& path : recent) {
    QAction* action = menu->addAction(path);
    connect(action, &QAction::triggered, this, [this, path] { openFiles({path.toStdString()}, false); });
  }
  menu->setEnabled(!recent.isEmpty());
}

void DocumentController::changeListSize(int size) {
  if (size != context_.settings.tableViewRowHeight()) context_.settings.setTableViewRowHeight(size);
  context_.actions.checkListSize(size);
  LumNotificationCenter::defaultCenter().post(kLumListSizeDidChangeNotification);
}

// --- Quitting --------------------------------------------------------------------

void DocumentController::reviewChangesAndQuit() {
  if (quitting_) return;
  toReview_.clear();
  for (DocumentWindow* window : windows())
    if (window->hasEditedFile()) toReview_.emplace_back(window);
  quitting_ = true;
  reviewNextWindow();
}

void DocumentController::reviewNextWindow() {
  while (!toReview_.empty() && !toReview_.back()) toReview_.pop_back();
  if (toReview_.empty()) {
    quitting_ = false;
    for (DocumentWindow* window : windows()) window->close();
    emit quitReviewFinished(true);
    return;
  }
  DocumentWindow* window = toReview_.back();
  toReview_.pop_back();
  auto connection = std::make_shared<QMetaObject::Connection>();
  *connection = connect(window, &DocumentWindow::reviewFinished, this, [this, connection](bool goOn) {
    disconnect(*connection);
    if (goOn) return reviewNextWindow();
    quitting_ = false;
    toReview_.clear();
    emit quitReviewFinished(false);
  });
  window->askToSaveAndQuitApp(true);
}
