// Runs under several time zones (see CMakeLists.txt): no result may depend
// on the machine's zone.
#include "documents/DateTextRules.h"

#include <gtest/gtest.h>

using namespace DateTextRules;

namespace {

TEST(DateTextRules, NormalizedTypedText) {
  const std::pair<const char*, std::optional<std::string>> cases[] = {
      {"2021/3/4 5:06:07", "2021:03:04 05:06:07"},
      {"  2021-03-04 05:06:07  ", "2021:03:04 05:06:07"},
      {"-2021.3.4,5;6'7", "2021:03:04 05:06:07"},
      {"2021//3//4  5::6::7", "2021:03:04 05:06:07"},  // runs of separators count once
      {"2021:02:29 00:00:00", "2021:03:01 00:00:00"},  // rolled over like the calendar does
      {"9999:12:31 24:00:00", std::nullopt},           // rolls past 9999
      {"2021/3/4", std::nullopt},                      // three parts
      {"2021/3/4 5:06:07:08", std::nullopt},
      {"0000:01:01 00:00:00", std::nullopt},
      {"10000:01:01 00:00:00", std::nullopt},
      {"2021/3/4 5:06:0x", std::nullopt},
      {"", std::nullopt},
  };
  for (const auto& [typed, expected] : cases) EXPECT_EQ(normalizedDateTimeString(typed), expected) << typed;
}

}  // namespace
