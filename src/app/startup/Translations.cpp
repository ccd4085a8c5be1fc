#include "app/startup/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <functional>
#include <memory>

namespace Translations {

namespace {

// Keeps a translator that loaded (the application owns it from then on).
void installIfLoaded(QCoreApplication& app, const std::function<bool(QTranslator&)>& load) {
  auto translator = std::make_unique<QTranslator>();
  if (!load(*translator)) return;
  translator->setParent(&app);
  QCoreApplication::installTranslator(translator.release());
}

}  // namespace

void install(QCoreApplication& app) {
  installIfLoaded(app, [](QTranslator& t) { return t.load(QStringLiteral(":/translations/lumidate_en.qm")); });
  const QLocale locale;
  if (locale.language() == QLocale::English) return;
  // The toolkit's own texts (dialog buttons, the file dialog).
  installIfLoaded(app, [&locale](QTranslator& t) {
    return t.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  });
  // Installed last, so it is asked first.
  installIfLoaded(app, [&locale](QTranslator& t) {
    return t.load(locale, QStringLiteral("lumidate"), QStringLiteral("_"), QStringLiteral(":/translations"));
  });
}

}  // namespace Translations
