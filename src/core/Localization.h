#pragma once
// The localized-string hook: (table, English key) -> text.
//
// The engine looks user-visible words up by their English text in a named
// table ("IFD", "IPTC", or the main table ""). Without an installed lookup,
// or when the lookup has no entry, the English key itself is the answer. The
// application installs a lookup backed by its translations at start-up.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace Localization {

using Lookup = std::function<std::optional<std::string>(std::string_view table, std::string_view key)>;

inline constexpr std::string_view kIFDTable = "IFD";
inline constexpr std::string_view kIPTCTable = "IPTC";
inline constexpr std::string_view kMainTable = "";

// The localized text of key in table, or key itself.
std::string localizedString(std::string_view table, std::string_view key);

// Replaces the lookup (an empty function restores English). Safe to call
// while other threads look texts up.
void setLookup(Lookup lookup);

}  // namespace Localization
