#include "formats/FileExpansion.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <variant>

#include "formats/PhotoExtensions.h"

namespace FileExpansion {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
char folded(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c; }

// Compares two runs of digits by value: leading zeros aside, the longer run
// is larger, and equal lengths compare digit by digit.
std::strong_ordering compareNumbers(std::string_view a, std::string_view b) {
  const auto strip = [](std::string_view s) {
    const auto first = s.find_first_not_of('0');
    return first == std::string_view::npos ? std::string_view{} : s.substr(first);
  };
  const std::string_view x = strip(a), y = strip(b);
  if (x.size() != y.size()) return x.size() <=> y.size();
  return x.compare(y) <=> 0;
}

std::string_view digitRun(std::string_view s, std::size_t from) {
  std::size_t end = from;
  while (end < s.size() && isDigit(s[end])) ++end;
  return s.substr(from, end - from);
}

// The extension without its dot; empty when there is none.
std::string extensionOf(const std::filesystem::path& path) {
  const std::string dotted = path.extension().string();
  return dotted.size() < 2 ? std::string() : dotted.substr(1);
}

// Whether extension, in any case, is the lower-case known.
bool sameFolded(std::string_view extension, std::string_view known) {
  return std::equal(extension.begin(), extension.end(), known.begin(), known.end(),
                    [](char a, char b) { return folded(a) == b; });
}

}  // namespace

bool hasAcceptedExtension(const std::filesystem::path& path) {
  const std::string extension = extensionOf(path);
  const auto& exact = PhotoExtensions::kExact;
  if (std::find(exact.begin(), exact.end(), extension) != exact.end()) return true;
  const auto& anyCase = PhotoExtensions::kAnyCase;
  return std::any_of(anyCase.begin(), anyCase.end(),
                     [&](const PhotoExtensions::AnyCase& known) { return sameFolded(extension, known.extension); });
}

bool hasVideoExtension(const std::filesystem::path& path) {
  const std::string extension = extensionOf(path);
  const auto& videos = PhotoExtensions::kVideos;
  return std::any_of(videos.begin(), videos.end(), [&](std::string_view known) { return sameFolded(extension, known); });
}

std::strong_ordering naturalCompare(std::string_view a, std::string_view b) {
  std::size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    if (isDigit(a[i]) && isDigit(b[j])) {
      const std::string_view x = digitRun(a, i), y = digitRun(b, j);
      if (const auto order = compareNumbers(x, y); order != 0) return order;
      i += x.size();
      j += y.size();
      continue;
    }
    const char x = folded(a[i]), y = folded(b[j]);
    if (x != y) return static_cast<unsigned char>(x) <=> static_cast<unsigned char>(y);
    ++i;
    ++j;
  }
  if (const auto order = (a.size() - i) <=> (b.size() - j); order != 0) return order;
  return a.compare(b) <=> 0;  // equal by the rules above: keep a fixed order
}

namespace {

// The next name of a path from *at on, skipping separators; a leading "/" is
// a name of its own, as std::filesystem::path counts it.
std::string_view nextName(std::string_view path, std::size_t* at) {
  if (*at == 0 && !path.empty() && path[0] == '/') {
    *at = path.find_first_not_of('/');
    if (*at == std::string_view::npos) *at = path.size();
    return path.substr(0, 1);
  }
  const std::size_t from = std::min(path.find_first_not_of('/', *at), path.size());
  const std::size_t to = std::min(path.find('/', from), path.size());
  *at = to;
  return path.substr(from, to - from);
}

}  // namespace

// Compares name by name without building path objects: sorting ten thousand
// paths makes a few hundred thousand comparisons.
bool naturalPathLess(const std::filesystem::path& a, const std::filesystem::path& b) {
  const std::string_view x = a.native(), y = b.native();
  std::size_t i = 0, j = 0;
  while (true) {
    const std::string_view p = nextName(x, &i), q = nextName(y, &j);
    if (p.empty() || q.empty()) return p.empty() && !q.empty();
    if (const auto order = naturalCompare(p, q); order != 0) return order < 0;
  }
}

namespace {

namespace fs = std::filesystem;

// Which file a path names: device and inode, or the path's own text when the
// file cannot be reached (a dangling link still counts once).
using FileKey = std::variant<std::pair<dev_t, ino_t>, std::string>;

FileKey keyOf(const fs::path& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) == 0) return std::pair{st.st_dev, st.st_ino};
  return path.lexically_normal().native();
}

struct Collector {
  Expansion result;
  std::set<FileKey> taken;

  void take(const fs::path& path, FileKey key) {
    if (taken.insert(std::move(key)).second) result.files.push_back(path);
  }
};

struct DirCloser {
  void operator()(DIR* d) const { ::closedir(d); }
};

// The type of one folder entry; asks the file system only when the folder
// listing does not say (some file systems never do).
unsigned char entryType(int folderFd, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type;
  struct stat st {};
  if (::fstatat(folderFd, entry.d_name, &st, AT_SYMLINK_NOFOLLOW) != 0) return DT_UNKNOWN;
  if (S_ISDIR(st.st_mode)) return DT_DIR;
  if (S_ISLNK(st.st_mode)) return DT_LNK;
  return DT_REG;
}

// Adds the photos in one folder and queues its subfolders. A file's identity
// comes from the listing itself (the folder's device and the entry's inode),
// so a folder of thousands of photos costs no call per photo. Links are
// resolved: a link to a folder is not entered (a link loop would never
// end), a link to a file counts as the file it leads to.
void listFolder(const fs::path& folder, Collector& out, std::vector<fs::path>& pending) {
  const std::unique_ptr<DIR, DirCloser> dir(::opendir(folder.c_str()));
  if (!dir) return;  // vanished, unreadable or too deep: pass it over
  const int fd = ::dirfd(dir.get());
  struct stat folderStat {};
  if (::fstat(fd, &folderStat) != 0) return;
  while (const dirent* entry = ::readdir(dir.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    const unsigned char type = entryType(fd, *entry);
    if (type == DT_DIR) {
      pending.push_back(folder / name);
      continue;
    }
    fs::path path = folder / name;
    if (!hasAcceptedExtension(path)) continue;
    if (type != DT_LNK) {
      out.take(path, std::pair{folderStat.st_dev, entry->d_ino});
      continue;
    }
    struct stat target {};
    if (::stat(path.c_str(), &target) == 0 && S_ISDIR(target.st_mode)) continue;
    out.take(path, keyOf(path));
  }
}

// Adds the photos below folder, at any depth. A folder that cannot be read,
// or that disappears while it is being listed, is passed over: the walk goes
// on with the others, so one bad folder never hides the rest.
void walkFolder(const fs::path& folder, Collector& out) {
  std::vector<fs::path> pending{folder};
  while (!pending.empty()) {
    const fs::path current = std::move(pending.back());
    pending.pop_back();
    listFolder(current, out, pending);
  }
}

}  // namespace

Expansion allPhotoPaths(const std::vector<std::filesystem::path>& paths) {
  Collector out;
  for (const fs::path& p : paths) {
    struct stat st {};
    if (::stat(p.c_str(), &st) != 0) {
      out.result.missing.push_back(p);
      continue;
    }
    if (S_ISDIR(st.st_mode))
      walkFolder(p, out);
    else if (hasAcceptedExtension(p) || hasVideoExtension(p))
      out.take(p, std::pair{st.st_dev, st.st_ino});
  }
  std::sort(out.result.files.begin(), out.result.files.end(), naturalPathLess);
  return std::move(out.result);
}

}  // namespace FileExpansion
