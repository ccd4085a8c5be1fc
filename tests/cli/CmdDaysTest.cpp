// Runs the built lumidate-cli as a user would.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace {

struct CliRun {
  int status;
  std::string output;  // stdout and stderr together
};

CliRun runCli(const std::string& arguments) {
  const std::string command = std::string(LUMIDATE_CLI) + " " + arguments + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return {-1, ""};
  std::string output;
  std::array<char, 256> buffer;
  while (std::fgets(buffer.data(), buffer.size(), pipe)) output += buffer.data();
  const int status = pclose(pipe);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

TEST(CliDays, PrintsWholeDaysInEitherOrder) {
  struct Case {
    const char* arguments;
    const char* output;
  } cases[] = {
      {"2024:02:28 2024:03:01", "2 days\n"},
      {"2024-03-01 2024-02-28", "2 days\n"},
      {"'2023:02:28 10:00:00' '2023:03:01 10:00:00'", "1 day\n"},
      {"2024:02:28 2024:02:28", "0 days\n"},
      {"0001:01:01 9999:12:31", "3652058 days\n"},
      {"'2024:03:01 00:00:00+09:00' 2024:02:29", "0 days\n"},
  };
  for (const Case& c : cases) {
    const CliRun run = runCli(std::string("days ") + c.arguments);
    EXPECT_EQ(run.status, 0) << c.arguments;
    EXPECT_EQ(run.output, c.output) << c.arguments;
  }
}

TEST(CliDays, RefusesUnreadableDatesAndWrongUse) {
  const CliRun bad = runCli("days 2024:02:28 yesterday");
  EXPECT_EQ(bad.status, 2);
  EXPECT_NE(bad.output.find("cannot read the date 'yesterday'"), std::string::npos) << bad.output;
  EXPECT_EQ(runCli("days 2024:02:28").status, 2);
  EXPECT_EQ(runCli("days 2024:02:28 2024:02:29 2024:03:01").status, 2);
  const CliRun help = runCli("days --help");
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.output.find("DATE1"), std::string::npos);
}

}  // namespace
