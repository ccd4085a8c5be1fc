#pragma once
// Pieces every lumidate-cli command shares: work spread over all cores, the
// error object and line of a file that cannot be opened, and JSON output.

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>

#include <nlohmann/json.hpp>

#include "core/LumError.h"

namespace cli {

// What a command says of itself in --help and after wrong use.
struct Usage {
  const char* command;        // "dates"
  const char* synopsis;       // "lumidate-cli dates [--json] PATH..."
  const char* examples = "";  // printed after the options by --help
};

// Parses args (args[0] is the command's name). Answers the exit status when
// the command is done already (--help printed: 0; wrong options: 2), or
// nullopt when it should go on.
std::optional<int> parseCommandLine(QCommandLineParser& parser, const QStringList& args, const Usage& usage);

// "lumidate-cli COMMAND: message" and the synopsis on standard error;
// answers 2, the exit status of wrong use.
int usageError(const Usage& usage, const QString& message);

// Calls work(i) for every i in [0, count), spread over all cores; returns
// when every call has returned. Each i is taken exactly once.
void forEachInParallel(std::size_t count, const std::function<void(std::size_t)>& work);

QString displayPath(const std::filesystem::path& path);

// {"domain": ..., "code": ...} for a file that could not be opened.
nlohmann::ordered_json errorJson(const LumError& error);

// "lumidate-cli: PATH: cannot open (LumErrorDomain -1, reason)" on stderr.
void reportOpenFailure(const std::filesystem::path& path, const LumError& error);

// For a command that has written and reported everything: ends the process
// with status at once and leaves what it built (documents, the mappings of
// every photo) to the kernel, which releases a whole address space faster
// than destructors free it piece by piece; over 500 photos that is several
// milliseconds. Builds with AddressSanitizer answer status instead, so that
// the normal teardown, and the leak check after it, still run in the tests.
int finishNow(int status);

// Prints the value indented to standard output. Texts taken from files and
// paths may hold bytes that are not UTF-8; they are replaced, never fatal.
void printJson(const nlohmann::ordered_json& value);

}  // namespace cli
