#pragma once
// Installs the program's translations: the English texts always (they hold
// the wording of the keys), then the user's language when there is one, and
// the engine's lookup of its tables ("IFD", "IPTC", main) through them.

class QCoreApplication;
class QLocale;

namespace Translations {

// For the system locale (LANG, LC_MESSAGES, LANGUAGE).
void install(QCoreApplication& app);
// For a chosen locale (tests, screenshots in another language).
void install(QCoreApplication& app, const QLocale& locale);

}  // namespace Translations
