#include "cli/Commands.h"

#include <array>

#include "cli/EditingPart.h"

namespace cli {

int runDates(const QStringList& args);
int runDays(const QStringList& args);
int runInfo(const QStringList& args);

std::span<const Command> commands() {
  static constexpr std::array table{
      Command{"dates", "Show the dates of photo files as they are read", runDates},
      Command{"days", "Count the whole days between two dates", runDays},
      Command{"info", "Show the metadata of photo files as the inspector lists it", runInfo},
      Command{"set", "Set the dates of photo files to one date and time", runInEditingPart},
      Command{"shift", "Shift the dates of photo files forward or backward", runInEditingPart},
  };
  return table;
}

}  // namespace cli
