#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace lullet {

// Keeps the display awake while the program runs. The request answers asynchronously with a
// cookie, or nothing where the desktop offers no such service; a missing service is no error.
class DisplaySleepInhibitor {
public:
    virtual ~DisplaySleepInhibitor() = default;
    virtual void inhibit(const QString& reason,
                         std::function<void(std::optional<quint32> cookie)> done) = 0;
    virtual void release(quint32 cookie) = 0;
};

} // namespace lullet
