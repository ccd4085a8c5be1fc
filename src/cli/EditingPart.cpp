// Runs set and shift from the editing part, loaded on first use from beside
// the program (build tree) or from its library folder (installed).
#include <QTextStream>
#include <dlfcn.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "cli/EditingEntry.h"

namespace cli {
namespace {

namespace fs = std::filesystem;

// The folder of the running program, whatever name it was started by.
fs::path programFolder() {
  std::error_code error;
  const fs::path self = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : self.parent_path();
}

// The handle stays open until the process ends: the part has loaded Qt Gui,
// which is not made to be unloaded.
void* openEditingPart(QString& failure) {
  const fs::path folder = programFolder();
  for (const char* relative : {".", LUMIDATE_CLI_EDITING_FOLDER}) {
    const fs::path candidate = (folder / relative / kEditingPartName).lexically_normal();
    if (!fs::exists(candidate)) continue;
    if (void* handle = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL)) return handle;
    failure = QString::fromLocal8Bit(dlerror());
    return nullptr;
  }
  failure = QString("%1 is not installed beside lumidate-cli").arg(kEditingPartName);
  return nullptr;
}

int runInEditingPart(const char* entryName, const QStringList& args) {
  QString failure;
  void* part = openEditingPart(failure);
  auto* entry = part ? reinterpret_cast<EditingEntry*>(dlsym(part, entryName)) : nullptr;
  if (part && !entry) failure = QString("%1 has no entry %2").arg(kEditingPartName, entryName);
  if (!entry) {
    QTextStream(stderr) << "lumidate-cli " << args.value(0) << ": cannot load the part that edits files ("
                        << failure << ")\n";
    return 1;
  }
  return entry(args);
}

}  // namespace

int runSet(const QStringList& args) { return runInEditingPart("lumidate_cli_set", args); }
int runShift(const QStringList& args) { return runInEditingPart("lumidate_cli_shift", args); }

}  // namespace cli
