// lumidate-cli's commands, read with Qt: everything but the plain listing of
// dates, which the program runs itself.
#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

#include "cli/Commands.h"
#include "cli/CommandsPart.h"

namespace {

void printOverview(FILE* to) {
  QTextStream out(to);
  out << "Usage: lumidate-cli COMMAND [OPTIONS] PATH...\n\n"
         "Shows and corrects DateTimeOriginal, DateTimeDigitized and DateTime\n"
         "in JPEG and TIFF files, camera RAW files, HEIC/HEIF/AVIF, PNG and WebP.\n"
         "Folders are searched at any depth.\n\n"
         "Commands:\n";
  for (const cli::Command& c : cli::commands())
    out << "  " << QString::fromLatin1(c.name).leftJustified(10) << c.summary << '\n';
  out << "\nRun 'lumidate-cli COMMAND --help' for the options of a command.\n";
}

}  // namespace

LUMIDATE_CLI_ENTRY int lumidate_cli_main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QCoreApplication::setApplicationName("lumidate-cli");
  QCoreApplication::setApplicationVersion(QStringLiteral(LUMIDATE_VERSION));

  QStringList args = QCoreApplication::arguments();
  args.removeFirst();
  if (args.isEmpty()) {
    printOverview(stderr);
    return 2;
  }
  const QString name = args.first();
  if (name == "--help" || name == "-h" || name == "help") {
    printOverview(stdout);
    return 0;
  }
  if (name == "--version") {
    QTextStream(stdout) << "lumidate-cli " << LUMIDATE_VERSION << '\n';
    return 0;
  }
  for (const cli::Command& c : cli::commands())
    if (name == QLatin1String(c.name)) return c.run(args);

  QTextStream(stderr) << "lumidate-cli: unknown command '" << name << "'\n";
  printOverview(stderr);
  return 2;
}
