#pragma once
// The work of `lumidate-cli dates`, without Qt: lumidate-cli runs it itself
// for a plain listing, before any Qt library is loaded, and the command's
// Qt side runs the same code after parsing any other form of the command.

#include <filesystem>
#include <vector>

namespace cli {

// Lists the dates of the photos at inputs (files, or folders searched at any
// depth) on standard output, as aligned lines or one JSON array; files that
// cannot be read are reported on standard error. Answers the exit status:
// 0, or 1 when some path could not be read.
int listDates(const std::vector<std::filesystem::path>& inputs, bool json);

}  // namespace cli
