#include "app/preferences/Settings.h"

#include <QStringList>
#include <algorithm>

namespace {
constexpr const char* kShowInformation = "ShowInfomation";  // spelled so on purpose: stored settings use it
constexpr const char* kRowHeight = "TableViewRowHeight";
constexpr const char* kShowImageView = "ShowImageView";
constexpr const char* kUseSingleWindow = "UseSingleWindow";
constexpr const char* kBuildNumberKey = "Lum Build Number";
constexpr const char* kTableLayoutGroup = "LumTableViewInformation";
constexpr const char* kTableHeaderState = "LumTableViewInformation/HeaderState";
}  // namespace

Settings::Settings(QSettings& store) : store_(store) {}

void Settings::registerDefaults() {
  if (!store_.contains(kShowInformation)) store_.setValue(kShowInformation, true);
  if (!store_.contains(kRowHeight)) store_.setValue(kRowHeight, int(Medium));
}

void Settings::migrateFromOlderBuild() {
  if (buildNumber() < kFirstBuildOfTableLayout) store_.remove(kTableLayoutGroup);
  store_.setValue(kBuildNumberKey, kBuildNumber);
}

bool Settings::showInformation() const { return store_.value(kShowInformation, true).toBool(); }
void Settings::setShowInformation(bool on) { store_.setValue(kShowInformation, on); }

int Settings::tableViewRowHeight() const { return store_.value(kRowHeight, int(Medium)).toInt(); }
void Settings::setTableViewRowHeight(int size) { store_.setValue(kRowHeight, size); }

bool Settings::showImageView() const { return store_.value(kShowImageView, false).toBool(); }
void Settings::setShowImageView(bool on) { store_.setValue(kShowImageView, on); }

bool Settings::useSingleWindow() const { return store_.value(kUseSingleWindow, false).toBool(); }
void Settings::setUseSingleWindow(bool on) { store_.setValue(kUseSingleWindow, on); }

QByteArray Settings::windowFrame(const QString& name) const {
  return store_.value(name).toByteArray();
}
void Settings::setWindowFrame(const QString& name, const QByteArray& frame) {
  store_.setValue(name, frame);
}

int Settings::buildNumber() const { return store_.value(kBuildNumberKey, 0).toInt(); }

QByteArray Settings::tableLayout() const { return store_.value(kTableHeaderState).toByteArray(); }
void Settings::setTableLayout(const QByteArray& state) { store_.setValue(kTableHeaderState, state); }

int Settings::rowHeightForListSize(int size) {
  switch (size) {
    case Large: return 78;
    case Medium: return 48;
    default: return 18;
  }
}

int Settings::thumbnailColumnWidth(int rowHeight) { return std::max(48, rowHeight); }
