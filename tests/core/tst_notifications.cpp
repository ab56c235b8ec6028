#include "core/notify/NotificationCenter.h"
#include "core/notify/Notifications.h"
#include "support/TestMain.h"

#include <memory>

using namespace lullet;

class TestNotifications : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void deliversSynchronouslyInOrderWithTheObject()
    {
        NotificationCenter center;
        QObject a, b;
        QStringList heard;
        center.addObserver(&a, notification::onItemAddedOrEdited, [&](const QVariant& o) {
            heard << QStringLiteral("a:") + o.toString();
        });
        center.addObserver(&b, notification::onItemAddedOrEdited, [&](const QVariant& o) {
            heard << QStringLiteral("b:") + o.toString();
        });
        center.addObserver(&b, notification::onItemDeleted,
                           [&](const QVariant&) { heard << QStringLiteral("deleted"); });
        center.post(notification::onItemAddedOrEdited, QStringLiteral("x"));
        QCOMPARE(heard, (QStringList{QStringLiteral("a:x"), QStringLiteral("b:x")}));
        center.post(notification::onReminderStarted);
        QCOMPARE(heard.size(), 2);
    }

    void observersEndWithTheirOwner()
    {
        NotificationCenter center;
        int calls = 0;
        {
            QObject owner;
            center.addObserver(&owner, notification::onMonitoringDone,
                               [&](const QVariant&) { ++calls; });
            center.addObserver(&owner, notification::onSynciCloud,
                               [&](const QVariant&) { ++calls; });
            center.post(notification::onMonitoringDone);
        }
        center.post(notification::onMonitoringDone);
        center.post(notification::onSynciCloud);
        QCOMPARE(calls, 1);
        QCOMPARE(center.observerCount(notification::onMonitoringDone), 0);

        QObject other;
        center.addObserver(&other, notification::onMonitoringDone,
                           [&](const QVariant&) { ++calls; });
        center.addObserver(&other, notification::onItemDeleted, [&](const QVariant&) { ++calls; });
        center.removeObserver(&other);
        center.post(notification::onMonitoringDone);
        center.post(notification::onItemDeleted);
        QCOMPARE(calls, 1);
    }

    void changesDuringAPostAreSafe()
    {
        NotificationCenter center;
        auto first = std::make_unique<QObject>();
        auto second = std::make_unique<QObject>();
        QObject late;
        QStringList heard;
        // The first observer ends itself and the second one while the post runs, and adds a new
        // observer: the second is not called, the new one waits for the next post.
        center.addObserver(first.get(), notification::onReminderFinished, [&](const QVariant&) {
            heard << QStringLiteral("first");
            center.addObserver(&late, notification::onReminderFinished,
                               [&](const QVariant&) { heard << QStringLiteral("late"); });
            second.reset();
            first.reset();
        });
        center.addObserver(second.get(), notification::onReminderFinished,
                           [&](const QVariant&) { heard << QStringLiteral("second"); });
        center.post(notification::onReminderFinished);
        QCOMPARE(heard, QStringList{QStringLiteral("first")});
        center.post(notification::onReminderFinished);
        QCOMPARE(heard, (QStringList{QStringLiteral("first"), QStringLiteral("late")}));
    }

    void namesWithoutListenersAreHarmless()
    {
        NotificationCenter center;
        center.post(notification::onIndividualRestoreDone);
        center.post(notification::showHideChart, true);
        QCOMPARE(QString(notification::unPrepareTransitionTimer),
                 QStringLiteral("_unPrepareTransitionTimer"));
    }
};

LULLET_TEST_MAIN(TestNotifications)
#include "tst_notifications.moc"
