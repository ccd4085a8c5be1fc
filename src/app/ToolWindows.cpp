#include "app/ToolWindows.h"

#include <QAction>
#include <QApplication>

#include <algorithm>
#include <filesystem>
#include <vector>

#include "app/AppActions.h"
#include "app/AppContext.h"
#include "app/DocumentWindow.h"
#include "app/calculator/DayCalculatorWindow.h"
#include "app/inspector/InfoWindow.h"
#include "app/preferences/Settings.h"
#include "app/viewer/ImageWindow.h"
#include "documents/LumLocalized.h"
#include "documents/LumNotificationCenter.h"

ToolWindows::ToolWindows(AppContext& context, FrontWindow frontWindow, QObject* parent)
    : QObject(parent), context_(context), frontWindow_(std::move(frontWindow)) {
  AppActions& actions = context_.actions;
  connect(actions.showInformation, &QAction::triggered, this, &ToolWindows::toggleInspector);
  connect(actions.showImageView, &QAction::triggered, this, &ToolWindows::showImageWindow);
  connect(actions.dayCalculator, &QAction::triggered, this, &ToolWindows::showDayCalculator);
  updateInformationTitle();
}

ToolWindows::~ToolWindows() = default;

const LumImageFile* ToolWindows::currentImageFile() const {
  const DocumentWindow* front = frontWindow_ ? frontWindow_() : nullptr;
  return front ? front->selectedImageFile() : nullptr;
}

void ToolWindows::documentWindowClosing(DocumentWindow* window) {
  if (inspector_ && window) inspector_->letGoOf(window->openFiles(), window->selectedImageFile());
  // Image viewer: its file goes away with the window.
  if (imageWindow_ && imageWindow_->imageFile()) {
    const std::vector<std::filesystem::path> files = window->openFiles();
    if (imageWindow_->imageFile() == window->selectedImageFile() ||
        std::find(files.begin(), files.end(), imageWindow_->imagePath()) != files.end())
      imageWindow_->setImageFile(nullptr);
  }
}

// --- Inspector -------------------------------------------------------------------

namespace {

// The selected file of the document window whose document is `document`.
const LumImageFile* selectedFileOfDocument(const void* document) {
  for (QWidget* top : QApplication::topLevelWidgets())
    if (auto* window = qobject_cast<DocumentWindow*>(top); window && window->documentObject() == document)
      return window->selectedImageFile();
  return nullptr;
}

}  // namespace

InfoWindow& ToolWindows::inspector() {
  if (!inspector_) {
    inspector_ = std::make_unique<InfoWindow>(&context_.settings, selectedFileOfDocument);
    connect(inspector_.get(), &InfoWindow::visibilityChanged, this, &ToolWindows::updateInformationTitle);
  }
  return *inspector_;
}

bool ToolWindows::isInspectorVisible() const { return inspector_ && inspector_->isVisible(); }

void ToolWindows::toggleInspector() {
  InfoWindow& window = inspector();
  LumNotificationCenter& center = LumNotificationCenter::defaultCenter();
  if (window.isVisible()) {
    window.hide();
    center.post(kLumImageFileDidChangeNotification, nullptr);
    return;
  }
  center.post(kLumImageFileDidChangeNotification, currentImageFile());
  window.show();
  window.raise();
}

void ToolWindows::updateInformationTitle() {
  context_.actions.showInformation->setText(
      LumLocalized::text(isInspectorVisible() ? "Hide Information" : "Show Information"));
}

// --- Image viewer ----------------------------------------------------------------

ImageWindow& ToolWindows::imageWindow() {
  if (!imageWindow_) imageWindow_ = std::make_unique<ImageWindow>(context_.settings);
  return *imageWindow_;
}

bool ToolWindows::isImageWindowVisible() const { return imageWindow_ && imageWindow_->isVisible(); }

void ToolWindows::showImageWindow() { imageWindow().showWindowWithImageFile(currentImageFile()); }

void ToolWindows::imageWindowFollow(const LumImageFile* selectedFile) {
  if (isImageWindowVisible()) imageWindow_->setImageFile(selectedFile);
}

void ToolWindows::restoreImageWindowAtLaunch() {
  if (context_.settings.showImageView()) imageWindow().showWindowWithImageFile(nullptr);
}

void ToolWindows::rememberImageWindow() {
  context_.settings.setShowImageView(isImageWindowVisible());
  if (imageWindow_) imageWindow_->saveFrame();
}

// --- Day count calculator -----------------------------------------------------------

DayCalculatorWindow& ToolWindows::dayCalculator() {
  if (!calculator_) calculator_ = std::make_unique<DayCalculatorWindow>();
  return *calculator_;
}

void ToolWindows::showDayCalculator() {
  DayCalculatorWindow& window = dayCalculator();
  window.show();
  window.raise();
  window.activateWindow();
}
