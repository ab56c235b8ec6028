#pragma once

#include <QString>

namespace lullet {

class AppDelegate;
class ReminderInfo;

// A lullet or to-do's moment has come: confirm it, which finishes it and makes the next
// occurrence, or dismiss it, which changes nothing.
class TodoPrompt {
public:
    TodoPrompt(AppDelegate& app, ReminderInfo* objLullet);

    // "Time for : <title>. Done ?"
    QString text() const;
    void onDone();
    void onCancel();

    ReminderInfo* const objLullet;

private:
    AppDelegate& m_app;
};

} // namespace lullet
