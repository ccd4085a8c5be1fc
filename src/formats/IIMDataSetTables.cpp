#include "formats/IIMDataSetTables.h"

#include <array>

namespace IIMDataSetTables {
namespace {

struct TitleRow {
  std::uint8_t record;
  std::uint8_t dataSet;
  std::string_view title;
};

constexpr TitleRow kTitles[] = {
    {1, 0, "IIM Envelope Record Version"}, {1, 5, "IIM Destination"},
    {1, 20, "IIM File Format"}, {1, 22, "IIM File Format Version"},
    {1, 30, "IIM Service Identifier"}, {1, 40, "IIM Envelope Number"},
    {1, 50, "IIM Product ID"}, {1, 60, "IIM Envelope Priority"},
    {1, 70, "IIM Date Sent"}, {1, 80, "IIM Time Sent"},
    {1, 90, "IIM Coded Character Set"}, {1, 100, "IIM UNO"},
    {1, 120, "IIM ARM Identifier"}, {1, 122, "IIM ARM Version"},

    {2, 0, "IIM Application Record Version"}, {2, 3, "IIM Object Type Reference"},
    {2, 4, "IIM Object Attribute Reference"}, {2, 5, "IIM Object Name"},
    {2, 7, "IIM Edit Status"}, {2, 8, "IIM Editorial Update"},
    {2, 10, "IIM Urgency"}, {2, 12, "IIM Subject Reference"},
    {2, 15, "IIM Category"}, {2, 20, "IIM Supplemental Category"},
    {2, 22, "IIM Fixture Identifier"}, {2, 25, "IIM Keywords"},
    {2, 26, "IIM Content Location Code"}, {2, 27, "IIM Content Location Name"},
    {2, 30, "IIM Release Date"}, {2, 35, "IIM Release Time"},
    {2, 37, "IIM Expiration Date"}, {2, 38, "IIM Expiration Time"},
    {2, 40, "IIM Special Instructions"}, {2, 42, "IIM Action Advised"},
    {2, 45, "IIM Reference Service"}, {2, 47, "IIM Reference Date"},
    {2, 50, "IIM Reference Number"}, {2, 55, "IIM Date Created"},
    {2, 60, "IIM Time Created"}, {2, 62, "IIM Digital Creation Date"},
    {2, 63, "IIM Digital Creation Time"}, {2, 65, "IIM Originating Program"},
    {2, 70, "IIM Program Version"}, {2, 75, "IIM Object Cycle"},
    {2, 80, "IIM By-line"}, {2, 85, "IIM By-line Title"},
    {2, 90, "IIM City"}, {2, 92, "IIM Sublocation"},
    {2, 95, "IIM Province/State"}, {2, 100, "IIM Country Code"},
    {2, 101, "IIM Country"}, {2, 103, "IIM Transmission Reference"},
    {2, 105, "IIM Headline"}, {2, 110, "IIM Credit"},
    {2, 115, "IIM Source"}, {2, 116, "IIM Copyright Notice"},
    {2, 118, "IIM Contact"}, {2, 120, "IIM Caption"},
    {2, 122, "IIM Writer"}, {2, 125, "IIM Rasterized Caption"},
    {2, 130, "IIM Image Type"}, {2, 131, "IIM Image Orientation"},
    {2, 135, "IIM Language Identifier"}, {2, 150, "IIM Audio Type"},
    {2, 151, "IIM Audio Sampling Rate"}, {2, 152, "IIM Audio Sampling Resolution"},
    {2, 153, "IIM Audio Duration"}, {2, 154, "IIM Audio Outcue"},
    {2, 200, "IIM Object Data Preview File Format"},
    {2, 201, "IIM Object Data Preview File Format Version"},
    {2, 202, "IIM Object Data Preview Data"},

    {3, 0, "IIM NewsPhoto Record Version"}, {3, 10, "IIM Picture Number"},
    {3, 20, "IIM Image Width"}, {3, 30, "IIM Image Height"},
    {3, 40, "IIM Pixel Width"}, {3, 50, "IIM Pixel Height"},
    {3, 55, "IIM Supplement Type"}, {3, 60, "IIM Color Representation"},
    {3, 64, "IIM Interchange Color Space"}, {3, 65, "IIM Color Sequence"},
    {3, 66, "IIM ICC Profile"}, {3, 70, "IIM Color Calibration Matrix"},
    {3, 80, "IIM Lookup Table"}, {3, 84, "IIM Number of Index Entries"},
    {3, 85, "IIM Color Palette"}, {3, 86, "IIM Number of Bits per Sample"},
    {3, 90, "IIM Sampling Structure"}, {3, 100, "IIM Scanning Direction"},
    {3, 102, "IIM Image Rotation"}, {3, 110, "IIM Data Compression Method"},
    {3, 120, "IIM Quantization Method"}, {3, 125, "IIM End Points"},
    {3, 130, "IIM Excursion Tolerance"}, {3, 135, "IIM Bits per Component"},
    {3, 140, "IIM Maximum Density Range"}, {3, 145, "IIM Gamma Compensated Value"},
};

struct CountRow {
  std::uint8_t record;
  std::uint8_t dataSet;
  std::uint32_t minimum;
  std::uint32_t maximum;
};

// Only records 1 and 2 have limits; 2:202 keeps its equal minimum and maximum.
constexpr CountRow kByteCounts[] = {
    {1, 5, 0, 1024}, {1, 30, 1, 10}, {1, 40, 8, 8}, {1, 50, 0, 32},
    {1, 60, 1, 1}, {1, 70, 8, 8}, {1, 80, 11, 11}, {1, 90, 0, 32},

    {2, 5, 0, 64}, {2, 7, 0, 64}, {2, 25, 0, 64}, {2, 27, 0, 64}, {2, 101, 0, 64}, {2, 154, 0, 64},
    {2, 10, 1, 1}, {2, 75, 1, 1}, {2, 131, 1, 1},
    {2, 12, 13, 236},
    {2, 15, 3, 3}, {2, 26, 3, 3},
    {2, 20, 0, 32}, {2, 22, 0, 32}, {2, 65, 0, 32}, {2, 80, 0, 32}, {2, 85, 0, 32}, {2, 90, 0, 32},
    {2, 92, 0, 32}, {2, 95, 0, 32}, {2, 103, 0, 32}, {2, 110, 0, 32}, {2, 115, 0, 32}, {2, 122, 0, 32},
    {2, 30, 8, 8}, {2, 37, 8, 8}, {2, 47, 8, 8}, {2, 50, 8, 8}, {2, 55, 8, 8}, {2, 62, 8, 8},
    {2, 35, 11, 11}, {2, 38, 11, 11}, {2, 60, 11, 11}, {2, 63, 11, 11},
    {2, 40, 0, 256}, {2, 105, 0, 256},
    {2, 42, 2, 2}, {2, 130, 2, 2}, {2, 150, 2, 2}, {2, 152, 2, 2},
    {2, 45, 0, 10}, {2, 70, 0, 10},
    {2, 100, 0, 3},
    {2, 116, 0, 128}, {2, 118, 0, 128},
    {2, 120, 0, 2000},
    {2, 135, 2, 3},
    {2, 151, 6, 6}, {2, 153, 6, 6},
    {2, 202, 256000, 256000},
};

constexpr std::array<std::string_view, 22> kObjectAttributeNames = {
    "Current", "Analysis", "Archive material", "Background", "Feature", "Forecast",
    "History", "Obituary", "Opinion", "Polls & Surveys", "Profile",
    "Results Listings & Tables", "Side bar & Supporting information", "Summary",
    "Transcript & Verbatim", "Interview", "From the Scene", "Retrospective",
    "Statistics", "Update", "Wrap-up", "Press Release",
};

template <typename Row, std::size_t N>
const Row* find(const Row (&rows)[N], std::uint8_t record, std::uint8_t dataSet) {
  for (const Row& row : rows)
    if (row.record == record && row.dataSet == dataSet) return &row;
  return nullptr;
}

}  // namespace

std::string_view title(std::uint8_t record, std::uint8_t dataSetNumber) {
  const TitleRow* row = find(kTitles, record, dataSetNumber);
  return row ? row->title : std::string_view{};
}

std::uint64_t minimumByteCount(std::uint8_t record, std::uint8_t dataSetNumber) {
  const CountRow* row = find(kByteCounts, record, dataSetNumber);
  return row ? row->minimum : kUnknownByteCount;
}

std::uint64_t maximumByteCount(std::uint8_t record, std::uint8_t dataSetNumber) {
  const CountRow* row = find(kByteCounts, record, dataSetNumber);
  return row ? row->maximum : kUnknownByteCount;
}

std::string_view objectAttributeName(unsigned n) {
  if (n < 1 || n > kObjectAttributeNames.size()) return {};
  return kObjectAttributeNames[n - 1];
}

}  // namespace IIMDataSetTables
