#pragma once

#include <QString>

namespace lullet {

class AppDelegate;
class ReminderInfo;

// A scheduled item is due: start it, delay it, or, where another item still runs, say that the
// other one is finished or needs more time. This is where an item becomes the running one.
class ReminderPrompt {
public:
    ReminderPrompt(AppDelegate& app, ReminderInfo* objReminder, ReminderInfo* objReminderPrev);

    // "Time for : <title>, at :<time>", or "None" without a due item.
    QString reminderText() const;
    // "Have you finished : <title> ?", or nothing without a running item.
    QString previousText() const;

    // The due item runs from now, on its own day at the present time of day. Nothing is saved.
    void onStart();
    // Delays by 10 minutes without saving (the delay reaches the disk with the next save), or by
    // 30 minutes and saves.
    void onPostpone10();
    void onPostpone30();
    // The running item is finished, and the due one starts at once.
    void finishedPrevious();
    // The running item gets more time and the due item moves that much later.
    void onNeedMoreTimeOptionSelected(int minutes);

    ReminderInfo* const objReminder;
    ReminderInfo* const objReminderPrev;

private:
    void postpone(int minutes, bool save);

    AppDelegate& m_app;
};

} // namespace lullet
