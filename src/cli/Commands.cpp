#include "cli/Commands.h"

#include <array>

namespace cli {

int runDates(const QStringList& args);

std::span<const Command> commands() {
  static constexpr std::array table{
      Command{"dates", "Show the dates of photo files as they are read", runDates},
  };
  return table;
}

}  // namespace cli
