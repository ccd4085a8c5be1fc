// The commands part's side of the editing part: loads it from the commands
// part's own folder when `shift` or `set` runs.
#include <dlfcn.h>

#include <QTextStream>

#include <filesystem>
#include <string>

#include "cli/EditingPart.h"
#include "cli/PartLoading.h"

namespace cli {
namespace {

// The folder of the part this code is in (not of the program).
std::filesystem::path thisPartsFolder() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&runInEditingPart), &info) == 0 || !info.dli_fname) return {};
  return std::filesystem::path(info.dli_fname).parent_path();
}

}  // namespace

int runInEditingPart(const QStringList& args) {
  std::string failure;
  auto* run = reinterpret_cast<EditingMain*>(
      loadPartEntry({thisPartsFolder()}, kEditingPartName, kEditingEntryName, kCommandsPartName, failure));
  if (!run) {
    QTextStream(stderr) << "lumidate-cli: cannot load its editing commands (" << QString::fromStdString(failure) << ")\n";
    return 1;
  }
  return run(args);
}

}  // namespace cli
