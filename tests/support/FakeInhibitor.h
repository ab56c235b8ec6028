#pragma once

#include "core/app/DisplaySleepInhibitor.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace lullet::test {

// Stands in for the desktop's screen saver service.
class FakeInhibitor final : public DisplaySleepInhibitor {
public:
    void inhibit(const QString& reason, std::function<void(std::optional<quint32>)> done) override
    {
        reasons << reason;
        done(cookie);
    }
    void release(quint32 c) override { released.push_back(c); }

    std::optional<quint32> cookie = 77;
    QStringList reasons;
    std::vector<quint32> released;
};

} // namespace lullet::test
