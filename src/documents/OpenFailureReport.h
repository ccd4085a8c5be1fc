#pragma once
// The alert that lists the files an opening could not open.

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

#include "documents/LumFileLoader.h"

namespace OpenFailureReport {

struct AlertTexts {
  QString message;
  QString informativeText;
  QStringList paths;  // listed under the texts when several files failed
};

// None when nothing failed. One file is named in the message; several are
// listed by path. The informative text names the cause: a format the
// program does not read (code -1) before an unknown cause (code -2).
std::optional<AlertTexts> alertTexts(const std::vector<LumErrorInfo>& failures);

}  // namespace OpenFailureReport
