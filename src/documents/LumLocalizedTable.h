#pragma once
// English formats of the keys that take arguments. A key not listed here is
// shown as it is.

#include <string_view>

namespace LumLocalized {

struct EnglishFormat {
  std::string_view key;
  std::string_view english;
};

inline constexpr EnglishFormat kEnglishFormats[] = {
    {"Save Completed:", "Save Completed: %1"},
    {"Save a file Failed.", "Save a file Failed. (%1)"},
    {"Save files Failed.", "Save files Failed. (%1 files)"},
    {"LocalST_ImagesWindowTitle", "%1 (%2 images)"},
    {"The document has unsaved changes. Do you want to save the changes before closing?",
     "The document \"%1\" has unsaved changes. Do you want to save the changes before closing?"},
    {"Could not be opened.", "\"%1\" could not be opened."},
    {"This file cannot be edited:", "This file cannot be edited: %1."},
    {"You are opening multiple files.", "You are opening %1 files."},
    {"Loading files", "Loading %1 files..."},
    {"%@ / %lu", "%1 / %2"},
    {"%ld x %ld", "%1 x %2"},
    {", %@", ", %1"},
    {"days", "%1 days"},
    {"day", "%1 day"},
};

}  // namespace LumLocalized
