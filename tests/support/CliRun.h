#pragma once
// Runs the built lumidate-cli through the shell, as a user would, and keeps
// its exit status and what it printed. Tests that use it define LUMIDATE_CLI
// as the tool's path.

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace lumtest {

struct CliRun { int status = -1; std::string out; };

inline std::string shellQuoted(const std::string& text) {
  std::string quoted = "'";
  for (char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

// Runs a shell command line and keeps what it printed on standard output.
inline CliRun runShell(const std::string& command) {
  CliRun run;
  FILE* pipe = ::popen(command.c_str(), "r");
  if (!pipe) return run;
  std::array<char, 4096> buffer{};
  while (const std::size_t n = std::fread(buffer.data(), 1, buffer.size(), pipe)) run.out.append(buffer.data(), n);
  const int raw = ::pclose(pipe);
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return run;
}

// `arguments` go to the shell as written: quote paths with shellQuoted().
// Standard output and standard error are kept together; `environment` is
// put before the program, such as "TZ=Asia/Kolkata".
inline CliRun runCli(const std::string& arguments, const std::string& environment = "") {
  return runShell(environment + " " + shellQuoted(LUMIDATE_CLI) + " " + arguments + " 2>&1");
}

// The same keeping standard output only, for output read as JSON.
inline CliRun runCliStdout(const std::string& arguments) {
  return runShell(shellQuoted(LUMIDATE_CLI) + " " + arguments + " 2>/dev/null");
}

// The same for a copy of the tool at `program`.
inline CliRun runCopyOfCli(const std::string& program, const std::string& arguments) {
  return runShell(shellQuoted(program) + " " + arguments + " 2>&1");
}

}  // namespace lumtest
