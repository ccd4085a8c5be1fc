#include "DocumentHarness.h"

#include <QEventLoop>
#include <QTimer>

namespace reltest {

QCoreApplication& qtApp() {
  static int argc = 1;
  static char name[] = "reliability_tests";
  static char* argv[] = {name, nullptr};
  static QCoreApplication* app = QCoreApplication::instance() ? nullptr : new QCoreApplication(argc, argv);
  return app ? *app : *QCoreApplication::instance();
}

std::unique_ptr<LumMultiFileDoc> openDocument(const std::vector<std::filesystem::path>& paths) {
  qtApp();
  std::vector<std::unique_ptr<LumFileItemDoc>> items;
  items.reserve(paths.size());
  for (const auto& path : paths)
    if (auto image = LumImageFile::imageFileWithURL(path, nullptr))
      items.push_back(std::make_unique<LumFileItemDoc>(path, std::move(image)));
  return std::make_unique<LumMultiFileDoc>(std::move(items));
}

void shiftAllOneDay(LumMultiFileDoc& doc) {
  doc.changeActionMode(LumActionMode::Forward);
  doc.setFieldValues({0, 0, 1, 0, 0, 1});
  doc.setEditTargetMask(DateTargets::kAllMask);
  doc.setEditStateOnAllFiles();
  doc.applyToAllFiles();
}

std::optional<LumSaveOutcome> saveAndWait(LumMultiFileDoc& doc) {
  std::optional<LumSaveOutcome> outcome;
  QEventLoop loop;
  const auto connection = QObject::connect(&doc, &LumMultiFileDoc::saveFinished, &loop,
                                           [&](const LumSaveOutcome& o) {
                                             outcome = o;
                                             loop.quit();
                                           });
  QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
  doc.saveFileAll(true, false, false);
  if (doc.isSaving()) loop.exec();
  QObject::disconnect(connection);
  return outcome;
}

}  // namespace reltest
