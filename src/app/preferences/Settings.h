#pragma once
// Typed access to the application's preferences. Works on the QSettings it
// is given, so tests hand it a temporary file.

#include <QByteArray>
#include <QSettings>
#include <QString>

class Settings {
 public:
  // List sizes of the multi-file tables.
  enum ListSize { Small = 1, Medium = 2, Large = 3 };
  // The build this program reports; table layouts saved before build 92
  // are dropped once at start.
  static constexpr int kBuildNumber = 92;
  static constexpr int kFirstBuildOfTableLayout = 92;

  explicit Settings(QSettings& store);

  // Puts the defaults in place for keys nobody stored yet.
  void registerDefaults();
  // Drops a table layout stored by an older build, then records this build.
  void migrateFromOlderBuild();

  bool showInformation() const;
  void setShowInformation(bool on);
  int tableViewRowHeight() const;  // a ListSize
  void setTableViewRowHeight(int size);
  bool showImageView() const;
  void setShowImageView(bool on);
  bool useSingleWindow() const;
  void setUseSingleWindow(bool on);
  int buildNumber() const;

  // The multi-file table's header state (column order, widths, sort order).
  QByteArray tableLayout() const;
  void setTableLayout(const QByteArray& state);

  // A tool window's frame (QWidget::saveGeometry), stored under its own
  // name ("LumImageWindow" for the image viewer); empty when none was.
  QByteArray windowFrame(const QString& name) const;
  void setWindowFrame(const QString& name, const QByteArray& frame);

  // Row height in pixels of a list size, and the thumbnail column's width.
  static int rowHeightForListSize(int size);
  static int thumbnailColumnWidth(int rowHeight);

  QSettings& store() { return store_; }

 private:
  QSettings& store_;
};
