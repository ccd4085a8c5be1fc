// lumidate-cli days DATE1 DATE2
// Prints the whole days between two dates, in either order: "2 days",
// "1 day". Dates are read like date texts typed by the user
// ("2024:02:28", "2024-03-01T12:00:00", "2024:03:01 12:00:00+09:00"); a
// date without a zone is UTC.
#include <QCommandLineParser>
#include <QTextStream>

#include <cstdio>
#include <optional>

#include "cli/CliSupport.h"
#include "cli/Commands.h"
#include "datetime/DateAdditions.h"
#include "datetime/LumDayCalculator.h"

namespace cli {

int runDays(const QStringList& args) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Counts the whole days between two dates (order does not matter).");
  parser.addHelpOption();
  parser.addPositionalArgument("DATE1", "First date, e.g. 2024:02:28 or 2024-02-28T10:00:00");
  parser.addPositionalArgument("DATE2", "Second date");
  const Usage usage{"days", "lumidate-cli days DATE1 DATE2", "", false};
  if (const auto done = parseCommandLine(parser, args, usage)) return *done;
  const QStringList dates = parser.positionalArguments();
  if (dates.size() != 2) return usageError(usage, "give exactly two dates");
  std::optional<Instant> instants[2];
  for (int i = 0; i < 2; ++i) {
    instants[i] = DateAdditions::dateWithDateTimeString(dates[i].toStdString());
    if (!instants[i]) {
      QTextStream(stderr) << "lumidate-cli days: cannot read the date '" << dates[i] << "'\n";
      return 2;
    }
  }
  const std::uint64_t days = LumDayCalculator::dayCount(*instants[0], *instants[1]);
  QTextStream(stdout) << QString::fromStdString(LumDayCalculator::dayCountText(days)) << '\n';
  return 0;
}

}  // namespace cli
