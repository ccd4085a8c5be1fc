// lumidate-cli: shows and corrects the dates inside photo files from scripts.
//
// The plain listing, `dates [--json] [--verbose] PATH...`, runs here without any Qt
// library; everything else runs in the commands part, loaded on demand from
// beside the program (build tree) or from its library folder (installed).
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "cli/CommandsPart.h"
#include "cli/DatesListing.h"
#include "cli/PartLoading.h"
#include "core/ConsoleLog.h"

namespace {

namespace fs = std::filesystem;

struct PlainListing {
  std::vector<fs::path> paths;
  bool json = false;
  bool verbose = false;
};

// `dates` followed only by --json, --verbose and paths, with at least one path; a
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
    else if (options && arg == "--verbose") listing.verbose = true;
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

}  // namespace

int main(int argc, char* argv[]) {
  if (const std::optional<PlainListing> listing = plainListing(argc, argv)) {
    // The engine's notes on damaged files are for --verbose: each file that
    // cannot be opened gets its own line naming the file and the reason.
    if (!listing->verbose) orb::setLogSink(&orb::logNowhere);
    return cli::listDates(listing->paths, listing->json);
  }
  std::string failure;
  const fs::path folder = programFolder();
  auto* commands = reinterpret_cast<cli::CommandsMain*>(cli::loadPartEntry(
      {folder, folder / LUMIDATE_CLI_PART_FOLDER}, cli::kCommandsPartName, cli::kCommandsEntryName, "lumidate-cli", failure));
  if (!commands) {
    std::fprintf(stderr, "lumidate-cli: cannot load its commands (%s)\n", failure.c_str());
    return 1;
  }
  return commands(argc, argv);
}
