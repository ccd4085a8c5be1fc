#include "documents/OpenFailureReport.h"

#include <algorithm>

#include "documents/LumLocalized.h"
#include "formats/containers/ContainerScan.h"

namespace OpenFailureReport {

namespace {

bool hasCode(const std::vector<LumErrorInfo>& failures, int code) {
  return std::any_of(failures.begin(), failures.end(), [code](const LumErrorInfo& info) {
    return info.error.domain == kLumErrorDomain && info.error.code == code;
  });
}

// Why a file of a known format is not opened, in the user's language where
// the reason is one of the program's own words.
QString refusalText(const std::string& reason) {
  if (reason == lum::kVideoRefusal) return LumLocalized::text("Videos are not edited yet.");
  return LumLocalized::format("This file cannot be edited:", QString::fromStdString(reason));
}

QString causeText(const std::vector<LumErrorInfo>& failures) {
  const auto refused = std::find_if(failures.begin(), failures.end(), [](const LumErrorInfo& info) {
    return info.error.domain == kLumErrorDomain && info.error.code == kLumErrorRefused;
  });
  if (failures.size() == 1 && refused != failures.end()) return refusalText(refused->error.reason);
  if (hasCode(failures, -1) || refused != failures.end()) return LumLocalized::text("It uses a file format that Lumidate does not recognize.");
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
