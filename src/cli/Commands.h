#pragma once
// The subcommands of lumidate-cli. Each lives in its own file and is listed
// once in the table of Commands.cpp.

#include <QStringList>
#include <span>

namespace cli {

struct Command {
  const char* name;
  const char* summary;  // one line for the overview of --help
  // Runs the command; args[0] is the command's own name. Answers the exit
  // status: 0 success, 1 some files failed, 2 usage error.
  int (*run)(const QStringList& args);
};

std::span<const Command> commands();

}  // namespace cli
