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

    struct Prompt {
        QString kind;
        ReminderInfo* item = nullptr;
        ReminderInfo* previous = nullptr;
        Date since;
        bool autoPromptMode = false;
    };
    void makeReminderPopOver(ReminderInfo* item, ReminderInfo* previous) override
    {
        prompts.push_back({QStringLiteral("reminder"), item, previous, {}, false});
    }
    void makeIdleAlertPopOver(Date since, bool autoPromptMode) override
    {
        prompts.push_back({QStringLiteral("idle"), nullptr, nullptr, since, autoPromptMode});
    }
    void makeTimeOverPopOver(ReminderInfo* item) override
    {
        prompts.push_back({QStringLiteral("timeOver"), item, nullptr, {}, false});
    }
    void makeTODOPopOver(ReminderInfo* item) override
    {
        prompts.push_back({QStringLiteral("todo"), item, nullptr, {}, false});
    }
    void closePopover() override { calls << QStringLiteral("closePopover"); }
    void closePopoverImmediate() override { calls << QStringLiteral("closePopoverImmediate"); }

    QStringList promptKinds() const
    {
        QStringList kinds;
        for (const Prompt& p : prompts)
            kinds << p.kind;
        return kinds;
    }

    std::vector<Prompt> prompts;
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
