#include "core/app/AppController.h"
#include "core/library/Library.h"
#include "core/monitor/PromptHold.h"
#include "core/monitor/PromptPort.h"
#include "core/monitor/PromptQueue.h"
#include "core/settings/Settings.h"
#include "support/FakeClock.h"
#include "support/FakeInhibitor.h"
#include "support/FakeSecretStore.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"
#include "ui/desktop/SessionPresence.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QTemporaryDir>

using namespace lullet;
using namespace lullet::test;

namespace {

// A stand-in for the desktop's screen saver, served on the test's own session bus from a
// connection of its own, as another process would.
class StandInScreenSaver final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public:
    explicit StandInScreenSaver(const QDBusConnection& bus)
        : m_bus(bus)
    {
    }
    bool serve()
    {
        return m_bus.registerObject(QStringLiteral("/org/freedesktop/ScreenSaver"), this,
                                    QDBusConnection::ExportAllSlots |
                                        QDBusConnection::ExportAllSignals) &&
               m_bus.registerService(QStringLiteral("org.freedesktop.ScreenSaver"));
    }
    void lock(bool on)
    {
        active = on;
        Q_EMIT ActiveChanged(on);
    }

    bool active = false;
    uint idleMs = 0;

public Q_SLOTS:
    bool GetActive() const { return active; }
    uint GetSessionIdleTime() const { return idleMs; }

Q_SIGNALS:
    void ActiveChanged(bool active);

private:
    QDBusConnection m_bus;
};

class ShownPrompts final : public PromptPort {
public:
    void present(const PromptRequest& request) override
    {
        shown << request.item->title().value_or(QString());
    }
    void extendIdleQuestion(bool) override {}
    void withdrawIdleQuestion() override {}
    QStringList shown;
};

} // namespace

// The desktop's sources on a real bus: a lock told by the screen saver holds the prompts, and the
// unlock shows them; the idle time comes from the screen saver where the desktop has no idle
// monitor of its own.
class TestSessionPresence : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!QDBusConnection::sessionBus().isConnected())
            QSKIP("needs a session bus (the test script runs one)");
        useTestCalendar();
    }

    void aLockHoldsPromptsAndTheUnlockShowsThem()
    {
        StandInScreenSaver screenSaver(
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("saver")));
        QVERIFY(screenSaver.serve());
        SessionPresence presence(QDBusConnection::sessionBus(), QDBusConnection(QString()));
        QTemporaryDir dir;
        FakeClock clock(Date::dateFromComponents(2026, 11, 23, 12, 0));
        Settings settings(QDir(dir.path()).filePath(QStringLiteral("Lullet.conf")));
        settings.setWelcomeDone();
        settings.setIdleQuestionsOff(true);
        FakeInhibitor inhibitor;
        FakeSecretStore secrets;
        AppController core(clock, settings, QDir(dir.path()).filePath(QStringLiteral("data")),
                           inhibitor, secrets, &presence);
        QCOMPARE(core.open().outcome, Store::Outcome::Opened);
        ShownPrompts port;
        const Services& services = core.services();
        services.prompts.setPort(&port);

        screenSaver.lock(true);
        QTRY_VERIFY(presence.isLocked());
        QCOMPARE(services.hold.reason(), PromptHold::Reason::Locked);
        Item* tea = services.library.newTask(QStringLiteral("Tea"));
        services.library.addItem(tea);
        services.prompts.add({PromptRequest::Kind::Reminder, tea, nullptr, {}, false});
        QTest::qWait(50);
        QVERIFY(port.shown.isEmpty());
        screenSaver.lock(false);
        QTRY_COMPARE(port.shown, QStringList{QStringLiteral("Tea")});

        // No idle monitor of GNOME's here: the screen saver tells the time since the last input.
        screenSaver.idleMs = 400000;
        presence.refresh();
        QTRY_COMPARE(presence.idleMilliseconds(), std::optional<qint64>(400000));
        services.prompts.setPort(nullptr);
    }

    // Nothing answers: no source, no error, nothing held.
    void noServiceIsNoError()
    {
        SessionPresence presence(QDBusConnection::sessionBus(), QDBusConnection(QString()));
        presence.refresh();
        QTest::qWait(100);
        QVERIFY(!presence.isLocked());
        QVERIFY(!presence.notificationsInhibited());
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestSessionPresence)

#include "tst_sessionpresence.moc"
