// lumidate-cli dates [--json] PATH...
// The command's options, read with Qt. lumidate-cli lists plain forms of the
// command itself; this side sees --help, wrong options and unusual forms.
#include <QCommandLineParser>

#include <filesystem>
#include <vector>

#include "cli/CliSupport.h"
#include "cli/Commands.h"
#include "cli/DatesListing.h"

namespace cli {

int runDates(const QStringList& args) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Shows the dates of photo files as Lumidate reads them.");
  parser.addHelpOption();
  parser.addOption({"json", "Print one JSON array instead of aligned lines."});
  parser.addPositionalArgument("PATH", "Photo files or folders (searched at any depth).", "PATH...");
  const cli::Usage usage{"dates", "lumidate-cli dates [--json] PATH..."};
  if (const auto done = cli::parseCommandLine(parser, args, usage)) return *done;
  const QStringList positional = parser.positionalArguments();
  if (positional.isEmpty()) return cli::usageError(usage, "no PATH given");
  std::vector<std::filesystem::path> inputs;
  for (const QString& p : positional) inputs.emplace_back(p.toStdString());
  return listDates(inputs, parser.isSet("json"));
}

}  // namespace cli
