#pragma once
// Runs lumidate-cli from a test and collects its exit status and output.

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace doctest_support {

struct CliResult {
  int status = -1;
  std::string output;  // standard output and standard error together
};

inline std::string shellQuoted(const std::string& text) {
  std::string quoted = "'";
  for (char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

// arguments are appended to the tool's path as they stand (quote paths
// yourself); program is the built tool unless a test runs a copy of it.
inline CliResult runCli(const std::string& arguments, const std::string& environment = "",
                        const std::string& program = LUMIDATE_CLI) {
  const std::string command = environment + " " + shellQuoted(program) + " " + arguments + " 2>&1";
  CliResult result;
  FILE* pipe = ::popen(command.c_str(), "r");
  if (!pipe) return result;
  std::array<char, 4096> buffer{};
  while (const std::size_t n = std::fread(buffer.data(), 1, buffer.size(), pipe)) result.output.append(buffer.data(), n);
  const int raw = ::pclose(pipe);
  result.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return result;
}

}  // namespace doctest_support
