#pragma once
// What the commands part and the editing part share: `shift` and `set` run
// in lumidate-cli-editing.so, the only part that links the documents layer
// and with it Qt Gui, so that the other commands never load it.

#include <QStringList>

#include "cli/CommandsPart.h"

namespace cli {

// The editing part's entry: runs `shift` or `set` (args[0]) in the commands
// part's QCoreApplication; answers the exit status.
using EditingMain = int(const QStringList& args);
inline constexpr const char* kEditingPartName = "lumidate-cli-editing.so";
inline constexpr const char* kEditingEntryName = "lumidate_cli_edit";

// In the commands part: loads the editing part from the commands part's own
// folder and runs args there.
int runInEditingPart(const QStringList& args);

}  // namespace cli
