#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

class TestGeneration : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 30); }

    Generator& generator() { return services().generator; }
    Catalogue& catalogue() { return services().catalogue; }

    std::vector<Item*> openOf(const QString& id)
    {
        std::vector<Item*> found;
        for (Item* item : library().items()) {
            if (item->uniqueId() == id && item->hasFinished() == std::optional<bool>(false))
                found.push_back(item);
        }
        return found;
    }

    Rule* rule(const QString& title, int type, int count, Date anchor, bool custom = true,
               bool toDo = true)
    {
        Rule* r = app().addRule(title, type, count, anchor);
        r->setNotes(QStringLiteral("notes of ") + title);
        r->setIsCustom(custom);
        r->setIsToDoOrJob(toDo);
        r->setDurationHr(0);
        r->setDurationMin(25);
        r->setShouldRemind(true);
        r->setRemindBefore(2);
        return r;
    }

    Item* occurrence(const QString& id, Date due, std::optional<bool> finished = false)
    {
        Item* item = library().newItem();
        item->setUniqueId(id);
        item->setDtReminder(due);
        item->setHasFinished(finished);
        library().addItem(item);
        return item;
    }

private Q_SLOTS:
    void nothingIsMadeWithoutARuleOrAFutureDate()
    {
        Rule* r = rule(QStringLiteral("Stretch"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9));
        const std::size_t before = library().items().size();
        generator().makeOccurrence(nullptr, at(2026, 11, 23, 12), Generator::Check::AnyOpen);
        generator().makeOccurrence(r, std::nullopt, Generator::Check::AnyOpen);
        generator().makeOccurrence(r, at(2026, 11, 23, 10, 29), Generator::Check::AnyOpen);
        r->setTitle(std::nullopt);
        generator().makeOccurrence(r, at(2026, 11, 23, 12), Generator::Check::AnyOpen);
        QCOMPARE(library().items().size(), before);
    }

    void withoutTheCheckAnyOpenOccurrenceStandsInTheWay()
    {
        Rule* r = rule(QStringLiteral("Stretch"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9));
        occurrence(*r->uniqueId(), at(2025, 11, 1, 9, 0));
        generator().makeOccurrence(r, at(2026, 11, 23, 11), Generator::Check::AnyOpen);
        QCOMPARE(openOf(*r->uniqueId()).size(), std::size_t(1));

        // Finished ones, and ones with no finished value at all, don't count.
        openOf(*r->uniqueId()).front()->setHasFinished(true);
        occurrence(*r->uniqueId(), at(2026, 11, 23, 9), std::nullopt);
        generator().makeOccurrence(r, at(2026, 11, 23, 11), Generator::Check::AnyOpen);
        const auto open = openOf(*r->uniqueId());
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
        Rule* r = rule(QStringLiteral("Water"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9));
        occurrence(*r->uniqueId(), existing);
        generator().makeOccurrence(r, at(2026, 11, 23, 11), Generator::Check::WithinLastStep);
        QCOMPARE(openOf(*r->uniqueId()).size(), std::size_t(blocks ? 1 : 2));
    }

    void idsMatchAsTextIgnoringCaseAndAccents()
    {
        Rule* r = rule(QStringLiteral("Cafe time"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9));
        occurrence(QStringLiteral("CAFÉ TIME_1795000000.5"), at(2026, 11, 23, 9));
        generator().makeOccurrence(r, at(2026, 11, 23, 11), Generator::Check::AnyOpen);
        QCOMPARE(openOf(*r->uniqueId()).size(), std::size_t(0));
        // The id is text, not a pattern: "." is a dot and nothing else.
        occurrence(QStringLiteral("Tea_1795000000x5"), at(2026, 11, 23, 9));
        Rule* tea = rule(QStringLiteral("Tea"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9));
        generator().makeOccurrence(tea, at(2026, 11, 23, 11), Generator::Check::AnyOpen);
        QCOMPARE(openOf(*tea->uniqueId()).size(), std::size_t(1));
    }

    // Titles with pattern characters: the rule finds its own occurrence, every minute, and
    // switching it off removes it.
    void aRuleAlwaysFindsItsOwnOccurrences()
    {
        for (const QString& title : {QStringLiteral("Stretch?"), QStringLiteral("Review (draft")}) {
            Rule* r = rule(title, RepeatUnit::Hour, 1, at(2026, 11, 23, 9, 15));
            catalogue().registerRule(r);
            QCOMPARE(openOf(*r->uniqueId()).size(), std::size_t(1));
            for (int minute = 0; minute < 3; ++minute) {
                clock().advance(60);
                catalogue().refreshActiveRows();
            }
            QCOMPARE(openOf(*r->uniqueId()).size(), std::size_t(1));
            generator().removeOpenOccurrences(r);
            QVERIFY(openOf(*r->uniqueId()).empty());
        }
    }

    void occurrencesCopyWhatTheirKindNeeds()
    {
        QSignalSpy posted(&library(), &Library::itemsChanged);
        Rule* toDo = rule(QStringLiteral("Water"), RepeatUnit::Hour, 1, at(2026, 11, 23, 9));
        Rule* timed =
            rule(QStringLiteral("Walk"), RepeatUnit::Day, 1, at(2026, 11, 23, 9), true, false);
        generator().makeOccurrence(toDo, at(2026, 11, 23, 11), Generator::Check::AnyOpen);
        QCOMPARE(posted.count(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(posted.count(), 1);
        Item* a = openOf(*toDo->uniqueId()).front();
        QCOMPARE(posted.front().front().value<Item*>(), a);
        QCOMPARE(a->repeatOption(), std::optional<int>(RepeatEnd::toDoMarker));
        QVERIFY(!a->durationMin() && !a->shouldRemind() && !a->repeatInterval());
        QCOMPARE(*a->title(), QStringLiteral("Water"));
        QCOMPARE(*a->notes(), QStringLiteral("notes of Water"));
        QVERIFY(a->rowId() > 0);

        generator().makeOccurrence(timed, at(2026, 11, 24, 9), Generator::Check::AnyOpen);
        Item* b = openOf(*timed->uniqueId()).front();
        QCOMPARE(b->repeatOption(), std::optional<int>(0));
        QCOMPARE(b->durationMin(), std::optional<int>(25));
        QCOMPARE(b->remindBefore(), std::optional<int>(2));
        QCOMPARE(b->repeatIntervalType(), std::optional<int>(RepeatUnit::Day));
        QVERIFY(!b->dtRepeatUpto());
        // The list stays in order: the earlier one first.
        const auto& list = library().items();
        QVERIFY(std::find(list.begin(), list.end(), a) < std::find(list.begin(), list.end(), b));
    }

    void theNextOccurrenceFollowsTheGrid()
    {
        Rule* r = rule(QStringLiteral("Stretch"), RepeatUnit::Hour, 2, at(2026, 11, 23, 6));
        catalogue().registerRule(r);
        Item* first = openOf(*r->uniqueId()).front();
        QCOMPARE(*first->dtReminder(), at(2026, 11, 23, 12));

        // Finished late: the missed dates are dropped, the next is on the grid after now.
        clock().set(at(2026, 11, 23, 16, 30));
        first->setHasFinished(true);
        catalogue().makeNextOccurrence(first, *first->dtReminder());
        Item* second = openOf(*r->uniqueId()).front();
        QCOMPARE(*second->dtReminder(), at(2026, 11, 23, 18));
        QCOMPARE(*catalogue().rowsOf(r).front()->nextRepeatOn, at(2026, 11, 23, 18));

        // Finished early: one step after the date it stood on, so no date repeats.
        second->setHasFinished(true);
        catalogue().makeNextOccurrence(second, *second->dtReminder());
        QCOMPARE(*openOf(*r->uniqueId()).front()->dtReminder(), at(2026, 11, 23, 20));
    }

    void aRuleThatEndedOrWentMakesNothing()
    {
        Rule* r = rule(QStringLiteral("Stretch"), RepeatUnit::Hour, 1, at(2026, 11, 23, 10));
        catalogue().registerRule(r);
        Item* first = openOf(*r->uniqueId()).front();
        first->setHasFinished(true);
        r->setRepeatOption(1);
        r->setDtRepeatUpto(at(2026, 11, 23, 12));
        catalogue().makeNextOccurrence(first, at(2026, 11, 23, 11));
        QVERIFY(openOf(*r->uniqueId()).empty());

        r->setDtRepeatUpto(at(2026, 11, 23, 12, 0, 1));
        catalogue().makeNextOccurrence(first, at(2026, 11, 23, 11));
        QCOMPARE(openOf(*r->uniqueId()).size(), std::size_t(1));

        Item* second = openOf(*r->uniqueId()).front();
        second->setHasFinished(true);
        catalogue().unregisterRule(r);
        app().context().deleteObject(r);
        catalogue().makeNextOccurrence(second, *second->dtReminder());
        QVERIFY(openOf(*r->uniqueId()).empty());

        // A stored step of 0 makes nothing, and never loops.
        Rule* broken = rule(QStringLiteral("Broken"), RepeatUnit::Minute, 0, at(2026, 11, 20));
        catalogue().registerRule(broken);
        QVERIFY(openOf(*broken->uniqueId()).empty());
        Item* orphan = occurrence(*broken->uniqueId(), at(2026, 11, 23, 11), true);
        catalogue().makeNextOccurrence(orphan, at(2026, 11, 23, 11));
        QVERIFY(openOf(*broken->uniqueId()).empty());
    }

    void removingKeepsHistoryAndTheCustomHeaderInStep()
    {
        Rule* a = rule(QStringLiteral("Alpha"), RepeatUnit::Hour, 1, at(2026, 11, 23, 10));
        Rule* b = rule(QStringLiteral("Beta"), RepeatUnit::Hour, 1, at(2026, 11, 23, 10));
        const auto& rows = catalogue().rows();
        const std::size_t catalogueRows = rows.size();
        catalogue().registerRule(a);
        QCOMPARE(rows.size(), catalogueRows + 2);
        QCOMPARE(rows[catalogueRows]->title, QStringLiteral("Custom breaks"));
        catalogue().registerRule(b);
        QCOMPARE(rows.size(), catalogueRows + 3);
        Item* done = occurrence(*a->uniqueId(), at(2026, 11, 22, 10), true);

        QSignalSpy edited(&library(), &Library::rulesChanged);
        QVERIFY(!catalogue().unregisterRule(a));
        QVERIFY(openOf(*a->uniqueId()).empty());
        QVERIFY(done->hasContext());
        QCOMPARE(rows.size(), catalogueRows + 2);
        QVERIFY(catalogue().unregisterRule(b));
        QCOMPARE(rows.size(), catalogueRows);
        QCoreApplication::processEvents();
        QCOMPARE(edited.count(), 2);
    }

    void everyActiveRuleHasOneOpenOccurrenceAtLaunch()
    {
        Rule* hourly = rule(QStringLiteral("Hourly"), RepeatUnit::Hour, 1, at(2026, 11, 1, 9, 15));
        Rule* off = rule(QStringLiteral("Off"), RepeatUnit::Hour, 1, at(2026, 11, 1, 9));
        off->setIsActive(false);
        Rule* water =
            rule(QStringLiteral("water TIME"), RepeatUnit::Minute, 45, at(2026, 11, 23, 9), false);
        water->setIsCustom(std::nullopt);
        library().save();
        const QString hourlyId = *hourly->uniqueId();
        const QString offId = *off->uniqueId();
        const QString waterId = *water->uniqueId();
        for (int run = 0; run < 2; ++run) {
            relaunch(at(2026, 11, 23, 10, 30 + run * 20));
            QCOMPARE(openOf(hourlyId).size(), std::size_t(1));
            QCOMPARE(*openOf(hourlyId).front()->dtReminder(), at(2026, 11, 23, 11, 15));
            QCOMPARE(openOf(offId).size(), std::size_t(0));
            // The catalogue's "Water time" claims it, whatever the case.
            QCOMPARE(openOf(waterId).size(), std::size_t(1));
        }
    }
};

LULLET_TEST_MAIN(TestGeneration)
#include "tst_generation.moc"
