#pragma once
// lumidate-cli is two files. The program lists dates itself without loading
// Qt, whose libraries cost more to load than reading the dates of a few
// hundred photos; every other command, and every other form of `dates`
// (--help, wrong options), lives in lumidate-cli-commands.so, which it loads
// only then. This header is all the two sides share.

// Marks the part's entry point; everything else in the part is hidden.
#define LUMIDATE_CLI_ENTRY extern "C" __attribute__((visibility("default")))

namespace cli {

// The part's main: takes the program's own arguments, answers the exit status.
using CommandsMain = int(int argc, char** argv);

inline constexpr const char* kCommandsPartName = "lumidate-cli-commands.so";
inline constexpr const char* kCommandsEntryName = "lumidate_cli_main";

}  // namespace cli
