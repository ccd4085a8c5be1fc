// The shared run of `shift` and `set`: opens the photos, marks them for
// editing, and drives the multi-file document's own validity check, apply
// and save, so the command line follows exactly the rules of the window.
#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

#include "cli/CliSupport.h"
#include "documents/FieldLimits.h"

namespace cli {

struct DateBatchRequest {
  QString command;             // "shift" or "set", for messages
  LumActionMode mode = LumActionMode::Forward;
  std::array<long, 6> fields{};  // years..seconds, or the time to set
  unsigned targetMask = 7;       // 1 original, 2 digitized, 4 edited
  bool dryRun = false;
  QStringList paths;
};

// Exit status: 0 done, 1 some files could not be opened or saved, 2 refused
// (a date would leave the allowed range; nothing written).
int runDateBatch(const DateBatchRequest& request);

// The options shift and set share: --only, --dry-run and the paths.
void addBatchOptions(QCommandLineParser& parser);

// Reads those shared options into request (mode and fields already set) and
// runs the batch; a usage error for a bad --only or no path.
int runDateBatch(const QCommandLineParser& parser, DateBatchRequest request, const Usage& usage);

// "original,digitized,edited" (any non-empty subset) to a target mask.
std::optional<unsigned> parseTargetList(const QString& list);

}  // namespace cli
