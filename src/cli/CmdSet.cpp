// lumidate-cli set --to "yyyy:MM:dd HH:mm:ss" [--only LIST] [--dry-run] PATH...
// Sets the dates of photos to one date and time, in place.
#include <QCommandLineParser>
#include <QTextStream>

#include "cli/CliSupport.h"
#include "cli/Commands.h"
#include "cli/DateBatch.h"
#include "documents/DateTextRules.h"

namespace {

const char* const kExamples =
    "\nExamples:\n"
    "  lumidate-cli set --to \"2023:07:14 18:30:00\" scan-001.tif scan-002.tif\n"
    "      give both scans all three dates 2023:07:14 18:30:00\n"
    "  lumidate-cli set --to \"1999:12:31 23:59:59\" --only original --dry-run old/\n"
    "      show what DateTimeOriginal of every photo in old/ would become\n"
    "\nOnly dates a file already has are set; a missing date stays missing.\n"
    "Exit status 1 when some files could not be saved, 2 for a usage error.\n";

const cli::Usage kUsage{"set", "lumidate-cli set --to \"yyyy:MM:dd HH:mm:ss\" [--only LIST] [--dry-run] PATH...",
                        kExamples};

int usage(const QString& message) { return cli::usageError(kUsage, message); }

// Exactly "yyyy:MM:dd HH:mm:ss" naming a real date and time of years 1..9999.
std::optional<std::array<long, 6>> parseTime(const QString& text) {
  static constexpr std::array<int, 6> kStarts{0, 5, 8, 11, 14, 17};
  static constexpr std::array<int, 6> kWidths{4, 2, 2, 2, 2, 2};
  if (text.size() != 19 || text[4] != ':' || text[7] != ':' || text[10] != ' ' || text[13] != ':' || text[16] != ':')
    return std::nullopt;
  std::array<long, 6> fields{};
  for (std::size_t i = 0; i < 6; ++i) {
    const QString part = text.mid(kStarts[i], kWidths[i]);
    if (!std::all_of(part.begin(), part.end(), [](QChar c) { return c >= '0' && c <= '9'; })) return std::nullopt;
    fields[i] = part.toLong();
    if (!kSetTimeFieldLimits[i].accepts(fields[i])) return std::nullopt;
  }
  if (fields[2] > DateTextRules::monthLength(fields[0], fields[1])) return std::nullopt;
  return fields;
}

}  // namespace

namespace cli {

int runSet(const QStringList& args) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Sets the dates of photo files to one date and time.");
  parser.addHelpOption();
  parser.addOption({"to", "The date and time to set, exactly \"yyyy:MM:dd HH:mm:ss\".", "TIME"});
  addBatchOptions(parser);
  if (const auto done = parseCommandLine(parser, args, kUsage)) return *done;
  if (!parser.isSet("to")) return usage("--to is required");
  const std::optional<std::array<long, 6>> fields = parseTime(parser.value("to"));
  if (!fields) return usage("--to takes a real date and time as \"yyyy:MM:dd HH:mm:ss\", not '" + parser.value("to") + "'");

  DateBatchRequest request;
  request.mode = LumActionMode::SetTime;
  request.fields = *fields;
  return runDateBatch(parser, request, kUsage);
}

}  // namespace cli
