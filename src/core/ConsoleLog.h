#pragma once
// The application's log: the console lines the engine writes about files it
// could not read completely. The application keeps them on standard error;
// a program with its own error messages may send them elsewhere or drop them.

#include <string>
#include <string_view>
#include <vector>

namespace orb {

// Receives one line without its newline. May be called from any thread.
using LogSink = void (*)(std::string_view line);

// Standard error, one line at a time.
void logToStandardError(std::string_view line);
// Drops the line.
void logNowhere(std::string_view line);

// Replaces the sink (standard error until then); null restores the default.
void setLogSink(LogSink sink);
void logLine(std::string_view line);
// Each line in turn (lines a parse collected before it knew they were wanted).
void logLines(const std::vector<std::string>& lines);

}  // namespace orb
