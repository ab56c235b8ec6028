#pragma once

#include "support/LaunchedDesktop.h"
#include "support/LaunchedTest.h"
#include "support/ShellWindows.h"
#include "ui/widgets/Dialogs.h"

#include <QApplication>

namespace lullet::test {

// A launched test with the desktop side of the program: the tray, notifications and the
// autostart entry. No question from an earlier test function is remembered or answered.
class DesktopTest : public LaunchedTest {
    Q_OBJECT
protected:
    using LaunchedTest::LaunchedTest;

    LaunchedDesktop& app() const { return static_cast<LaunchedDesktop&>(LaunchedTest::app()); }
    std::unique_ptr<Launched> makeLaunch(const QString& folder, Date now) override;

protected Q_SLOTS:
    void init();
};

} // namespace lullet::test
