// lumidate-cli shift [--backward] [--years N] ... [--only LIST] [--dry-run] PATH...
// Moves the dates of photos forward or backward by calendar offsets,
// writing the changed dates into the files in place.
#include <QCommandLineParser>
#include <QTextStream>

#include "cli/CliSupport.h"
#include "cli/Commands.h"
#include "cli/DateBatch.h"

namespace {

constexpr std::array<const char*, 6> kUnits{"years", "months", "days", "hours", "minutes", "seconds"};

const char* const kExamples =
    "\nExamples:\n"
    "  lumidate-cli shift --hours 1 --minutes 2 --seconds 3 ~/Pictures/trip\n"
    "      move all three dates of every photo in the folder 1:02:03 later\n"
    "  lumidate-cli shift --backward --years 1 --only original,digitized IMG_0001.JPG\n"
    "      move DateTimeOriginal and DateTimeDigitized one year back\n"
    "  lumidate-cli shift --days 2 --dry-run *.jpg\n"
    "      show the old and new dates without writing anything\n"
    "\nEach count is a whole number from 0 (years up to 9999, days up to 3652058,\n"
    "the others up to 99999); at least one must be non-zero. When any date would\n"
    "leave 0001:01:01 00:00:00 .. 9999:12:31 23:59:59, nothing is written and the\n"
    "offending files are listed (exit status 2). A date of all zeros\n"
    "(0000:00:00 00:00:00, a camera's unknown date) is left as it is. Exit\n"
    "status 1 when some files could not be saved.\n";

const cli::Usage kUsage{"shift",
                        "lumidate-cli shift [--backward] [--years N] [--months N] [--days N] [--hours N] "
                        "[--minutes N] [--seconds N] [--only LIST] [--dry-run] PATH...",
                        kExamples};

int usage(const QString& message) { return cli::usageError(kUsage, message); }

}  // namespace

namespace cli {

int runShift(const QStringList& args) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Shifts the dates of photo files forward (or backward) by an offset.");
  parser.addHelpOption();
  parser.addOption({"backward", "Shift back in time instead of forward."});
  for (const char* unit : kUnits) parser.addOption({unit, QString("Number of %1 to shift by.").arg(unit), "N", "0"});
  addBatchOptions(parser);
  if (const auto done = parseCommandLine(parser, args, kUsage)) return *done;

  DateBatchRequest request;
  request.mode = parser.isSet("backward") ? LumActionMode::Backward : LumActionMode::Forward;
  bool anyNonZero = false;
  for (std::size_t i = 0; i < kUnits.size(); ++i) {
    bool ok = false;
    const QString text = parser.value(kUnits[i]);
    const long value = text.toLong(&ok);
    if (!ok || !kOffsetFieldLimits[i].accepts(value))
      return usage(QString("--%1 takes a whole number from %2 to %3, not '%4'")
                       .arg(kUnits[i])
                       .arg(kOffsetFieldLimits[i].minimum)
                       .arg(kOffsetFieldLimits[i].maximum)
                       .arg(text));
    request.fields[i] = value;
    anyNonZero = anyNonZero || value != 0;
  }
  if (!anyNonZero) return usage("give at least one non-zero count (--years ... --seconds)");
  return runDateBatch(parser, request, kUsage);
}

}  // namespace cli
