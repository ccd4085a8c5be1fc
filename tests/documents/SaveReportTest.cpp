#include "documents/SaveReport.h"

#include <gtest/gtest.h>

using SaveReport::alertTexts;
using SaveReport::Failure;

namespace {

std::vector<Failure> failures(int count) {
  std::vector<Failure> list;
  for (int i = 1; i <= count; ++i)
    list.push_back({"/photos/day/IMG_" + std::to_string(i) + ".JPG", "reason " + std::to_string(i)});
  return list;
}

QString lines(int from, int to) {
  QString text;
  for (int i = from; i <= to; ++i) text += QString("\nIMG_%1.JPG: reason %1").arg(i);
  return text;
}

TEST(SaveReport, NoFailureNoAlert) { EXPECT_FALSE(alertTexts(3, {}).has_value()); }

TEST(SaveReport, OneFailureNamesTheFileAndGivesTheReasonAfterABlankLine) {
  const auto alert = alertTexts(1, {{"/a/b/IMG_7.JPG", ""}});
  ASSERT_TRUE(alert);
  EXPECT_EQ(alert->message, "Save a file Failed. (IMG_7.JPG)");
  EXPECT_EQ(alert->informativeText, "Save Completed: 0\n\n");
}

struct ListCase { int total, failed; QString message, informative; };

TEST(SaveReport, ListsAtMostTenFailuresThenDots) {
  const std::vector<ListCase> cases{
      {5, 2, "Save files Failed. (2 files)", "Save Completed: 3\n" + lines(1, 2)},
      {10, 10, "Save files Failed. (10 files)", "Save Completed: 0\n" + lines(1, 10) + "\n.........."},
      {20, 11, "Save files Failed. (11 files)", "Save Completed: 9\n" + lines(1, 10) + "\n.........."},
  };
  for (const ListCase& c : cases) {
    SCOPED_TRACE(c.failed);
    const auto alert = alertTexts(static_cast<std::size_t>(c.total), failures(c.failed));
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->message, c.message);
    EXPECT_EQ(alert->informativeText, c.informative);
  }
}

}  // namespace
