// The entry of lumidate-cli-editing.so: `shift` and `set`, the commands
// that change files through the documents layer.
#include "cli/EditingPart.h"

namespace cli {
int runSet(const QStringList& args);
int runShift(const QStringList& args);
}  // namespace cli

LUMIDATE_CLI_ENTRY int lumidate_cli_edit(const QStringList& args) {
  return args.first() == QLatin1String("set") ? cli::runSet(args) : cli::runShift(args);
}
