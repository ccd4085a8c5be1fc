#pragma once
// Loading a part of lumidate-cli (a shared object beside the program or in
// its library folder) and finding its entry point. No Qt.

#include <filesystem>
#include <initializer_list>
#include <string>

namespace cli {

// Looks for name in each folder in turn, loads the first found and answers
// its symbol entry; null with the reason in failure otherwise ("NAME is not
// installed beside OWNER" when no folder has it). The handle
// is never closed: the parts load Qt, which is not made to be unloaded.
void* loadPartEntry(std::initializer_list<std::filesystem::path> folders, const char* name, const char* entry,
                    const char* owner, std::string& failure);

}  // namespace cli
