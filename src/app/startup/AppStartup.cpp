#include "app/startup/AppStartup.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileDialog>
#include <QFileInfo>
#include <QIcon>
#include <QSettings>
#include <QTimer>

#include "app/AppActions.h"
#include "app/AppContext.h"
#include "app/Appearance.h"
#include "app/ToolWindows.h"
#include "app/DocumentController.h"
#include "app/DocumentWindow.h"
#include "app/preferences/Settings.h"
#include "app/startup/SingleInstance.h"
#include "app/startup/Translations.h"

namespace {

// The toolkit's own options (-platform offscreen, -style Fusion, ...) are
// read by the application object later; here they must only not count as
// files or errors.
void addToolkitOptions(QCommandLineParser& parser) {
  const auto add = [&parser](const char* name, bool takesValue) {
    QCommandLineOption option(QString::fromLatin1(name));
    if (takesValue) option.setValueName(QStringLiteral("value"));
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(option);
  };
  for (const char* name : {"platform", "platformpluginpath", "platformtheme", "plugin", "style", "stylesheet",
                           "session", "display", "geometry", "qwindowgeometry", "qwindowtitle", "qwindowicon",
                           "qmljsdebugger"})
    add(name, true);
  for (const char* name : {"reverse", "widgetcount", "nograb", "dograb", "sync"}) add(name, false);
}

}  // namespace

std::optional<int> AppStartup::parseCommandLine(int argc, char** argv, Arguments& arguments) {
  setApplicationIdentity();
  QCoreApplication core(argc, argv);
  Translations::install(core);  // --help in the user's language; gone with core
  QCommandLineParser parser;
  parser.setApplicationDescription(QCoreApplication::translate("main", "Shows and corrects the dates of photos."));
  parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  addToolkitOptions(parser);
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("files"),
                               QCoreApplication::translate("main", "Photo files or folders to open."),
                               QStringLiteral("[files or folders...]"));
  if (!parser.parse(QCoreApplication::arguments())) {
    fprintf(stderr, "%s\n", qPrintable(parser.errorText()));
    return 1;
  }
  if (parser.isSet(QStringLiteral("version"))) parser.showVersion();  // prints and exits
  if (parser.isSet(QStringLiteral("help"))) parser.showHelp(0);
  for (const QString& path : parser.positionalArguments()) arguments.paths << QFileInfo(path).absoluteFilePath();
  return std::nullopt;
}

void AppStartup::setApplicationIdentity() {
  QCoreApplication::setApplicationName(QStringLiteral("Lumidate"));
  QCoreApplication::setOrganizationName(QStringLiteral("Lumidate"));
  QCoreApplication::setApplicationVersion(QStringLiteral(LUMIDATE_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.lumidate.Lumidate"));
}

AppStartup::AppStartup(Arguments arguments, QObject* parent) : QObject(parent), arguments_(std::move(arguments)) {}

AppStartup::~AppStartup() {
  // Windows first: they refer to the context and the tool windows.
  controller_.reset();
  tools_.reset();
}

bool AppStartup::start() {
  instance_ = std::make_unique<SingleInstance>(SingleInstance::defaultDirectory(), SingleInstance::defaultName());
  if (!instance_->start() && instance_->handOver(arguments_.paths)) return false;

  QApplication::setWindowIcon(
      QIcon::fromTheme(QStringLiteral("org.lumidate.Lumidate"), QIcon(QStringLiteral(":/icons/lumidate-256.png"))));
  Translations::install(*QCoreApplication::instance());
  Appearance::followDesktop();
  store_ = std::make_unique<QSettings>();
  settings_ = std::make_unique<Settings>(*store_);
  settings_->registerDefaults();
  settings_->migrateFromOlderBuild();
  makeDocumentController();
  tools_->restoreImageWindowAtLaunch();

  connect(instance_.get(), &SingleInstance::filesHandedOver, this, &AppStartup::filesHandedOver);
  connect(&queue_, &OpenQueue::ready, this, [this](const QStringList& paths) {
    std::vector<std::filesystem::path> files;
    for (const QString& path : paths) files.emplace_back(path.toStdString());
    controller_->openFiles(files, true);
  });
  connect(qApp, &QCoreApplication::aboutToQuit, this, &AppStartup::terminate);
  if (!arguments_.paths.isEmpty()) filesHandedOver(arguments_.paths);
  // No desktop activation reaches a program without windows; the first turn
  // of the event loop stands for it.
  QTimer::singleShot(0, this, &AppStartup::showOpenDialogOnce);
  return true;
}

void AppStartup::makeDocumentController() {
  actions_ = std::make_unique<AppActions>(undoGroup_);
  context_ = std::make_unique<AppContext>(AppContext{*settings_, prompts_, *actions_});
  controller_ = std::make_unique<DocumentController>(*context_, undoGroup_);
  tools_ = std::make_unique<ToolWindows>(*context_, [this] { return controller_->frontWindow(); });
  context_->tools = tools_.get();
  connect(controller_.get(), &DocumentController::windowClosing, tools_.get(), &ToolWindows::documentWindowClosing);
  connect(controller_.get(), &DocumentController::quitReviewFinished, this, [](bool quit) {
    if (quit) QCoreApplication::quit();
  });
}

void AppStartup::filesHandedOver(const QStringList& paths) {
  showOpenDialogAtLaunch_ = false;
  // Files given from outside replace a choice the user is still making.
  if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) dialog->reject();
  queue_.add(paths);
}

void AppStartup::showOpenDialogOnce() {
  if (!std::exchange(showOpenDialogAtLaunch_, false)) return;
  controller_->openDocument();
  // Nothing chosen and no window: nothing keeps the program.
  if (controller_->windows().empty() && !controller_->isDocumentOpening() && queue_.isEmpty())
    QCoreApplication::quit();
}

void AppStartup::terminate() {
  tools_->rememberImageWindow();
  store_->sync();
}
