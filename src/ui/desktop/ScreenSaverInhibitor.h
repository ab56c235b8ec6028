#pragma once

#include "core/app/DisplaySleepInhibitor.h"

#include <QObject>

namespace lullet {

// Keeps the display awake through the desktop's org.freedesktop.ScreenSaver service on the
// session bus. Without the service the request answers with no cookie and nothing else happens.
class ScreenSaverInhibitor final : public QObject, public DisplaySleepInhibitor {
    Q_OBJECT
public:
    explicit ScreenSaverInhibitor(QObject* parent = nullptr);

    void inhibit(const QString& reason,
                 std::function<void(std::optional<quint32> cookie)> done) override;
    void release(quint32 cookie) override;
};

} // namespace lullet
