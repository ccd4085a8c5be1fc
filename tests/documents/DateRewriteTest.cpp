#include "documents/DateRewrite.h"

#include <gtest/gtest.h>

using DateRewrite::DateLocations;
using DateRewrite::patchesForTexts;
using DateTargets::Texts;

namespace {

const std::string kA = "2001:02:03 04:05:06";
const std::string kB = "2011:12:13 14:15:16";

using Offset = std::optional<std::uint64_t>;
DateLocations at(std::uint64_t header, Offset original, Offset digitized, Offset edited) {
  DateLocations where;
  where.tiffHeaderLocation = header;
  where.valueOffsets = {original, digitized, edited};
  return where;
}
const Offset kNone;
const std::optional<std::string> kNo;

struct Case {
  const char* name;
  DateLocations where;
  Texts texts;
  std::vector<std::pair<std::uint64_t, std::string>> expected;
};

TEST(DateRewrite, PatchesForTexts) {
  const std::vector<Case> cases{
      {"header at 12, value offset 0xB8 writes at 196", at(12, 0xB8u, kNone, kNone), {kA, kNo, kNo},
       {{196, kA}}},
      {"all three in order", at(30, 0x100u, 0x114u, 0x40u), {kA, kB, kA},
       {{30 + 0x100, kA}, {30 + 0x114, kB}, {30 + 0x40, kA}}},
      {"absent text skipped", at(0, 8u, 28u, 48u), {kNo, kB, kNo}, {{28, kB}}},
      {"suffix beyond 19 characters is not written", at(0, 8u, 28u, 48u), {kA + ".123", kNo, kNo}, {{8, kA}}},
      {"non-ASCII text skipped", at(0, 8u, 28u, 48u), {"2001:02:03 04:05:0\xC3\xA9", kB, kNo}, {{28, kB}}},
      {"short text skipped", at(0, 8u, 28u, 48u), {"2001:02:03", kNo, kNo}, {}},
      {"no entries, nothing", at(0, kNone, kNone, kNone), {kA, kB, kA}, {}},
      {"text without entry skipped", at(0, kNone, 28u, kNone), {kA, kB, kA}, {{28, kB}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::vector<std::pair<std::uint64_t, std::string>> got;
    for (const auto& patch : patchesForTexts(c.where, c.texts)) got.emplace_back(patch.position, patch.bytes);
    EXPECT_EQ(got, c.expected);
  }
}

}  // namespace
