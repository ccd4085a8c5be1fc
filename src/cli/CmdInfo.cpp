// lumidate-cli info [--json] FILE...
// Shows the metadata rows of each photo as the inspector lists them: the
// container, the JFIF fields and the TIFF, Exif, Interoperability and GPS entries with
// their titles and readable values, in display order.
#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/CliSupport.h"
#include "cli/Commands.h"
#include "formats/LumImageFile.h"
#include "formats/inspector/LumInfoDataSource.h"

namespace {

namespace fs = std::filesystem;

struct Outcome {
  fs::path path;
  std::vector<LumInfoRow> rows;
  bool opened = false;
  LumError error;
};

Outcome inspect(const fs::path& path) {
  Outcome o{path, {}, false, {}};
  const std::unique_ptr<LumImageFile> file = LumImageFile::imageFileWithURL(path, &o.error);
  if (!file) return o;
  LumInfoDataSource source;
  source.setImageFile(file.get());
  o.rows = source.IFDDataSources();
  o.opened = true;
  return o;
}

nlohmann::ordered_json jsonFor(const Outcome& o) {
  nlohmann::ordered_json j;
  j["path"] = o.path.string();
  if (!o.opened) {
    j["error"] = cli::errorJson(o.error);
    return j;
  }
  nlohmann::ordered_json rows = nlohmann::ordered_json::array();
  for (const LumInfoRow& r : o.rows) {
    if (r.kind == LumInfoRowKind::Heading) continue;
    rows.push_back({{"group", r.group}, {"title", r.tagName}, {"value", r.value}});
  }
  j["rows"] = std::move(rows);
  return j;
}

void printPlain(const std::vector<Outcome>& outcomes) {
  QTextStream out(stdout);
  bool first = true;
  for (const Outcome& o : outcomes) {
    if (!o.opened) continue;
    if (!first) out << '\n';
    first = false;
    out << cli::displayPath(o.path) << '\n';
    qsizetype width = 0;
    for (const LumInfoRow& r : o.rows) width = std::max(width, QString::fromStdString(r.tagName).size());
    for (const LumInfoRow& r : o.rows) {
      if (r.kind == LumInfoRowKind::Heading)
        out << "  " << QString::fromStdString(r.tagName) << '\n';
      else
        out << "    " << QString::fromStdString(r.tagName).leftJustified(width) << "  "
            << QString::fromStdString(r.value) << '\n';
    }
  }
}

void reportFailures(const std::vector<Outcome>& outcomes) {
  for (const Outcome& o : outcomes)
    if (!o.opened) cli::reportOpenFailure(o.path, o.error);
}

}  // namespace

namespace cli {

int runInfo(const QStringList& args) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Shows the metadata of photo files as the inspector lists it.");
  parser.addHelpOption();
  parser.addOption({"json", "Print one JSON array instead of grouped lines."});
  parser.addPositionalArgument("FILE", "Photo files (JPEG, TIFF, camera RAW, HEIC/HEIF/AVIF, CR3, PNG, WebP).",
                               "FILE...");
  const cli::Usage usage{"info", "lumidate-cli info [--json] FILE..."};
  if (const auto done = cli::parseCommandLine(parser, args, usage)) return *done;
  const QStringList positional = parser.positionalArguments();
  if (positional.isEmpty()) return cli::usageError(usage, "no FILE given");
  std::vector<Outcome> outcomes;
  for (const QString& p : positional) outcomes.push_back(inspect(fs::path(p.toStdString())));
  if (parser.isSet("json")) {
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const Outcome& o : outcomes) array.push_back(jsonFor(o));
    cli::printJson(array);
  } else {
    printPlain(outcomes);
  }
  reportFailures(outcomes);
  const bool allOpened = std::all_of(outcomes.begin(), outcomes.end(), [](const Outcome& o) { return o.opened; });
  return allOpened ? 0 : 1;
}

}  // namespace cli
