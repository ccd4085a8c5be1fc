// lumidate-cli days, run as a program.
#include <gtest/gtest.h>

#include "support/CliRun.h"

namespace {

TEST(CliDays, WholeDaysInEitherOrderAndRefusals) {
  const struct {
    const char* arguments;
    int status;
    const char* output;  // the whole output, or for refusals and help a part of it
  } cases[] = {
      {"2024:02:28 2024:03:01", 0, "2 days\n"},
      {"2024-03-01 2024-02-28", 0, "2 days\n"},
      {"'2023:02:28 10:00:00' '2023:03:01 10:00:00'", 0, "1 day\n"},
      {"2024:02:28 2024:02:28", 0, "0 days\n"},
      {"0001:01:01 9999:12:31", 0, "3652058 days\n"},
      {"'2024:03:01 00:00:00+09:00' 2024:02:29", 0, "0 days\n"},
      {"2024:02:28 yesterday", 2, "cannot read the date 'yesterday'"},
      {"2024:02:28", 2, ""},
      {"2024:02:28 2024:02:29 2024:03:01", 2, ""},
      {"--help", 0, "DATE1"},
  };
  for (const auto& c : cases) {
    const lumtest::CliRun run = lumtest::runCli(std::string("days ") + c.arguments);
    EXPECT_EQ(run.status, c.status) << c.arguments;
    if (std::string(c.output).ends_with("\n")) {
      EXPECT_EQ(run.out, c.output) << c.arguments;
    } else {
      EXPECT_NE(run.out.find(c.output), std::string::npos) << c.arguments << ": " << run.out;
    }
  }
}

}  // namespace
