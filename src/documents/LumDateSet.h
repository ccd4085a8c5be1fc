#pragma once
// A date set: for each file, the texts of some of its dates under the keys
// "LumDateTimeOriginalKey", "LumDateTimeDigitizedKey", "LumDateTimeEditedKey".
// One set is the unit of an undoable change of the multi-file document.

#include <filesystem>
#include <map>
#include <string>

using LumDateMap = std::map<std::string, std::string, std::less<>>;
using LumDateSet = std::map<std::filesystem::path, LumDateMap>;
