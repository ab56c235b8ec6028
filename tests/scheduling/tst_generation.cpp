#include "core/dates/CalendarContext.h"
#include "core/notify/Notifications.h"
#include "core/store/ObjectContext.h"
#include "scheduling/DefaultCatalogue.h"
#include "scheduling/LulletGenerator.h"
#include "scheduling/RepeatTypes.h"
#include "support/DatePrinting.h"
#include "support/TestLaunch.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

#include <memory>

using namespace lullet;
using namespace lullet::test;

namespace {

std::vector<ReminderInfo*> openOf(AppDelegate& app, const QString& id)
{
    std::vector<ReminderInfo*> found;
    for (ReminderInfo* item : app.mArrAllLullets) {
        if (item->uniqueId() == id && item->hasFinished() == std::optional<bool>(false))
            found.push_back(item);
    }
    return found;
}

} // namespace

class TestGeneration : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<TestLaunch> m_app;

    AppDelegate& app() { return m_app->delegate; }
    ObjectContext& ctx() { return app().managedObjectContext(); }
    LulletGenerator& generator() { return app().generator(); }

    RepeatReminderInfo* rule(const QString& title, int type, int count, Date anchor,
                             bool custom = true, bool toDo = true)
    {
        RepeatReminderInfo* r = ctx().insertRepeatReminderInfo();
        r->setUniqueId(title + QStringLiteral("_1795000000.5"));
        r->setTitle(title);
        r->setNotes(QStringLiteral("notes of ") + title);
        r->setRepeatIntervalType(type);
        r->setRepeatInterval(count);
        r->setRepeatOption(0);
        r->setDtReminder(anchor);
        r->setIsCustom(custom);
        r->setIsToDoOrJob(toDo);
        r->setIsActive(true);
        r->setDurationHr(0);
        r->setDurationMin(25);
        r->setShouldRemind(true);
        r->setRemindBefore(2);
        return r;
    }

    ReminderInfo* occurrence(const QString& id, Date due, std::optional<bool> finished = false)
    {
        ReminderInfo* item = ctx().insertReminderInfo();
        item->setUniqueId(id);
        item->setDtReminder(due);
        item->setHasFinished(finished);
        app().addLulletObject(item);
        return item;
    }

private Q_SLOTS:
    void initTestCase() { CalendarContext::setTimeZone(QStringLiteral("Europe/Berlin")); }

    void init()
    {
        CalendarContext::setLocale(QStringLiteral("en_US"));
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<TestLaunch>(m_dir->path(), at(2026, 11, 23, 10, 30));
        QVERIFY(app().awakeFromNib());
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void nothingIsMadeWithoutARuleOrAFutureDate()
    {
        RepeatReminderInfo* r =
            rule(QStringLiteral("Stretch"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 9));
        const std::size_t before = app().mArrAllLullets.size();
        generator().makeReadyLullets(nullptr, at(2026, 11, 23, 12), false);
        generator().makeReadyLullets(r, std::nullopt, false);
        generator().makeReadyLullets(r, at(2026, 11, 23, 10, 29), false);
        r->setTitle(std::nullopt);
        generator().makeReadyLullets(r, at(2026, 11, 23, 12), false);
        QCOMPARE(app().mArrAllLullets.size(), before);
    }

    void withoutTheCheckAnyOpenOccurrenceStandsInTheWay()
    {
        RepeatReminderInfo* r =
            rule(QStringLiteral("Stretch"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 9));
        occurrence(*r->uniqueId(), at(2025, 11, 1, 9, 0));
        generator().makeReadyLullets(r, at(2026, 11, 23, 11), false);
        QCOMPARE(openOf(app(), *r->uniqueId()).size(), std::size_t(1));

        // Finished ones, and ones with no finished value at all, don't count.
        openOf(app(), *r->uniqueId()).front()->setHasFinished(true);
        occurrence(*r->uniqueId(), at(2026, 11, 23, 9), std::nullopt);
        generator().makeReadyLullets(r, at(2026, 11, 23, 11), false);
        const auto open = openOf(app(), *r->uniqueId());
        QCOMPARE(open.size(), std::size_t(1));
        QCOMPARE(*open.front()->dtReminder(), at(2026, 11, 23, 11));
    }

    void withTheCheckOnlyTheLastStepCounts_data()
    {
        QTest::addColumn<Date>("existing");
        QTest::addColumn<bool>("blocks");
        QTest::newRow("10:00:15 blocks") << at(2026, 11, 23, 10, 0, 15) << true;
        QTest::newRow("10:00:05 does not") << at(2026, 11, 23, 10, 0, 5) << false;
        QTest::newRow("exactly one step back does not") << at(2026, 11, 23, 10, 0, 0) << false;
        QTest::newRow("11:00:00 blocks") << at(2026, 11, 23, 11, 0, 0) << true;
        QTest::newRow("after the date does not") << at(2026, 11, 23, 11, 0, 1) << false;
    }

    void withTheCheckOnlyTheLastStepCounts()
    {
        QFETCH(Date, existing);
        QFETCH(bool, blocks);
        RepeatReminderInfo* r =
            rule(QStringLiteral("Water"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 9));
        occurrence(*r->uniqueId(), existing);
        generator().makeReadyLullets(r, at(2026, 11, 23, 11), true);
        QCOMPARE(openOf(app(), *r->uniqueId()).size(), std::size_t(blocks ? 1 : 2));
    }

    void idsMatchAsPatternsIgnoringCaseAndAccents()
    {
        RepeatReminderInfo* r =
            rule(QStringLiteral("Cafe time"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 9));
        occurrence(QStringLiteral("CAFÉ TIME_1795000000.5"), at(2026, 11, 23, 9));
        generator().makeReadyLullets(r, at(2026, 11, 23, 11), false);
        QCOMPARE(openOf(app(), *r->uniqueId()).size(), std::size_t(0));
        // "." in the id is any character, as a pattern reads it.
        occurrence(QStringLiteral("Tea_1795000000x5"), at(2026, 11, 23, 9));
        RepeatReminderInfo* tea =
            rule(QStringLiteral("Tea"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 9));
        generator().makeReadyLullets(tea, at(2026, 11, 23, 11), false);
        QCOMPARE(openOf(app(), *tea->uniqueId()).size(), std::size_t(0));
    }

    void occurrencesCopyWhatTheirKindNeeds()
    {
        int posted = 0;
        QVariant object;
        QObject listener;
        m_app->center.addObserver(&listener, notification::onItemAddedOrEdited,
                                  [&](const QVariant& o) {
                                      ++posted;
                                      object = o;
                                  });
        RepeatReminderInfo* toDo =
            rule(QStringLiteral("Water"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 9));
        RepeatReminderInfo* timed =
            rule(QStringLiteral("Walk"), ID_REPEAT_DAY, 1, at(2026, 11, 23, 9), true, false);
        generator().makeReadyLullets(toDo, at(2026, 11, 23, 11), false);
        QCOMPARE(posted, 0);
        QCoreApplication::processEvents();
        QCOMPARE(posted, 1);
        ReminderInfo* a = openOf(app(), *toDo->uniqueId()).front();
        QCOMPARE(object.value<ReminderInfo*>(), a);
        QCOMPARE(a->repeatOption(), std::optional<int>(RepeatOptionsToDo::TODO_VAL));
        QVERIFY(!a->durationMin() && !a->shouldRemind() && !a->repeatInterval());
        QCOMPARE(*a->title(), QStringLiteral("Water"));
        QCOMPARE(*a->notes(), QStringLiteral("notes of Water"));
        QVERIFY(a->rowId() > 0);

        generator().makeReadyLullets(timed, at(2026, 11, 24, 9), false);
        ReminderInfo* b = openOf(app(), *timed->uniqueId()).front();
        QCOMPARE(b->repeatOption(), std::optional<int>(0));
        QCOMPARE(b->durationMin(), std::optional<int>(25));
        QCOMPARE(b->remindBefore(), std::optional<int>(2));
        QCOMPARE(b->repeatIntervalType(), std::optional<int>(ID_REPEAT_DAY));
        QVERIFY(!b->dtRepeatUpto());
        // The list stays in order: the earlier one first.
        const auto& list = app().mArrAllLullets;
        QVERIFY(std::find(list.begin(), list.end(), a) < std::find(list.begin(), list.end(), b));
    }

    void theNextOccurrenceFollowsTheGrid()
    {
        RepeatReminderInfo* r =
            rule(QStringLiteral("Stretch"), ID_REPEAT_HOUR, 2, at(2026, 11, 23, 6));
        generator().addRepeatObject(r);
        ReminderInfo* first = openOf(app(), *r->uniqueId()).front();
        QCOMPARE(*first->dtReminder(), at(2026, 11, 23, 12));

        // Finished late: the missed dates are dropped, the next is on the grid after now.
        m_app->clock.set(at(2026, 11, 23, 16, 30));
        first->setHasFinished(true);
        generator().createNextLullet(first, *first->dtReminder());
        ReminderInfo* second = openOf(app(), *r->uniqueId()).front();
        QCOMPARE(*second->dtReminder(), at(2026, 11, 23, 18));
        QCOMPARE(*app().catalogue().rowsOf(r).front()->nextRepeatOn, at(2026, 11, 23, 18));

        // Finished early: one step after the date it stood on, so no date repeats.
        second->setHasFinished(true);
        generator().createNextLullet(second, *second->dtReminder());
        QCOMPARE(*openOf(app(), *r->uniqueId()).front()->dtReminder(), at(2026, 11, 23, 20));
    }

    void aRuleThatEndedOrWentMakesNothing()
    {
        RepeatReminderInfo* r =
            rule(QStringLiteral("Stretch"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 10));
        generator().addRepeatObject(r);
        ReminderInfo* first = openOf(app(), *r->uniqueId()).front();
        first->setHasFinished(true);
        r->setRepeatOption(1);
        r->setDtRepeatUpto(at(2026, 11, 23, 12));
        generator().createNextLullet(first, at(2026, 11, 23, 11));
        QVERIFY(openOf(app(), *r->uniqueId()).empty());

        r->setDtRepeatUpto(at(2026, 11, 23, 12, 0, 1));
        generator().createNextLullet(first, at(2026, 11, 23, 11));
        QCOMPARE(openOf(app(), *r->uniqueId()).size(), std::size_t(1));

        ReminderInfo* second = openOf(app(), *r->uniqueId()).front();
        second->setHasFinished(true);
        generator().removeRepeatingObject(r);
        ctx().deleteObject(r);
        generator().createNextLullet(second, *second->dtReminder());
        QVERIFY(openOf(app(), *r->uniqueId()).empty());

        // A stored step of 0 makes nothing, and never loops.
        RepeatReminderInfo* broken =
            rule(QStringLiteral("Broken"), ID_REPEAT_MIN, 0, at(2026, 11, 20));
        generator().addRepeatObject(broken);
        QVERIFY(openOf(app(), *broken->uniqueId()).empty());
        ReminderInfo* orphan = occurrence(*broken->uniqueId(), at(2026, 11, 23, 11), true);
        generator().createNextLullet(orphan, at(2026, 11, 23, 11));
        QVERIFY(openOf(app(), *broken->uniqueId()).empty());
    }

    void removingKeepsHistoryAndTheCustomHeaderInStep()
    {
        RepeatReminderInfo* a =
            rule(QStringLiteral("Alpha"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 10));
        RepeatReminderInfo* b =
            rule(QStringLiteral("Beta"), ID_REPEAT_HOUR, 1, at(2026, 11, 23, 10));
        auto& rows = app().catalogue().mArrDefaultRepeats;
        const std::size_t catalogueRows = rows.size();
        generator().addRepeatObject(a);
        QCOMPARE(rows.size(), catalogueRows + 2);
        QCOMPARE(rows[catalogueRows]->title, QStringLiteral("Custom breaks"));
        generator().addRepeatObject(b);
        QCOMPARE(rows.size(), catalogueRows + 3);
        ReminderInfo* done = occurrence(*a->uniqueId(), at(2026, 11, 22, 10), true);

        int edited = 0;
        QObject listener;
        m_app->center.addObserver(&listener, notification::onRepeatItemAddedOrEdited,
                                  [&](const QVariant&) { ++edited; });
        QVERIFY(!generator().removeRepeatingObject(a));
        QVERIFY(openOf(app(), *a->uniqueId()).empty());
        QVERIFY(done->hasContext());
        QCOMPARE(rows.size(), catalogueRows + 2);
        QVERIFY(generator().removeRepeatingObject(b));
        QCOMPARE(rows.size(), catalogueRows);
        QCoreApplication::processEvents();
        QCOMPARE(edited, 2);
    }

    void everyActiveRuleHasOneOpenOccurrenceAtLaunch()
    {
        RepeatReminderInfo* hourly =
            rule(QStringLiteral("Hourly"), ID_REPEAT_HOUR, 1, at(2026, 11, 1, 9, 15));
        RepeatReminderInfo* off =
            rule(QStringLiteral("Off"), ID_REPEAT_HOUR, 1, at(2026, 11, 1, 9));
        off->setIsActive(false);
        RepeatReminderInfo* water =
            rule(QStringLiteral("water TIME"), ID_REPEAT_MIN, 45, at(2026, 11, 23, 9), false);
        water->setIsCustom(std::nullopt);
        app().saveAction();
        const QString hourlyId = *hourly->uniqueId();
        const QString offId = *off->uniqueId();
        const QString waterId = *water->uniqueId();
        const QString dir = m_dir->path();
        for (int run = 0; run < 2; ++run) {
            m_app.reset();
            m_app = std::make_unique<TestLaunch>(dir, at(2026, 11, 23, 10, 30 + run * 20));
            QVERIFY(app().awakeFromNib());
            QCOMPARE(openOf(app(), hourlyId).size(), std::size_t(1));
            QCOMPARE(*openOf(app(), hourlyId).front()->dtReminder(), at(2026, 11, 23, 11, 15));
            QCOMPARE(openOf(app(), offId).size(), std::size_t(0));
            // The catalogue's "Water time" claims it, whatever the case.
            QCOMPARE(openOf(app(), waterId).size(), std::size_t(1));
        }
    }
};

LULLET_TEST_MAIN(TestGeneration)
#include "tst_generation.moc"
