// Start-up: settings defaults and the one-time layout reset, the single
// instance, and the command line without a display.
#include "StartupTest.h"

#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "app/preferences/Settings.h"
#include "app/startup/SingleInstance.h"

void StartupTest::settingsDefaults() {
  QTemporaryDir dir;
  QSettings store(dir.filePath("s.ini"), QSettings::IniFormat);
  Settings settings(store);
  settings.registerDefaults();
  QVERIFY(settings.showInformation());
  QCOMPARE(settings.tableViewRowHeight(), int(Settings::Medium));
  QVERIFY(!settings.showImageView());
  QVERIFY(!settings.useSingleWindow());
  QCOMPARE(settings.buildNumber(), 0);
  // A stored choice survives the next start's defaults.
  settings.setTableViewRowHeight(Settings::Small);
  settings.registerDefaults();
  QCOMPARE(settings.tableViewRowHeight(), int(Settings::Small));
}

void StartupTest::oldTableLayoutIsDroppedOnce_data() {
  QTest::addColumn<int>("storedBuild");
  QTest::addColumn<bool>("layoutKept");
  QTest::newRow("first start") << 0 << false;
  QTest::newRow("build 91") << 91 << false;
  QTest::newRow("build 92") << 92 << true;
}

void StartupTest::oldTableLayoutIsDroppedOnce() {
  QFETCH(int, storedBuild);
  QFETCH(bool, layoutKept);
  QTemporaryDir dir;
  QSettings store(dir.filePath("s.ini"), QSettings::IniFormat);
  if (storedBuild) store.setValue("Lum Build Number", storedBuild);
  Settings settings(store);
  settings.setTableLayout("layout");
  settings.migrateFromOlderBuild();
  QCOMPARE(settings.tableLayout().isEmpty(), !layoutKept);
  QCOMPARE(settings.buildNumber(), Settings::kBuildNumber);
  // A layout stored after the reset stays at the next start.
  settings.setTableLayout("new");
  settings.migrateFromOlderBuild();
  QCOMPARE(settings.tableLayout(), QByteArray("new"));
}

void StartupTest::secondInstanceHandsItsFilesOver() {
  QTemporaryDir dir;
  SingleInstance first(dir.path(), "test"), second(dir.path(), "test");
  QVERIFY(first.start());
  QVERIFY(first.isPrimary());
  QVERIFY(!second.start());
  QSignalSpy handed(&first, &SingleInstance::filesHandedOver);
  const QStringList paths{"/photos/a.jpg", "/photos/ä b.JPG"};
  QVERIFY(second.handOver(paths));
  QVERIFY(handed.wait(5000));
  QCOMPARE(handed.front().front().toStringList(), paths);
}

void StartupTest::staleLockAndSocketDoNotBlock() {
  QTemporaryDir dir;
  SingleInstance instance(dir.path(), "test");
  // A crashed run left its lock (its process is gone) and its socket file.
  QProcess gone;
  gone.start("true");
  QVERIFY(gone.waitForStarted());
  const qint64 gonePid = gone.processId();
  QVERIFY(gone.waitForFinished());
  QByteArray content;
  {
    // A lock of this process in Qt's own format, then given the dead one's id.
    QLockFile own(instance.lockPath());
    QVERIFY(own.tryLock(0));
    QFile written(instance.lockPath());
    QVERIFY(written.open(QIODevice::ReadOnly));
    content = written.readAll();
  }
  content.replace(0, content.indexOf('\n'), QByteArray::number(gonePid));
  QFile lock(instance.lockPath());
  QVERIFY(lock.open(QIODevice::WriteOnly));
  lock.write(content);
  lock.close();
  QFile socket(instance.socketPath());
  QVERIFY(socket.open(QIODevice::WriteOnly));
  socket.close();

  QVERIFY(instance.start());
  QVERIFY(instance.isPrimary());
  SingleInstance later(dir.path(), "test");
  QVERIFY(!later.start());
  QSignalSpy handed(&instance, &SingleInstance::filesHandedOver);
  QVERIFY(later.handOver({"/a.jpg"}));
  QVERIFY(handed.wait(5000));
}

void StartupTest::helpAndVersionNeedNoDisplay_data() {
  QTest::addColumn<QString>("option");
  QTest::addColumn<QString>("expected");
  QTest::newRow("help") << "--help" << "Usage:";
  QTest::newRow("version") << "--version" << "Lumidate " LUMIDATE_VERSION;
}

void StartupTest::helpAndVersionNeedNoDisplay() {
  QFETCH(QString, option);
  QFETCH(QString, expected);
  QProcess program;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
  program.setProcessEnvironment(environment);
  program.start(LUMIDATE_EXECUTABLE, {option});
  QVERIFY(program.waitForFinished(30000));
  QCOMPARE(program.exitStatus(), QProcess::NormalExit);
  QCOMPARE(program.exitCode(), 0);
  QVERIFY2(program.readAllStandardOutput().contains(expected.toUtf8()), qPrintable(program.readAllStandardError()));
}
