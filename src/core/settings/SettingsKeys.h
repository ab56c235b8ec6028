#pragma once

#include <QLatin1String>
#include <QVariant>

#include <vector>

// Every key of the user's settings file, with its default, in one place.
namespace lullet::SettingsKeys {

inline constexpr QLatin1String isShowFirst{"isShowFirst"};
// Written beside "isShowFirst" when the welcome is left; nothing reads it.
inline constexpr QLatin1String introPageShown{"introPageShown"};
inline constexpr QLatin1String openAtLogIn{"openAtLogIn"};
inline constexpr QLatin1String isRating{"isRating"};
inline constexpr QLatin1String remindMe{"remindMe"};
inline constexpr QLatin1String promptDuration{"promptDuration"};
inline constexpr QLatin1String automaticBackup{"automaticBackup"};
inline constexpr QLatin1String backupOption{"backupOption"};
inline constexpr QLatin1String disableAutoPrompt{"disableAutoPrompt"};
inline constexpr QLatin1String passwordValues{"passwordValues"};
inline constexpr QLatin1String schedules{"schedules"};
// An unreadable "schedules" value, kept here before the default week takes its place.
inline constexpr QLatin1String schedulesUnreadable{"schedulesUnreadable"};
inline constexpr QLatin1String backupFiles2{"backupFiles2"};
// The window shows in the taskbar at launch.
inline constexpr QLatin1String UDDockIcon{"UDDockIcon"};
// The icon shows in the tray.
inline constexpr QLatin1String UDStatusBarIcon{"UDStatusBarIcon"};
// Written beside "openAtLogIn" when the user chooses to start at login.
inline constexpr QLatin1String UDOpenAtLogin{"UDOpenAtLogin"};
// Where the main window stood and how large it was, as Qt saves a window's geometry.
inline constexpr QLatin1String mainWindowGeometry{"mainWindowGeometry"};
// The reminders' pause: absent when not paused, -1 until resumed, else its end in seconds since
// 1970.
inline constexpr QLatin1String remindersPausedUntil{"remindersPausedUntil"};
// Minutes without keyboard or mouse input after which the user counts as away.
inline constexpr QLatin1String awayMinutes{"awayMinutes"};
// Prompts wait while another program is full screen.
inline constexpr QLatin1String holdWhileFullScreen{"holdWhileFullScreen"};
// A break due while the user is away, for at least its length, counts as taken.
inline constexpr QLatin1String naturalBreaks{"naturalBreaks"};
// A prompt comes with a sound from the desktop's sound theme.
inline constexpr QLatin1String promptSound{"promptSound"};
// The CalDAV server or collection the to-dos are synchronised with; empty: no synchronisation.
inline constexpr QLatin1String syncURL{"syncURL"};
// The user name on that server; empty for a server without logins. The password is the keyring's.
inline constexpr QLatin1String syncUser{"syncUser"};
// Minutes between synchronisations.
inline constexpr QLatin1String syncInterval{"syncInterval"};

// Keys inside the "passwordValues" dictionary.
inline constexpr QLatin1String isPassword{"isPassword"};
inline constexpr QLatin1String password{"password"};
// Written, always empty, when the login page finds protection without a password.
inline constexpr QLatin1String email{"email"};

struct Default {
    QLatin1String key;
    QVariant value;
};

// The defaults that answer for keys the user never set. They live in memory only and are never
// written to the file. "disableAutoPrompt" is not among them: it is written as 0 when absent.
// A new user sees both the window and the tray icon, as most desktop programs show themselves.
inline const std::vector<Default>& registeredDefaults()
{
    static const std::vector<Default> table = {
        {isShowFirst, 0},       {openAtLogIn, 0},     {isRating, 1},
        {remindMe, 2},          {promptDuration, 15}, {automaticBackup, true},
        {backupOption, 1},      {UDDockIcon, true},   {UDStatusBarIcon, true},
        {UDOpenAtLogin, false}, {awayMinutes, 5},     {holdWhileFullScreen, true},
        {naturalBreaks, false}, {promptSound, true},  {syncInterval, 5},
    };
    return table;
}

} // namespace lullet::SettingsKeys
