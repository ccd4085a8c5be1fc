#pragma once
// Whether the program is drawn in dark colours, and following the desktop's
// light or dark preference.
//
// The palette decides what "dark" means: a dark window background means the
// dark appearance, whatever style or theme produced it. Tool windows and
// delegates ask isDark() instead of guessing from the style name.
//
// The desktop's preference comes from the XDG settings portal
// ("org.freedesktop.appearance" "color-scheme"), which GNOME, KDE and others
// answer whatever toolkit the theme is for. When the desktop prefers dark but
// the platform theme gives a light palette (a desktop without a dark Qt
// theme), the program draws itself with Fusion and a dark palette of its own.
// LUMIDATE_APPEARANCE=dark or light overrides the desktop, for testing.

#include <QDBusVariant>
#include <QObject>
#include <QPalette>
#include <QString>

#include <optional>

namespace Appearance {

// True when the palette's window colour is dark.
bool isDark(const QPalette& palette);
// The same for the application's palette.
bool isDark();

// The program's own dark palette (also used for the screenshots).
QPalette darkPalette();

enum class Preference { None, Dark, Light };
// A portal "color-scheme" value: 1 prefers dark, 2 light, anything else none.
Preference fromPortalValue(uint value);
// The LUMIDATE_APPEARANCE text: "dark", "light", or none for anything else.
std::optional<Preference> fromOverride(const QString& text);

// What to draw with: the platform's own style and palette, or Fusion with
// the dark palette or Fusion's own light one.
enum class Look { Platform, FusionDark, FusionLight };
// The override wins over the desktop. Fusion is used only where the
// platform's palette disagrees with the wish; the light one only on request.
Look chooseLook(Preference desktop, std::optional<Preference> override, bool platformIsDark);

// Applies the look to the application and follows the desktop's changes.
// The platform's style and palette are taken when it is made, so it must be
// made before anything else changes them.
class Follower : public QObject {
  Q_OBJECT

 public:
  // override: as read from LUMIDATE_APPEARANCE.
  explicit Follower(std::optional<Preference> override, QObject* parent = nullptr);
  ~Follower() override;

  // Asks the portal (when a session bus exists) and listens to its changes.
  void listenToDesktop();
  // Applies the look for a desktop preference.
  void setDesktopPreference(Preference desktop);
  Look look() const { return look_; }

 private slots:
  void portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void apply(Look look);

  std::optional<Preference> override_;
  QString platformStyle_;
  QPalette platformPalette_;
  Look look_ = Look::Platform;
};

// Makes a Follower for the application from the environment, applies the
// look and starts listening. The follower is a child of the application.
Follower* followDesktop();

}  // namespace Appearance
