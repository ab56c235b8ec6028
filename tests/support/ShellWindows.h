#pragma once

#include "support/LaunchedDesktop.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/Shell.h"
#include "ui/shell/Tray.h"
#include "ui/widgets/Popover.h"

namespace lullet::test {

// The main window and the shell over a launch, as the program makes them; loaded unless told
// otherwise.
struct ShellWindows {
    explicit ShellWindows(LaunchedDesktop& app, bool loaded = true)
        : shell(app.services(), window, app.presence, app.notifier)
    {
        if (loaded)
            shell.setLoaded();
    }

    // The prompt or panel the tray's popover shows, once it is on show.
    QWidget* shownInPopover()
    {
        const Popover* popover = shell.tray().popover();
        return popover && popover->isShown() ? popover->content() : nullptr;
    }

    MainWindow window;
    Shell shell;
};

} // namespace lullet::test
