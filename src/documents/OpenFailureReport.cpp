#include "documents/OpenFailureReport.h"

#include <algorithm>

#include "documents/LumLocalized.h"

namespace OpenFailureReport {

namespace {

bool hasCode(const std::vector<LumErrorInfo>& failures, int code) {
  return std::any_of(failures.begin(), failures.end(), [code](const LumErrorInfo& info) {
    return info.error.domain == kLumErrorDomain && info.error.code == code;
  });
}

QString causeText(const std::vector<LumErrorInfo>& failures) {
  if (hasCode(failures, -1)) return LumLocalized::text("It uses a file format that Lumidate does not recognize.");
  if (hasCode(failures, -2)) return LumLocalized::text("An unknown cause.");
  return {};
}

}  // namespace

std::optional<AlertTexts> alertTexts(const std::vector<LumErrorInfo>& failures) {
  if (failures.empty()) return std::nullopt;
  AlertTexts texts;
  texts.informativeText = causeText(failures);
  if (failures.size() == 1) {
    const QString name = QString::fromStdString(failures.front().url.filename().string());
    texts.message = LumLocalized::format("Could not be opened.", name);
    return texts;
  }
  texts.message = LumLocalized::text("The files could not be opened.");
  for (const LumErrorInfo& info : failures) texts.paths << QString::fromStdString(info.url.string());
  return texts;
}

}  // namespace OpenFailureReport
