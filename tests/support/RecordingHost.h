#pragma once

#include "core/app/DisplaySleepInhibitor.h"
#include "core/app/PromptHost.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace lullet::test {

// Stands in for the windows: records what the controller asked of them and answers questions
// as the test decided beforehand.
class RecordingHost final : public PromptHost {
public:
    void openStatusMenu() override { calls << QStringLiteral("openStatusMenu"); }
    void prepareMainWindow(bool welcomeDone, bool locked) override
    {
        calls << QStringLiteral("prepareMainWindow(%1,%2)")
                     .arg(welcomeDone ? QStringLiteral("welcomeDone") : QStringLiteral("welcome"),
                          locked ? QStringLiteral("locked") : QStringLiteral("open"));
    }
    void bringMainWindowForward(const std::function<void()>& whenShown) override
    {
        calls << QStringLiteral("bringMainWindowForward");
        if (whenShown)
            whenShown();
    }
    bool askQuitAnyway(const QString& message, const QString& information) override
    {
        questions << message << information;
        return quitAnyway;
    }
    void presentError(const QString& message) override { errors << message; }

    QStringList calls;
    QStringList questions;
    QStringList errors;
    bool quitAnyway = false;
};

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
