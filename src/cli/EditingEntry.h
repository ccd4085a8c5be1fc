#pragma once
// The commands that change files (set, shift) need the document model and
// with it Qt Gui, whose ~35 shared libraries cost more to load than listing
// the dates of a few hundred photos. They are built into a part of their own,
// lumidate-cli-editing.so, which lumidate-cli loads only when one of them
// runs. This header is all the two sides share.

#include <QStringList>

// Marks a command's entry point in the editing part; everything else in that
// part is hidden.
#define LUMIDATE_CLI_ENTRY extern "C" __attribute__((visibility("default")))

namespace cli {

// Same contract as Command::run: args[0] is the command's name; answers the
// exit status.
using EditingEntry = int(const QStringList& args);

inline constexpr const char* kEditingPartName = "lumidate-cli-editing.so";

}  // namespace cli
