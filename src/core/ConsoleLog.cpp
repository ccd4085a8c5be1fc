#include "core/ConsoleLog.h"

#include <atomic>
#include <cstdio>

namespace orb {
namespace {

std::atomic<LogSink> currentSink{&logToStandardError};

}  // namespace

void logToStandardError(std::string_view line) {
  // One call per line, so lines of several threads do not interleave.
  std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
}

void logNowhere(std::string_view) {}

void setLogSink(LogSink sink) { currentSink.store(sink ? sink : &logToStandardError); }

void logLine(std::string_view line) { currentSink.load()(line); }

void logLines(const std::vector<std::string>& lines) {
  for (const std::string& line : lines) logLine(line);
}

}  // namespace orb
