#pragma once

#include "support/FolderTest.h"
#include "support/Launched.h"

#include <QSignalSpy>

namespace lullet::test {

// A test class whose every test function has a launch of its own, over a folder of its own, on
// a fake clock that starts at the moment the class names.
class LaunchedTest : public FolderTest {
    Q_OBJECT
public:
    enum class Open { No, BeforeWelcome, AfterWelcome };

protected:
    explicit LaunchedTest(WallTime launch, Open open = Open::AfterWelcome)
        : m_launch(launch)
        , m_open(open)
    {
    }

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
    WallTime m_launch;
    Open m_open;
    std::unique_ptr<Launched> m_app;
};

} // namespace lullet::test
