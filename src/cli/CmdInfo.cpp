// lumidate-cli info [--json] FILE...
// Shows the metadata rows of each photo as the inspector lists them: the
// JFIF fields and the TIFF, Exif, Interoperability and GPS entries with
// their titles and readable values, in display order.
#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

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
    j["error"] = {{"domain", o.error.domain}, {"code", o.error.code}};
    return j;
  }
  nlohmann::ordered_json rows = nlohmann::ordered_json::array();
  for (const LumInfoRow& r : o.rows) {
    if (r.kind == LumInfoRowKind::Heading) continue;
    // Texts from a file may hold bytes that are not UTF-8; JSON must not.
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
    out << QString::fromStdString(o.path.string()) << '\n';
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
  QTextStream err(stderr);
  for (const Outcome& o : outcomes) {
    if (o.opened) continue;
    err << "lumidate-cli: " << QString::fromStdString(o.path.string()) << ": cannot open ("
        << QString::fromStdString(o.error.domain) << ' ' << o.error.code;
    if (!o.error.reason.empty()) err << ", " << QString::fromStdString(o.error.reason);
    err << ")\n";
  }
}

}  // namespace

namespace cli {

int runInfo(const QStringList& args) {
  QCommandLineParser parser;
  parser.setApplicationDescription("Shows the metadata of photo files as the inspector lists it.");
  parser.addHelpOption();
  parser.addOption({"json", "Print one JSON array instead of grouped lines."});
  parser.addPositionalArgument("FILE", "Photo files (JPEG or TIFF).", "FILE...");
  if (!parser.parse(args)) {
    QTextStream(stderr) << "lumidate-cli info: " << parser.errorText() << '\n';
    return 2;
  }
  if (parser.isSet("help")) {
    QTextStream(stdout) << parser.helpText().replace(args.first(), "lumidate-cli info");
    return 0;
  }
  const QStringList positional = parser.positionalArguments();
  if (positional.isEmpty()) {
    QTextStream(stderr) << "lumidate-cli info: no FILE given\n" << "Usage: lumidate-cli info [--json] FILE...\n";
    return 2;
  }
  std::vector<Outcome> outcomes;
  for (const QString& p : positional) outcomes.push_back(inspect(fs::path(p.toStdString())));
  if (parser.isSet("json")) {
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const Outcome& o : outcomes) array.push_back(jsonFor(o));
    const std::string text = array.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
    std::fwrite(text.data(), 1, text.size(), stdout);
  } else {
    printPlain(outcomes);
  }
  reportFailures(outcomes);
  const bool allOpened = std::all_of(outcomes.begin(), outcomes.end(), [](const Outcome& o) { return o.opened; });
  return allOpened ? 0 : 1;
}

}  // namespace cli
