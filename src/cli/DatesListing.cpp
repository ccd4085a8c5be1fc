// Shows the three dates and the sub-second texts of each photo as the file
// model keeps them when it opens the file. Folders are searched at any depth;
// files are opened in parallel on all cores.
#include "cli/DatesListing.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "cli/CliCommon.h"
#include "formats/FileExpansion.h"
#include "formats/LumImageFile.h"

namespace {

namespace fs = std::filesystem;

// What is printed of one file. Only these texts are kept, not the opened
// file, so that each file's bytes are released as soon as it has been read:
// listing a folder of thousands of photos holds no more than a few at once.
struct Dates {
  std::optional<std::string> original, digitized, edited;
  std::optional<std::string> subSecOriginal, subSecDigitized, subSecEdited;
  bool editable = false;
  std::string container;  // "JPEG", "DNG", "HEIC", ...; empty when not known
};

struct Outcome {
  fs::path path;
  std::optional<Dates> dates;  // none when the file could not be opened
  LumError error;
};

std::optional<Dates> readDates(const fs::path& path, LumError* error) {
  const std::unique_ptr<LumImageFile> f = LumImageFile::imageFileWithURL(path, error, LumImageFile::Holding::DatesOnly);
  if (!f) return std::nullopt;
  return Dates{f->originalDateTimeOriginalString(),       f->originalDateTimeDigitizedString(),
               f->originalDateTimeString(),               f->originalSubSecDateTimeOriginalString(),
               f->originalSubSecDateTimeDigitizedString(), f->originalSubSecDateTimeString(),
               f->isEdit(),                               f->containerName()};
}

std::vector<Outcome> openAll(const std::vector<fs::path>& paths) {
  std::vector<Outcome> outcomes(paths.size());
  cli::forEachInParallel(paths.size(), [&](std::size_t i) {
    outcomes[i].path = paths[i];
    outcomes[i].dates = readDates(paths[i], &outcomes[i].error);
  });
  return outcomes;
}

nlohmann::ordered_json textOrNull(const std::optional<std::string>& text) {
  return text ? nlohmann::ordered_json(*text) : nlohmann::ordered_json(nullptr);
}

nlohmann::ordered_json jsonFor(const Outcome& o) {
  nlohmann::ordered_json j;
  j["path"] = o.path.string();
  if (!o.dates) {
    j["error"] = cli::errorJson(o.error);
    return j;
  }
  const Dates& f = *o.dates;
  j["DateTimeOriginal"] = textOrNull(f.original);
  j["DateTimeDigitized"] = textOrNull(f.digitized);
  j["DateTime"] = textOrNull(f.edited);
  j["SubSecTimeOriginal"] = textOrNull(f.subSecOriginal);
  j["SubSecTimeDigitized"] = textOrNull(f.subSecDigitized);
  j["SubSecTime"] = textOrNull(f.subSecEdited);
  j["editable"] = f.editable;
  j["container"] = textOrNull(f.container.empty() ? std::nullopt : std::optional(f.container));
  return j;
}

// Columns are padded by characters, not bytes, so that paths with accents
// stay aligned; a byte that is not UTF-8 counts as one character.
std::size_t characters(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void padTo(std::string& line, std::string_view text, std::size_t width) {
  line += text;
  const std::size_t length = characters(text);
  if (length < width) line.append(width - length, ' ');
}

// A date with its sub-second text, or "-" when the date is not kept.
std::string dateColumn(const std::optional<std::string>& date, const std::optional<std::string>& subSec) {
  if (!date) return "-";
  return subSec && !subSec->empty() ? *date + '.' + *subSec : *date;
}

void printPlain(const std::vector<Outcome>& outcomes) {
  std::size_t pathWidth = 0;
  for (const Outcome& o : outcomes)
    if (o.dates) pathWidth = std::max(pathWidth, characters(o.path.string()));
  std::string text;
  for (const Outcome& o : outcomes) {
    if (!o.dates) continue;
    const Dates& f = *o.dates;
    padTo(text, o.path.string(), pathWidth);
    for (const auto& column : {dateColumn(f.original, f.subSecOriginal), dateColumn(f.digitized, f.subSecDigitized),
                               dateColumn(f.edited, f.subSecEdited)}) {
      text += "  ";
      padTo(text, column, 23);
    }
    text += f.editable ? "  editable\n" : "  not editable\n";
  }
  std::fwrite(text.data(), 1, text.size(), stdout);
}

void reportFailures(const std::vector<Outcome>& outcomes) {
  for (const Outcome& o : outcomes)
    if (!o.dates) cli::reportOpenFailure(o.path, o.error);
}

}  // namespace

namespace cli {

int listDates(const std::vector<fs::path>& inputs, bool json) {
  FileExpansion::Expansion expansion = FileExpansion::allPhotoPaths(inputs);
  // A path that does not exist is reported like a file that cannot be read.
  std::vector<fs::path> paths = std::move(expansion.files);
  const auto found = static_cast<std::ptrdiff_t>(paths.size());
  std::sort(expansion.missing.begin(), expansion.missing.end(), FileExpansion::naturalPathLess);
  paths.insert(paths.end(), expansion.missing.begin(), expansion.missing.end());
  std::inplace_merge(paths.begin(), paths.begin() + found, paths.end(), FileExpansion::naturalPathLess);

  const std::vector<Outcome> outcomes = openAll(paths);
  if (json) {
    nlohmann::ordered_json array = nlohmann::ordered_json::array();
    for (const Outcome& o : outcomes) array.push_back(jsonFor(o));
    printJson(array);
  } else {
    printPlain(outcomes);
  }
  std::fflush(stdout);  // the listing first, then what could not be read
  reportFailures(outcomes);
  const bool allOpened = std::all_of(outcomes.begin(), outcomes.end(), [](const Outcome& o) { return o.dates.has_value(); });
  return allOpened ? 0 : 1;
}

}  // namespace cli
