// Sorting the rows of a multi-file document: the table's order must be the
// one the rows' own comparisons give, whatever the document does to sort fast.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "PhotoFiles.h"
#include "documents/LumMultiFileDoc.h"

using namespace doctest_support;

namespace {

using Comparison = int (LumFileItemDoc::*)(const LumFileItemDoc&) const;
using Descriptors = std::vector<LumMultiFileDoc::SortDescriptor>;

const std::map<std::string, Comparison> kComparisons{
    {"FileName", &LumFileItemDoc::compareForFileName}, {"DateTime", &LumFileItemDoc::compareForDateTime},
    {"DateTimeDigitized", &LumFileItemDoc::compareForDateTimeDigitized},
    {"DateTimeOriginal", &LumFileItemDoc::compareForDateTimeOriginal},
    {"Edited", &LumFileItemDoc::compareForEdited}, {"Edit", &LumFileItemDoc::compareForEdit}};

std::vector<const LumFileItemDoc*> rows(const LumMultiFileDoc& doc) {
  std::vector<const LumFileItemDoc*> list;
  for (int row = 0; row < doc.rowCount(); ++row) list.push_back(&doc.item(row));
  return list;
}

// The order a plain stable sort by the rows' comparisons gives.
std::vector<const LumFileItemDoc*> referenceOrder(std::vector<const LumFileItemDoc*> list, const Descriptors& by) {
  std::stable_sort(list.begin(), list.end(), [&by](const LumFileItemDoc* a, const LumFileItemDoc* b) {
    for (const auto& d : by)
      if (const int order = kComparisons.contains(d.key) ? (a->*kComparisons.at(d.key))(*b) : 0)
        return d.ascending ? order < 0 : order > 0;
    return false;
  });
  return list;
}

std::vector<std::string> paths(const std::vector<const LumFileItemDoc*>& list, const TempFolder& folder) {
  std::vector<std::string> out;
  for (const LumFileItemDoc* item : list) out.push_back(item->path().lexically_relative(folder.path()).string());
  return out;
}

struct SortFixture : ::testing::Test {
  TempFolder folder;
  std::unique_ptr<LumMultiFileDoc> doc;

  void SetUp() override {
    const std::string a = "2020:01:31 10:00:00", b = "2019:12:31 23:30:00", c = "2021:06:15 08:00:00";
    const std::vector<std::pair<std::string, PhotoDates>> photos{
        {"b.jpg", {a, b, c}},       {"A.jpg", {b, b, std::nullopt}}, {"sub/a.jpg", {c, std::nullopt, a}},
        {"C.JPG", {a, a, a}},       {"d.jpg", {std::nullopt, std::nullopt, std::nullopt}},
        {"sub/B.jpg", {a, c, b}},   {"e.jpg", {b, a, c}}};
    doc = openPhotos(folder, photos);
    ASSERT_EQ(doc->rowCount(), static_cast<int>(photos.size()));
    // Some rows marked for editing, some with a changed text, in mixed combinations.
    for (const char* name : {"b.jpg", "sub/a.jpg", "d.jpg", "e.jpg"}) doc->itemForURL(folder / name)->setEdit(true);
    doc->itemForURL(folder / "sub/a.jpg")->setDateText(DateTargets::Original, "2001:01:01 00:00:00");
    doc->itemForURL(folder / "C.JPG")->setDateText(DateTargets::Edited, "2002:02:02 00:00:00");
    doc->itemForURL(folder / "e.jpg")->setDateText(DateTargets::Digitized, std::nullopt);
  }
};

TEST_F(SortFixture, EveryColumnAndCombinationGivesTheRowsOwnOrder) {
  const std::vector<Descriptors> cases{
      {{"FileName", true}}, {{"FileName", false}}, {{"DateTime", true}}, {{"DateTimeDigitized", false}},
      {{"DateTimeOriginal", true}}, {{"Edited", true}}, {{"Edited", false}}, {{"Edit", true}},
      {{"Edit", false}, {"Edited", true}}, {{"Edited", true}, {"DateTimeOriginal", false}, {"FileName", true}},
      {{"NoSuchColumn", true}, {"DateTimeDigitized", true}}, LumMultiFileDoc::initialSortDescriptors(),
  };
  for (const Descriptors& by : cases) {
    SCOPED_TRACE(by.front().key + (by.front().ascending ? " up" : " down") + " +" + std::to_string(by.size() - 1));
    const auto before = rows(*doc);
    doc->tableViewSortDescriptorsDidChange(by);
    EXPECT_EQ(paths(rows(*doc), folder), paths(referenceOrder(before, by), folder));
  }
}

}  // namespace
