#pragma once

#include "support/Children.h"
#include "support/LaunchedDesktop.h"
#include "support/LaunchedTest.h"
#include "support/ShellWindows.h"
#include "ui/widgets/Dialogs.h"

#include <QApplication>

namespace lullet::test {

// A launched test with the desktop side of the program: the tray, notifications and the
// autostart entry, the shell and its windows, and the dialogs. No question from an earlier test
// function is remembered or answered.
class DesktopTest : public LaunchedTest {
    Q_OBJECT
protected:
    LaunchedDesktop& app() const { return static_cast<LaunchedDesktop&>(LaunchedTest::app()); }
    std::unique_ptr<Launched> makeLaunch(const QString& folder, Date now) override;

protected Q_SLOTS:
    void init();
};

} // namespace lullet::test
