#pragma once
// User-visible texts of the documents layer, looked up by their English key.
//
// The key goes through Qt's translation lookup (context "Localizable"), so an
// installed translation wins. Without one, keys that take arguments map to
// the English formats of kEnglishFormats below (a Qt format with %1, %2);
// any other key is its own English text.

#include <QString>

#include <cstddef>

namespace LumLocalized {

inline constexpr const char* kContext = "Localizable";

// The text for key, before arguments are filled in.
QString text(const char* key);

// The text for key with its arguments filled in (%1, %2, ...).
QString format(const char* key, const QString& a1);
QString format(const char* key, const QString& a1, const QString& a2);

// A count as the user's locale writes it ("1,234" in English), for the
// arguments of the texts above.
QString count(std::size_t n);

}  // namespace LumLocalized
