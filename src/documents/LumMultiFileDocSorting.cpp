// Sorting of the multi-file document's rows by the table's descriptors.
#include <algorithm>
#include <array>
#include <memory>
#include <vector>
#include <string_view>

#include "documents/LumMultiFileDoc.h"

namespace {

using Comparison = int (LumFileItemDoc::*)(const LumFileItemDoc&) const;

struct SortColumn {
  std::string_view key;
  Comparison compare;
};

constexpr std::array<SortColumn, 6> kSortColumns{{
    {"FileName", &LumFileItemDoc::compareForFileName},
    {"DateTime", &LumFileItemDoc::compareForDateTime},
    {"DateTimeDigitized", &LumFileItemDoc::compareForDateTimeDigitized},
    {"DateTimeOriginal", &LumFileItemDoc::compareForDateTimeOriginal},
    {"Edited", &LumFileItemDoc::compareForEdited},
    {"Edit", &LumFileItemDoc::compareForEdit},
}};

Comparison comparisonFor(std::string_view key) {
  for (const SortColumn& c : kSortColumns)
    if (c.key == key) return c.compare;
  return nullptr;
}

}  // namespace

const std::vector<LumMultiFileDoc::SortDescriptor>& LumMultiFileDoc::initialSortDescriptors() {
  static const std::vector<SortDescriptor> descriptors = [] {
    std::vector<SortDescriptor> list;
    for (const SortColumn& c : kSortColumns) list.push_back({std::string(c.key), true});
    return list;
  }();
  return descriptors;
}

void LumMultiFileDoc::tableViewSortDescriptorsDidChange(std::vector<SortDescriptor> descriptors) {
  sortDescriptors_ = std::move(descriptors);
  _sortTableView();
}

void LumMultiFileDoc::_sortTableView() {
  // Each descriptor's comparison is looked up once per sort, and the edited
  // state (which compares every text of a row with the file's) once per row,
  // not once per comparison: a sort makes some n log n comparisons.
  struct Column {
    Comparison compare;
    bool ascending;
    bool byEdited;
  };
  std::vector<Column> columns;
  for (const SortDescriptor& d : sortDescriptors_)
    if (const Comparison compare = comparisonFor(d.key))
      columns.push_back({compare, d.ascending, compare == &LumFileItemDoc::compareForEdited});
  const bool needsEdited = std::any_of(columns.begin(), columns.end(), [](const Column& c) { return c.byEdited; });

  struct Row {
    bool edited;
    std::unique_ptr<LumFileItemDoc> item;
  };
  std::vector<Row> rows;
  rows.reserve(items_.size());
  for (auto& item : items_) {
    const bool edited = needsEdited && item->isEdited();
    rows.push_back({edited, std::move(item)});
  }

  // The selection is held as items, so it follows them to their new rows.
  std::stable_sort(rows.begin(), rows.end(), [&columns](const Row& a, const Row& b) {
    for (const Column& c : columns) {
      int order = 0;
      if (!c.byEdited) order = ((*a.item).*c.compare)(*b.item);
      else if (a.edited != b.edited) order = a.edited ? -1 : 1;  // same order as compareForEdited
      else order = a.item->compareForFileName(*b.item);
      if (order != 0) return c.ascending ? order < 0 : order > 0;
    }
    return false;
  });
  for (std::size_t i = 0; i < rows.size(); ++i) items_[i] = std::move(rows[i].item);
  emit rowsChanged();
}
