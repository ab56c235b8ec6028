#include "ui/desktop/PlatformChoice.h"

namespace lullet {

namespace {

bool isSet(const QProcessEnvironment& environment, const char* name)
{
    return !environment.value(QLatin1String(name)).isEmpty();
}

} // namespace

QByteArray PlatformChoice::forSession(const QProcessEnvironment& environment)
{
    if (isSet(environment, "QT_QPA_PLATFORM") || !isSet(environment, "WAYLAND_DISPLAY") ||
        !isSet(environment, "DISPLAY"))
        return {};
    return QByteArrayLiteral("xcb");
}

bool PlatformChoice::hasDisplay(const QProcessEnvironment& environment)
{
    return isSet(environment, "QT_QPA_PLATFORM") || isSet(environment, "WAYLAND_DISPLAY") ||
           isSet(environment, "DISPLAY");
}

void PlatformChoice::apply()
{
    const QByteArray platform = forSession(QProcessEnvironment::systemEnvironment());
    if (!platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", platform);
}

} // namespace lullet
