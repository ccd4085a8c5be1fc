#pragma once
// lumidate-cli is three files. The program lists dates itself without loading
// Qt, whose libraries cost more to load than reading the dates of a few
// hundred photos. Every other command, and every other form of `dates`
// (--help, wrong options), lives in lumidate-cli-commands.so, which links Qt
// Core only and is loaded only then. `shift` and `set` need the documents
// layer and with it Qt Gui: the commands part loads lumidate-cli-editing.so,
// from its own folder, for them alone (EditingPart.h). This header is all
// the program and the commands part share.

// Marks a part's entry point; everything else in a part is hidden.
#define LUMIDATE_CLI_ENTRY extern "C" __attribute__((visibility("default")))

namespace cli {

// The commands part's main: takes the program's own arguments, answers the
// exit status.
using CommandsMain = int(int argc, char** argv);
inline constexpr const char* kCommandsPartName = "lumidate-cli-commands.so";
inline constexpr const char* kCommandsEntryName = "lumidate_cli_main";

}  // namespace cli
