// Start-up: settings defaults and the one-time layout reset, the single
// instance, and the command line without a display.
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "app/preferences/Settings.h"
#include "app/startup/SingleInstance.h"

namespace {

// Writes a lock file in Qt's own format that names a process that is gone,
// as a crashed run leaves it.
bool writeStaleLock(const QString& path) {
  QProcess gone;
  gone.start("true");
  if (!gone.waitForStarted()) return false;
  const qint64 gonePid = gone.processId();
  gone.waitForFinished();
  QByteArray content;
  {
    QLockFile own(path);
    QFile written(path);
    if (!own.tryLock(0) || !written.open(QIODevice::ReadOnly)) return false;
    content = written.readAll();
  }
  content.replace(0, content.indexOf('\n'), QByteArray::number(gonePid));
  QFile lock(path);
  return lock.open(QIODevice::WriteOnly) && lock.write(content) == content.size();
}

}  // namespace

class StartupTest : public QObject {
  Q_OBJECT

 private slots:
  // As at start-up: the defaults, which a stored choice survives, then the
  // table layout of builds before 92 dropped once; later ones stay.
  void settingsDefaultsAndTheOldTableLayout() {
    for (const auto& [storedBuild, layoutKept] : {std::pair{0, false}, {91, false}, {92, true}}) {
      QTemporaryDir dir;
      QSettings store(dir.filePath("s.ini"), QSettings::IniFormat);
      if (storedBuild) store.setValue("Lum Build Number", storedBuild);
      Settings settings(store);
      settings.registerDefaults();
      QVERIFY(settings.showInformation() && !settings.showImageView() && !settings.useSingleWindow());
      QCOMPARE(settings.tableViewRowHeight(), int(Settings::Medium));
      settings.setTableViewRowHeight(Settings::Small);
      settings.registerDefaults();
      QCOMPARE(settings.tableViewRowHeight(), int(Settings::Small));

      settings.setTableLayout("layout");
      settings.migrateFromOlderBuild();
      QCOMPARE(settings.tableLayout().isEmpty(), !layoutKept);
      QCOMPARE(settings.buildNumber(), Settings::kBuildNumber);
      settings.setTableLayout("new");
      settings.migrateFromOlderBuild();
      QCOMPARE(settings.tableLayout(), QByteArray("new"));
    }
  }

  // The first instance takes the files of a second one, also where a crashed
  // run left its lock (its process gone) and its socket file behind.
  void secondInstanceHandsItsFilesOver() {
    for (const bool crashedBefore : {false, true}) {
      QTemporaryDir dir;
      SingleInstance first(dir.path(), "test"), second(dir.path(), "test");
      if (crashedBefore) {
        QVERIFY(writeStaleLock(first.lockPath()));
        QFile socket(first.socketPath());
        QVERIFY(socket.open(QIODevice::WriteOnly));
      }
      QVERIFY(first.start() && first.isPrimary());
      QVERIFY(!second.start());
      QSignalSpy handed(&first, &SingleInstance::filesHandedOver);
      const QStringList paths{"/photos/a.jpg", "/photos/ä b.JPG"};
      QVERIFY(second.handOver(paths));
      QVERIFY(handed.wait(5000));
      QCOMPARE(handed.front().front().toStringList(), paths);
    }
  }

  void helpAndVersionNeedNoDisplay() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
    for (const auto& [option, expected] :
         {std::pair{"--help", "Usage:"}, {"--version", "Lumidate " LUMIDATE_VERSION}}) {
      QProcess program;
      program.setProcessEnvironment(environment);
      program.start(LUMIDATE_EXECUTABLE, {option});
      QVERIFY(program.waitForFinished(30000));
      QCOMPARE(program.exitStatus(), QProcess::NormalExit);
      QCOMPARE(program.exitCode(), 0);
      QVERIFY2(program.readAllStandardOutput().contains(expected), qPrintable(program.readAllStandardError()));
    }
  }
};

int runStartupTests(int argc, char* argv[]) { StartupTest test; return QTest::qExec(&test, argc, argv); }

#include "StartupTest.moc"
