#pragma once
// The texts of the alert that reports files which could not be saved.

#include <QString>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace SaveReport {

// One file that could not be saved, with the reason ("" when the file no
// longer existed at its path).
struct Failure {
  std::filesystem::path path;
  std::string reason;
};

struct AlertTexts {
  QString message;
  QString informativeText;
};

// At most this many failed files are listed; then a line of dots follows.
inline constexpr std::size_t kListedFailures = 10;

// The alert for a save of `total` files of which `failures` failed, or
// nullopt when none failed.
std::optional<AlertTexts> alertTexts(std::size_t total, const std::vector<Failure>& failures);

}  // namespace SaveReport
