#include "documents/SaveReport.h"

#include "documents/LumLocalized.h"

namespace SaveReport {
namespace {

QString fileName(const Failure& f) { return QString::fromStdString(f.path.filename().string()); }

}  // namespace

std::optional<AlertTexts> alertTexts(std::size_t total, const std::vector<Failure>& failures) {
  if (failures.empty()) return std::nullopt;
  const std::size_t saved = total >= failures.size() ? total - failures.size() : 0;
  const QString savedText = LumLocalized::format("Save Completed:", LumLocalized::count(saved));
  AlertTexts alert;
  if (failures.size() == 1) {
    alert.message = LumLocalized::format("Save a file Failed.", fileName(failures.front()));
    alert.informativeText = savedText + "\n\n" + QString::fromStdString(failures.front().reason);
    return alert;
  }
  alert.message = LumLocalized::format("Save files Failed.", LumLocalized::count(failures.size()));
  alert.informativeText = savedText + "\n";
  for (std::size_t i = 0; i < failures.size(); ++i) {
    alert.informativeText += "\n" + fileName(failures[i]) + ": " + QString::fromStdString(failures[i].reason);
    // The dots follow the tenth line even when there is no eleventh.
    if (i + 1 == kListedFailures) {
      alert.informativeText += "\n..........";
      break;
    }
  }
  return alert;
}

}  // namespace SaveReport
