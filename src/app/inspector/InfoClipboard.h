#pragma once
// The inspector's Copy: the selected rows as text ("Title<TAB>Value" lines)
// and, for entry rows, as archived entries that a paste reads back.

#include <QMimeData>

#include <memory>
#include <vector>

#include "core/OrbIFDEntry.h"

struct LumInfoRow;

namespace InfoClipboard {

// The first entry's archive, as one entry is pasted.
inline constexpr const char* kEntryMimeType = "application/x-lumidate.OrbIFDEntry";
// Every copied entry's archive, in row order.
inline constexpr const char* kEntryListMimeType = "application/x-lumidate.OrbIFDEntryList";

std::unique_ptr<QMimeData> mimeDataForRows(const std::vector<const LumInfoRow*>& rows);
// The entries of copied data, in row order; none when it holds no entry.
std::vector<OrbIFDEntry> entriesFromMimeData(const QMimeData& data);

}  // namespace InfoClipboard
