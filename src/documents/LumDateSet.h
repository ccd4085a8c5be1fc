#pragma once
// A date set: for each file, the texts of some of its dates under the keys
// "LumDateTimeOriginalKey", "LumDateTimeDigitizedKey", "LumDateTimeEditedKey".
// One set is the unit of an undoable change of the multi-file document.

#include <filesystem>
#include <map>
#include <string>

using LumDateMap = std::map<std::string, std::string, std::less<>>;

// Orders paths by their text: a set is only looked up by the items' own
// paths, and comparing the text is far cheaper than comparing path
// components one by one (a change of 10,000 files makes some 280,000
// comparisons).
struct LumPathTextLess {
  bool operator()(const std::filesystem::path& a, const std::filesystem::path& b) const {
    return a.native() < b.native();
  }
};

using LumDateSet = std::map<std::filesystem::path, LumDateMap, LumPathTextLess>;
