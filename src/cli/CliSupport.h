#pragma once
// Pieces the commands parsed with Qt share: usage texts and errors, and paths
// as Qt text. What needs no Qt is in CliCommon.h.

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <optional>

#include "cli/CliCommon.h"

namespace cli {

// What a command says of itself in --help and after wrong use.
struct Usage {
  const char* command;        // "dates"
  const char* synopsis;       // "lumidate-cli dates [--json] PATH..."
  const char* examples = "";  // printed after the options by --help
  bool readsFiles = true;     // offers --verbose
};

// Parses args (args[0] is the command's name). Answers the exit status when
// the command is done already (--help printed: 0; wrong options: 2), or
// nullopt when it should go on. A command that reads files gets --verbose:
// without it the engine's notes on damaged files are dropped, since each
// file that fails is reported with its own line anyway.
std::optional<int> parseCommandLine(QCommandLineParser& parser, const QStringList& args, const Usage& usage);

// "lumidate-cli COMMAND: message" and the synopsis on standard error;
// answers 2, the exit status of wrong use.
int usageError(const Usage& usage, const QString& message);

QString displayPath(const std::filesystem::path& path);

}  // namespace cli
