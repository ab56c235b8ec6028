#pragma once

#include "core/monitor/Monitor.h"

#include <QObject>
#include <QStringList>

#include <vector>

namespace lullet::test {

// Stands in for the windows: records every prompt the monitor asks for.
class PromptRecorder final : public QObject {
public:
    explicit PromptRecorder(Monitor& monitor)
    {
        connect(&monitor, &Monitor::reminderDue, this, [this](Item* item, Item* previous) {
            add(QStringLiteral("reminder"), item, previous);
        });
        connect(&monitor, &Monitor::idleQuestionDue, this, [this](Date since, bool now) {
            prompts.push_back({QStringLiteral("idle"), nullptr, nullptr, since, now});
        });
        connect(&monitor, &Monitor::timeOver, this,
                [this](Item* item) { add(QStringLiteral("timeOver"), item, nullptr); });
        connect(&monitor, &Monitor::toDoDue, this,
                [this](Item* item) { add(QStringLiteral("todo"), item, nullptr); });
    }

    struct Prompt {
        QString kind;
        Item* item = nullptr;
        Item* previous = nullptr;
        Date since;
        bool askNow = false;
    };

    QStringList kinds() const
    {
        QStringList list;
        for (const Prompt& p : prompts)
            list << p.kind;
        return list;
    }

    std::vector<Prompt> prompts;

private:
    void add(const QString& kind, Item* item, Item* previous)
    {
        prompts.push_back({kind, item, previous, {}, false});
    }
};

} // namespace lullet::test
