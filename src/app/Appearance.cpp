#include "app/Appearance.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStyle>
#include <QStyleFactory>

namespace Appearance {

namespace {

const QString kPortalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");

// The portal's Read answers the value wrapped in one or two variants
// (older portals wrap it twice).
uint unwrapped(QVariant value) {
  while (value.userType() == qMetaTypeId<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  return value.toUInt();
}

}  // namespace

bool isDark(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  return window.lightness() < palette.color(QPalette::WindowText).lightness();
}

bool isDark() { return isDark(QGuiApplication::palette()); }

QPalette darkPalette() {
  QPalette p;
  const QColor window(0x2b, 0x2d, 0x31), base(0x1e, 0x1f, 0x22), text(0xe6, 0xe6, 0xe6);
  p.setColor(QPalette::Window, window);
  p.setColor(QPalette::WindowText, text);
  p.setColor(QPalette::Base, base);
  p.setColor(QPalette::AlternateBase, window);
  p.setColor(QPalette::Text, text);
  p.setColor(QPalette::Button, window);
  p.setColor(QPalette::ButtonText, text);
  p.setColor(QPalette::ToolTipBase, base);
  p.setColor(QPalette::ToolTipText, text);
  p.setColor(QPalette::Highlight, QColor(0x35, 0x74, 0xc6));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::PlaceholderText, QColor(0x8a, 0x8d, 0x93));
  p.setColor(QPalette::Link, QColor(0x6c, 0xa8, 0xf0));
  for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, role, QColor(0x7a, 0x7d, 0x83));
  return p;
}

Preference fromPortalValue(uint value) {
  switch (value) {
    case 1: return Preference::Dark;
    case 2: return Preference::Light;
    default: return Preference::None;
  }
}

std::optional<Preference> fromOverride(const QString& text) {
  const QString t = text.trimmed().toLower();
  if (t == QLatin1String("dark")) return Preference::Dark;
  if (t == QLatin1String("light")) return Preference::Light;
  return std::nullopt;
}

Look chooseLook(Preference desktop, std::optional<Preference> override, bool platformIsDark) {
  if (override) {
    if (*override == Preference::Dark) return platformIsDark ? Look::Platform : Look::FusionDark;
    if (*override == Preference::Light) return platformIsDark ? Look::FusionLight : Look::Platform;
  }
  // A desktop preferring light with a dark theme chose that theme on purpose.
  return desktop == Preference::Dark && !platformIsDark ? Look::FusionDark : Look::Platform;
}

Follower::Follower(std::optional<Preference> override, QObject* parent)
    : QObject(parent),
      override_(override),
      platformStyle_(QApplication::style()->name()),
      platformPalette_(QGuiApplication::palette()) {}

Follower::~Follower() = default;

void Follower::setDesktopPreference(Preference desktop) {
  apply(chooseLook(desktop, override_, isDark(platformPalette_)));
}

void Follower::apply(Look look) {
  if (look == look_) return;
  look_ = look;
  if (look == Look::Platform) {
    QApplication::setStyle(platformStyle_);
    QApplication::setPalette(platformPalette_);
    return;
  }
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(look == Look::FusionDark ? darkPalette() : QApplication::style()->standardPalette());
}

void Follower::listenToDesktop() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  // The slot is found by its signature, whose types must be known by name.
  qRegisterMetaType<QDBusVariant>();
  bus.connect(kPortalService, kPortalPath, kSettingsInterface, QStringLiteral("SettingChanged"), this,
              SLOT(portalSettingChanged(QString,QString,QDBusVariant)));
  // Asked without waiting: the answer applies when it comes.
  QDBusMessage read = QDBusMessage::createMethodCall(kPortalService, kPortalPath, kSettingsInterface,
                                                     QStringLiteral("Read"));
  read << kGroup << kKey;
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
    const QDBusPendingReply<QDBusVariant> reply = *call;
    if (!reply.isError()) setDesktopPreference(fromPortalValue(unwrapped(reply.value().variant())));
    call->deleteLater();
  });
}

void Follower::portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
  if (group == kGroup && key == kKey) setDesktopPreference(fromPortalValue(unwrapped(value.variant())));
}

Follower* followDesktop() {
  auto* follower = new Follower(fromOverride(qEnvironmentVariable("LUMIDATE_APPEARANCE")), qApp);
  follower->setDesktopPreference(Preference::None);  // the override applies at once
  follower->listenToDesktop();
  return follower;
}

}  // namespace Appearance
