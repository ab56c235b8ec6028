#pragma once

#include <QString>

namespace lullet {

class AppDelegate;
class ReminderInfo;

// The running item's time is over: is it finished, or does it need more time?
class TimeOverPrompt {
public:
    TimeOverPrompt(AppDelegate& app, ReminderInfo* objReminderPrev);

    // "Have you finished : <title> ?", or nothing without an item.
    QString previousText() const;
    // Finishes the item and files it at this moment, then may ask at once what the user is
    // doing now.
    void finishedPrevious();
    // Gives the item more time and closes.
    void onNeedMoreTimeOptionSelected(int minutes);

    // More time for a running item: a limited item's limit grows (and its planned length with
    // it, where it has one); an unlimited item is asked about again after that many minutes.
    static void extend(AppDelegate& app, ReminderInfo& item, int minutes);

    ReminderInfo* const objReminderPrev;

private:
    AppDelegate& m_app;
};

} // namespace lullet
