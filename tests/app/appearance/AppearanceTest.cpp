// Following the desktop's light or dark preference: the decision from the
// portal's value, the platform's palette and the override, and what the
// application draws with once it is applied. One case talks to a stand-in
// portal on a private session bus; run-fake-portal starts it.
#include <QApplication>
#include <QDBusConnection>
#include <QStyle>
#include <QTest>

#include "app/Appearance.h"

using Appearance::Look;
using Appearance::Preference;
Q_DECLARE_METATYPE(Look)
Q_DECLARE_METATYPE(std::optional<Preference>)

class AppearanceTest : public QObject {
  Q_OBJECT

 private slots:
  void decidesTheLook_data();
  void decidesTheLook();
  void followsTheDesktopAndComesBack();
  void readsAndFollowsThePortal();
};

void AppearanceTest::decidesTheLook_data() {
  QTest::addColumn<uint>("portal");
  QTest::addColumn<QString>("override");
  QTest::addColumn<bool>("platformDark");
  QTest::addColumn<Look>("look");
  const auto row = [](const char* name, uint portal, const char* override, bool platformDark, Look look) {
    QTest::newRow(name) << portal << QString::fromLatin1(override) << platformDark << look;
  };
  row("no preference, light theme", 0, "", false, Look::Platform);
  row("prefers dark, light theme", 1, "", false, Look::FusionDark);
  row("prefers dark, dark theme", 1, "", true, Look::Platform);
  row("prefers light, dark theme", 2, "", true, Look::Platform);
  row("unknown portal value", 7, "", false, Look::Platform);
  row("override dark wins over light desktop", 2, "dark", false, Look::FusionDark);
  row("override dark on dark theme", 0, "Dark", true, Look::Platform);
  row("override light wins over dark desktop", 1, "light", false, Look::Platform);
  row("override light on dark theme", 0, "light", true, Look::FusionLight);
  row("unknown override is ignored", 1, "purple", false, Look::FusionDark);
}

void AppearanceTest::decidesTheLook() {
  QFETCH(uint, portal);
  QFETCH(QString, override);
  QFETCH(bool, platformDark);
  QFETCH(Look, look);
  const Preference desktop = Appearance::fromPortalValue(portal);
  QCOMPARE(Appearance::chooseLook(desktop, Appearance::fromOverride(override), platformDark), look);
}

void AppearanceTest::followsTheDesktopAndComesBack() {
  const QString platformStyle = QApplication::style()->name();
  QVERIFY(!Appearance::isDark());  // the offscreen platform is light
  QWidget window;
  window.show();
  Appearance::Follower follower(std::nullopt);
  follower.setDesktopPreference(Preference::Dark);
  QCOMPARE(follower.look(), Look::FusionDark);
  QVERIFY(Appearance::isDark());
  QTRY_VERIFY(Appearance::isDark(window.palette()));
  QCOMPARE(QApplication::style()->name(), QStringLiteral("fusion"));
  follower.setDesktopPreference(Preference::None);
  QVERIFY(!Appearance::isDark());
  QTRY_VERIFY(!Appearance::isDark(window.palette()));  // the windows follow back to light
  QCOMPARE(QApplication::style()->name(), platformStyle);
}

void AppearanceTest::readsAndFollowsThePortal() {
  // Only against the stand-in: a real desktop's answer depends on its user.
  if (qEnvironmentVariable("LUMIDATE_FAKE_PORTAL") != QLatin1String("1"))
    QSKIP("needs the stand-in portal of run-fake-portal");
  QVERIFY(QDBusConnection::sessionBus().isConnected());
  Appearance::Follower follower(std::nullopt);
  follower.listenToDesktop();
  // The stand-in answers "prefer dark", then announces "no preference".
  QTRY_COMPARE_WITH_TIMEOUT(follower.look(), Look::FusionDark, 5000);
  QTRY_COMPARE_WITH_TIMEOUT(follower.look(), Look::Platform, 5000);
}

QTEST_MAIN(AppearanceTest)
#include "AppearanceTest.moc"
