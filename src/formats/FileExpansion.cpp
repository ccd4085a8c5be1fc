#include "formats/FileExpansion.h"

#include <algorithm>
#include <array>
#include <functional>
#include <set>
#include <system_error>

namespace FileExpansion {

namespace {

constexpr std::array<std::string_view, 8> kExtensions = {".tiff", ".TIFF", ".tif", ".TIF",
                                                         ".JPG",  ".jpg",  ".JPEG", ".jpeg"};

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

// The key under which a path counts as already taken.
std::filesystem::path identity(const std::filesystem::path& p) {
  std::error_code ec;
  auto canonical = std::filesystem::weakly_canonical(p, ec);
  return ec ? p.lexically_normal() : canonical;
}

}  // namespace

bool hasAcceptedExtension(const std::filesystem::path& path) {
  const std::string extension = path.extension().string();
  return std::find(kExtensions.begin(), kExtensions.end(), extension) != kExtensions.end();
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

bool naturalPathLess(const std::filesystem::path& a, const std::filesystem::path& b) {
  auto x = a.begin(), y = b.begin();
  for (; x != a.end() && y != b.end(); ++x, ++y)
    if (const auto order = naturalCompare(x->native(), y->native()); order != 0) return order < 0;
  return x == a.end() && y != b.end();
}

namespace {

// Adds the photos below folder, at any depth. A folder that cannot be read,
// or that disappears while it is being listed, is passed over: the walk goes
// on with the others, so one bad folder never hides the rest. Links to
// folders are not entered (a link loop would never end); links to files are
// taken like the files themselves.
void walkFolder(const std::filesystem::path& folder, const std::function<void(const std::filesystem::path&)>& take) {
  namespace fs = std::filesystem;
  std::vector<fs::path> pending{folder};
  while (!pending.empty()) {
    const fs::path current = std::move(pending.back());
    pending.pop_back();
    std::error_code ec;
    for (fs::directory_iterator it(current, fs::directory_options::skip_permission_denied, ec), end;
         !ec && it != end; it.increment(ec)) {
      std::error_code entryError;
      if (it->is_symlink(entryError)) {
        if (!it->is_directory(entryError)) take(it->path());
      } else if (it->is_directory(entryError)) {
        pending.push_back(it->path());
      } else if (!entryError) {
        take(it->path());
      }
    }
  }
}

}  // namespace

Expansion allPhotoPaths(const std::vector<std::filesystem::path>& paths) {
  namespace fs = std::filesystem;
  Expansion result;
  std::set<fs::path> taken;
  const auto take = [&](const fs::path& p) {
    if (hasAcceptedExtension(p) && taken.insert(identity(p)).second) result.files.push_back(p);
  };
  for (const fs::path& p : paths) {
    std::error_code ec;
    const auto status = fs::status(p, ec);
    if (ec || !fs::exists(status)) {
      result.missing.push_back(p);
      continue;
    }
    if (fs::is_directory(status))
      walkFolder(p, take);
    else
      take(p);
  }
  std::sort(result.files.begin(), result.files.end(), naturalPathLess);
  return result;
}

}  // namespace FileExpansion
