#include "cli/CliSupport.h"

#include <QTextStream>

#include "core/ConsoleLog.h"

namespace cli {

std::optional<int> parseCommandLine(QCommandLineParser& parser, const QStringList& args, const Usage& usage) {
  if (usage.readsFiles)
    parser.addOption({"verbose", "Also print the notes on damaged files (the application's log) to standard error."});
  if (!parser.parse(args)) return usageError(usage, parser.errorText());
  orb::setLogSink(usage.readsFiles && parser.isSet("verbose") ? nullptr : &orb::logNowhere);
  if (!parser.isSet("help")) return std::nullopt;
  QString help = parser.helpText();
  help.replace(0, help.indexOf('\n'), QStringLiteral("Usage: ") + usage.synopsis);
  QTextStream(stdout) << help << usage.examples;
  return 0;
}

int usageError(const Usage& usage, const QString& message) {
  QTextStream(stderr) << "lumidate-cli " << usage.command << ": " << message << "\nUsage: " << usage.synopsis << '\n';
  return 2;
}

QString displayPath(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

}  // namespace cli
