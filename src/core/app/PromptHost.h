#pragma once

#include "core/dates/Date.h"

#include <QString>

#include <functional>

namespace lullet {

class ReminderInfo;

// What the application controller needs of the windows, implemented by the shell. Tests plug in
// a recording fake, so the controller runs without any window.
class PromptHost {
public:
    virtual ~PromptHost() = default;

    // Creates the status item in the panel.
    virtual void openStatusMenu() = 0;
    // Sizes the main window for the welcome pages (fixed 800 by 600) or for use (at least 600 by
    // 600; the frame is set to 600 by 600 only when the window is not locked).
    virtual void prepareMainWindow(bool welcomeDone, bool locked) = 0;
    // Brings the main window to the front and activates it; whenShown runs once it is up.
    virtual void bringMainWindowForward(const std::function<void()>& whenShown) = 0;
    // A save failed while quitting: true to quit anyway, false to stay.
    virtual bool askQuitAnyway(const QString& message, const QString& information) = 0;
    // The application's presentation of an error it cannot handle itself.
    virtual void presentError(const QString& message) = 0;

    // The four prompts. One prompt is on screen at a time: a new one replaces the open one
    // after it has closed.
    // A scheduled item is due; `previous` is the item still running, if any.
    virtual void makeReminderPopOver(ReminderInfo* item, ReminderInfo* previous) = 0;
    // Nothing ran since `since`: what was the user doing? In the automatic mode: what now?
    virtual void makeIdleAlertPopOver(Date since, bool autoPromptMode) = 0;
    // The running item's time is over.
    virtual void makeTimeOverPopOver(ReminderInfo* item) = 0;
    // A to-do's moment has come.
    virtual void makeTODOPopOver(ReminderInfo* item) = 0;
    // Closes the open prompt with its animation; the shell still counts it as open until the
    // next prompt replaces it.
    virtual void closePopover() = 0;
    // Closes the open prompt at once and forgets it.
    virtual void closePopoverImmediate() = 0;
};

} // namespace lullet
