#include "formats/ImageResourceTitles.h"

namespace ImageResourceTitles {
namespace {

struct Row {
  std::uint16_t id;
  std::string_view title;
};

// Ids missing here (1004, 1031, 1048, ...) fall through to the ranges below.
constexpr Row kTitles[] = {
    {1000, "Info (Photoshop 2.0)"}, {1001, "Macintosh Print Info"}, {1002, "XML Data"},
    {1003, "Indexed Color Table (Photoshop 2.0)"}, {1005, "Resolution Info"},
    {1006, "Names of the Alpha Channels"}, {1007, "Display Info (Obsolete)"}, {1008, "Caption"},
    {1009, "Border Info"}, {1010, "Background Color"}, {1011, "Print Flags"},
    {1012, "Grayscale and Multichannel Halftoning Info"}, {1013, "Color Halftoning Info"},
    {1014, "Duotone Halftoning Info"}, {1015, "Grayscale and Multichannel Transfer Function"},
    {1016, "Color Transfer Functions"}, {1017, "Duotone Transfer Functions"},
    {1018, "Duotone Image Info"}, {1019, "Effective Black and White"}, {1020, "(Obsolete)"},
    {1021, "EPS Options"}, {1022, "Quick Mask Info"}, {1023, "(Obsolete)"}, {1024, "Layer State"},
    {1025, "Working Path"}, {1026, "Layers Group"}, {1027, "(Obsolete)"}, {1028, "IPTC IIM"},
    {1029, "Image Mode"}, {1030, "JPEG Quality"}, {1032, "Grid and Guides"}, {1033, "BGR Thumbnail"},
    {1034, "Copyright Flag"}, {1035, "URL"}, {1036, "RGB Thumbnail"}, {1037, "Global Angle"},
    {1038, "Color Samplers"}, {1039, "ICC Profile"}, {1040, "Watermark"}, {1041, "ICC Untagged"},
    {1042, "Effects Visible"}, {1043, "Spot Halftone"}, {1044, "Document Specific IDs"},
    {1045, "Unicode Alpha Names"}, {1046, "Indexed Color Table Count"}, {1047, "Transparency Index"},
    {1049, "Global Altitude"}, {1050, "Slices"}, {1051, "Workflow URL"}, {1052, "Jump to XPEP"},
    {1053, "Alpha Identifiers"}, {1054, "URL List"}, {1057, "Version Info"}, {1058, "Exif"},
    {1059, "Exif"}, {1060, "XMP Metadata"}, {1061, "Caption Digest"}, {1062, "Print Scale"},
    {1064, "Pixel Aspect Ratio"}, {1065, "Layer Comps"}, {1066, "Alternate Duotone Colors"},
    {1067, "Alternate Spot Colors"}, {1069, "Layer Selection IDs"}, {1070, "HDR Toning Info"},
    {1071, "Print Info"}, {1072, "Layer Groups Enabled ID"}, {1073, "Color Samplers Resource"},
    {1074, "Measurement Scale"}, {1075, "Timeline Info"}, {1076, "Sheet Disclosure"},
    {1077, "Display Info"}, {1078, "Onion Skins"}, {1080, "Count Info"}, {1082, "Print Info"},
    {1083, "Print Style"}, {1084, "Macintosh NSPrintInfo"}, {1085, "Windows DEVMODE"},
    {2999, "Name of Clipping Path"}, {7000, "Image Ready Variables"}, {7001, "Image Ready Data Sets"},
    {8000, "Lightroom Workflow"}, {10000, "Print Flags Info"},
};

}  // namespace

std::string_view title(std::uint16_t irbID) {
  for (const Row& row : kTitles)
    if (row.id == irbID) return row.title;
  // 2999 has its own title above, so the path range ends at 2998.
  if (irbID >= 2000 && irbID <= 2998) return "Path Info";
  if (irbID >= 4000 && irbID <= 4999) return "Plug-In resources";
  return "Unknown";
}

}  // namespace ImageResourceTitles
