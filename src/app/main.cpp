// The lumidate desktop program.
#include <QApplication>

#include "app/startup/AppStartup.h"

int main(int argc, char* argv[]) {
  AppStartup::Arguments arguments;
  // Before the application object, so --help and --version need no display.
  if (const std::optional<int> exitCode = AppStartup::parseCommandLine(argc, argv, arguments)) return *exitCode;
  AppStartup::setApplicationIdentity();
  QApplication app(argc, argv);
  AppStartup startup(std::move(arguments));
  if (!startup.start()) return 0;  // the running program took the files
  return QApplication::exec();
}
