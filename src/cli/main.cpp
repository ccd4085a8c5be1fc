// lumidate-cli: shows and corrects the dates inside photo files from scripts.
//
// The plain listing, `dates [--json] PATH...`, runs here without any Qt
// library; everything else runs in the commands part, loaded on demand from
// beside the program (build tree) or from its library folder (installed).
#include <dlfcn.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "cli/CommandsPart.h"
#include "cli/DatesListing.h"

namespace {

namespace fs = std::filesystem;

struct PlainListing {
  std::vector<fs::path> paths;
  bool json = false;
};

// `dates` followed only by --json and paths, with at least one path; a
// lone "--" ends the options. Anything else (help, unknown options, no
// path) is left to the commands part, which parses it and answers in full.
std::optional<PlainListing> plainListing(int argc, char** argv) {
  if (argc < 3 || std::strcmp(argv[1], "dates") != 0) return std::nullopt;
  PlainListing listing;
  bool options = true;
  for (int i = 2; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (options && arg == "--") options = false;
    else if (options && arg == "--json") listing.json = true;
    else if (options && arg.starts_with('-')) return std::nullopt;
    else listing.paths.emplace_back(arg);
  }
  if (listing.paths.empty()) return std::nullopt;
  return listing;
}

// The folder of the running program, whatever name it was started by.
fs::path programFolder() {
  std::error_code error;
  const fs::path self = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : self.parent_path();
}

// The handle is never closed: the part loads Qt, which is not made to be
// unloaded.
cli::CommandsMain* loadCommands(std::string& failure) {
  const fs::path folder = programFolder();
  for (const char* relative : {".", LUMIDATE_CLI_PART_FOLDER}) {
    const fs::path candidate = (folder / relative / cli::kCommandsPartName).lexically_normal();
    if (!fs::exists(candidate)) continue;
    void* part = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!part) {
      failure = dlerror();
      return nullptr;
    }
    if (auto* entry = reinterpret_cast<cli::CommandsMain*>(dlsym(part, cli::kCommandsEntryName))) return entry;
    failure = candidate.string() + " has no entry " + cli::kCommandsEntryName;
    return nullptr;
  }
  failure = std::string(cli::kCommandsPartName) + " is not installed beside lumidate-cli";
  return nullptr;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (const std::optional<PlainListing> listing = plainListing(argc, argv))
    return cli::listDates(listing->paths, listing->json);
  std::string failure;
  cli::CommandsMain* commands = loadCommands(failure);
  if (!commands) {
    std::fprintf(stderr, "lumidate-cli: cannot load its commands (%s)\n", failure.c_str());
    return 1;
  }
  return commands(argc, argv);
}
