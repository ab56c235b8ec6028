#include "core/presentation/DashboardSummary.h"
#include "support/LaunchedTest.h"

using namespace lullet;
using namespace lullet::test;

// The dashboard's counting: the circles with their quirks, the months, the project rows.
class TestDashboard : public LaunchedTest {
    Q_OBJECT
    // Monday 23 November 2026, noon.
    Date launchedAt() const override { return at(2026, 11, 23, 12, 0); }

    DashboardSummary summary()
    {
        const Services& s = services();
        return DashboardSummary::of(s.library.items(), s.library.projects(), s.history, s.clock,
                                    s.running);
    }

    Item* add(const QString& title, std::optional<Date> due, std::optional<int> notice = {})
    {
        Item* item = app().addItem(title, due);
        item->setRemindBefore(notice);
        return item;
    }

private Q_SLOTS:
    void theCircles()
    {
        const DashboardSummary empty = summary();
        QCOMPARE(empty.overdue + empty.current + empty.upcoming, 0);
        QCOMPARE(empty.months, (std::array<int, 12>{}));
        QVERIFY(empty.rows.empty());

        add(QStringLiteral("done this morning"), at(2026, 11, 23, 9, 0))->setHasFinished(true);
        add(QStringLiteral("later today"), at(2026, 11, 23, 15, 0));
        // Yesterday and unfinished: overdue only with a notice set, "On date" being one.
        add(QStringLiteral("no notice"), at(2026, 11, 22, 9, 0));
        add(QStringLiteral("on date"), at(2026, 11, 22, 9, 0), 0);
        add(QStringLiteral("finished late"), at(2026, 11, 20, 9, 0), 2)->setHasFinished(true);
        // In two days with three days' notice: current and upcoming; without: upcoming alone.
        add(QStringLiteral("within notice"), at(2026, 11, 25, 9, 0), 3);
        add(QStringLiteral("beyond notice"), at(2026, 11, 25, 9, 0), 1);
        add(QStringLiteral("anytime"), std::nullopt, 3);
        // Put off until tomorrow with a day's notice: the postponed date is the one that counts.
        Item* postponed = add(QStringLiteral("put off"), at(2026, 11, 21, 9, 0), 1);
        postponed->setDtReminderPostponed(at(2026, 11, 24, 9, 0));

        const DashboardSummary counted = summary();
        QCOMPARE(counted.overdue, 1);
        // done this morning, later today, within notice, put off.
        QCOMPARE(counted.current, 4);
        // later today, within notice, beyond notice, put off.
        QCOMPARE(counted.upcoming, 4);
    }

    void theMonths()
    {
        add(QStringLiteral("march"), at(2026, 3, 31, 23, 59));
        Item* moved = add(QStringLiteral("moved"), at(2026, 4, 1, 0, 0));
        moved->setDtReminderPostponed(at(2026, 5, 2, 9, 0));
        Item* sameMonth = add(QStringLiteral("same month"), at(2026, 5, 3, 9, 0));
        sameMonth->setDtReminderPostponed(at(2026, 5, 20, 9, 0));
        add(QStringLiteral("last year"), at(2025, 12, 31, 23, 0));
        add(QStringLiteral("next year"), at(2027, 1, 1, 0, 0));
        const std::array<int, 12> months = summary().months;
        QCOMPARE(months[2], 1);
        QCOMPARE(months[3], 1);
        QCOMPARE(months[4], 2);
        int total = 0;
        for (int count : months)
            total += count;
        QCOMPARE(total, 4);
    }

    // Items in no project come first; a project without items has no row.
    void theProjectRows()
    {
        const Services& s = services();
        Project* home = s.projectActions.addProject(QStringLiteral("Home")).project;
        s.projectActions.addProject(QStringLiteral("Empty"));
        Item* tap = add(QStringLiteral("Fix the tap"), at(2026, 11, 24, 9, 0));
        tap->setDurationHr(1);
        tap->setDurationMin(30);
        tap->setToProject(home);
        add(QStringLiteral("loose"), std::nullopt);
        const DashboardSummary counted = summary();
        QCOMPARE(counted.rows.size(), std::size_t(2));
        QCOMPARE(counted.rows[0].title, QStringLiteral("Not in Project"));
        QCOMPARE(counted.rows[0].project, nullptr);
        QCOMPARE(counted.rows[0].count, 1);
        QCOMPARE(counted.rows[1].project, home);
        QCOMPARE(counted.rows[1].plannedSeconds, qint64(5400));
    }
};

LULLET_TEST_MAIN(TestDashboard)
#include "tst_dashboard.moc"
