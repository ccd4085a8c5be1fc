#include "app/startup/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/Localization.h"
#include "documents/LumLocalized.h"

namespace Translations {

namespace {

// Keeps a translator that loaded (the application owns it from then on).
void installIfLoaded(QCoreApplication& app, const std::function<bool(QTranslator&)>& load) {
  auto translator = std::make_unique<QTranslator>();
  if (!load(*translator)) return;
  translator->setParent(&app);
  QCoreApplication::installTranslator(translator.release());
}

// The engine's tables are translation contexts of their own; its main table
// is the documents layer's "Localizable". Runs on worker threads too, which
// QCoreApplication::translate allows.
std::optional<std::string> translateEngineKey(std::string_view table, std::string_view key) {
  const std::string context = table.empty() ? std::string(LumLocalized::kContext) : std::string(table);
  const std::string source(key);
  const QByteArray text = QCoreApplication::translate(context.c_str(), source.c_str()).toUtf8();
  if (text == QByteArrayView(source)) return std::nullopt;
  return text.toStdString();
}

}  // namespace

void install(QCoreApplication& app) { install(app, QLocale::system()); }

void install(QCoreApplication& app, const QLocale& locale) {
  Localization::setLookup(&translateEngineKey);
  installIfLoaded(app, [](QTranslator& t) { return t.load(QStringLiteral(":/translations/lumidate_en.qm")); });
  // The first of the user's languages decides (LANGUAGE=ja wins over LANG=en_US).
  const QString first = locale.uiLanguages().value(0);
  if (first.isEmpty() || first.startsWith(QLatin1String("en"))) return;
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
