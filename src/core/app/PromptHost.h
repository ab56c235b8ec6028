#pragma once

#include <QString>

#include <functional>

namespace lullet {

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
};

} // namespace lullet
