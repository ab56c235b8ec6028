#pragma once

#include "support/FolderTest.h"
#include "support/Launched.h"

#include <QSignalSpy>

namespace lullet::test {

// A test class whose every test function has a launch of its own, over a folder of its own, on
// a fake clock that starts at the moment the class names. Through the launch the test knows
// every service of the core, the records and their codes, and the settings with their keys.
class LaunchedTest : public FolderTest {
    Q_OBJECT
public:
    enum class Open { No, BeforeWelcome, AfterWelcome };

protected:
    // Where each test function's launch starts its clock, and how far it opens the store.
    virtual Date launchedAt() const = 0;
    virtual Open openedAs() const { return Open::AfterWelcome; }

    // Ends this launch, and launches again over the same folder at `now`.
    void relaunch(Date now, Open open = Open::AfterWelcome);

    Launched& app() const { return *m_app; }
    const Services& services() const { return m_app->services(); }
    Library& library() const { return m_app->library(); }
    FakeClock& clock() const { return m_app->clock; }
    QString storePath() const { return path(QStringLiteral("data/Lullet.sqlite")); }

    virtual std::unique_ptr<Launched> makeLaunch(const QString& folder, Date now);

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<Launched> m_app;
};

} // namespace lullet::test
