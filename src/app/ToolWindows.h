#pragma once
// The program's three tool windows, one of each per process: the metadata
// inspector, the image viewer and the day count calculator. Each is made on
// first use and lives until the program ends. The tool actions of
// AppActions (Show Information, Image Viewer, Day Count Calculator) land
// here; document windows reach the viewer and the inspector through
// AppContext::tools.

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class DayCalculatorWindow;
class DocumentWindow;
class ImageWindow;
class InfoWindow;
class LumImageFile;
struct AppContext;

class ToolWindows : public QObject {
  Q_OBJECT

 public:
  // The document window in front (the last one activated), or null.
  using FrontWindow = std::function<DocumentWindow*()>;

  ToolWindows(AppContext& context, FrontWindow frontWindow, QObject* parent = nullptr);
  ~ToolWindows() override;

  // The front document window's selected file, or null.
  const LumImageFile* currentImageFile() const;

  // --- Inspector
  InfoWindow& inspector();
  bool isInspectorVisible() const;
  // Window > Show Information / Hide Information.
  void toggleInspector();
  // The menu item reads "Hide Information" while the inspector is shown.
  void updateInformationTitle();

  // --- Image viewer
  ImageWindow& imageWindow();
  // False while the viewer has not been made.
  bool isImageWindowVisible() const;
  // The show-image command: the viewer in front, showing the front
  // document's selected file.
  void showImageWindow();
  // A document window's selection changed or the window became active:
  // a visible viewer shows its selected file (null: nothing).
  void imageWindowFollow(const LumImageFile* selectedFile);
  // At launch: the viewer, empty, when it was open at the last quit.
  void restoreImageWindowAtLaunch();
  // At quit: stores whether the viewer is open, and its frame.
  void rememberImageWindow();

  // --- Day count calculator
  DayCalculatorWindow& dayCalculator();
  void showDayCalculator();

  // A document window is closing: the tool windows let go of its files.
  void documentWindowClosing(DocumentWindow* window);

 private:
  AppContext& context_;
  FrontWindow frontWindow_;
  std::unique_ptr<InfoWindow> inspector_;
  std::unique_ptr<ImageWindow> imageWindow_;
  std::unique_ptr<DayCalculatorWindow> calculator_;
};
