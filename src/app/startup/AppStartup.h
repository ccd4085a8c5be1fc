#pragma once
// The program's start: the command line (read before any display is
// needed), the application's names and icon, translations, the settings,
// the single instance, the document controller and the queue of handed-over
// files; and what is stored at the end.

#include <QObject>
#include <QStringList>
#include <QUndoGroup>

#include <memory>
#include <optional>

#include "app/DialogPrompts.h"
#include "app/startup/OpenQueue.h"

class AppActions;
class DocumentController;
class QSettings;
class Settings;
class SingleInstance;
struct AppContext;
class ToolWindows;

class AppStartup : public QObject {
  Q_OBJECT

 public:
  struct Arguments {
    QStringList paths;  // absolute
  };

  // Reads the command line with a core application of its own, so that
  // --help and --version work without a display. An exit code when the
  // program is done already.
  static std::optional<int> parseCommandLine(int argc, char** argv, Arguments& arguments);
  // The names the settings, the desktop and the window manager know us by;
  // before the application object is made.
  static void setApplicationIdentity();

  explicit AppStartup(Arguments arguments, QObject* parent = nullptr);
  ~AppStartup() override;

  // False when the paths went to the program already running: exit then.
  bool start();

 private:
  void makeDocumentController();
  void filesHandedOver(const QStringList& paths);
  void showOpenDialogOnce();
  void terminate();

  Arguments arguments_;
  std::unique_ptr<QSettings> store_;
  std::unique_ptr<Settings> settings_;
  QUndoGroup undoGroup_;
  std::unique_ptr<AppActions> actions_;
  DialogPrompts prompts_;
  std::unique_ptr<AppContext> context_;
  std::unique_ptr<ToolWindows> tools_;
  std::unique_ptr<DocumentController> controller_;
  std::unique_ptr<SingleInstance> instance_;
  OpenQueue queue_;
  bool showOpenDialogAtLaunch_ = true;
};
