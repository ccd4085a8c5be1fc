// lumidate-translation-keys SOURCE_DIR ENGLISH_TS OUT_CPP OUT_ENGLISH
//
// Writes the QT_TRANSLATE_NOOP file lupdate reads for the keys it cannot
// find by itself, and the English texts of keys that are formats.
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include "TranslationKeys.h"

namespace {

bool write(const QString& path, const QString& text) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  return file.write(text.toUtf8()) >= 0;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const QStringList args = app.arguments();
  QTextStream err(stderr);
  if (args.size() != 5) {
    err << "usage: lumidate-translation-keys SOURCE_DIR ENGLISH_TS OUT_CPP OUT_ENGLISH\n";
    return 2;
  }
  std::vector<TranslationKeys::Key> keys = TranslationKeys::engineKeys();
  for (TranslationKeys::Key& k : TranslationKeys::localizableKeys(args[1], args[2])) keys.push_back(std::move(k));
  keys = TranslationKeys::unique(std::move(keys));
  if (!write(args[3], TranslationKeys::noopFile(keys)) || !write(args[4], TranslationKeys::englishFile(keys))) {
    err << "lumidate-translation-keys: cannot write the output files\n";
    return 1;
  }
  err << "lumidate-translation-keys: " << keys.size() << " keys\n";
  return 0;
}
