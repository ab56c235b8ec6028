#include "support/DesktopTest.h"

namespace lullet::test {

std::unique_ptr<Launched> DesktopTest::makeLaunch(const QString& folder, Date now)
{
    return std::make_unique<LaunchedDesktop>(folder, now);
}

void DesktopTest::init()
{
    Dialogs::forgetAsked();
    LaunchedTest::init();
}

} // namespace lullet::test
