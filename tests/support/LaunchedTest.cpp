#include "support/LaunchedTest.h"

namespace lullet::test {

void LaunchedTest::relaunch(Date now, Open open)
{
    m_app.reset();
    m_app = makeLaunch(folder(), now);
    if (open != Open::No)
        QVERIFY(m_app->open(open == Open::AfterWelcome));
}

std::unique_ptr<Launched> LaunchedTest::makeLaunch(const QString& folder, Date now)
{
    return std::make_unique<Launched>(folder, now);
}

void LaunchedTest::init()
{
    FolderTest::init();
    relaunch(launchedAt(), openedAs());
}

void LaunchedTest::cleanup()
{
    m_app.reset();
    FolderTest::cleanup();
}

} // namespace lullet::test
