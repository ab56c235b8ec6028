#pragma once

#include <QLatin1String>

// Every key of the user's settings, in one place.
namespace lullet::SettingsKeys {

inline constexpr QLatin1String isShowFirst{"isShowFirst"};
inline constexpr QLatin1String openAtLogIn{"openAtLogIn"};
inline constexpr QLatin1String isRating{"isRating"};
inline constexpr QLatin1String remindMe{"remindMe"};
inline constexpr QLatin1String promptDuration{"promptDuration"};
inline constexpr QLatin1String automaticBackup{"automaticBackup"};
inline constexpr QLatin1String backupOption{"backupOption"};
inline constexpr QLatin1String disableAutoPrompt{"disableAutoPrompt"};
inline constexpr QLatin1String passwordValues{"passwordValues"};
inline constexpr QLatin1String schedules{"schedules"};
inline constexpr QLatin1String backupFiles2{"backupFiles2"};

// Keys inside the "passwordValues" dictionary.
inline constexpr QLatin1String isPassword{"isPassword"};
inline constexpr QLatin1String password{"password"};

} // namespace lullet::SettingsKeys
