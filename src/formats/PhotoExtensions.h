#pragma once
// The file name extensions taken as photos: by folder expansion, drops, the
// files a later process hands over, the command line's file arguments and
// the open dialog's filters.
//
// The JPEG and TIFF ones are compared exactly, as they always were ("Jpg" is
// not taken); the others without regard to case, since cameras and phones
// write them either way. Videos are never taken from a folder; one named on
// its own is taken so that opening it can say why it is refused.

#include <array>
#include <string_view>

namespace PhotoExtensions {

// Without the dot, in the only spellings taken.
inline constexpr std::array<std::string_view, 8> kExact{"jpg", "JPG", "jpeg", "JPEG", "tif", "TIF", "tiff", "TIFF"};

// The groups the open dialog offers a filter for.
enum class Family { CameraRaw, Heif, Png, WebP };

struct AnyCase {
  std::string_view extension;  // lower case, without the dot
  Family family;
};

inline constexpr std::array<AnyCase, 25> kAnyCase{{
    {"dng", Family::CameraRaw}, {"cr2", Family::CameraRaw}, {"cr3", Family::CameraRaw},
    {"nef", Family::CameraRaw}, {"nrw", Family::CameraRaw}, {"arw", Family::CameraRaw},
    {"sr2", Family::CameraRaw}, {"srf", Family::CameraRaw}, {"pef", Family::CameraRaw},
    {"srw", Family::CameraRaw}, {"erf", Family::CameraRaw}, {"3fr", Family::CameraRaw},
    {"mef", Family::CameraRaw}, {"mos", Family::CameraRaw}, {"iiq", Family::CameraRaw},
    {"rwl", Family::CameraRaw}, {"orf", Family::CameraRaw}, {"rw2", Family::CameraRaw},
    {"raf", Family::CameraRaw}, {"heic", Family::Heif},     {"heif", Family::Heif},
    {"hif", Family::Heif},      {"avif", Family::Heif},     {"png", Family::Png},
    {"webp", Family::WebP},
}};

// Videos, in any case: taken only when named on their own.
inline constexpr std::array<std::string_view, 2> kVideos{"mp4", "mov"};

}  // namespace PhotoExtensions
