#include "authoring/QuickAdd.h"
#include "authoring/QuickAddViewController.h"
#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "shell/SingleInstance.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

class TestQuickAdd : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;

    AppDelegate& app() { return m_app->delegate; }

private Q_SLOTS:
    void initTestCase() { init(); }

    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at(2026, 11, 23, 10, 15, 30));
        QVERIFY(app().awakeFromNib());
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void aTaskIsDueTenMinutesAfterTheFormOpened()
    {
        QuickAdd form(app());
        QCOMPARE(form.dateLabel(), QStringLiteral("23 Nov 2026"));
        QVERIFY(form.timeLabel().startsWith(QStringLiteral("at 10:25")));
        QCOMPARE(form.projectChoices(), QStringList{QStringLiteral("No Project")});
        QCOMPARE(form.durationChoices().size(), 14);
        m_app->clock.advance(120);
        QVERIFY(!form.onDoAdd(QStringLiteral("  "), QStringLiteral("No Project")));
        ReminderInfo* item = form.onDoAdd(QStringLiteral("buy milk"), QStringLiteral("No Project"));
        QVERIFY(item);
        QCOMPARE(*item->title(), QStringLiteral("Buy milk"));
        QCOMPARE(*item->dtReminder(), at(2026, 11, 23, 10, 25, 30));
        QVERIFY(*item->shouldRemind());
        QCOMPARE(*item->uniqueId(), QStringLiteral("<to make>"));
        QCOMPARE(*item->durationMin(), 0);
        QVERIFY(!item->toProject());
        QVERIFY(!app().managedObjectContext().hasChanges());
        QCOMPARE(app().mArrAllLullets.size(), std::size_t(1));
    }

    void noDateAndAProject()
    {
        Project* home = app().managedObjectContext().insertProject();
        home->setName(QStringLiteral("Home"));
        app().addProjectObject(home);
        app().objProjectSelectedNow = home;
        QuickAdd form(app());
        QCOMPARE(form.selectedProjectIndex(), 1);
        form.doUnsetDate();
        QCOMPARE(form.dateLabel() + u' ' + form.timeLabel(), QStringLiteral("No date"));
        QCOMPARE(form.pickerStart(), at(2026, 11, 23, 10, 25, 30));
        int contentChanged = 0;
        QObject listener;
        m_app->center.addObserver(&listener, notification::onProjectContentChanged,
                                  [&](const QVariant&) { ++contentChanged; });
        ReminderInfo* item = form.onDoAdd(QStringLiteral("Fix the tap"), QStringLiteral("Home"));
        QVERIFY(!item->dtReminder());
        QVERIFY(!*item->shouldRemind());
        QCOMPARE(item->toProject(), home);
        QCOMPARE(contentChanged, 1);
    }

    void theWindowTakesOnlyItsOwnDates()
    {
        QuickAddViewController window(app());
        QSignalSpy added(&window, &QuickAddViewController::added);
        m_app->center.post(
            notification::doSelectDate,
            QVariantList{QStringLiteral("someOtherField"), QVariant::fromValue(at(2027, 1, 1))});
        QCOMPARE(*window.model().dtReminderQuickAdd, at(2026, 11, 23, 10, 25, 30));
        m_app->center.post(notification::doSelectDate,
                           QVariantList{window.txtTaskQuickAdd->objectName(),
                                        QVariant::fromValue(at(2026, 11, 24, 8, 0))});
        QCOMPARE(*window.model().dtReminderQuickAdd, at(2026, 11, 24, 8, 0));
        window.txtTaskQuickAdd->setText(QStringLiteral("call mum"));
        window.findChild<QPushButton*>(QStringLiteral("onDoAdd"))->click();
        QCOMPARE(added.count(), 1);
        QCOMPARE(*app().mArrAllLullets.front()->dtReminder(), at(2026, 11, 24, 8, 0));
    }

    void oneInstanceTakesTheRequestsOfTheNext()
    {
        const QString path = m_dir->filePath(QStringLiteral("lullet.socket"));
        // A file left where the socket belongs, as after a crash, is replaced.
        QFile stale(path);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.close();
        SingleInstance first(path);
        QVERIFY(!first.forward(QStringLiteral("show")));
        QVERIFY(first.listen());
        QSignalSpy requests(&first, &SingleInstance::requestReceived);

        SingleInstance second(path);
        QVERIFY(second.forward(QStringLiteral("quick-add")));
        QVERIFY(!second.listen());
        QTRY_COMPARE(requests.count(), 1);
        QCOMPARE(requests.at(0).at(0).toString(), QStringLiteral("quick-add"));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestQuickAdd)
#include "tst_quickadd.moc"
