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

class AppearanceTest : public QObject {
  Q_OBJECT

 private slots:
  // The portal's value (0 none, 1 dark, 2 light), the override and the
  // platform theme's darkness decide the look.
  void decidesTheLook() {
    const struct { uint portal; const char* override; bool platformDark; Look look; } cases[] = {
        {0, "", false, Look::Platform},          {1, "", false, Look::FusionDark},
        {1, "", true, Look::Platform},           {2, "", true, Look::Platform},
        {7, "", false, Look::Platform},          {2, "dark", false, Look::FusionDark},
        {0, "Dark", true, Look::Platform},       {1, "light", false, Look::Platform},
        {0, "light", true, Look::FusionLight},   {1, "purple", false, Look::FusionDark},  // unknown: ignored
    };
    for (const auto& c : cases) {
      const Look chosen = Appearance::chooseLook(Appearance::fromPortalValue(c.portal),
                                                 Appearance::fromOverride(QString::fromLatin1(c.override)), c.platformDark);
      QVERIFY2(chosen == c.look, qPrintable(QStringLiteral("portal %1, override '%2'").arg(c.portal).arg(c.override)));
    }
  }

  void followsTheDesktopAndComesBack() {
    const QString platformStyle = QApplication::style()->name();
    QVERIFY(!Appearance::isDark());  // the offscreen platform is light
    QWidget window;
    window.show();
    Appearance::Follower follower(std::nullopt);
    follower.setDesktopPreference(Preference::Dark);
    QVERIFY(Appearance::isDark());
    QTRY_VERIFY(Appearance::isDark(window.palette()));
    QCOMPARE(QApplication::style()->name(), QStringLiteral("fusion"));
    follower.setDesktopPreference(Preference::None);
    QVERIFY(!Appearance::isDark());
    QTRY_VERIFY(!Appearance::isDark(window.palette()));  // the windows follow back to light
    QCOMPARE(QApplication::style()->name(), platformStyle);
  }

  void readsAndFollowsThePortal() {
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
};

QTEST_MAIN(AppearanceTest)
#include "AppearanceTest.moc"
