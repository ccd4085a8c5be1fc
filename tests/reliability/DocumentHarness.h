#pragma once
// Drives a multi-file document the way the window does, for the reliability
// tests: opens files into rows, applies a shift, saves and waits for the
// outcome.

#include <QCoreApplication>

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "documents/LumMultiFileDoc.h"

namespace reltest {

// The Qt application object the document's threads need; one per process.
QCoreApplication& qtApp();

// Opens every path as a row; a path that does not open is left out.
std::unique_ptr<LumMultiFileDoc> openDocument(const std::vector<std::filesystem::path>& paths);

// Marks every row and applies a shift of one day and one second forward.
void shiftAllOneDay(LumMultiFileDoc& doc);

// Saves every edited file and waits for the outcome (none after a minute).
std::optional<LumSaveOutcome> saveAndWait(LumMultiFileDoc& doc);

}  // namespace reltest
