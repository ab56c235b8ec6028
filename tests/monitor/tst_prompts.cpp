#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/settings/SettingsKeys.h"
#include "core/store/ObjectContext.h"
#include "monitor/IdlePrompt.h"
#include "monitor/ReminderPrompt.h"
#include "monitor/TimeOverPrompt.h"
#include "monitor/TodoPrompt.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatTypes.h"
#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

// What each prompt's answers do to the records, and what they announce.
class TestPrompts : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;
    QStringList m_heard;
    QObject m_listener;

    AppDelegate& app() { return m_app->delegate; }
    ObjectContext& ctx() { return app().managedObjectContext(); }
    Date now() const { return m_app->clock.now(); }

    ReminderInfo* item(const QString& title, Date due, int hours = 0, int minutes = 0)
    {
        ReminderInfo* r = ctx().insertReminderInfo();
        r->setTitle(title);
        r->setDtReminder(due);
        r->setShouldRemind(true);
        r->setDurationHr(hours);
        r->setDurationMin(minutes);
        app().addLulletObject(r);
        app().saveAction();
        return r;
    }

    void listen()
    {
        for (const QLatin1String name :
             {notification::onReminderStarted, notification::onItemAddedOrEdited,
              notification::onReminderPostponed, notification::onReminderFinished,
              notification::onReminderExtended, notification::onQuickAddFromPrompt,
              notification::onProjectContentChanged}) {
            m_app->center.addObserver(&m_listener, name, [this, name](const QVariant& o) {
                const ReminderInfo* r = o.value<ReminderInfo*>();
                m_heard << (r ? QString(name) + u':' + r->title().value_or(QString())
                              : QString(name));
            });
        }
    }

private Q_SLOTS:
    void initTestCase() { init(); }

    void init()
    {
        lullet::test::useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at(2026, 11, 23, 10, 15, 20));
        m_app->defaults.set(SettingsKeys::isShowFirst, 1);
        QVERIFY(app().awakeFromNib());
        m_heard.clear();
        listen();
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void startingMakesTheItemRun()
    {
        ReminderInfo* due = item(QStringLiteral("Walk"), at(2026, 11, 21, 10, 15), 1, 30);
        ReminderPrompt prompt(app(), due, nullptr);
        QCOMPARE(prompt.reminderText(),
                 QStringLiteral("Time for : Walk, at :") +
                     at(2026, 11, 21, 10, 15).toString(DateStyle::none, DateStyle::shortStyle));
        QVERIFY(prompt.previousText().isEmpty());
        prompt.onStart();
        QCOMPARE(app().objReminderRunningNow, due);
        QVERIFY(*due->hasStarted());
        QCOMPARE(*due->timeLimit(), 5400);
        QCOMPARE(*due->elapsedTime(), 0);
        // Its own day, at the present time of day; nothing saved.
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 21, 10, 15, 20));
        QVERIFY(ctx().hasChanges());
        QCOMPARE(m_heard, (QStringList{QStringLiteral("onReminderStarted:Walk"),
                                       QStringLiteral("onItemAddedOrEdited")}));
        QCOMPARE(m_app->host.calls.last(), QStringLiteral("closePopover"));

        ReminderInfo* open = item(QStringLiteral("Read"), at(2026, 11, 23, 10, 15));
        ReminderPrompt(app(), open, nullptr).onStart();
        QCOMPARE(*open->timeLimit(), 0);
    }

    void delaysAndWhatReachesTheDisk()
    {
        ReminderInfo* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15));
        due->setDtReminderPostponed(at(2026, 11, 23, 10, 20));
        app().saveAction();
        const Date alert = *app().dtLastAnyALertOn;
        ReminderPrompt(app(), due, nullptr).onPostpone10();
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 23, 10, 30));
        QVERIFY(ctx().hasChanges());
        ReminderPrompt(app(), due, nullptr).onPostpone30();
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 23, 11, 0));
        QVERIFY(!ctx().hasChanges());
        QCOMPARE(*app().dtLastAnyALertOn, alert);
        QCOMPARE(m_heard, (QStringList{QStringLiteral("onReminderPostponed:Tea"),
                                       QStringLiteral("onReminderPostponed:Tea")}));
    }

    void finishingThePreviousStartsTheDueOne()
    {
        ReminderInfo* previous = item(QStringLiteral("Write"), at(2026, 11, 23, 9, 0), 1, 0);
        ReminderPrompt(app(), previous, nullptr).onStart();
        previous->setRunningTimeCovered(40);
        ReminderInfo* due = item(QStringLiteral("Tea"), at(2026, 11, 23, 10, 15));
        m_heard.clear();
        m_app->clock.advance(5);
        ReminderPrompt prompt(app(), due, previous);
        QCOMPARE(prompt.previousText(), QStringLiteral("Have you finished : Write ?"));
        prompt.finishedPrevious();
        QVERIFY(*previous->hasFinished());
        QVERIFY(!*previous->hasStarted());
        QVERIFY(!previous->runningTimeCovered());
        QCOMPARE(*previous->dtReminder(), at(2026, 11, 23, 9, 0));
        QCOMPARE(*app().dtLastAnyALertOn, now());
        QCOMPARE(app().objReminderRunningNow, due);
        QCOMPARE(m_heard, (QStringList{QStringLiteral("onReminderFinished:Write"),
                                       QStringLiteral("onReminderStarted:Tea"),
                                       QStringLiteral("onItemAddedOrEdited")}));
    }

    void moreTimeForBothKindsOfItem()
    {
        ReminderInfo* limited = item(QStringLiteral("Limited"), at(2026, 11, 23, 9, 0), 1, 30);
        ReminderPrompt(app(), limited, nullptr).onStart();
        ReminderInfo* due = item(QStringLiteral("Due"), at(2026, 11, 23, 10, 15));
        m_heard.clear();
        ReminderPrompt(app(), due, limited).onNeedMoreTimeOptionSelected(15);
        QCOMPARE(*limited->timeLimit(), 6300);
        QCOMPARE(*limited->durationHr(), 1);
        QCOMPARE(*limited->durationMin(), 45);
        QCOMPARE(*due->dtReminderPostponed(), at(2026, 11, 23, 10, 30));
        QCOMPARE(m_heard, (QStringList{QStringLiteral("onReminderExtended:Limited"),
                                       QStringLiteral("onReminderPostponed:Due")}));

        // A limit without a planned length grows alone.
        limited->setDurationHr(0);
        limited->setDurationMin(0);
        TimeOverPrompt(app(), limited).onNeedMoreTimeOptionSelected(10);
        QCOMPARE(*limited->timeLimit(), 6900);
        QCOMPARE(*limited->durationMin(), 0);

        ReminderInfo* open = item(QStringLiteral("Open"), at(2026, 11, 23, 9, 0));
        ReminderPrompt(app(), open, nullptr).onStart();
        open->setElapsedTime(333);
        m_heard.clear();
        ReminderPrompt none(app(), nullptr, open);
        QCOMPARE(none.reminderText(), QStringLiteral("None"));
        none.onNeedMoreTimeOptionSelected(20);
        QCOMPARE(*open->timeLimit(), 0);
        QCOMPARE(*open->timeLimitExtendedBy(), 1200);
        QCOMPARE(*open->runningTimeCovered(), 333);
        QVERIFY(m_heard.isEmpty());
        QVERIFY(!ctx().hasChanges());
    }

    void timeOverFinishFilesTheItemNowAndAsksAgain()
    {
        ReminderInfo* r = item(QStringLiteral("Nap"), at(2026, 11, 23, 9, 50), 0, 20);
        ReminderPrompt(app(), r, nullptr).onStart();
        r->setRunningTimeCovered(5);
        m_app->clock.set(at(2026, 11, 23, 10, 40, 7));
        m_heard.clear();
        TimeOverPrompt(app(), r).finishedPrevious();
        QCOMPARE(*r->dtReminder(), now());
        QCOMPARE(*r->dtReminderPostponed(), now());
        QVERIFY(*r->hasFinished() && !*r->hasStarted() && !r->runningTimeCovered());
        QVERIFY(!app().objReminderRunningNow);
        QCOMPARE(m_heard, (QStringList{QStringLiteral("onReminderFinished:Nap"),
                                       QStringLiteral("onItemAddedOrEdited")}));
        QCoreApplication::processEvents();
        QCOMPARE(m_app->host.promptKinds(), QStringList{QStringLiteral("idle")});
        QVERIFY(m_app->host.prompts[0].autoPromptMode);
    }

    void aToDoConfirmedMakesItsNextOccurrence()
    {
        RepeatReminderInfo* rule = ctx().insertRepeatReminderInfo();
        rule->setUniqueId(QStringLiteral("Water_1"));
        rule->setTitle(QStringLiteral("Water"));
        rule->setDtReminder(at(2026, 11, 23, 9, 0));
        rule->setRepeatIntervalType(ID_REPEAT_HOUR);
        rule->setRepeatInterval(2);
        rule->setIsCustom(true);
        rule->setIsActive(true);
        app().generator().addRepeatObject(rule);
        ReminderInfo* occurrence = app().mArrAllLullets.front();
        QCOMPARE(*occurrence->dtReminder(), at(2026, 11, 23, 11, 0));
        occurrence->setDtReminderPostponed(at(2026, 11, 23, 11, 30));

        TodoPrompt cancel(app(), occurrence);
        QCOMPARE(cancel.text(), QStringLiteral("Time for : Water. Done ?"));
        cancel.onCancel();
        QVERIFY(!*occurrence->hasFinished());

        m_app->clock.set(at(2026, 11, 23, 11, 0, 5));
        m_heard.clear();
        TodoPrompt(app(), occurrence).onDone();
        QVERIFY(*occurrence->hasFinished());
        QCOMPARE(*occurrence->dtReminder(), now());
        // The next one steps from the postponed date it was due on.
        QCOMPARE(app().mArrAllLullets.size(), std::size_t(2));
        QCOMPARE(*app().mArrAllLullets.front()->dtReminder(), at(2026, 11, 23, 13, 30));
        QCOMPARE(m_heard.first(), QStringLiteral("onReminderFinished:Water"));
        QVERIFY(!m_heard.contains(QStringLiteral("onItemAddedOrEdited")));
    }

    void theIdleAnswerBecomesTheRunningItem()
    {
        Project* home = ctx().insertProject();
        home->setName(QStringLiteral("Home"));
        app().addProjectObject(home);
        m_app->clock.set(at(2026, 11, 23, 10, 20));
        app().intNoTaskDuration = 15;
        {
            IdlePrompt prompt(app(), at(2026, 11, 23, 10, 0), false);
            QCOMPARE(prompt.projectChoices(),
                     (QStringList{QStringLiteral("Today"), QStringLiteral("Home")}));
            m_app->clock.set(at(2026, 11, 23, 10, 25));
            QCOMPARE(prompt.questionText(),
                     QStringLiteral("What were you doing for last 25 minutes ?"));
            QVERIFY(prompt.rangeText().startsWith(QStringLiteral("(10:00")));
            QCOMPARE(prompt.onDone(QStringLiteral("   "), QStringLiteral("Today"), false),
                     IdlePrompt::Result::Blank);
            QCOMPARE(prompt.onDone(QStringLiteral(" walk "), QStringLiteral("Home"), false),
                     IdlePrompt::Result::Accepted);
        }
        ReminderInfo* r = app().objReminderRunningNow;
        QVERIFY(r);
        QCOMPARE(*r->title(), QStringLiteral("Walk"));
        QCOMPARE(*r->dtReminder(), at(2026, 11, 23, 10, 0));
        QCOMPARE(*r->elapsedTime(), 1500);
        QCOMPARE(*r->timeLimitExtendedBy(), 900);
        QCOMPARE(*r->uniqueId(), QStringLiteral("<to make>"));
        QVERIFY(*r->hasStarted());
        QCOMPARE(r->toProject(), home);
        QCOMPARE(*app().dtLastAnyALertOn, at(2026, 11, 23, 10, 20));
        QVERIFY(!app().dtLastUnrepliedTime);
        QCOMPARE(m_heard, (QStringList{QStringLiteral("onProjectContentChanged"),
                                       QStringLiteral("onQuickAddFromPrompt"),
                                       QStringLiteral("onItemAddedOrEdited")}));
        QCOMPARE(m_app->host.calls.last(), QStringLiteral("closePopover"));
    }

    void anUnansweredQuestionHandsOnItsStart()
    {
        m_app->clock.set(at(2026, 11, 23, 10, 30));
        {
            IdlePrompt unanswered(app(), at(2026, 11, 23, 10, 0), false);
        }
        QCOMPARE(*app().dtLastUnrepliedTime, at(2026, 11, 23, 10, 0));
        IdlePrompt next(app(), at(2026, 11, 23, 10, 30), false);
        QCOMPARE(next.dtIdleTimeSince, at(2026, 11, 23, 10, 0));
        QVERIFY(!app().dtLastUnrepliedTime);
        QCOMPARE(next.questionText(), QStringLiteral("What were you doing for last 30 minutes ?"));
    }

    void anAnswerAlreadyDoneFinishesAndAsksAgain()
    {
        m_app->clock.set(at(2026, 11, 23, 10, 30));
        app().intNoTaskDuration = 0;
        {
            IdlePrompt prompt(app(), at(2026, 11, 23, 10, 0), true);
            QCOMPARE(prompt.questionText(), QStringLiteral("What are you doing now ?"));
            m_app->clock.set(at(2026, 11, 23, 10, 37));
            QCOMPARE(prompt.onDone(QStringLiteral("email"), QStringLiteral("Today"), true),
                     IdlePrompt::Result::Accepted);
        }
        QVERIFY(!app().objReminderRunningNow);
        const ReminderInfo* r = app().mArrAllLullets.back();
        QCOMPARE(*r->title(), QStringLiteral("Email"));
        QVERIFY(*r->hasFinished() && !*r->hasStarted());
        // Counted from the moment of asking in the automatic mode; a period of 0 gives 60 × P.
        QCOMPARE(*r->elapsedTime(), 420);
        QCOMPARE(*r->timeLimitExtendedBy(), 420);
        QVERIFY(!r->toProject());
        QCOMPARE(*app().dtLastAnyALertOn, now());
        QCOMPARE(m_app->host.calls.last(), QStringLiteral("closePopoverImmediate"));
        QCoreApplication::processEvents();
        QCOMPARE(m_app->host.promptKinds(), QStringList{QStringLiteral("idle")});
    }
};

LULLET_TEST_MAIN(TestPrompts)
#include "tst_prompts.moc"
