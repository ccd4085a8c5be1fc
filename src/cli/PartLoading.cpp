#include "cli/PartLoading.h"

#include <dlfcn.h>

namespace cli {

void* loadPartEntry(std::initializer_list<std::filesystem::path> folders, const char* name, const char* entry,
                    const char* owner, std::string& failure) {
  for (const std::filesystem::path& folder : folders) {
    const std::filesystem::path candidate = (folder / name).lexically_normal();
    if (!std::filesystem::exists(candidate)) continue;
    void* part = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!part) {
      failure = dlerror();
      return nullptr;
    }
    if (void* symbol = dlsym(part, entry)) return symbol;
    failure = candidate.string() + " has no entry " + entry;
    return nullptr;
  }
  failure = std::string(name) + " is not installed beside " + owner;
  return nullptr;
}

}  // namespace cli
