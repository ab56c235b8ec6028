#pragma once

#include <QObject>

namespace lullet {

class AppDelegate;
class PromptHost;
class ReminderInfo;

// The monitor loop. Each second it advances the running item's clock and decides whether that
// item's time is over; at second 0 of each minute it refreshes the rules, looks for items due in
// that very minute and decides whether the user has gone too long with nothing running. It only
// decides: the prompts it raises are the shell's, reached through the prompt host after the
// current work is done.
//
// Three clocks are at work: the running item's elapsedTime counts ticks, not wall time;
// dtLastAnyALertOn, the moment of the last prompt or event that counts as one, is the only
// measure of idle time; intNoTaskDuration is the prompting period in minutes.
class Monitor final : public QObject {
    Q_OBJECT
public:
    Monitor(AppDelegate& app, PromptHost& host, QObject* parent = nullptr);

    // One tick of the one-second timer.
    void doMonitorTime();
    // The per-minute pass; does its work only when the present second is 0, with no catch-up
    // for a minute whose second 0 no tick saw.
    void onDoMonitoring();
    // Asks what the user is doing now, unless the welcome, a setting, the lock or the working
    // hours say not to. It doesn't look for a running item: callers that care do.
    void doPromptExternally();

private:
    bool idlePromptsAllowed() const;
    void raiseTimeOver(ReminderInfo* item);

    AppDelegate& m_app;
    PromptHost& m_host;
};

} // namespace lullet
