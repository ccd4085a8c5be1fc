#pragma once
// Every (context, key) the program translates without a tr() call lupdate
// could see: the engine's tables ("IFD", "IPTC") and the documents layer's
// keys (context "Localizable").

#include <QString>

#include <vector>

namespace TranslationKeys {

struct Key {
  QString context;
  QString source;
  QString english;  // the English text when it differs from the key (a format)
};

// The engine's tag titles, coded words, JFIF keys and values, IPTC titles and
// attribute names, image resource titles and looked-up words.
std::vector<Key> engineKeys();

// The keys of LumLocalized: its table of formats, every literal passed to
// LumLocalized::text/format under sourceDir, and the keys already listed in
// the "Localizable" context of tsFile (keys held in arrays, which a scan for
// literals cannot see, stay listed that way).
std::vector<Key> localizableKeys(const QString& sourceDir, const QString& tsFile);

// The keys without duplicates, in first-seen order.
std::vector<Key> unique(std::vector<Key> keys);

// A C++ file of QT_TRANSLATE_NOOP lines for lupdate.
QString noopFile(const std::vector<Key>& keys);

// Lines "context<TAB>key<TAB>English" for the keys whose English differs from
// the key; scripts/update-translations completes the English table with them.
QString englishFile(const std::vector<Key>& keys);

}  // namespace TranslationKeys
