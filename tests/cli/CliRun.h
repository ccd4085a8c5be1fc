#pragma once
// Runs the built lumidate-cli through the shell, as a user would, and keeps
// its exit status and what it printed.
#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace clitest {

struct CliRun {
  int status = -1;
  std::string out;
};

inline std::string quoted(const std::string& s) { return "'" + s + "'"; }

// `arguments` go to the shell as written; stderr is dropped unless `redirect`
// says otherwise (" 2>&1" keeps it in `out`).
inline CliRun runCli(const std::string& arguments, const char* redirect = " 2>/dev/null") {
  CliRun run;
  FILE* pipe = popen((quoted(LUMIDATE_CLI) + " " + arguments + redirect).c_str(), "r");
  if (!pipe) return run;
  std::array<char, 4096> buffer{};
  for (std::size_t n; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) run.out.append(buffer.data(), n);
  const int raw = pclose(pipe);
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  return run;
}

}  // namespace clitest
