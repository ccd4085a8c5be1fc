#pragma once
// Installs the program's translations: the English texts always (they hold
// the wording of the keys), then the user's language when there is one.

class QCoreApplication;

namespace Translations {

void install(QCoreApplication& app);

}  // namespace Translations
