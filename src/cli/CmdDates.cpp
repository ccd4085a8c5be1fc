// lumidate-cli dates [--json] PATH...
// Shows the three dates and the sub-second texts of each photo as the file
// model keeps them when it opens the file. Folders are searched at any depth;
// files are opened in parallel on all cores.
#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/CliSupport.h"
#include "cli/Commands.h"
#include "formats/FileExpansion.h"
#include "formats/LumImageFile.h"

namespace {

namespace fs = std::filesystem;

// What is printed of one file. Only these texts are kept, not the opened
// file, so that each file's bytes are released as soon as it has been read:
// listing a folder of thousands of photos holds no more than a few at once.
struct Dates {
  std::optional<std::string> original, digitized, edited;
  std::optional<std::string> subSecOriginal, subSecDigitized, subSecEdited;
  bool editable = false;
};

struct Outcome {
  fs::path path;
  std::optional<Dates> dates;  // none when the file could not be opened
  LumError error;
};

std::optional<Dates> readDates(const fs::path& path, LumError* error) {
  const std::unique_ptr<LumImageFile> f = LumImageFile::imageFileWithURL(path, error, LumImageFile::Holding::DatesOnly);
  if (!f) return std::nullopt;
  return Dates{f->originalDateTimeOriginalString(),       f->originalDateTimeDigitizedString(),
               f->originalDateTimeString(),               f->originalSubSecDateTimeOriginalString(),
               f->originalSubSecDateTimeDigitizedString(), f->originalSubSecDateTimeString(),
               f->isEdit()};
}

std::vector<Outcome> openAll(const std::vector<fs::path>& paths) {
  std::vector<Outcome> outcomes(paths.size());
  cli::forEachInParallel(paths.size(), [&](std::size_t i) {
    outcomes[i].path = paths[i];
    outcomes[i].dates = readDates(paths[i], &outcomes[i].error);
  });
  return outcomes;
}

nlohmann::ordered_json textOrNull(const std::optional<std::string>& text) {
  return text ? nlohmann::ordered_json(*text) : nlohmann::ordered_json(nullptr);
}

nlohmann::ordered_json jsonFor(const Outcome& o) {
  nlohmann::ordered_json j;
  j["path"] = o.path.string();
  if (!o.dates) {
    j["error"] = cli::errorJson(o.error);
    return j;
  }
  const Dates& f = *o.dates;
  j["DateTimeOriginal"] = textOrNull(f.original);
  j["DateTimeDigitized"] = textOrNull(f.digitized);
  j["DateTime"] = textOrNull(f.edited);
  j["SubSecTimeOriginal"] = textOrNull(f.subSecOriginal);
  j["SubSecTimeDigitized"] = textOrNull(f.subSecDigitized);
  j["SubSecTime"] = textOrNull(f.subSecEdited);
  j["editable"] = f.editable;
  return j;
}

// A date with its sub-second text, or "-" when the date is not kept.
QString dateColumn(const std::optional<std::string>& date, const std::optional<std::string>& subSec) {
  if (!date) return QStringLiteral("-");
  QString text = QString::fromStdString(*date);
  if (subSec && !subSec->empty()) text += '.' + QString::fromStdString(*subSec);
  return text;
}

void printPlain(const std::vector<Outcome>& outcomes) {
  qsizetype pathWidth = 0;
  for (const Outcome& o : outcomes)
    if (o.dates) pathWidth = std::max(pathWidth, cli::displayPath(o.path).size());
  QTextStream out(stdout);
  for (const Outcome& o : outcomes) {
    if (!o.dates) continue;
    const Dates& f = *o.dates;
    out << cli::displayPath(o.path).leftJustified(pathWidth) << "  "
        << dateColumn(f.original, f.subSecOriginal).leftJustified(23) << "  "
        << dateColumn(f.digitized, f.subSecDigitized).leftJustified(23) << "  "
        << dateColumn(f.edited, f.subSecEdited).leftJustified(23) << "  "
        << (f.editable ? "editable" : "not editable") << '\n';
  }
}

void reportFailures(const std::vector<Outcome>& outcomes) {
  for (const Outcome& o : outcomes)
    if (!o.dates) cli::reportOpenFailure(o.path, o.error);
}

}  // namespace

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
  std::vector<fs::path> inputs;
  for (const QString& p : positional) inputs.emplace_back(p.toStdString());
  FileExpansion::Expansion expansion = FileExpansion::allPhotoPaths(inputs);
  // A path that does not exist is reported like a file that cannot be read.
  std::vector<fs::path> paths = std::move(expansion.files);
  const auto found = static_cast<std::ptrdiff_t>(paths.size());
  std::sort(expansion.missing.begin(), expansion.missing.end(), FileExpansion::naturalPathLess);
  paths.insert(paths.end(), expansion.missing.begin(), expansion.missing.end());
  std::inplace_merge(paths.begin(), paths.begin() + found, paths.end(), FileExpansion::naturalPathLess);

  const std::vector<Outcome> outcomes = openAll(paths);
  if (parser.isSet("json")) {
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const Outcome& o : outcomes) array.push_back(jsonFor(o));
    cli::printJson(array);
  } else {
    printPlain(outcomes);
  }
  reportFailures(outcomes);
  const bool allOpened = std::all_of(outcomes.begin(), outcomes.end(), [](const Outcome& o) { return o.dates.has_value(); });
  return allOpened ? 0 : 1;
}

}  // namespace cli
