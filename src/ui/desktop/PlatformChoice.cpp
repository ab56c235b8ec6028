#include "ui/desktop/PlatformChoice.h"

namespace lullet {

QByteArray PlatformChoice::forSession(const QProcessEnvironment& environment)
{
    const auto isSet = [&environment](const char* name) {
        return !environment.value(QLatin1String(name)).isEmpty();
    };
    if (isSet("QT_QPA_PLATFORM") || !isSet("WAYLAND_DISPLAY") || !isSet("DISPLAY"))
        return {};
    return QByteArrayLiteral("xcb");
}

void PlatformChoice::apply()
{
    const QByteArray platform = forSession(QProcessEnvironment::systemEnvironment());
    if (!platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", platform);
}

} // namespace lullet
