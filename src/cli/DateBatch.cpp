#include "cli/DateBatch.h"

#include <QEventLoop>
#include <QTextStream>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

#include "cli/CliSupport.h"
#include "documents/LumMultiFileDoc.h"
#include "formats/FileExpansion.h"

namespace cli {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 3> kDateNames{"DateTimeOriginal", "DateTimeDigitized", "DateTime"};
constexpr std::array<const char*, 3> kTargetWords{"original", "digitized", "edited"};

struct Opened {
  fs::path path;
  std::unique_ptr<LumImageFile> file;
  LumError error;
};

std::vector<Opened> openAll(const std::vector<fs::path>& paths) {
  std::vector<Opened> opened(paths.size());
  forEachInParallel(paths.size(), [&](std::size_t i) {
    opened[i].path = paths[i];
    opened[i].file = LumImageFile::imageFileWithURL(paths[i], &opened[i].error);
  });
  return opened;
}

QString q(const fs::path& path) { return QString::fromStdString(path.string()); }
QString q(const std::string& text) { return QString::fromStdString(text); }

// A bar on standard error that redraws itself in place.
void drawProgress(double percent, const QString& path) {
  constexpr int kWidth = 30;
  const int filled = std::clamp(static_cast<int>(percent * kWidth / 100.0), 0, kWidth);
  QTextStream err(stderr);
  err << "\r[" << QString(filled, '#') << QString(kWidth - filled, ' ') << "] " << qRound(percent) << "% "
      << QString(path).right(40).leftJustified(40) << Qt::flush;
}

// The texts of every file before the change, in row order.
std::vector<DateTargets::Texts> snapshot(const LumMultiFileDoc& doc) {
  std::vector<DateTargets::Texts> texts;
  for (int row = 0; row < doc.rowCount(); ++row) texts.push_back(doc.item(row).dateTexts());
  return texts;
}

void printChanges(const LumMultiFileDoc& doc, const std::vector<DateTargets::Texts>& before) {
  QTextStream out(stdout);
  for (int row = 0; row < doc.rowCount(); ++row) {
    const LumFileItemDoc& item = doc.item(row);
    for (const DateTargets::Target& t : DateTargets::kTargets) {
      const auto& old = before[static_cast<std::size_t>(row)][t.index];
      const auto& now = item.dateText(t.index);
      if (old && now && old != now)
        out << q(item.path()) << "  " << QString(kDateNames[t.index]).leftJustified(17) << "  " << q(*old) << " -> "
            << q(*now) << '\n';
    }
  }
}

LumSaveOutcome saveAll(LumMultiFileDoc& doc) {
  LumSaveOutcome outcome;
  QEventLoop loop;
  QObject::connect(&doc, &LumMultiFileDoc::saveFinished, &loop, [&](const LumSaveOutcome& o) {
    outcome = o;
    loop.quit();
  });
  bool drewProgress = false;
  if (::isatty(STDERR_FILENO))
    QObject::connect(&doc, &LumMultiFileDoc::savingProgress, &loop, [&](double percent, const QString& path) {
      drawProgress(percent, path);
      drewProgress = true;
    });
  doc.saveFileAll(true, false, false);
  if (doc.isSaving()) loop.exec();
  if (drewProgress) QTextStream(stderr) << '\n';
  return outcome;
}

}  // namespace

void addBatchOptions(QCommandLineParser& parser) {
  parser.addOption({"only", "Dates to change: a comma-separated subset of original,digitized,edited (default: all).",
                    "LIST"});
  parser.addOption({"dry-run", "Print old and new dates without writing."});
  parser.addPositionalArgument("PATH", "Photo files or folders (searched at any depth).", "PATH...");
}

int runDateBatch(const QCommandLineParser& parser, DateBatchRequest request, const Usage& usage) {
  request.command = usage.command;
  if (parser.isSet("only")) {
    const std::optional<unsigned> mask = parseTargetList(parser.value("only"));
    if (!mask) return usageError(usage, "--only takes a comma-separated subset of original,digitized,edited");
    request.targetMask = *mask;
  }
  request.dryRun = parser.isSet("dry-run");
  request.paths = parser.positionalArguments();
  if (request.paths.isEmpty()) return usageError(usage, "no PATH given");
  return runDateBatch(request);
}

std::optional<unsigned> parseTargetList(const QString& list) {
  unsigned mask = 0;
  for (const QString& word : list.split(',')) {
    const auto found = std::find(kTargetWords.begin(), kTargetWords.end(), word.trimmed());
    if (found == kTargetWords.end()) return std::nullopt;
    mask |= 1u << (found - kTargetWords.begin());
  }
  return mask ? std::optional(mask) : std::nullopt;
}

int runDateBatch(const DateBatchRequest& request) {
  QTextStream err(stderr);
  const QString prefix = "lumidate-cli " + request.command + ": ";
  std::vector<fs::path> inputs;
  for (const QString& p : request.paths) inputs.emplace_back(p.toStdString());
  const FileExpansion::Expansion expansion = FileExpansion::allPhotoPaths(inputs);
  int status = 0;
  for (const fs::path& missing : expansion.missing) {
    err << prefix << q(missing) << ": no such file or folder\n";
    status = 1;
  }

  std::vector<std::unique_ptr<LumFileItemDoc>> items;
  for (Opened& o : openAll(expansion.files)) {
    if (!o.file) {
      err << prefix << q(o.path) << ": cannot open (" << q(o.error.domain) << ' ' << o.error.code;
      if (!o.error.reason.empty()) err << ", " << q(o.error.reason);
      err << ")\n";
      status = 1;
      continue;
    }
    items.push_back(std::make_unique<LumFileItemDoc>(o.path, std::move(o.file)));
  }

  LumMultiFileDoc doc(std::move(items));
  doc.setEditStateOnAllFiles();  // every file that has a date
  doc.changeActionMode(request.mode);
  doc.setEditTargetMask(request.targetMask);
  doc.setFieldValues(request.fields);

  // The whole batch is checked first, like the apply button: one date out of
  // range and nothing is written.
  const std::vector<LumMultiFileDoc::IllegalDate> illegal = doc.illegalChangeDates();
  if (!illegal.empty() || !doc.validateApllyButton().enabled) {
    for (const LumMultiFileDoc::IllegalDate& bad : illegal)
      err << prefix << q(bad.item->path()) << ": " << kDateNames[bad.which] << ' ' << q(bad.text)
          << " would leave 0001:01:01 00:00:00 .. 9999:12:31 23:59:59\n";
    err << prefix << "nothing was changed\n";
    return 2;
  }

  const std::vector<DateTargets::Texts> before = snapshot(doc);
  doc.applyToAllFiles();
  printChanges(doc, before);
  const std::size_t edited = doc.editedFileCount();
  if (request.dryRun) {
    QTextStream(stdout) << edited << (edited == 1 ? " file" : " files") << " would change (dry run, nothing written)\n";
    err.flush();  // finishNow runs no destructor, this stream's included
    return finishNow(status);
  }

  const LumSaveOutcome outcome = saveAll(doc);
  for (const SaveReport::Failure& f : outcome.failures) {
    err << prefix << q(f.path) << ": not saved";
    if (!f.reason.empty()) err << " (" << q(f.reason) << ')';
    else err << " (the file no longer exists)";
    err << '\n';
  }
  QTextStream(stdout) << (outcome.total - outcome.failures.size()) << " of " << outcome.total
                      << (outcome.total == 1 ? " file" : " files") << " saved\n";
  err.flush();
  return finishNow(outcome.failures.empty() ? status : 1);
}

}  // namespace cli
