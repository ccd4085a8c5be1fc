// Sorting of the multi-file document's rows by the table's descriptors.
#include <algorithm>
#include <array>
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
  // The selection is held as items, so it follows them to their new rows.
  std::stable_sort(items_.begin(), items_.end(), [this](const auto& a, const auto& b) {
    for (const SortDescriptor& d : sortDescriptors_) {
      const Comparison compare = comparisonFor(d.key);
      if (!compare) continue;
      const int order = ((*a).*compare)(*b);
      if (order != 0) return d.ascending ? order < 0 : order > 0;
    }
    return false;
  });
  emit rowsChanged();
}
