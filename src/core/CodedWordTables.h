#pragma once
// The words shown for coded SHORT values, as data. Each coded tag has a list
// of (code, word) pairs; a code without a pair takes the tag's fallback. An
// empty word is a real entry and shows as empty.

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

#include "core/TagInfo.h"

namespace orb::codedwords {

struct CodeWord {
  std::uint16_t code;
  std::string_view word;
};

// What a code without a word shows. The groups differ on purpose: an unknown
// SceneCaptureType shows nothing, an unknown ExposureProgram its number.
enum class Fallback : std::uint8_t {
  Empty,     // ""
  Signed,    // "%d"
  Unsigned,  // "%u" (Flash)
};

struct CodedTag {
  std::uint32_t ifdID;
  std::uint16_t tag;
  Fallback fallback;
  std::span<const CodeWord> words;
  // The words apply to entries whose Exif version lies in [fromVersion, toVersion].
  std::uint32_t fromVersion = 0;
  std::uint32_t toVersion = std::numeric_limits<std::uint32_t>::max();
};

// TIFF IFD
inline constexpr CodeWord kCompression[] = {
    {1, "Uncompressed"}, {5, "LZW"}, {6, "JPEG Compression"}, {32766, "NEXT"}, {32773, "PackBits"}};
inline constexpr CodeWord kPhotometric[] = {
    {0, "Grayscale"}, {1, "Grayscale"}, {2, "RGB"}, {3, "Palette Color"}, {4, "Transparency Mask"},
    {5, "CMYK"},      {6, "YCbCr"},     {8, "Lab"}, {9, "Lab"},           {10, "Lab"}};
inline constexpr CodeWord kOrientation[] = {
    {1, "1 Top-Left"},  {2, "2 Top-Right"}, {3, "3 Bottom-Right"}, {4, "4 Bottom-Left"},
    {5, "5 Left-Top"},  {6, "6 Right-Top"}, {7, "7 Right-Bottom"}, {8, "8 Left-Bottom"}};
inline constexpr CodeWord kPlanar[] = {{1, "Chunky Format"}, {2, "Planar Format"}};
// 1 means "no absolute unit", shown as nothing.
inline constexpr CodeWord kResolutionUnit[] = {{1, ""}, {2, "inches"}, {3, "centimeters"}};
inline constexpr CodeWord kPredictor[] = {
    {1, "Non"}, {2, "Horizontal differencing"}, {3, "Floating point horizontal differencing"}};
inline constexpr CodeWord kYCbCrPositioning[] = {{1, "Centered"}, {2, "Co-sited"}};
inline constexpr CodeWord kMakerNoteSafety[] = {{0, "Unsafe"}, {1, "Safe"}};

// Exif IFD
inline constexpr CodeWord kExposureProgram[] = {
    {0, "Not Defined"},      {1, "Manual"},         {2, "Normal Program"},
    {3, "Aperture Priority"}, {4, "Shutter Priority"}, {5, "Creative Program"},
    {6, "Action Program"},   {7, "Portrait Mode"},  {8, "Landscape Mode"}};
inline constexpr CodeWord kSensitivityType[] = {
    {0, "Unknown"},     {1, "SOS (Standard Output Sensitivity)"}, {2, "REI (Recommended Exposure Index)"},
    {3, "ISO Speed"},   {4, "SOS and REI"},                       {5, "SOS and ISO Speed"},
    {6, "REI and ISO Speed"}, {7, "SOS, REI and ISO Speed"}};
inline constexpr CodeWord kMeteringMode[] = {
    {0, "Unknown"}, {1, "Average"}, {2, "Center Weighted Average"}, {3, "Spot"},
    {4, "Multi-Spot"}, {5, "Pattern"}, {6, "Partial"}, {255, "Other"}};
inline constexpr CodeWord kLightSourceAll[] = {
    {0, "Unknown"},        {1, "Daylight"},          {2, "Fluorescent"},       {3, "Tungsten"},
    {4, "Flash"},          {9, "Fine Weather"},      {10, "Cloudy Weather"},   {11, "Shade"},
    {12, "Daylight Fluorescent"}, {17, "Standard Light A"}, {18, "Standard Light B"},
    {19, "Standard Light C"}, {20, "D55"}, {21, "D65"}, {22, "D75"}, {23, "D50"},
    {24, "ISO Studio Tungsten"}, {255, "Other Light Source"}};
inline constexpr CodeWord kLightSourceBefore230[] = {
    {13, "Day White Fluorescent"}, {14, "Cool White Fluorescent"}, {15, "White Fluorescent"}};
// The " 0230" suffix is part of the key: translations tell the two
// generations of the fluorescent codes apart by it.
inline constexpr CodeWord kLightSourceFrom230[] = {
    {13, "Day White Fluorescent 0230"}, {14, "Cool White Fluorescent 0230"},
    {15, "White Fluorescent 0230"},     {16, "Warm White Fluorescent"}};
// Whole values only: the flash field is not decoded bit by bit.
inline constexpr CodeWord kFlash[] = {
    {0, "Did not Fire"},
    {1, "Fired"},
    {5, "Fired, Return Light not Detected"},
    {7, "Fired, Return Light Detected"},
    {9, "Fired, Compulsory Flash Mode"},
    {13, "Fired, Compulsory Flash Mode, Return Light not Detected"},
    {15, "Fired, Compulsory Flash Mode, Return Light Detected"},
    {16, "Did not Fire, Compulsory Flash Suppression Mode"},
    {24, "Did not Fire, Auto Mode"},
    {25, "Fired, Auto Mode"},
    {29, "Fired, Auto Mode, Return Light not Detected"},
    {31, "Fired, Auto Mode, Return Light Detected"},
    {32, "No Flash Function"},
    {65, "Fired, Red-eye Reduction Mode"},
    {69, "Fired, Red-eye Reduction Mode, Return Light not Detected"},
    {71, "Fired, Red-eye Reduction Mode, Return Light Detected"},
    {73, "Fired, Compulsory Flash Mode, Red-eye Reduction Mode"},
    {77, "Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light not Detected"},
    {79, "Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light Detected"},
    {89, "Fired, Auto Mode, Red-eye Reduction Mode"},
    {93, "Fired, Auto Mode, Return Light not Detected, Red-eye Reduction Mode"},
    {95, "Fired, Auto Mode, Return Light Detected, Red-eye Reduction Mode"}};
inline constexpr CodeWord kColorSpace[] = {{1, "sRGB"}, {65535, "Uncalibrated"}};
inline constexpr CodeWord kSensingMethod[] = {
    {1, "Not Defined"}, {2, "One-Chip Color Area Sensor"}, {3, "Two-Chip Color Area Sensor"},
    {4, "Three-Chip Color Area Sensor"}, {5, "Color Sequential Area Sensor"}, {6, ""},
    {7, "Trilinear Sensor"}, {8, "Color Sequential Linear Sensor"}};
inline constexpr CodeWord kFileSource[] = {
    {0, "Others"}, {1, "Scanner of Transparent Type"}, {2, "Scanner of Reflex Type"}, {3, "DSC"}};
inline constexpr CodeWord kSceneType[] = {{1, "Directly Photographed Image"}};
inline constexpr CodeWord kCustomRendered[] = {{0, "Normal Process"}, {1, "Custom Process"}};
inline constexpr CodeWord kExposureMode[] = {{0, "Auto Exposure"}, {1, "Manual Exposure"}, {2, "Auto Bracket"}};
inline constexpr CodeWord kWhiteBalance[] = {{0, "Auto White Balance"}, {1, "Manual White Balance"}};
inline constexpr CodeWord kSceneCaptureType[] = {
    {0, "Standard"}, {1, "Landscape"}, {2, "Portrait"}, {3, "Night Scene"}};
inline constexpr CodeWord kGainControl[] = {
    {0, "None"}, {1, "Low Gain Up"}, {2, "High Gain Up"}, {3, "Low Gain Down"}, {4, "High Gain Down"}};
inline constexpr CodeWord kContrast[] = {{0, "Normal"}, {1, "Soft"}, {2, "Hard"}};
inline constexpr CodeWord kSaturation[] = {{0, "Normal"}, {1, "Low Saturation"}, {2, "High Saturation"}};
inline constexpr CodeWord kSharpness[] = {{0, "Normal"}, {1, "Soft Sharpness"}, {2, "Hard Sharpness"}};
inline constexpr CodeWord kSubjectDistanceRange[] = {
    {0, "Unknown"}, {1, "Macro"}, {2, "Close View"}, {3, "Distant View"}};
inline constexpr CodeWord kCompositeImage[] = {
    {0, "Unknown"}, {1, "Non-Composite Image"}, {2, "General Composite Image"},
    {3, "Composite Image Captured When Shooting Reserved"}};

inline constexpr CodedTag kCodedTags[] = {
    {kTIFFIFDID, 259, Fallback::Signed, kCompression},
    {kTIFFIFDID, 262, Fallback::Signed, kPhotometric},
    {kTIFFIFDID, 274, Fallback::Signed, kOrientation},
    {kTIFFIFDID, 284, Fallback::Signed, kPlanar},
    {kTIFFIFDID, 296, Fallback::Signed, kResolutionUnit},
    {kTIFFIFDID, 317, Fallback::Empty, kPredictor},
    {kTIFFIFDID, 531, Fallback::Signed, kYCbCrPositioning},
    {kTIFFIFDID, 50741, Fallback::Empty, kMakerNoteSafety},
    {kExifIFDID, 34850, Fallback::Signed, kExposureProgram},
    {kExifIFDID, 34864, Fallback::Empty, kSensitivityType},
    {kExifIFDID, 37383, Fallback::Signed, kMeteringMode},
    {kExifIFDID, 37384, Fallback::Signed, kLightSourceAll},
    {kExifIFDID, 37384, Fallback::Signed, kLightSourceBefore230, 0, 229},
    {kExifIFDID, 37384, Fallback::Signed, kLightSourceFrom230, 230},
    {kExifIFDID, 37385, Fallback::Unsigned, kFlash},
    {kExifIFDID, 40961, Fallback::Signed, kColorSpace},
    {kExifIFDID, 41488, Fallback::Empty, kResolutionUnit},
    {kExifIFDID, 41495, Fallback::Empty, kSensingMethod},
    {kExifIFDID, 41728, Fallback::Signed, kFileSource},
    {kExifIFDID, 41729, Fallback::Signed, kSceneType},
    {kExifIFDID, 41985, Fallback::Signed, kCustomRendered},
    {kExifIFDID, 41986, Fallback::Signed, kExposureMode},
    {kExifIFDID, 41987, Fallback::Signed, kWhiteBalance},
    {kExifIFDID, 41990, Fallback::Empty, kSceneCaptureType},
    {kExifIFDID, 41991, Fallback::Empty, kGainControl},
    {kExifIFDID, 41992, Fallback::Empty, kContrast},
    {kExifIFDID, 41993, Fallback::Empty, kSaturation},
    {kExifIFDID, 41994, Fallback::Empty, kSharpness},
    {kExifIFDID, 41996, Fallback::Empty, kSubjectDistanceRange},
    {kExifIFDID, 42080, Fallback::Empty, kCompositeImage},
};

// YCbCrSubSampling shows its pair of values; these pairs have names.
struct SubSamplingName {
  std::uint16_t horizontal, vertical;
  std::string_view word;
};
inline constexpr SubSamplingName kSubSamplingNames[] = {{2, 1, "YCbCr 4:2:2"}, {2, 2, "YCbCr 4:2:0"}};
inline constexpr std::uint16_t kYCbCrSubSamplingTag = 530;

}  // namespace orb::codedwords
